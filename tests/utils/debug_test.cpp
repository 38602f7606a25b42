// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/debug.h"

#include <thread>

#include <gtest/gtest.h>

#include "support/debug_capture.h"

namespace {

using test_support::DebugCapture;

TEST(PrintDebugString, HandsOverOneFormattedText) {
  DebugCapture capture;
  PrintDebugString("Field %d in section %x already exist\n", 7, 0x706C6E74u);
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Field 7 in section 706c6e74 already exist\n"});
}

TEST(PrintDebugString, TextLongerThanTheLocalBufferIsComplete) {
  DebugCapture capture;
  for (std::size_t length : {510u, 511u, 512u, 513u, 100000u}) {
    const std::string text(length, 'x');
    PrintDebugString("%s\n", text.c_str());
    EXPECT_EQ(capture.lines.back(), text + "\n") << length;
  }
}

TEST(PrintDebugString, NullFormatPrintsNothing) {
  DebugCapture capture;
  void (*print)(const char*, ...) = PrintDebugString;  // the compiler refuses a null format in a plain call
  print(nullptr);
  EXPECT_TRUE(capture.lines.empty());
}

#if !defined(__wasi__)  // which has no second output to look into, and no threads

TEST(PrintDebugString, WithoutASinkTheTextGoesToStandardError) {
  testing::internal::CaptureStderr();
  PrintDebugString("File %s not found\n", "qxstrings.txt");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "File qxstrings.txt not found\n");
}

TEST(SetDebugSink, NullRestoresStandardError) {
  { DebugCapture capture; }
  testing::internal::CaptureStderr();
  PrintDebugString("back\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "back\n");
}

TEST(PrintDebugString, LinesOfTwoThreadsAreHandedOverWhole) {
  testing::internal::CaptureStderr();
  const std::string a(200, 'a'), b(200, 'b');
  const auto print = [](const std::string& text) {
    for (int i = 0; i < 100; ++i) PrintDebugString("%s\n", text.c_str());
  };
  std::thread other(print, b);
  print(a);
  other.join();
  std::string all = testing::internal::GetCapturedStderr();
  int lines = 0;
  for (std::size_t begin = 0; begin < all.size(); ++lines) {
    const std::size_t end = all.find('\n', begin);
    ASSERT_NE(end, std::string::npos);
    const std::string line = all.substr(begin, end - begin);
    ASSERT_TRUE(line == a || line == b) << line;
    begin = end + 1;
  }
  EXPECT_EQ(lines, 200);
}

#endif

}  // namespace
