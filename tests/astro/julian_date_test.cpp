// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/julian_date.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace {

CalendarDate Date(int year, int month, int day, int hour = 0, int minute = 0, double second = 0.0) {
  CalendarDate date;
  date.year = year;
  date.month = month;
  date.day = day;
  date.hour = hour;
  date.minute = minute;
  date.second = second;
  return date;
}

struct Moment {
  int day = 0;
  double fraction = 0.0;
};

Moment ToMoment(const CalendarDate& date) {
  Moment moment;
  DJ(date, moment.day, moment.fraction);
  return moment;
}

CalendarDate ToDate(int day, double fraction) {
  CalendarDate date;
  JD(day, fraction, date);
  return date;
}

void ExpectDate(const CalendarDate& date, int year, int month, int day) {
  EXPECT_EQ(date.year, year);
  EXPECT_EQ(date.month, month);
  EXPECT_EQ(date.day, day);
}

void ExpectTime(const CalendarDate& date, int hour, int minute, double second) {
  EXPECT_EQ(date.hour, hour);
  EXPECT_EQ(date.minute, minute);
  EXPECT_DOUBLE_EQ(date.second, second);
}

// The two calendars as people state them: one day after the other.
bool IsLeapYear(int year) {
  if (year <= 1582) return year % 4 == 0;
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

void StepToNextDay(CalendarDate& date) {
  static const int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (date.year == 1582 && date.month == 10 && date.day == 4) {
    date.day = 15;
    return;
  }
  const int last = kDays[date.month - 1] + (date.month == 2 && IsLeapYear(date.year) ? 1 : 0);
  if (++date.day <= last) return;
  date.day = 1;
  if (++date.month <= 12) return;
  date.month = 1;
  ++date.year;
}

}  // namespace

// Meeus, Astronomical Algorithms (1998), chapter 7: the examples and the table of dates.
TEST(JulianDate, PublishedDates) {
  const struct {
    int year, month;
    double day;
    double julianDate;
  } kTable[] = {
      {2000, 1, 1.5, 2451545.0},    {1999, 1, 1.0, 2451179.5},   {1987, 1, 27.0, 2446822.5},
      {1987, 6, 19.5, 2446966.0},   {1988, 1, 27.0, 2447187.5},  {1988, 6, 19.5, 2447332.0},
      {1957, 10, 4.81, 2436116.31}, {1900, 1, 1.0, 2415020.5},   {1600, 1, 1.0, 2305447.5},
      {1600, 12, 31.0, 2305812.5},  {837, 4, 10.3, 2026871.8},   {333, 1, 27.5, 1842713.0},
      {-123, 12, 31.0, 1676496.5},  {-122, 1, 1.0, 1676497.5},   {-1000, 7, 12.5, 1356001.0},
      {-1000, 2, 29.0, 1355866.5},  {-1001, 8, 17.9, 1355671.4}, {-4712, 1, 1.5, 0.0},
  };
  for (const auto& row : kTable) {
    const int day = static_cast<int>(row.day);
    const double second = (row.day - day) * 86400.0;
    const Moment moment = ToMoment(Date(row.year, row.month, day, 0, 0, second));
    EXPECT_NEAR(moment.day - row.julianDate + moment.fraction, 0.0, 1e-9) << row.year;
    const int number = static_cast<int>(row.julianDate);
    const CalendarDate date = ToDate(number, row.julianDate - number);
    ExpectDate(date, row.year, row.month, day);
    EXPECT_NEAR(date.hour * 3600 + date.minute * 60 + date.second, second, 0.0001) << row.year;
  }
}

// Halley's comet passed its perihelion on 1835 November 16 and 1910 April 20, 27183 days later (Meeus,
// example 7.d). 10000 days after 1991 July 11 comes 2018 November 26 (his exercise to it).
TEST(JulianDate, PublishedIntervals) {
  EXPECT_EQ(ToMoment(Date(1910, 4, 20)).day - ToMoment(Date(1835, 11, 16)).day, 27183);
  ExpectDate(ToDate(ToMoment(Date(1991, 7, 11)).day + 10000, 0.0), 2018, 11, 26);
}

TEST(JulianDate, EveryDayOfTheYearsMinus32768To32767FollowsTheCalendarRules) {
  CalendarDate expected = Date(-32768, 1, 1);
  int day = ToMoment(expected).day;
  const int first = day;
  int wrong = 0;
  for (; expected.year <= 32767; ++day, StepToNextDay(expected)) {
    CalendarDate date;
    JD(day, 0.0, date);
    const bool sameDate =
        date.year == expected.year && date.month == expected.month && date.day == expected.day;
    int back;
    double fraction;
    DJ(date, back, fraction);
    if (!sameDate || back != day || fraction != 0.0 || date.hour != 12 || date.minute != 0) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
  // 65536 years with a leap day in four, less ten days in 1582 and the leap days of the common centuries
  // since.
  const int commonCenturies = (327 - 16) - (81 - 4);
  EXPECT_EQ(day - first, 65536 * 365 + 65536 / 4 - 10 - commonCenturies);
}

TEST(JulianDate, TenDaysAreMissingInOctober1582) {
  EXPECT_EQ(ToMoment(Date(1582, 10, 4)).day, 2299160);
  EXPECT_EQ(ToMoment(Date(1582, 10, 15)).day, 2299161);
  ExpectDate(ToDate(2299160, 0.0), 1582, 10, 4);
  ExpectDate(ToDate(2299161, 0.0), 1582, 10, 15);
  ExpectDate(ToDate(2299160, 0.5), 1582, 10, 15);
}

// Deliberate: dates that never were count on from 4 October, like 32 January does from the 31st.
TEST(JulianDate, DaysThatNeverWereCountOnFromTheFourth) {
  EXPECT_EQ(ToMoment(Date(1582, 10, 5)).day, 2299161);
  EXPECT_EQ(ToMoment(Date(1582, 10, 14)).day, 2299170);
  EXPECT_EQ(ToMoment(Date(1582, 9, 35)).day, 2299161);
}

TEST(JulianDate, CenturiesAreLeapYearsUntilTheReform) {
  ExpectDate(ToDate(ToMoment(Date(1500, 2, 29)).day, 0.0), 1500, 2, 29);
  ExpectDate(ToDate(ToMoment(Date(1700, 2, 29)).day, 0.0), 1700, 3, 1);
  ExpectDate(ToDate(ToMoment(Date(2000, 2, 29)).day, 0.0), 2000, 2, 29);
  ExpectDate(ToDate(ToMoment(Date(0, 2, 29)).day, 0.0), 0, 2, 29);
}

TEST(JulianDate, FieldsOutOfRangeCountOn) {
  EXPECT_EQ(ToMoment(Date(2024, 1, 32)).day, ToMoment(Date(2024, 2, 1)).day);
  EXPECT_EQ(ToMoment(Date(2024, 3, 0)).day, ToMoment(Date(2024, 2, 29)).day);
  EXPECT_EQ(ToMoment(Date(2023, 13, 1)).day, ToMoment(Date(2024, 1, 1)).day);
  EXPECT_EQ(ToMoment(Date(2024, 0, 1)).day, ToMoment(Date(2023, 12, 1)).day);
  EXPECT_EQ(ToMoment(Date(2024, -11, 1)).day, ToMoment(Date(2023, 1, 1)).day);
  const Moment late = ToMoment(Date(2024, 1, 1, 36, -60, 3600.0));
  EXPECT_EQ(late.day, ToMoment(Date(2024, 1, 1)).day);
  EXPECT_DOUBLE_EQ(late.fraction, 1.0);
}

TEST(JulianDate, FractionOfATimeOfDayStaysBelowHalf) {
  EXPECT_EQ(ToMoment(Date(2024, 1, 1, 0, 0, 0.0)).fraction, -0.5);
  EXPECT_EQ(ToMoment(Date(2024, 1, 1, 12, 0, 0.0)).fraction, 0.0);
  const double last = ToMoment(Date(2024, 1, 1, 23, 59, std::nextafter(60.0, 0.0))).fraction;
  EXPECT_LT(last, 0.5);
  EXPECT_GT(last, 0.4999999999);
}

TEST(JulianDate, TimeOfDayIsRoundedBeforeItIsSplit) {
  const double nineOClock = -0.125;
  ExpectTime(ToDate(2460000, nineOClock - 0.00004 / 86400.0), 9, 0, 0.0);
  ExpectTime(ToDate(2460000, nineOClock - 0.00006 / 86400.0), 8, 59, 59.9999);
  ExpectTime(ToDate(2460000, nineOClock + 0.00006 / 86400.0), 9, 0, 0.0001);
}

TEST(JulianDate, RoundingMayCarryIntoTheNextDay) {
  const CalendarDate date = ToDate(2451544, 0.5 - 0.00001 / 86400.0);
  ExpectDate(date, 2000, 1, 1);
  ExpectTime(date, 0, 0, 0.0);
}

TEST(JulianDate, EveryMinuteOfADayComesBack) {
  const int day = ToMoment(Date(2024, 2, 29)).day;
  for (int minute = 0; minute < 1440; ++minute) {
    const Moment moment = ToMoment(Date(2024, 2, 29, minute / 60, minute % 60, 30.25));
    const CalendarDate date = ToDate(moment.day, moment.fraction);
    EXPECT_EQ(moment.day, day);
    ExpectDate(date, 2024, 2, 29);
    ExpectTime(date, minute / 60, minute % 60, 30.25);
  }
}

TEST(JulianDate, WholeDateMayStandInTheFraction) {
  const CalendarDate date = ToDate(0, 2460374.75);
  ExpectDate(date, 2024, 3, 5);
  ExpectTime(date, 6, 0, 0.0);
  ExpectDate(ToDate(INT_MIN, 2147483648.0 + 2451545.0), 2000, 1, 1);
  ExpectDate(ToDate(INT_MAX, 2451545.0 - 2147483647.0), 2000, 1, 1);
  ExpectDate(ToDate(2460374, -10.0), 2024, 2, 23);  // ten days before 4 March
}

TEST(JulianDate, MomentsOutsideTheYearsSaturate) {
  for (const CalendarDate& date : {ToDate(INT_MIN, 0.0), ToDate(0, -1e300), ToDate(-10247455, 0.0)}) {
    ExpectDate(date, -32768, 1, 1);
    ExpectTime(date, 0, 0, 0.0);
  }
  for (const CalendarDate& date : {ToDate(INT_MAX, 0.0), ToDate(0, 1e300), ToDate(13689326, 0.0)}) {
    ExpectDate(date, 32767, 12, 31);
    ExpectTime(date, 23, 59, 59.9999);
  }
}

TEST(JulianDate, FractionThatIsNotFiniteCountsAsNone) {
  for (const double fraction :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    const CalendarDate date = ToDate(2451545, fraction);
    ExpectDate(date, 2000, 1, 1);
    ExpectTime(date, 12, 0, 0.0);
  }
}

TEST(JulianDate, FieldsThatNoDateHoldsStayHarmless) {
  EXPECT_EQ(ToMoment(Date(INT_MAX, 12, 31)).day, INT_MAX);
  EXPECT_EQ(ToMoment(Date(INT_MIN, 1, 1)).day, INT_MIN);
  EXPECT_EQ(ToMoment(Date(INT_MAX, INT_MAX, INT_MAX)).day, INT_MAX);
  EXPECT_EQ(ToMoment(Date(INT_MIN, INT_MIN, INT_MIN)).day, INT_MIN);
  const Moment moment = ToMoment(Date(2000, 1, 1, 12, 0, std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(moment.day, 2451545);
  EXPECT_EQ(moment.fraction, 0.0);
}

TEST(JulianDate, AdjustBringsTheFractionIntoTheCivilDay) {
  const struct {
    double fraction;
    int step;
    double adjusted;
  } kTable[] = {{0.0, 0, 0.0},   {0.25, 0, 0.25},   {-0.5, 0, -0.5},  {0.5, 1, -0.5}, {0.75, 1, -0.25},
                {1.25, 1, 0.25}, {-0.75, -1, 0.25}, {-1.5, -1, -0.5}, {7.5, 8, -0.5}, {-365.0, -365, 0.0}};
  for (const auto& row : kTable) {
    int day = 2451545;
    double fraction = row.fraction;
    Adjust_JD(day, fraction);
    EXPECT_EQ(day, 2451545 + row.step) << row.fraction;
    EXPECT_DOUBLE_EQ(fraction, row.adjusted) << row.fraction;
  }
}

TEST(JulianDate, AdjustKeepsNeighboursOfTheBoundsInside) {
  for (const double start : {std::nextafter(0.5, 0.0), std::nextafter(0.5, 1.0), std::nextafter(-0.5, 0.0),
                             std::nextafter(-0.5, -1.0), -1e-300, std::nextafter(1.5, 0.0)}) {
    int day = 100;
    double fraction = start;
    Adjust_JD(day, fraction);
    EXPECT_GE(fraction, -0.5) << start;
    EXPECT_LT(fraction, 0.5) << start;
    EXPECT_DOUBLE_EQ(day + fraction, 100 + start);
  }
}

TEST(JulianDate, AdjustSaturatesAndClearsWhatIsNotFinite) {
  int day = INT_MAX;
  double fraction = 3.25;
  Adjust_JD(day, fraction);
  EXPECT_EQ(day, INT_MAX);
  EXPECT_DOUBLE_EQ(fraction, 0.25);
  day = 0;
  fraction = -1e300;
  Adjust_JD(day, fraction);
  EXPECT_EQ(day, INT_MIN);
  EXPECT_EQ(fraction, 0.0);
  day = 7;
  fraction = std::numeric_limits<double>::quiet_NaN();
  Adjust_JD(day, fraction);
  EXPECT_EQ(day, 7);
  EXPECT_EQ(fraction, 0.0);
}

// What is no time of day counts on from the day, also where it is a whole one.
TEST(JulianDate, TimesOutsideTheDayCountOn) {
  const int day = ToMoment(Date(2024, 1, 1)).day;
  const struct {
    int hour, minute;
    double second, hours;
  } times[] = {{-1, 0, 0.0, -1.0},  {24, 0, 0.0, 24.0},   {0, -1, 0.0, -1.0 / 60.0},
               {23, 60, 0.0, 24.0}, {0, 0, -3.6, -0.001}, {23, 59, 60.0, 24.0}};
  for (const auto& time : times) {
    const Moment moment = ToMoment(Date(2024, 1, 1, time.hour, time.minute, time.second));
    EXPECT_EQ(moment.day, day);
    EXPECT_DOUBLE_EQ(moment.fraction, time.hours / 24.0 - 0.5);
  }
}
