// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/zone_time.h"

#include <cmath>

#include "astro/julian_date.h"
#include "utils/timezone.h"

namespace skyview {

bool IsKnownZone(const std::string& zone, Diagnostics& diagnostics) {
  const std::size_t before = diagnostics.lines.size();
  const bool known = isTimezoneKnown(zone.c_str());
  diagnostics.lines.resize(before);
  return known;
}

std::optional<UniversalMoment> LocalToUniversal(const std::string& zone, int day, double fraction) {
  constexpr double kSameOffset = 1e-7;  // days
  const double local = day + fraction;
  // Clocks change less often than every other day: the offset is the one from before or the one from after.
  for (const double aside : {-1.0, 1.0}) {
    const double offset = getLocalUTCDeltaForTimezone(zone.c_str(), local + aside);
    UniversalMoment moment = {day, fraction - offset};
    Adjust_JD(moment.day, moment.fraction);
    // Half a millisecond later, so that rounding does not put a moment of change before the change.
    const double there = moment.day + moment.fraction + 5e-9;
    if (std::fabs(getLocalUTCDeltaForTimezone(zone.c_str(), there) - offset) < kSameOffset) return moment;
  }
  return std::nullopt;
}

}  // namespace skyview
