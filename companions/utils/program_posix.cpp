// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <filesystem>

std::string GetProgramFolder() {
  std::error_code failure;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
  return failure ? std::string() : program.parent_path().string();
}
