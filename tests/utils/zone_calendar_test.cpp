// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/zones/zone_calendar.h"

#include <gtest/gtest.h>

namespace {

using namespace utils_internal;

TEST(ZoneCalendar, KnownDays) {
  EXPECT_EQ(DayFromDate(1970, 1, 1), 0);
  EXPECT_EQ(DayFromDate(1969, 12, 31), -1);
  EXPECT_EQ(DayFromDate(2000, 1, 1), 10957);  // Julian day 2451544.5 less 2440587.5
  EXPECT_EQ(DayFromDate(2000, 3, 1) - DayFromDate(2000, 2, 28), 2);
  EXPECT_EQ(DayFromDate(1900, 3, 1) - DayFromDate(1900, 2, 28), 1);
  EXPECT_EQ(DayFromDate(2400, 1, 1) - DayFromDate(2000, 1, 1), 146097);  // days of 400 Gregorian years
}

TEST(ZoneCalendar, KnownWeekdays) {
  EXPECT_EQ(WeekdayOfDay(0), 4);                         // Thursday
  EXPECT_EQ(WeekdayOfDay(DayFromDate(2000, 1, 1)), 6);   // Saturday
  EXPECT_EQ(WeekdayOfDay(DayFromDate(1969, 7, 20)), 0);  // Sunday
}

TEST(ZoneCalendar, YearOfDayInvertsNewYear) {
  for (long long year = -10000; year <= 10000; ++year) {
    const long long newYear = DayFromDate(year, 1, 1);
    ASSERT_EQ(YearOfDay(newYear), year);
    ASSERT_EQ(YearOfDay(newYear - 1), year - 1);
  }
}

TEST(ZoneCalendar, YearsFarAwayStayExact) {
  constexpr long long kFar = 30000000;
  static_assert(YearOfDay(DayFromDate(kFar, 7, 1)) == kFar);
  EXPECT_EQ(YearOfDay(DayFromDate(-kFar, 1, 1)), -kFar);
  EXPECT_EQ(YearOfDay(DayFromDate(-kFar, 12, 31)), -kFar);
}

}  // namespace
