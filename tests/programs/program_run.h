// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The programs as they are, each run a process of its own.
#pragma once

#include <string>
#include <vector>

namespace program_tests {

struct ProgramRun {
  int status = -1;      // exit status; 128 and the number of the signal that ended it
  long mostMemory = 0;  // resident at once, KiB
  std::string output, errors;

  // The only line of complaint, without its end; "" when there was none or more than one.
  std::string GetErrorLine() const;
};

// What a run may have besides its arguments.
struct RunSettings {
  int output = -1;                            // a file descriptor in place of what `output` collects
  std::vector<std::string> environment = {};  // "NAME=value", besides what there is
};

// Runs "skyview" or "skydata" with these arguments, with nothing on standard input, and waits for its end. A
// run that takes longer than a minute is ended by SIGALRM.
ProgramRun RunCommand(const std::string& program, const std::vector<std::string>& arguments,
                      const RunSettings& settings = {});

}  // namespace program_tests
