// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/julian_date.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "utils/calendar.h"

namespace {

using utils::Calendar;
using utils::DayNumber;
using utils::FloorDivide;
using utils::kGregorianCalendar;
using utils::kJulianCalendar;

constexpr long long kTenthsOfMillisecondPerDay = 86400LL * 10000;
constexpr double kLargestFraction = 5e9;  // beyond this every day number saturates; in tenths it fits 64 bits

int SaturateToInt(long long value) {
  return static_cast<int>(
      std::clamp<long long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

constexpr long long kFirstDay = DayNumber(-32768, 1, 1, kJulianCalendar);
constexpr long long kLastDay = DayNumber(32767, 12, 31, kGregorianCalendar);
// Tenths of a millisecond from the midnight of day number 0.
constexpr long long kFirstMoment = kFirstDay * kTenthsOfMillisecondPerDay;
constexpr long long kLastMoment = (kLastDay + 1) * kTenthsOfMillisecondPerDay - 1;

void SetDay(long long dayNumber, CalendarDate& date) {
  const Calendar& calendar = dayNumber < utils::kFirstGregorianDay ? kJulianCalendar : kGregorianCalendar;
  const utils::CalendarDay split = utils::SplitDayNumber(dayNumber, calendar);
  date.year = static_cast<int>(split.year);
  date.month = split.month;
  date.day = split.day;
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
  const long long clamped = std::clamp(sinceMidnight, kFirstMoment, kLastMoment);
  const long long dayNumber = FloorDivide(clamped, kTenthsOfMillisecondPerDay);
  const long long timeOfDay = clamped - dayNumber * kTenthsOfMillisecondPerDay;
  SetDay(dayNumber, date);
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
  const Calendar& calendar = IsGregorian(year, month, date.day) ? kGregorianCalendar : kJulianCalendar;
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
