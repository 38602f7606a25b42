// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/program_platform.h"
#include "utils/program.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

namespace utils_internal {

// The null device stands in for a closed stream, opened so that what the stream is for fails.
void PrepareStandardStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  for (int stream = 0; stream <= 2; ++stream) {
    if (fcntl(stream, F_GETFD) == -1) static_cast<void>(open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY));
  }
}

unsigned long GetThreadNumber() { return static_cast<unsigned long>(gettid()); }

}  // namespace utils_internal

std::string GetProgramFolder() {
  std::error_code failure;  // gives the empty path
  return std::filesystem::read_symlink("/proc/self/exe", failure).parent_path().string();
}

bool IsErrorTerminal() { return isatty(STDERR_FILENO) == 1; }
