// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/day_span.h"

#include "astro/julian_date.h"
#include "skyview/options/option_values.h"

namespace skyview {
namespace {

constexpr int kMostDays = 146097;  // 400 years

// The day number of a date without a time of day.
std::optional<int> ParseDay(const std::string& text) {
  if (text.find_first_of("T :") != std::string::npos) return std::nullopt;
  const auto time = ParseTime(text);
  if (!time) return std::nullopt;
  return time->day;
}

int GetDayNumber(const CalendarDate& date) {
  int day = 0;
  double fraction = 0.0;
  DJ(date, day, fraction);
  return day;
}

// To the day before the one that is so many years and months later.
DaySpan MakeSpan(int first, int years, int months) {
  CalendarDate date;
  JD(first, 0.0, date);
  date.year += years;
  date.month += months;
  return {first, GetDayNumber(date) - 1};
}

std::optional<DaySpan> ParseOne(const std::string& text) {
  if (const auto year = ParseYear(text)) return year;
  if (const auto month = ParseMonth(text)) return month;
  const auto day = ParseDay(text);
  return day ? std::optional(DaySpan{*day, *day}) : std::nullopt;
}

}  // namespace

std::optional<DaySpan> ParseYear(const std::string& text) {
  const auto first = ParseDay(text + "-01-01");
  return first ? std::optional(MakeSpan(*first, 1, 0)) : std::nullopt;
}

std::optional<DaySpan> ParseMonth(const std::string& text) {
  const auto first = ParseDay(text + "-01");
  return first ? std::optional(MakeSpan(*first, 0, 1)) : std::nullopt;
}

std::optional<DaySpan> ParseDaySpan(const std::string& text) {
  const auto dots = text.find("..");
  const auto first = ParseOne(text.substr(0, dots));
  const auto last = dots == std::string::npos ? first : ParseOne(text.substr(dots + 2));
  if (!first || !last || last->last < first->first) return std::nullopt;
  const DaySpan span = {first->first, last->last};
  return span.GetCount() <= kMostDays ? std::optional(span) : std::nullopt;
}

}  // namespace skyview
