// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace utils_internal {

// The folders of compiled zone files that the system may have, in the order of looking. The environment
// variable TZDIR names one in front of them, as it does for the system's own services.
std::vector<std::string> GetZoneFolders();

}  // namespace utils_internal
