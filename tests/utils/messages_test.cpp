// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/messages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FormatText, IsAsPrintf) {
  EXPECT_EQ(FormatText("%s: %d of %05.1f%%", "sky", -3, 2.25), "sky: -3 of 002.2%");
}

TEST(FormatText, LongTextIsCutAt511Bytes) {
  const std::string longText(600, 'x');
  EXPECT_EQ(FormatText("%s", longText.c_str()), longText.substr(0, 511));
  EXPECT_EQ(FormatText("%s", longText.substr(0, 511).c_str()).size(), 511u);
}

TEST(JoinNames, CommasStandBetween) {
  EXPECT_EQ(JoinNames({"A", "B", "C"}), "A, B, C");
  EXPECT_EQ(JoinNames({"A"}), "A");
  EXPECT_EQ(JoinNames({}), "");
}

}  // namespace
