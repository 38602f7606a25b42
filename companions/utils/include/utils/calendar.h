// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Days of the Julian and the Gregorian calendar, counted as Julian day numbers: day number N begins at noon,
// 0 is Monday, 1 January -4712 of the Julian calendar. Exact for every year whose days fit into 64 bits (the
// calendar of <chrono> ends with the year 32767). The year 0 is the one before the year 1.
#pragma once

namespace utils {

// Quotient and remainder of the division that rounds down; the remainder is never negative. b > 0.
constexpr long long FloorDivide(long long a, long long b) { return a / b - (a % b < 0 ? 1 : 0); }
constexpr long long FloorModulo(long long a, long long b) { return a - b * FloorDivide(a, b); }

// Both calendars are counted in years that begin on 1 March, so that the leap day is the last day of a year,
// and in cycles after which the calendar repeats.
struct Calendar {
  long long marchFirstOfYear0;  // Julian day number of 1 March of the year 0
  long long yearsPerCycle;
  long long daysPerCycle;
  bool centuriesAreCommonYears;
};
inline constexpr Calendar kJulianCalendar = {1721118, 4, 1461, false};
inline constexpr Calendar kGregorianCalendar = {1721120, 400, 146097, true};
inline constexpr long long kFirstGregorianDay = 2299161;  // 1582-10-15

// A day of the year; month and day from 1.
struct CalendarDay {
  long long year;
  int month, day;
};

// Whether the year has 29 February.
constexpr bool IsLeapYear(long long year, const Calendar& calendar) {
  // A remainder of zero is zero in every way of rounding, so that negative years need no care.
  return year % 4 == 0 && (!calendar.centuriesAreCommonYears || year % 100 != 0 || year % 400 == 0);
}

// 0 for a month outside 1 to 12.
constexpr int DaysInMonth(long long year, int month, const Calendar& calendar) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  return month == 2 && IsLeapYear(year, calendar) ? 29 : kDays[month - 1];
}

// Days from 1 March to the first day of a month, months counted from March: 153 days in every five months.
constexpr long long DaysBeforeMonth(long long monthFromMarch) { return (153 * monthFromMarch + 2) / 5; }

// Days from the first 1 March of a cycle to that of one of its years.
constexpr long long DaysBeforeYear(long long yearOfCycle, const Calendar& calendar) {
  const long long days = 365 * yearOfCycle + yearOfCycle / 4;
  return calendar.centuriesAreCommonYears ? days - yearOfCycle / 100 : days;
}

// The Julian day number of a date, month 1 to 12; a day outside the month counts on.
constexpr long long DayNumber(long long year, long long month, long long day, const Calendar& calendar) {
  const long long yearFromMarch = month <= 2 ? year - 1 : year;
  const long long monthFromMarch = month <= 2 ? month + 9 : month - 3;
  const long long cycle = FloorDivide(yearFromMarch, calendar.yearsPerCycle);
  const long long yearOfCycle = FloorModulo(yearFromMarch, calendar.yearsPerCycle);
  return calendar.marchFirstOfYear0 + cycle * calendar.daysPerCycle + DaysBeforeYear(yearOfCycle, calendar) +
         DaysBeforeMonth(monthFromMarch) + day - 1;
}

// The inverse.
constexpr CalendarDay SplitDayNumber(long long dayNumber, const Calendar& calendar) {
  const long long days = dayNumber - calendar.marchFirstOfYear0;
  const long long cycle = FloorDivide(days, calendar.daysPerCycle);
  const long long dayOfCycle = FloorModulo(days, calendar.daysPerCycle);
  // 366 days for each year never overshoot, and in one cycle they stay less than a year behind.
  long long yearOfCycle = dayOfCycle / 366;
  if (yearOfCycle + 1 < calendar.yearsPerCycle && DaysBeforeYear(yearOfCycle + 1, calendar) <= dayOfCycle) {
    ++yearOfCycle;
  }
  const long long dayOfYear = dayOfCycle - DaysBeforeYear(yearOfCycle, calendar);
  const long long monthFromMarch = (5 * dayOfYear + 2) / 153;
  const bool nextYear = monthFromMarch >= 10;
  return {cycle * calendar.yearsPerCycle + yearOfCycle + (nextYear ? 1 : 0),
          static_cast<int>(nextYear ? monthFromMarch - 9 : monthFromMarch + 3),
          static_cast<int>(dayOfYear - DaysBeforeMonth(monthFromMarch) + 1)};
}

// 0: Sunday to 6: Saturday.
constexpr int WeekdayOfDayNumber(long long dayNumber) {
  return static_cast<int>(FloorModulo(dayNumber + 1, 7));
}

}  // namespace utils
