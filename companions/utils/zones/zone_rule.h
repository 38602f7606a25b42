// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The rule that a zone file ends with, for the time after its table: the text of a POSIX TZ variable
// (POSIX.1-2017, section 8.3, with the wider times of RFC 8536, section 3.3.1).
#pragma once

#include <optional>
#include <string_view>

namespace utils_internal {

// A day of the year and the second at which an offset changes on it.
struct RuleDate {
  enum class Kind {
    kNoLeapDay,  // "J60": 1 to 365, where 29 February is never counted
    kDayOfYear,  // "59": 0 to 365
    kWeekday     // "M3.5.0": the month, the week (5: the last) and the day of the week (0: Sunday)
  };
  Kind kind = Kind::kDayOfYear;
  int day = 0, month = 1, week = 1;
  // From the day's midnight in the local time before the change; may be negative or past a day.
  int seconds = 0;
};

// Offsets are local time minus Universal Time in seconds, east positive: the text has them the other way
// round.
struct ZoneRule {
  int standardOffset = 0;
  bool hasDaylight = false;
  int daylightOffset = 0;
  RuleDate start, end;  // of daylight time

  // "CET-1CEST,M3.5.0,M10.5.0/3", "<+03>-3". Nothing for a text that is anything else, and for one that names
  // daylight time without dates.
  static std::optional<ZoneRule> Parse(std::string_view text);

  // The offset at a moment in seconds from 1970-01-01 00:00 UT, at most 1e15 to either side.
  int GetOffset(long long time) const;
};

}  // namespace utils_internal
