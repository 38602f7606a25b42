// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/option_values.h"

#include <cmath>

#include "astro/julian_date.h"
#include "utils/numbers.h"

namespace skyview {
namespace {

struct NumberPair {
  double first, second;
};

std::optional<NumberPair> ParsePair(std::string_view text, double firstLow, double firstHigh,
                                    double secondLow, double secondHigh) {
  const auto comma = text.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const auto first = ParseNumber(text.substr(0, comma), firstLow, firstHigh);
  const auto second = ParseNumber(text.substr(comma + 1), secondLow, secondHigh);
  if (!first || !second) return std::nullopt;
  return NumberPair{*first, *second};
}

// Takes exactly `digits` decimal digits off the front.
std::optional<int> TakeDigits(std::string_view& text, std::size_t digits) {
  const auto written = text.substr(0, digits);
  if (written.size() < digits || written.find_first_not_of("0123456789") != std::string_view::npos)
    return std::nullopt;
  text.remove_prefix(written.size());
  return ParseNumber<int>(written, 0, 9999);
}

bool TakeChar(std::string_view& text, char c) {
  if (text.empty() || text.front() != c) return false;
  text.remove_prefix(1);
  return true;
}

// A number of two digits within [0, high], after the separator.
bool TakeField(std::string_view& text, char separator, int high, int& value) {
  if (!TakeChar(text, separator)) return false;
  const auto number = TakeDigits(text, 2);
  if (!number || *number > high) return false;
  value = *number;
  return true;
}

bool TakeDate(std::string_view& text, CalendarDate& date) {
  const bool negative = TakeChar(text, '-');
  const auto year = TakeDigits(text, 4);
  if (!year) return false;
  date.year = negative ? -*year : *year;
  return TakeField(text, '-', 12, date.month) && TakeField(text, '-', 31, date.day) && date.month > 0 &&
         date.day > 0;
}

bool TakeSeconds(std::string_view& text, CalendarDate& date) {
  int whole = 0;
  if (!TakeField(text, ':', 59, whole)) return false;
  date.second = whole;
  if (!TakeChar(text, '.')) return true;
  double unit = 0.1;
  std::size_t digits = 0;
  for (; digits < text.size() && text[digits] >= '0' && text[digits] <= '9'; ++digits, unit *= 0.1) {
    date.second += unit * (text[digits] - '0');
  }
  text.remove_prefix(digits);
  return digits > 0;
}

bool TakeClock(std::string_view& text, CalendarDate& date) {
  const auto hour = TakeDigits(text, 2);
  if (!hour || *hour > 23) return false;
  date.hour = *hour;
  if (!TakeField(text, ':', 59, date.minute)) return false;
  return text.empty() || text.front() != ':' || TakeSeconds(text, date);
}

// "", "Z", "+HH:MM" or "-HH:MM".
bool TakeOffset(std::string_view& text, std::optional<double>& offset) {
  if (text.empty()) return true;
  if (TakeChar(text, 'Z')) {
    offset = 0.0;
    return true;
  }
  const char sign = text.front();
  int hours = 0, minutes = 0;
  if (sign != '+' && sign != '-') return false;
  if (!TakeField(text, sign, 23, hours) || !TakeField(text, ':', 59, minutes)) return false;
  offset = (sign == '-' ? -1.0 : 1.0) * (hours * 60 + minutes) / 1440.0;
  return true;
}

// Whether the date is one of the calendar: 31 April would count on into May.
bool IsCalendarDay(const CalendarDate& written, int day, double fraction) {
  CalendarDate back;
  JD(day, fraction, back);
  return back.year == written.year && back.month == written.month && back.day == written.day;
}

}  // namespace

std::optional<ViewFile> ParseViewFile(std::string_view text) {
  ViewFile view;
  const auto colon = text.rfind(':');
  const auto number = colon == std::string_view::npos ? std::string_view() : text.substr(colon + 1);
  if (!number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos) {
    const auto id = ParseNumber<int>(number, 1, 2147483647);
    if (!id) return std::nullopt;
    view.id = *id;
    text = text.substr(0, colon);
  }
  if (text.empty()) return std::nullopt;
  view.path = text;
  return view;
}

std::optional<Place> ParsePlace(std::string_view text) {
  const auto pair = ParsePair(text, -90.0, 90.0, -180.0, 180.0);
  if (!pair) return std::nullopt;
  return Place{pair->first, pair->second, 0.0, ""};
}

std::optional<Look> ParseLook(std::string_view text) {
  const auto pair = ParsePair(text, 0.0, 360.0, -90.0, 90.0);
  if (!pair) return std::nullopt;
  return Look{pair->first, pair->second};
}

std::optional<Aim> ParseAim(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789";
  if (text.find_first_not_of("0123456789+-., ") == std::string_view::npos &&
      text.find_first_not_of(kDigits) != std::string_view::npos)
    return std::nullopt;
  Aim aim;
  const auto at = text.rfind('@');
  if (at != std::string_view::npos) {
    aim.zoom = ParseZoom(text.substr(at + 1));
    if (!aim.zoom) return std::nullopt;
    text = text.substr(0, at);
  }
  if (text.empty()) return std::nullopt;
  aim.name = text;
  return aim;
}

std::optional<Pixel> ParsePixel(std::string_view text) {
  constexpr double kMost = 16384.0;
  const auto pair = ParsePair(text, 0.0, kMost, 0.0, kMost);
  if (!pair) return std::nullopt;
  return Pixel{pair->first, pair->second};
}

std::optional<double> ParseZoom(std::string_view text) {
  return ParseNumber(text, scene::kMinZoom, scene::kMaxZoom);
}

std::optional<double> ParseField(std::string_view text) { return ParseNumber(text, 0.0001, 359.0); }

std::optional<ClockTime> ParseClockTime(std::string_view text) {
  if (text == "now") return ClockTime::kNow;
  if (text == "today") return ClockTime::kToday;
  if (text == "tonight") return ClockTime::kTonight;
  return std::nullopt;
}

std::optional<WrittenTime> ParseTime(std::string_view text) {
  CalendarDate date;
  WrittenTime time;
  if (!TakeDate(text, date)) return std::nullopt;
  if (TakeChar(text, 'T') || TakeChar(text, ' ')) {
    if (!TakeClock(text, date) || !TakeOffset(text, time.utcOffset)) return std::nullopt;
  }
  if (!text.empty()) return std::nullopt;
  DJ(date, time.day, time.fraction);
  Adjust_JD(time.day, time.fraction);
  if (!IsCalendarDay(date, time.day, time.fraction)) return std::nullopt;
  return time;
}

bool IsPictureName(std::string_view text) {
  if (text.size() < 5) return false;
  const auto ending = text.substr(text.size() - 4);
  const char before = text[text.size() - 5];
  return (ending == ".svg" || ending == ".png" || ending == ".pdf") && before != '/' && before != '\\';
}

}  // namespace skyview
