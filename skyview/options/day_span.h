// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Stretches of the calendar, read from their text. Each reader answers nothing for a text that is not
// wholly of the accepted form. Days are Julian day numbers; years -9999 to 9999 with a year 0.
#pragma once

#include <optional>
#include <string>

namespace skyview {

struct DaySpan {
  int first, last;  // both included

  int GetCount() const { return last - first + 1; }
};

std::optional<DaySpan> ParseYear(const std::string& text);   // "2027"
std::optional<DaySpan> ParseMonth(const std::string& text);  // "2027-03"
// "2027-03-01..2027-04-15", the first day not behind the last; a day, a month or a year alone, or at either
// end: "2027-03..2027-05". At most 400 years.
std::optional<DaySpan> ParseDaySpan(const std::string& text);

}  // namespace skyview
