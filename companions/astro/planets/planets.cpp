// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planets.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/rotation.h"
#include "companions/astro/planets/series.h"

namespace {

using astro::kPlanetKind;
using astro::kSunNumber;

// A date that is not a number is outside as well.
bool IsInRange(double date) { return date >= kFirstPlanetDate && date <= kLastPlanetDate; }

void SetZero(double v[3]) {
  if (v != nullptr) v[0] = v[1] = v[2] = 0.0;
}

void HeliocentricMoon(double date, double position[3], double velocity[3]) {
  double fromEarth[3], speed[3];
  astro_internal::PlanetSeriesState(astro::kEarthNumber, date, position, velocity);
  astro_internal::MoonSeriesState(date, fromEarth, velocity != nullptr ? speed : nullptr);
  for (int i = 0; i < 3; ++i) position[i] += fromEarth[i];
  if (velocity == nullptr) return;
  for (int i = 0; i < 3; ++i) velocity[i] += speed[i];
}

}  // namespace

bool ComputePlanetState(const SSO_ID& body, double julianDateTT, double position[3], double velocity[3]) {
  if (!IsInRange(julianDateTT)) return false;
  if (body == astro::kMoon) {
    HeliocentricMoon(julianDateTT, position, velocity);
    return true;
  }
  if (body.kind != kPlanetKind || body.number < 1 || body.number > kSunNumber) return false;
  if (body.number == astro::kPlutoNumber) return astro_internal::PlutoState(julianDateTT, position, velocity);
  if (body.number == kSunNumber) {
    SetZero(position);
    SetZero(velocity);
  } else {
    astro_internal::PlanetSeriesState(body.number, julianDateTT, position, velocity);
  }
  return true;
}

bool ComputeMoonState(double julianDateTT, double position[3], double velocity[3]) {
  if (!IsInRange(julianDateTT)) return false;
  astro_internal::MoonSeriesState(julianDateTT, position, velocity);
  return true;
}

double GetBodyRadius(const SSO_ID& body) {
  static constexpr double kRadii[kSunNumber] = {2439.4,  6051.8,  6371.0084, 3389.50, 69911.0,
                                                58232.0, 25362.0, 24622.0,   1188.3,  695700.0};
  if (body.kind == astro::kMoonKind) {
    const astro::BodyShape shape = astro::GetBodyShape(body).value_or(astro::BodyShape());
    return std::cbrt(shape.a * shape.b * shape.c);
  }
  if (body.kind != kPlanetKind || body.number < 1 || body.number > kSunNumber) return 0.0;
  return kRadii[body.number - 1];
}
