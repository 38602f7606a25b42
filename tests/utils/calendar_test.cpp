// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/calendar.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

using namespace utils;

TEST(Calendar, DivisionRoundsDown) {
  EXPECT_EQ(FloorDivide(7, 4), 1);
  EXPECT_EQ(FloorDivide(-7, 4), -2);
  EXPECT_EQ(FloorDivide(-8, 4), -2);
  EXPECT_EQ(FloorModulo(7, 4), 3);
  EXPECT_EQ(FloorModulo(-7, 4), 1);
  EXPECT_EQ(FloorModulo(-8, 4), 0);
}

// The last day of the Julian calendar was Thursday, 4 October 1582, the next one Friday, 15 October.
TEST(Calendar, KnownDays) {
  EXPECT_EQ(DayNumber(-4712, 1, 1, kJulianCalendar), 0);
  EXPECT_EQ(DayNumber(1582, 10, 4, kJulianCalendar), kFirstGregorianDay - 1);
  EXPECT_EQ(DayNumber(1582, 10, 15, kGregorianCalendar), kFirstGregorianDay);
  EXPECT_EQ(DayNumber(2000, 1, 1, kGregorianCalendar), 2451545);
  EXPECT_EQ(DayNumber(0, 3, 1, kJulianCalendar), kJulianCalendar.marchFirstOfYear0);
  EXPECT_EQ(WeekdayOfDayNumber(0), 1);
  EXPECT_EQ(WeekdayOfDayNumber(kFirstGregorianDay), 5);
  EXPECT_EQ(WeekdayOfDayNumber(2451545), 6);
  EXPECT_EQ(WeekdayOfDayNumber(-1), 0);
}

TEST(Calendar, SplitDaysBelongToTheirNumbers) {
  for (const Calendar& calendar : {kJulianCalendar, kGregorianCalendar}) {
    for (long long number = -3000000; number < 6000000; number += 97) {
      const CalendarDay day = SplitDayNumber(number, calendar);
      ASSERT_EQ(DayNumber(day.year, day.month, day.day, calendar), number);
      ASSERT_GE(day.day, 1);
      ASSERT_LE(day.day, DaysInMonth(day.year, day.month, calendar));
    }
  }
}

// Every day of three cycles against the calendar of <chrono>, whose day 0 is 1970-01-01.
TEST(Calendar, GregorianDaysAreThoseOfChrono) {
  using namespace std::chrono;
  for (long long number = 2440588 - 300000; number < 2440588 + 150000; ++number) {
    const year_month_day expected{sys_days{days{number - 2440588}}};
    const CalendarDay day = SplitDayNumber(number, kGregorianCalendar);
    ASSERT_EQ(day.year, static_cast<int>(expected.year()));
    ASSERT_EQ(day.month, static_cast<int>(static_cast<unsigned>(expected.month())));
    ASSERT_EQ(day.day, static_cast<int>(static_cast<unsigned>(expected.day())));
    ASSERT_EQ(WeekdayOfDayNumber(number),
              static_cast<int>(weekday{sys_days{days{number - 2440588}}}.c_encoding()));
  }
}

TEST(Calendar, LeapYearsAndMonths) {
  EXPECT_TRUE(IsLeapYear(1900, kJulianCalendar));
  EXPECT_FALSE(IsLeapYear(1900, kGregorianCalendar));
  EXPECT_TRUE(IsLeapYear(-400, kGregorianCalendar));
  EXPECT_FALSE(IsLeapYear(-100, kGregorianCalendar));
  EXPECT_EQ(DaysInMonth(2024, 2, kGregorianCalendar), 29);
  EXPECT_EQ(DaysInMonth(2023, 2, kGregorianCalendar), 28);
  EXPECT_EQ(DaysInMonth(2023, 12, kGregorianCalendar), 31);
  EXPECT_EQ(DaysInMonth(2023, 0, kGregorianCalendar), 0);
  EXPECT_EQ(DaysInMonth(2023, 13, kGregorianCalendar), 0);
}

}  // namespace
