// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "skydata/commands/command.h"

namespace skydata {

// Runs skydata with these arguments, the program's name left aside; returns an ExitCode. What was done goes
// to `output`; what is wrong, one line, to `errors`. Lack of memory throws (utils/program.h).
int Run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors);

}  // namespace skydata
