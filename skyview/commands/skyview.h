// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "skyview/session/clock.h"

namespace skyview {

// The whole program: restores a view, prints what it restored and draws it. `arguments` are those behind the
// program's name, `programFolder` is where it lies, for the default data root. Returns the exit code: 0 done,
// 1 data missing or damaged or a file that cannot be written, 2 a bad option; 1 and 2 come with exactly one
// line on `errors`. Otherwise diagnostic lines of the libraries go there. `clock` tells what "now" and
// "tonight" are. Lack of memory throws (utils/program.h). One thread; it may be called again.
int Run(const std::vector<std::string>& arguments, const std::string& programFolder, std::ostream& output,
        std::ostream& errors, const Clock& clock = ReadSystemClock);

}  // namespace skyview
