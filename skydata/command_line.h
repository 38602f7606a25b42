// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace skydata {

// Exit codes of the program.
enum ExitCode { kDone = 0, kBadData = 1, kBadUsage = 2 };

// Runs skydata with these arguments, the program's name left aside. What was done goes to `output`; what is wrong, one
// line, to `errors`.
int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors);

}  // namespace skydata
