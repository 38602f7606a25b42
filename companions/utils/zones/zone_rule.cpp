// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/zones/zone_rule.h"

#include "companions/utils/zones/zone_calendar.h"
#include "utils/characters.h"

namespace utils_internal {
namespace {

constexpr int kHour = 3600;
constexpr int kMaxOffsetHours = 24;  // of an offset (POSIX)
constexpr int kMaxTimeHours = 167;   // of the time of a change (RFC 8536: a week less an hour)

// Takes the text apart from its beginning. Each operation answers false when what it wants is not there.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : m_Rest(text) {}

  bool AtEnd() const { return m_Rest.empty(); }

  bool Take(char c) {
    if (m_Rest.empty() || m_Rest.front() != c) return false;
    m_Rest.remove_prefix(1);
    return true;
  }

  bool TakeNumber(int low, int high, int& value) {
    std::size_t digits = 0;
    int number = 0;
    for (; digits < m_Rest.size() && IsDigit(m_Rest[digits]); ++digits) {
      if (digits == 3) return false;
      number = number * 10 + (m_Rest[digits] - '0');
    }
    if (digits == 0 || number < low || number > high) return false;
    m_Rest.remove_prefix(digits);
    value = number;
    return true;
  }

  // Three letters or more, or any such name of letters, digits and signs between angle brackets.
  bool TakeName() {
    const bool quoted = Take('<');
    std::size_t length = 0;
    while (length < m_Rest.size() && IsNameCharacter(m_Rest[length], quoted)) ++length;
    if (length < 3) return false;
    m_Rest.remove_prefix(length);
    return !quoted || Take('>');
  }

  // [+-]hh[:mm[:ss]], in seconds.
  bool TakeTime(int maxHours, int& seconds) {
    const bool negative = Take('-');
    if (!negative) Take('+');
    int hours = 0, minutes = 0, rest = 0;
    if (!TakeNumber(0, maxHours, hours)) return false;
    if (Take(':')) {
      if (!TakeNumber(0, 59, minutes)) return false;
      if (Take(':') && !TakeNumber(0, 59, rest)) return false;
    }
    const int sum = hours * kHour + minutes * 60 + rest;
    seconds = negative ? -sum : sum;
    return true;
  }

  bool TakeDate(RuleDate& date) {
    if (!TakeDay(date)) return false;
    date.seconds = 2 * kHour;
    return !Take('/') || TakeTime(kMaxTimeHours, date.seconds);
  }

 private:
  static bool IsNameCharacter(char c, bool quoted) {
    return IsLetter(c) || (quoted && (IsDigit(c) || c == '+' || c == '-'));
  }

  bool TakeDay(RuleDate& date) {
    if (Take('M')) {
      date.kind = RuleDate::Kind::kWeekday;
      return TakeNumber(1, 12, date.month) && Take('.') && TakeNumber(1, 5, date.week) && Take('.') &&
             TakeNumber(0, 6, date.day);
    }
    if (Take('J')) {
      date.kind = RuleDate::Kind::kNoLeapDay;
      return TakeNumber(1, 365, date.day);
    }
    date.kind = RuleDate::Kind::kDayOfYear;
    return TakeNumber(0, 365, date.day);
  }

  std::string_view m_Rest;
};

// The day of the change, from 1970-01-01.
long long GetDay(const RuleDate& date, long long year) {
  const long long newYear = DayFromDate(year, 1, 1);
  switch (date.kind) {
    case RuleDate::Kind::kNoLeapDay:
      return newYear + date.day - 1 + (date.day >= 60 && IsLeapYear(year) ? 1 : 0);
    case RuleDate::Kind::kDayOfYear:
      return newYear + date.day;
    case RuleDate::Kind::kWeekday:
      break;
  }
  const long long first = DayFromDate(year, date.month, 1);
  const long long next =
      date.month == 12 ? DayFromDate(year + 1, 1, 1) : DayFromDate(year, date.month + 1, 1);
  long long day = first + (date.day - WeekdayOfDay(first) + 7) % 7 + 7 * (date.week - 1);
  if (day >= next) day -= 7;  // the fifth such day of a month that has four
  return day;
}

}  // namespace

std::optional<ZoneRule> ZoneRule::Parse(std::string_view text) {
  Scanner scanner(text);
  ZoneRule rule;
  int west = 0;
  if (!scanner.TakeName() || !scanner.TakeTime(kMaxOffsetHours, west)) return std::nullopt;
  rule.standardOffset = -west;
  if (scanner.AtEnd()) return rule;

  rule.hasDaylight = true;
  rule.daylightOffset = rule.standardOffset + kHour;
  if (!scanner.TakeName()) return std::nullopt;
  if (!scanner.Take(',')) {
    if (!scanner.TakeTime(kMaxOffsetHours, west) || !scanner.Take(',')) return std::nullopt;
    rule.daylightOffset = -west;
  }
  if (!scanner.TakeDate(rule.start) || !scanner.Take(',') || !scanner.TakeDate(rule.end)) return std::nullopt;
  return scanner.AtEnd() ? std::optional(rule) : std::nullopt;
}

int ZoneRule::GetOffset(long long time) const {
  if (!hasDaylight) return standardOffset;
  const auto startOf = [this](long long year) {
    return GetDay(start, year) * kSecondsPerDay + start.seconds - standardOffset;
  };
  const auto endOf = [this](long long year) {
    return GetDay(end, year) * kSecondsPerDay + end.seconds - daylightOffset;
  };
  // Daylight time that began in the year before (south of the equator, or with a time far past its day) or
  // that begins early in the next one may cover the moment too.
  const long long year = YearOfDay(FloorDivide(time, kSecondsPerDay));
  for (long long y = year - 1; y <= year + 1; ++y) {
    const long long from = startOf(y);
    const long long sameYearEnd = endOf(y);
    const long long to = sameYearEnd >= from ? sameYearEnd : endOf(y + 1);
    if (time >= from && time < to) return daylightOffset;
  }
  return standardOffset;
}

}  // namespace utils_internal
