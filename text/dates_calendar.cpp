// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lengths of months, and the days of daylight-saving rules.
#include <algorithm>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "utils/calendar.h"

namespace CommonInterfaces {

namespace {

constexpr short kLastWeek = 4;

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

int GetFirstOnOrAfter(int day, int weekday) {
  return day + static_cast<int>(utils::FloorModulo(weekday - utils::WeekdayOfDayNumber(day), 7));
}

}  // namespace

int GetDaysInMonth(int month, int year) { return utils::DaysInMonth(year, month, utils::kGregorianCalendar); }

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
