// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"

// The names that a mistyped one may have been meant for, at most `most`, each once: first those that begin
// with it (two letters at least), then by the number of letters that differ, up to a third of the wanted
// name's. Capital and small letters count as equal. May be empty. Any thread.
//
//   FindNearNames("drew", {"Draw", "Grid"})    ->  "Draw"
//   FindNearNames("Show", {"ShowLabel"})       ->  "ShowLabel"
UTILS_API std::vector<std::string> FindNearNames(const std::string& wanted,
                                                 const std::vector<std::string>& names, int most = 3);
