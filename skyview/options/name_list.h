// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skyview {

// "A, B, C"
std::string JoinNames(const std::vector<std::string>& names);

}  // namespace skyview
