// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/name_list.h"

namespace skyview {

std::string JoinNames(const std::vector<std::string>& names) {
  std::string joined;
  for (const auto& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

}  // namespace skyview
