// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/air.h"

#include <algorithm>
#include <cmath>

#include "common_interfaces/refraction.h"

namespace scene {
namespace {

using CommonInterfaces::InterpoleEarthRefractionShift;

constexpr double kWholeSine = 0.05;     // from here on upwards the table is taken as it is
constexpr double kLowestSine = -0.024;  // of the table: a Sun that has just set stands wholly above it
constexpr double kFade = 0.25;          // sines below that one over which the lift goes

// The part of the table that is taken at the horizon.
double GetHorizonPart() {
  static const double part = -kRisingSine / InterpoleEarthRefractionShift(kRisingSine);
  return part;
}

double ReducedLift(double sine) {
  const double least = GetHorizonPart(), up = (sine - kRisingSine) / (kWholeSine - kRisingSine);
  return InterpoleEarthRefractionShift(sine) * (least + (1.0 - least) * up);
}

}  // namespace

double FindAirLift(double sine) {
  if (sine >= kWholeSine) return InterpoleEarthRefractionShift(sine);
  if (sine >= kLowestSine) return ReducedLift(sine);
  static const double lowest = ReducedLift(kLowestSine);
  return lowest * std::max(0.0, 1.0 - (kLowestSine - sine) / kFade);
}

// A unit vector grows by the lift along z.
Direction Lifted(const Direction& standing) {
  const double sine = standing.v[2], lift = FindAirLift(sine);
  const double part = 1.0 / std::sqrt(1.0 + (2.0 * sine + lift) * lift);
  return {{standing.v[0] * part, standing.v[1] * part, (sine + lift) * part}};
}

double LiftedAltitude(double altitude) {
  const double sine = std::sin(altitude);
  return std::atan2(sine + FindAirLift(sine), std::cos(altitude));
}

// By secants: the lift changes by a quarter of what the altitude does at most, so that the first guess is
// good.
double LoweredAltitude(double altitude) {
  constexpr double kPrecision = 1e-14;
  double last = altitude, beyondLast = LiftedAltitude(last) - altitude;
  double here = last - beyondLast, beyond = LiftedAltitude(here) - altitude;
  for (int i = 0; i < 20 && std::fabs(beyond) > kPrecision && beyond != beyondLast; ++i) {
    const double next = here - beyond * (here - last) / (beyond - beyondLast);
    last = here;
    beyondLast = beyond;
    here = next;
    beyond = LiftedAltitude(here) - altitude;
  }
  return here;
}

Direction Lowered(const Direction& seen) {
  const double along = std::hypot(seen.v[0], seen.v[1]);
  const double altitude = LoweredAltitude(std::atan2(seen.v[2], along));
  if (along == 0.0) return seen;
  const double part = std::cos(altitude) / along;
  return {{seen.v[0] * part, seen.v[1] * part, std::sin(altitude)}};
}

}  // namespace scene
