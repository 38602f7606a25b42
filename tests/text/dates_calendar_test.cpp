// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>

#include <gtest/gtest.h>

#include "common_interfaces/dates.h"

namespace CommonInterfaces {
namespace {

TEST(DaysInMonth, OfACommonYear) {
  const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 1; month <= 12; ++month) EXPECT_EQ(GetDaysInMonth(month, 2023), days[month - 1]) << month;
}

TEST(DaysInMonth, FebruaryFollowsTheGregorianRule) {
  EXPECT_EQ(GetDaysInMonth(2, 1900), 28);
  EXPECT_EQ(GetDaysInMonth(2, 2000), 29);
  EXPECT_EQ(GetDaysInMonth(2, 2024), 29);
  EXPECT_EQ(GetDaysInMonth(2, 2100), 28);
}

TEST(DaysInMonth, GregorianRuleHoldsBefore1582) {
  EXPECT_EQ(GetDaysInMonth(2, 1500), 28);  // a leap year of the Julian calendar, which was in use
  EXPECT_EQ(GetDaysInMonth(10, 1582), 31);
}

TEST(DaysInMonth, GregorianRuleHoldsInNegativeYears) {
  EXPECT_EQ(GetDaysInMonth(2, 0), 29);
  EXPECT_EQ(GetDaysInMonth(2, -1), 28);
  EXPECT_EQ(GetDaysInMonth(2, -4), 29);
  EXPECT_EQ(GetDaysInMonth(2, -100), 28);
  EXPECT_EQ(GetDaysInMonth(2, -400), 29);
  EXPECT_EQ(GetDaysInMonth(2, -4712), 29);
  EXPECT_EQ(GetDaysInMonth(2, INT_MIN), 29);  // -2147483648 is divisible by 4 and not by 100
}

TEST(DaysInMonth, NoMonthOutside1To12) {
  for (const int month : {0, 13, -1, INT_MIN, INT_MAX}) EXPECT_EQ(GetDaysInMonth(month, 2024), 0) << month;
}

struct Moment {
  int day = 0;
  double fraction = 0.0;
};

Moment Find(int year, int month, int week, int weekday, int hour = 0, int minute = 0) {
  Moment moment;
  const auto s = [](int value) { return static_cast<short>(value); };
  RefDay(moment.day, moment.fraction, s(year), s(month), s(week), s(weekday), s(hour), s(minute));
  return moment;
}

// Julian day numbers counted by hand from 2000-01-01 (2451545): 2024-01-01 is 24 * 365 + 6 days later.
constexpr int kJanuary2024 = 2451545 + 24 * 365 + 6;
constexpr int kMarch2024 = kJanuary2024 + 31 + 29;
constexpr int kSeptember2024 = kMarch2024 + 31 + 30 + 31 + 30 + 31 + 31;
constexpr int kNovember2024 = kSeptember2024 + 30 + 31;
constexpr int kSunday = 0, kThursday = 4, kSaturday = 6;

TEST(RefDay, LastSundayOfMarch2024IsThe31st) {
  const Moment moment = Find(2024, 2, 4, kSunday, 2);
  EXPECT_EQ(moment.day, 2460401);
  EXPECT_EQ(moment.day, kMarch2024 + 30);
  EXPECT_DOUBLE_EQ(moment.fraction, -10.0 / 24.0);
}

TEST(RefDay, SecondSundayOfMarchAndFirstOfNovember2024) {
  EXPECT_EQ(Find(2024, 2, 1, kSunday).day, kMarch2024 + 9);
  EXPECT_EQ(Find(2024, 10, 0, kSunday).day, kNovember2024 + 2);
}

TEST(RefDay, FourthSundayIsNotTheLastOfAMonthWithFive) {
  EXPECT_EQ(Find(2024, 2, 3, kSunday).day, kMarch2024 + 23);
  EXPECT_EQ(Find(2024, 2, 4, kSunday).day, kMarch2024 + 30);
}

TEST(RefDay, FourthSundayIsTheLastOfAMonthWithFour) {
  EXPECT_EQ(Find(2024, 10, 3, kSunday).day, kNovember2024 + 23);
  EXPECT_EQ(Find(2024, 10, 4, kSunday).day, kNovember2024 + 23);
}

TEST(RefDay, WeekdaysCountFromSunday) {
  // 1 September 2024 was a Sunday, so the first of each weekday are the first seven days.
  for (int weekday = 0; weekday < 7; ++weekday) {
    EXPECT_EQ(Find(2024, 8, 0, weekday).day, kSeptember2024 + weekday);
  }
}

TEST(RefDay, EachWeekIsSevenDaysLater) {
  for (int week = 0; week < 4; ++week) {
    EXPECT_EQ(Find(2024, 8, week, kSunday).day, kSeptember2024 + 7 * week);
  }
}

TEST(RefDay, LastWeekdayMayBeTheLastDayOfTheMonth) {
  EXPECT_EQ(Find(2024, 1, 4, kThursday).day, kMarch2024 - 1);      // 29 February 2024
  EXPECT_EQ(Find(2023, 11, 4, kSunday).day, kJanuary2024 - 1);     // 31 December 2023
  EXPECT_EQ(Find(2024, 7, 4, kSaturday).day, kSeptember2024 - 1);  // before a month that begins with Sunday
}

TEST(RefDay, LastWeekdayOfFebruaryInACommonYear) {
  // February 2015 has 28 days and begins with a Sunday; 1 March 2015 is 9 * 365 + 3 days before 1 March 2024.
  EXPECT_EQ(Find(2015, 1, 4, kSunday).day, kMarch2024 - 9 * 365 - 3 - 7);
  EXPECT_EQ(Find(2015, 1, 3, kSunday).day, kMarch2024 - 9 * 365 - 3 - 7);
  EXPECT_EQ(Find(2015, 1, 4, kSaturday).day, kMarch2024 - 9 * 365 - 3 - 1);
}

TEST(RefDay, TimeOfDayCountsFromMidnight) {
  EXPECT_DOUBLE_EQ(Find(2024, 2, 0, 0, 0, 0).fraction, -0.5);
  EXPECT_DOUBLE_EQ(Find(2024, 2, 0, 0, 12, 0).fraction, 0.0);
  EXPECT_DOUBLE_EQ(Find(2024, 2, 0, 0, 18, 0).fraction, 0.25);
  EXPECT_NEAR(Find(2024, 2, 0, 0, 0, 1).fraction, -719.0 / 1440.0, 1e-15);
  EXPECT_NEAR(Find(2024, 2, 0, 0, 23, 59).fraction, 719.0 / 1440.0, 1e-15);
}

TEST(RefDay, TimeOfDayOutOfRangeCountsOnAndLeavesTheDay) {
  const Moment moment = Find(2024, 2, 4, kSunday, 24);
  EXPECT_EQ(moment.day, kMarch2024 + 30);
  EXPECT_DOUBLE_EQ(moment.fraction, 0.5);
  EXPECT_DOUBLE_EQ(Find(2024, 2, 4, kSunday, 1, 90).fraction, 2.5 / 24.0 - 0.5);
  EXPECT_DOUBLE_EQ(Find(2024, 2, 4, kSunday, -1).fraction, -1.0 / 24.0 - 0.5);
}

TEST(RefDay, MonthOutOfRangeMovesTheYear) {
  EXPECT_EQ(Find(2023, 12, 0, 1).day, kJanuary2024);  // 1 January 2024 was a Monday
  EXPECT_EQ(Find(2025, -12, 0, 1).day, kJanuary2024);
}

TEST(RefDay, WeekdayOutOfRangeCountsModulo7) {
  EXPECT_EQ(Find(2024, 8, 0, 7).day, kSeptember2024);
  EXPECT_EQ(Find(2024, 8, 0, -1).day, kSeptember2024 + kSaturday);
}

TEST(RefDay, WeekOutOfRangeIsTheFirstOrTheLast) {
  EXPECT_EQ(Find(2024, 2, -1, kSunday).day, kMarch2024 + 2);
  EXPECT_EQ(Find(2024, 2, SHRT_MIN, kSunday).day, kMarch2024 + 2);
  EXPECT_EQ(Find(2024, 2, 5, kSunday).day, kMarch2024 + 30);
  EXPECT_EQ(Find(2024, 2, SHRT_MAX, kSunday).day, kMarch2024 + 30);
}

TEST(RefDay, FirstSundayOfOctober1582IsThe17th) {
  // Monday 1 October to Thursday 4 October, then Friday 15 October, Julian day number 2299161.
  EXPECT_EQ(Find(1582, 9, 0, kSunday).day, 2299161 + 2);
  EXPECT_EQ(Find(1582, 9, 0, kThursday).day, 2299161 - 1);
}

TEST(RefDay, DaysBeforeTheFirstJulianDay) {
  // Day 0, 1 January -4712, was a Monday; 31 December -4713 a Sunday.
  EXPECT_EQ(Find(-4712, 0, 0, 1).day, 0);
  EXPECT_EQ(Find(-4713, 11, 4, kSunday).day, -1);
  EXPECT_EQ(Find(-4713, 11, 4, 1).day, -7);
}

TEST(RefDay, EveryExtremeFindsADayOfThatWeekday) {
  for (const int year : {SHRT_MIN, SHRT_MAX}) {
    for (const int month : {SHRT_MIN, SHRT_MAX}) {
      for (const int week : {SHRT_MIN, SHRT_MAX}) {
        const Moment moment = Find(year, month, week, kSunday, SHRT_MAX, SHRT_MIN);
        EXPECT_EQ((moment.day % 7 + 7) % 7, 6) << year << ' ' << month;  // day 6 was the first Sunday
        EXPECT_NEAR(moment.fraction, (SHRT_MAX + SHRT_MIN / 60.0) / 24.0 - 0.5, 1e-9);
      }
    }
  }
}

}  // namespace
}  // namespace CommonInterfaces
