// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <windows.h>

#include <filesystem>

std::string GetProgramFolder() {
  wchar_t path[32768];
  const DWORD length = GetModuleFileNameW(nullptr, path, 32768);
  return length == 0 ? std::string() : std::filesystem::path(path, path + length).parent_path().string();
}
