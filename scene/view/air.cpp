// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/air.h"

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

// What is seen there stands at most 0.8 degrees lower.
double LoweredAltitude(double altitude) {
  constexpr double kMost = 0.8 * kRadiansPerDegree, kPrecision = 1e-13;
  double low = altitude - kMost, high = altitude;
  while (high - low > kPrecision) {
    const double middle = 0.5 * (low + high);
    (LiftedAltitude(middle) < altitude ? low : high) = middle;
  }
  return 0.5 * (low + high);
}

Direction Lowered(const Direction& seen) {
  const double along = std::hypot(seen.v[0], seen.v[1]);
  const double altitude = LoweredAltitude(std::atan2(seen.v[2], along));
  if (along == 0.0) return seen;
  const double part = std::cos(altitude) / along;
  return {{seen.v[0] * part, seen.v[1] * part, std::sin(altitude)}};
}

}  // namespace scene
