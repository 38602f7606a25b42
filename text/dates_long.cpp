// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Dates that spell the month, in the order of the language.
#include <string_view>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/string_table.h"
#include "text/dates_months.h"
#include "text/format_render.h"
#include "text/text_ids.h"

namespace CommonInterfaces {

std::string GetDateString(int year, int month, int day) {
  const char* const name = GetMonthOfLongDate(month).c_str();
  QX4Strings strings;
  const char* const text = QX4Strings::GetString(TextIds::kLongDatePattern, true);
  const std::string_view pattern = text ? text : "";
  if (pattern == "dd/mm/yyyy" || pattern == "dd-mm-yyyy")
    return RenderFormat("%2d %s %4d", {day, name, year});
  if (pattern == "dd.mm.yyyy") return RenderFormat("%2d. %s %4d", {day, name, year});
  if (pattern == "d-m-yyyy") return RenderFormat("%d %s %4d", {day, name, year});
  // The leading blank is deliberate.
  if (pattern == "m/d/yyyy") return RenderFormat(" %s %d, %4d", {name, day, year});
  if (pattern == "yyyy/m/d") return RenderFormat("%4d %s %d", {year, name, day});
  return RenderFormat("%4d %s %2d", {year, name, day});
}

std::string GetDateString(_Date const& date) {
  CalendarDate calendar;
  JD(date.day, date.fraction, calendar);
  return GetDateString(calendar.year, calendar.month, calendar.day);
}

}  // namespace CommonInterfaces
