// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/progress_bar.h"

#include <sstream>

#include <gtest/gtest.h>

namespace skydata {
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

}  // namespace
}  // namespace skydata
