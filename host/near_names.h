// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skyview {

// The names most like the wanted one, at most `most`: first those that begin with it, then by the number of letters
// that differ, up to a third of the wanted name's; upper and lower case count as equal. May be empty.
std::vector<std::string> FindNearNames(const std::string& wanted, const std::vector<std::string>& names,
                                       std::size_t most = 3);

// "A, B, C"
std::string JoinNames(const std::vector<std::string>& names);

}  // namespace skyview
