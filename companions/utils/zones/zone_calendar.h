// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Days of the Gregorian calendar, counted from 1970-01-01, for years however far away.
#pragma once

#include "utils/calendar.h"

namespace utils_internal {

constexpr long long kSecondsPerDay = 86400;
constexpr long long kDayNumberOf1970 = 2440588;  // Julian day number of 1970-01-01

using utils::FloorDivide;

constexpr bool IsLeapYear(long long year) { return utils::IsLeapYear(year, utils::kGregorianCalendar); }

// The day of a date, month 1 to 12.
constexpr long long DayFromDate(long long year, int month, int day) {
  return utils::DayNumber(year, month, day, utils::kGregorianCalendar) - kDayNumberOf1970;
}

// 0: Sunday.
constexpr int WeekdayOfDay(long long day) { return utils::WeekdayOfDayNumber(day + kDayNumberOf1970); }

// The year that a day lies in.
constexpr long long YearOfDay(long long day) {
  return utils::SplitDayNumber(day + kDayNumberOf1970, utils::kGregorianCalendar).year;
}

}  // namespace utils_internal
