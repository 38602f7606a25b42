// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Days of the Gregorian calendar, counted from 1970-01-01, for years however far away.
#pragma once

namespace utils_internal {

constexpr long long kSecondsPerDay = 86400;

constexpr long long FloorDivide(long long a, long long b) { return a / b - (a % b < 0 ? 1 : 0); }  // b > 0

constexpr bool IsLeapYear(long long year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

// The day of a date, month 1 to 12. The year is counted from March, so that a leap day ends it and the
// months' lengths repeat every five months: (153 m + 2) / 5 days lie before the month m of that year.
constexpr long long DayFromDate(long long year, int month, int day) {
  const long long y = month <= 2 ? year - 1 : year;
  const long long m = month <= 2 ? month + 9 : month - 3;
  const long long leapDays = FloorDivide(y, 4) - FloorDivide(y, 100) + FloorDivide(y, 400);
  return y * 365 + leapDays + (153 * m + 2) / 5 + day - 1 - 719468;  // 719468: 0000-03-01 to 1970-01-01
}

// 0: Sunday. 1970-01-01 was a Thursday.
constexpr int WeekdayOfDay(long long day) { return static_cast<int>(day + 4 - 7 * FloorDivide(day + 4, 7)); }

// The year that a day lies in. 146097 days are 400 years; the estimate is at most a year off.
constexpr long long YearOfDay(long long day) {
  long long year = 1970 + FloorDivide(day * 400, 146097);
  while (DayFromDate(year, 1, 1) > day) --year;
  while (DayFromDate(year + 1, 1, 1) <= day) ++year;
  return year;
}

}  // namespace utils_internal
