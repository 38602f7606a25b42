// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Compiled time zones: TZif files of the versions 1 to 4 (RFC 8536, RFC 9636).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companions/utils/zones/zone_rule.h"

namespace utils_internal {

// One time zone. Times are seconds from 1970-01-01 00:00 UT, leap seconds not counted; offsets are local time
// minus Universal Time in seconds, east positive.
struct Zone {
  std::vector<long long> changes;  // ascending
  std::vector<int> offsets;        // from each change on
  int firstOffset = 0;             // before the first change: that of time type 0 (RFC 8536, section 3.2)
  std::optional<ZoneRule> rule;    // from the last change on, or for all time where there is none

  int GetOffset(long long time) const;
};

// Reads a whole file. Returns nothing for a damaged one; `problem` then says what is wrong, in a few words.
// Files of version 1, and later versions' files of a rule that is empty, keep their last offset for all time
// to come.
std::optional<Zone> ParseZoneFile(const std::vector<unsigned char>& bytes, std::string& problem);

}  // namespace utils_internal
