// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skydata {

// Up to five of the names that `name` may have been meant for, nearest first: a third of its letters wrong at most, capital
// or small alike, or one the beginning of the other.
std::vector<std::string> FindNearNames(const std::string& name, const std::vector<std::string>& names);

}  // namespace skydata
