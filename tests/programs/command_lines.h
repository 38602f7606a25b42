// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A line for every command of both programs that does what the command is for.
#pragma once

#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace program_tests {

struct CommandLine {
  std::string program, command;        // "skydata", "settings dump"
  std::vector<std::string> arguments;  // with the words of the command
  std::vector<std::size_t> inputs;     // which of them are files that the command reads

  std::string Describe() const;
};

// At least one line for each command of the tables of both programs; a command that has none here is a
// failure of the test. `dir` receives the files that the lines want; the data root is that of the build.
std::vector<CommandLine> MakeCommandLines(const test_support::TempDir& dir);

// Options of skyview whose value is a file, as the help of its commands lists them, each with a command that
// takes it and what else that one wants.
struct FileOption {
  std::string name;
  std::vector<std::string> before;  // "where", "Jupiter"
};
std::vector<FileOption> ListFileOptions(const test_support::TempDir& dir);

}  // namespace program_tests
