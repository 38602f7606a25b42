// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "companions/utils/program_platform.h"

namespace {

// How a standard stream is open after a program was started without it.
int OpenModeOf(int stream) {
  const int kept = dup(stream);
  close(stream);
  utils_internal::PrepareStandardStreams();
  const int mode = fcntl(stream, F_GETFL);
  dup2(kept, stream);
  close(kept);
  return mode == -1 ? -1 : mode & O_ACCMODE;
}

// So that neither passes for one that works, and no file of the program's gets the number.
TEST(ProgramPosix, StreamThatIsMissingCannotBeReadAndOthersNotBeWritten) {
  EXPECT_EQ(OpenModeOf(STDIN_FILENO), O_WRONLY);
  EXPECT_EQ(OpenModeOf(STDERR_FILENO), O_RDONLY);
}

}  // namespace
