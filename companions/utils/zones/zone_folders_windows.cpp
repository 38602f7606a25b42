// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "companions/utils/zones/zone_folders.h"

namespace utils_internal {

// The system keeps its zones in another form: without TZDIR the data root is the only place of zone files.
std::vector<std::string> GetZoneFolders() {
  const char* chosen = std::getenv("TZDIR");
  return chosen && *chosen ? std::vector<std::string>{chosen} : std::vector<std::string>{};
}

}  // namespace utils_internal
