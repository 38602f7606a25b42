// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace {

TEST(Program, ItsFolderHoldsThisTestProgram) {
  const std::filesystem::path folder = GetProgramFolder();
  EXPECT_TRUE(folder.is_absolute());
  EXPECT_TRUE(std::filesystem::exists(folder / "utils_tests") ||
              std::filesystem::exists(folder / "utils_tests.exe"));
}

int Return7(int argumentCount, char** arguments) { return argumentCount == 1 && !arguments[0] ? 7 : 0; }
int RunOutOfMemory(int, char**) { throw std::bad_alloc(); }
int AskForTooMuch(int, char**) { throw std::length_error("too much"); }
int Fail(int, char**) { throw std::runtime_error("other"); }

TEST(Program, LackOfMemoryIsOneLineAndStatusOne) {
  static const MemoryGuard guard("it");
  char* arguments[] = {nullptr};
  EXPECT_EQ(RunProgram(Return7, 1, arguments), 7);
  for (const auto run : {RunOutOfMemory, AskForTooMuch}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunProgram(run, 1, arguments), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "it: there is not enough memory for this\n");
  }
  EXPECT_THROW(RunProgram(Fail, 1, arguments), std::runtime_error);
}

// What is captured goes to a file.
TEST(Program, FileIsNoTerminal) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(IsErrorTerminal());
  testing::internal::GetCapturedStderr();
}

}  // namespace
