// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lengths of months, and the days of daylight-saving rules.
#include <algorithm>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"

namespace CommonInterfaces {

namespace {

constexpr short kLastWeek = 4;

int FloorModulo7(int value) { return (value % 7 + 7) % 7; }

// Day number N begins at noon; day 0, -4712-01-01, was a Monday.
int GetWeekday(int day) { return FloorModulo7(FloorModulo7(day) + 1); }

// The Julian day number of the first of a month, months counted from zero; the thirteenth is the next
// January.
int GetFirstOfMonth(int year, int month) {
  CalendarDate date;
  date.year = year;
  date.month = month + 1;
  date.hour = 12;
  int day;
  double fraction;
  DJ(date, day, fraction);
  return day;
}

int GetFirstOnOrAfter(int day, int weekday) { return day + FloorModulo7(weekday - GetWeekday(day)); }

}  // namespace

int GetDaysInMonth(int month, int year) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  // A remainder of zero is zero in every way of rounding, so that negative years need no care.
  const bool isLeap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
  return month == 2 && isLeap ? 29 : kDays[month - 1];
}

void RefDay(int& day, double& fraction, short year, short month, short week, short weekday, short hour,
            short minute) {
  if (week >= kLastWeek) {
    day = GetFirstOnOrAfter(GetFirstOfMonth(year, month + 1), weekday) - 7;
  } else {
    day = GetFirstOnOrAfter(GetFirstOfMonth(year, month), weekday) + 7 * std::max<int>(week, 0);
  }
  fraction = (minute / 60.0 + hour) / 24.0 - 0.5;
}

}  // namespace CommonInterfaces
