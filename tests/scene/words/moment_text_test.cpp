// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/moment_text.h"

#include <gtest/gtest.h>

using scene::FormatMoment;

TEST(FormatMoment, IsRoundedToTheMinute) {
  EXPECT_EQ(FormatMoment(2451545, 0.0), "2000-01-01 12:00");
  EXPECT_EQ(FormatMoment(2436116, 0.31), "1957-10-04 19:26");
  // 23:59:31 belongs to the next day, 23:59:29 does not.
  EXPECT_EQ(FormatMoment(2451545, 0.5 - 29.0 / 86400.0), "2000-01-02 00:00");
  EXPECT_EQ(FormatMoment(2451545, 0.5 - 31.0 / 86400.0), "2000-01-01 23:59");
}

TEST(FormatMoment, WholeMinutesAreNotCutShort) {
  for (int minute = 0; minute < 1440; ++minute) {
    char expected[32];
    const int shown = (minute + 720) % 1440;
    std::snprintf(expected, sizeof expected, "%02d:%02d", shown / 60, shown % 60);
    EXPECT_EQ(FormatMoment(2451545, minute / 1440.0).substr(11), expected);
  }
}

TEST(FormatMoment, YearsBeforeChristAreAstronomical) {
  // 1 January of the year -4712 (4713 BC), noon, is day 0.
  EXPECT_EQ(FormatMoment(0, 0.0), "-4712-01-01 12:00");
}
