// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The beginning and end of twilight.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/constants.h"
#include "astro/horizon_frame.h"

namespace astro {

// Altitudes of the Sun's centre at which the twilights begin and end: geometric, without refraction, as
// almanacs count (Explanatory Supplement to the Astronomical Almanac, 3rd edition 2013, chapter 12). Radians.
inline constexpr double kCivilTwilight = -6.0 * kRadiansPerDegree;
inline constexpr double kNauticalTwilight = -12.0 * kRadiansPerDegree;
inline constexpr double kAstronomicalTwilight = -18.0 * kRadiansPerDegree;

// What the Sun does about an altitude within a stretch of time.
enum class SunCourse {
  kUnknown,     // a failure: nobody can tell where the Sun is (planets.h has the range)
  kCrosses,     // it passes the altitude, in one direction at least
  kStaysAbove,  // no night of this kind
  kStaysBelow   // no twilight of this kind
};

// When the Sun passes an altitude.
struct Twilight {
  SunCourse course = SunCourse::kUnknown;
  std::optional<SkyMoment> dawn;  // the first moment at which the Sun comes up through the altitude
  std::optional<SkyMoment> dusk;  // and the first at which it goes down through it
};

// Over `length` days from `start`, to 0.01 second; for a day of the calendar a length of 1 from its midnight.
// A night or a twilight of a moment is noticed. Allocates; every thread may call. All of them over a span:
// sun_events.h.
ASTRO_API Twilight FindTwilight(const EarthPlace& place, const SkyMoment& start, double length,
                                double altitude);

}  // namespace astro
