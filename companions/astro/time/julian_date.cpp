// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/julian_date.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"

namespace {

// Both calendars are counted in years that begin on 1 March, so that the leap day is the last day of a year,
// and in cycles after which the calendar repeats.
struct Calendar {
  long long marchFirstOfYear0;  // Julian day number of 1 March of the year 0
  long long yearsPerCycle;
  long long daysPerCycle;
  bool centuriesAreCommonYears;
};
constexpr Calendar kJulian = {1721118, 4, 1461, false};
constexpr Calendar kGregorian = {1721120, 400, 146097, true};
constexpr long long kFirstGregorianDay = 2299161;  // 1582-10-15

constexpr long long kTenthsOfMillisecondPerDay = 86400LL * 10000;
constexpr double kLargestFraction = 5e9;  // beyond this every day number saturates; in tenths it fits 64 bits

constexpr long long FloorDivide(long long a, long long b) {
  const long long quotient = a / b;
  return a % b < 0 ? quotient - 1 : quotient;
}

int SaturateToInt(long long value) {
  return static_cast<int>(
      std::clamp<long long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// Days from 1 March to the first day of a month, months counted from March: 153 days in every five months.
constexpr long long DaysBeforeMonth(long long monthFromMarch) { return (153 * monthFromMarch + 2) / 5; }

constexpr long long DaysBeforeYearOfCycle(const Calendar& calendar, long long year) {
  const long long days = 365 * year + year / 4;
  return calendar.centuriesAreCommonYears ? days - year / 100 : days;
}

constexpr long long DayNumber(long long year, long long month, long long day, const Calendar& calendar) {
  const long long yearFromMarch = month <= 2 ? year - 1 : year;
  const long long monthFromMarch = month <= 2 ? month + 9 : month - 3;
  const long long cycle = FloorDivide(yearFromMarch, calendar.yearsPerCycle);
  const long long yearOfCycle = yearFromMarch - cycle * calendar.yearsPerCycle;
  return calendar.marchFirstOfYear0 + cycle * calendar.daysPerCycle +
         DaysBeforeYearOfCycle(calendar, yearOfCycle) + DaysBeforeMonth(monthFromMarch) + day - 1;
}

constexpr long long kFirstDay = DayNumber(-32768, 1, 1, kJulian);
constexpr long long kLastDay = DayNumber(32767, 12, 31, kGregorian);

void SplitDayNumber(long long dayNumber, CalendarDate& date) {
  const Calendar& calendar = dayNumber < kFirstGregorianDay ? kJulian : kGregorian;
  const long long days = dayNumber - calendar.marchFirstOfYear0;
  const long long cycle = FloorDivide(days, calendar.daysPerCycle);
  const long long dayOfCycle = days - cycle * calendar.daysPerCycle;
  // 366 days for each year never overshoot, and in one cycle they stay less than a year behind.
  long long yearOfCycle = dayOfCycle / 366;
  if (yearOfCycle + 1 < calendar.yearsPerCycle &&
      DaysBeforeYearOfCycle(calendar, yearOfCycle + 1) <= dayOfCycle) {
    ++yearOfCycle;
  }
  const long long dayOfYear = dayOfCycle - DaysBeforeYearOfCycle(calendar, yearOfCycle);
  const long long monthFromMarch = (5 * dayOfYear + 2) / 153;
  const bool nextYear = monthFromMarch >= 10;
  date.year = static_cast<int>(cycle * calendar.yearsPerCycle + yearOfCycle + (nextYear ? 1 : 0));
  date.month = static_cast<int>(nextYear ? monthFromMarch - 9 : monthFromMarch + 3);
  date.day = static_cast<int>(dayOfYear - DaysBeforeMonth(monthFromMarch) + 1);
}

bool IsGregorian(long long year, long long month, long long day) {
  if (year != 1582) return year > 1582;
  if (month != 10) return month > 10;
  return day >= 15;
}

bool IsTimeOfDay(const CalendarDate& date, double second) {
  return date.hour >= 0 && date.hour < 24 && date.minute >= 0 && date.minute < 60 && second >= 0.0 &&
         second < 60.0;
}

}  // namespace

void JD(int day, double fraction, CalendarDate& date) {
  const double moved =
      std::isfinite(fraction) ? std::clamp(fraction, -kLargestFraction, kLargestFraction) : 0.0;
  // Day number N begins at noon, half a day after midnight.
  const long long sinceMidnight = day * kTenthsOfMillisecondPerDay + kTenthsOfMillisecondPerDay / 2 +
                                  std::llround(moved * static_cast<double>(kTenthsOfMillisecondPerDay));
  const long long clamped = std::clamp(sinceMidnight, kFirstDay * kTenthsOfMillisecondPerDay,
                                       (kLastDay + 1) * kTenthsOfMillisecondPerDay - 1);
  const long long dayNumber = FloorDivide(clamped, kTenthsOfMillisecondPerDay);
  const long long timeOfDay = clamped - dayNumber * kTenthsOfMillisecondPerDay;
  SplitDayNumber(dayNumber, date);
  date.hour = static_cast<int>(timeOfDay / 36000000);
  date.minute = static_cast<int>(timeOfDay / 600000 % 60);
  date.second = static_cast<double>(timeOfDay % 600000) / 10000.0;
}

void DJ(const CalendarDate& date, int& day, double& fraction) {
  const long long monthsFromJanuary = static_cast<long long>(date.month) - 1;
  const long long movedYears = FloorDivide(monthsFromJanuary, 12);
  const long long year = date.year + movedYears;
  const long long month = monthsFromJanuary - 12 * movedYears + 1;
  const double second = std::isfinite(date.second) ? date.second : 0.0;
  const Calendar& calendar = IsGregorian(year, month, date.day) ? kGregorian : kJulian;
  // Counted from noon before the division: that keeps the digits of moments close to midnight.
  const double sinceNoon = date.hour * 3600.0 + date.minute * 60.0 - 43200.0 + second;
  fraction = sinceNoon / astro::kSecondsPerDay;
  // A moment too close to midnight for a double rounds to the next day; what is promised is less than half.
  if (IsTimeOfDay(date, second)) fraction = std::min(fraction, std::nextafter(0.5, 0.0));
  day = SaturateToInt(DayNumber(year, month, date.day, calendar));
}

void Adjust_JD(int& day, double& fraction) {
  if (!std::isfinite(fraction)) fraction = 0.0;
  if (fraction >= -0.5 && fraction < 0.5) return;
  double wholeDays = std::floor(fraction);
  double rest = fraction - wholeDays;
  if (rest >= 0.5) {
    rest -= 1.0;
    wholeDays += 1.0;
  }
  constexpr double kLargestStep = 5e9;  // more than the whole range of int
  day = SaturateToInt(day + static_cast<long long>(std::clamp(wholeDays, -kLargestStep, kLargestStep)));
  fraction = rest;
}
