// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/program_platform.h"
#include "utils/program.h"

#include <io.h>
#include <stdio.h>
#include <windows.h>

#include <filesystem>

namespace utils_internal {

// A closed pipe is a failed writing here, and files never take the place of a standard stream.
void PrepareStandardStreams() {}

unsigned long GetThreadNumber() { return GetCurrentThreadId(); }

}  // namespace utils_internal

std::string GetProgramFolder() {
  wchar_t path[32768];
  const DWORD length = GetModuleFileNameW(nullptr, path, 32768);
  return length == 0 ? std::string() : std::filesystem::path(path, path + length).parent_path().string();
}

bool IsErrorTerminal() { return _isatty(_fileno(stderr)) != 0; }
