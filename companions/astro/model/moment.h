// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/constants.h"

namespace astro_internal {

// What is farther off is no moment: the days before and after J2000.0 (100000 years; the
// series of the Earth's velocity would pass that of light), the difference of dynamical and
// universal time (seconds; 75000 is what -3000 has).
inline constexpr double kFarthestDays = 36525000.0;
inline constexpr double kLargestDeltaT = 1e7;

// A body about the Sun some days before the moment, and how it goes straight on from there.
struct StraightPath {
  double lightTime = 0.0;  // days
  double position[3] = {}, velocity[3] = {};

  // Where it is some days before the moment.
  bool operator()(double days, double place[3]) const {
    for (int i = 0; i < 3; ++i) place[i] = position[i] + (lightTime - days) * velocity[i];
    return true;
  }
};

// What is known of a planet at the moment.
struct PlanetSight {
  enum State : unsigned char { kNotAsked, kKnown, kUnknown };
  State state = kNotAsked;
  StraightPath path;
};

// What every object has in common at one moment for one observer. Vectors are
// on J2000 (ICRS) axes, au and au/day.
struct Moment {
  bool usable = false;  // else nothing is seen, and nothing below counts
  double dateTT = astro::kJ2000;
  double deltaT = 0.0;      // TT - UT1, seconds
  bool earthKnown = false;  // false outside the range of the series: the vectors about the Sun are then zero
  double earth[3] = {};     // the Earth's centre about the Sun
  double earthVelocity[3] = {};
  double observer[3] = {};          // the observer about the Sun
  double giants[4][3] = {};         // Jupiter to Neptune about the Sun
  double barycentre[3] = {};        // the barycentre of the solar system about the Sun
  double sunVelocity[3] = {};       // of the Sun about the barycentre
  double observerVelocity[3] = {};  // of the observer about the barycentre, in units of the speed of light
  mutable PlanetSight planets[9];   // 1 to 9 as far as they were asked for: MakePlanetPath
};

// A place on the Earth.
struct Place {
  bool onSurface = false;                  // else the Earth's centre, and the rest is not looked at
  double longitude = 0.0, latitude = 0.0;  // radians, geodetic (WGS 84), east and north positive
  double height = 0.0;                     // metres

  bool operator==(const Place&) const = default;
};

Moment MomentAt(double dateTT, double deltaT, const Place& place);

}  // namespace astro_internal
