// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/progress_bar.h"

#include <sstream>

#include <gtest/gtest.h>

namespace {

TEST(ProgressBar, WritesOverItsLineAndGoes) {
  std::ostringstream terminal;
  {
    ProgressBar bar(&terminal);
    bar.Show("reading", 0.5);
    bar.Show("reading", 0.6);  // at once: too soon
  }
  const std::string line = "[" + std::string(20, '#') + std::string(20, '.') + "] 50 % reading";
  EXPECT_EQ(terminal.str(), "\r" + line + "\r" + std::string(line.size(), ' ') + "\r");
}

TEST(ProgressBar, SharesBeyondTheEndsCount) {
  std::ostringstream low, high;
  ProgressBar(&low).Show("x", -1.0);
  ProgressBar(&high).Show("x", 7.0);
  EXPECT_NE(low.str().find("] 0 % x"), std::string::npos);
  EXPECT_NE(high.str().find("] 100 % x"), std::string::npos);
}

TEST(ProgressBar, WithoutATerminalNothingIsWritten) { ProgressBar(nullptr).Show("reading", 0.5); }

// 30 % took 12 seconds: the other 70 % take 28.
TEST(ProgressBar, TheTimeLeftFollowsFromWhatIsDone) {
  EXPECT_EQ(FormatTimeLeft(12.0, 0.3), "0:28 left");
  EXPECT_EQ(FormatTimeLeft(100.0, 0.25), "5:00 left");
  EXPECT_EQ(FormatTimeLeft(3600.0, 1.0 / 3.0), "2:00:00 left");
  EXPECT_EQ(FormatTimeLeft(10.0, 1.0), "0:00 left");
  EXPECT_EQ(FormatTimeLeft(0.5, 0.5), "") << "too soon to tell";
  EXPECT_EQ(FormatTimeLeft(5.0, 0.0), "");
  EXPECT_EQ(FormatTimeLeft(1e9, 0.001), "99:59:59 left");
}

}  // namespace
