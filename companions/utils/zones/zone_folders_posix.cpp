// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "companions/utils/zones/zone_folders.h"

namespace utils_internal {

std::vector<std::string> GetZoneFolders() {
  std::vector<std::string> folders;
  const char* chosen = std::getenv("TZDIR");
  if (chosen && *chosen) folders.emplace_back(chosen);
  for (const char* folder :
       {"/usr/share/zoneinfo", "/usr/lib/zoneinfo", "/usr/share/lib/zoneinfo", "/etc/zoneinfo"}) {
    folders.emplace_back(folder);
  }
  return folders;
}

}  // namespace utils_internal
