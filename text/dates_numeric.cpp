// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Dates in digits, and the two settings that order them.
#include <cstring>
#include <string_view>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/string_table.h"
#include "text/dates_format.h"
#include "text/format_render.h"
#include "utils/characters.h"
#include "utils/debug.h"
#include "utils/locale.h"
#include "utils/numbers.h"

namespace CommonInterfaces {

namespace {

constexpr int kMonthFirst = 0;
constexpr int kDayFirst = 1;
constexpr int kYearFirst = 2;

constexpr unsigned kNumericFormatId = 20560;

int s_DateFormat = kYearFirst;  // for the thread that uses the string table; lives as long as the process

// Counted from 1, so that a letter at the start is behind a missing one (0).
std::size_t FindLetter(std::string_view pattern, char letter) { return pattern.find(letter) + 1; }
static_assert(std::string_view::npos + 1 == 0);

// The order that text 20560 asks for. Any number but the two means the year first, one that no int holds too.
int GetLocalizedFormat() {
  QX4Strings strings;
  const char* const text = QX4Strings::GetString(kNumericFormatId, true);
  std::string_view rest = text ? text : "";
  SkipWhiteSpace(rest);
  int number = kYearFirst;
  unsigned any = 0;
  if (!TakeNumber(rest, number) && !TakeModulo32(rest, any)) {
    PrintDebugString("Date format not defined in QXStrings.txt (id = 20560)\n");
  }
  return number == kDayFirst || number == kMonthFirst ? number : kYearFirst;
}

}  // namespace

void SetDateFormat(char const* pattern) {
  const std::string_view text = pattern ? pattern : "";
  const std::size_t day = FindLetter(text, 'd');
  const std::size_t month = FindLetter(text, 'm');
  const std::size_t year = FindLetter(text, 'y');
  if (year <= day || year <= month) {
    s_DateFormat = kYearFirst;
  } else {
    s_DateFormat = day < month ? kDayFirst : kMonthFirst;
  }
}

int GetDateFormat() { return s_DateFormat; }

std::string GetDateString(short const* date) { return FormatShortDate(s_DateFormat, date); }

bool GetDateString(char* out, short const* date) { return CopyToBuffer(out, GetDateString(date)); }

std::string GetDayMonthString(short const* date) { return FormatDayMonth(s_DateFormat, date); }

bool GetDayMonthString(char* out, short const* date) { return CopyToBuffer(out, GetDayMonthString(date)); }

std::string getDate(double jd) {
  const int format = GetLocalizedFormat();
  CalendarDate date;
  JD(0, jd, date);
  const char separator = std::strcmp(GetSystemLocale(), "de") == 0 ? '.' : '/';
  switch (format) {
    case kDayFirst:
      return RenderFormat("%02d%c%02d%c%04d", {date.day, separator, date.month, separator, date.year});
    case kMonthFirst:
      return RenderFormat("%02d%c%02d%c%04d", {date.month, separator, date.day, separator, date.year});
    default:
      return RenderFormat("%04d%c%02d%c%02d", {date.year, separator, date.month, separator, date.day});
  }
}

}  // namespace CommonInterfaces
