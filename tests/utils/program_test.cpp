// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(Program, ItsFolderHoldsThisTestProgram) {
  const std::filesystem::path folder = GetProgramFolder();
  EXPECT_TRUE(folder.is_absolute());
  EXPECT_TRUE(std::filesystem::exists(folder / "utils_tests") ||
              std::filesystem::exists(folder / "utils_tests.exe"));
}

}  // namespace
