// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Standard output that nobody reads, or that is full: success is never told.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include "programs/command_lines.h"
#include "programs/program_run.h"

namespace program_tests {
namespace {

using test_support::TempDir;
using Words = std::vector<std::string>;

// The writing end of a pipe whose reading end is closed.
int MakeClosedPipe() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return -1;
  close(ends[0]);
  return ends[1];
}

// Every run that prints something when it can.
std::vector<CommandLine> MakeLines(const TempDir& dir) {
  auto lines = MakeCommandLines(dir);
  std::vector<CommandLine> helps = {{"skyview", "", {"--help"}, {}},
                                    {"skyview", "", {"--version"}, {}},
                                    {"skydata", "", {"--help"}, {}},
                                    {"skydata", "", {"--version"}, {}}};
  for (const auto& line : lines) {
    const auto words = 1 + std::count(line.command.begin(), line.command.end(), ' ');
    Words help(line.arguments.begin(), line.arguments.begin() + words);
    help.push_back("--help");
    helps.push_back({line.program, line.command, help, {}});
  }
  lines.insert(lines.end(), helps.begin(), helps.end());
  return lines;
}

void ExpectNoSuccess(const CommandLine& line, int output) {
  const ProgramRun run = RunCommand(line.program, line.arguments, {output});
  EXPECT_EQ(run.status, 1) << line.Describe();
  EXPECT_EQ(run.errors, line.program + ": standard output: cannot be written\n") << line.Describe();
}

// The files that a line makes stand when it is run; each run begins in a new folder.
template <class GetOutput>
void FailEveryLine(GetOutput getOutput) {
  const std::size_t count = MakeLines(TempDir()).size();
  for (std::size_t i = 0; i < count; ++i) {
    const TempDir dir;
    const int output = getOutput();
    ASSERT_GE(output, 0);
    ExpectNoSuccess(MakeLines(dir)[i], output);
    close(output);
  }
}

}  // namespace

TEST(StandardOutput, EveryCommandPrintsWhenItCan) {
  const TempDir dir;
  for (const auto& line : MakeLines(dir)) {
    const ProgramRun run = RunCommand(line.program, line.arguments);
    EXPECT_LE(run.status, 1) << line.Describe() << "\n" << run.errors;
    EXPECT_NE(run.output, "") << line.Describe() << "\n" << run.errors;
    EXPECT_EQ(run.errors, "") << line.Describe();
  }
}

TEST(StandardOutput, PipeWithoutReaderEndsEveryCommandWithOneLineAndStatusOne) {
  FailEveryLine(MakeClosedPipe);
}

TEST(StandardOutput, FullDeviceEndsEveryCommandWithOneLineAndStatusOne) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "this system has no such device";
  FailEveryLine([] { return open("/dev/full", O_WRONLY | O_CLOEXEC); });
}

// The first file that is opened would take the place of the stream.
TEST(StandardOutput, ClosedStreamIsNoFile) {
  const TempDir dir;
  const std::string program = std::string(CI_PROGRAM_FOLDER) + "/skyview";
  const std::string own = dir.Write("own.data", "x");
  const std::string command =
      program + " --data " CI_BUILT_DATA " --save-settings " + own + " >&- 2>" + dir.Path("errors");
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  EXPECT_EQ(dir.Read("errors"), "skyview: standard output: cannot be written\n");
}

}  // namespace program_tests
