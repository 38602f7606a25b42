// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "astro/constants.h"
#include "astro/horizon_frame.h"
#include "astro/julian_date.h"

namespace astro_test {

inline astro::SkyMoment MomentOf(const CalendarDate& date) {
  int day = 0;
  double fraction = 0.0;
  DJ(date, day, fraction);
  return astro::MakeMoment(day, fraction);
}

inline astro::SkyMoment Midnight(int year, int month, int day) {
  return MomentOf({year, month, day, 0, 0, 0.0});
}

// Of the civil day in Universal Time, 0 to 1; -1 for no moment.
inline double DayFraction(const std::optional<astro::SkyMoment>& moment) {
  if (!moment) return -1.0;
  const double fraction = moment->fraction + 0.5;
  return fraction >= 1.0 ? fraction - 1.0 : fraction;
}

// Degrees.
inline astro::EarthPlace At(double latitude, double longitude, double height = 0.0) {
  return {longitude * astro::kRadiansPerDegree, latitude * astro::kRadiansPerDegree, height};
}

}  // namespace astro_test
