// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/moment.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/planets/gravity.h"

namespace astro_internal {

namespace {

using astro::kEarthEquatorialRadius;
using astro::kEarthFlattening;
using astro::kKilometresPerAu;
using astro::kSunNumber;

constexpr double kTurnsPerDay = 1.00273781191135448;  // of the Earth (Capitaine, Guinot & McCarthy 2000)
constexpr double kEarthRate = astro::kTurn * kTurnsPerDay;  // radians a day of UT1

// The giant planets alone move the Sun: the others by 0.00001 au together.
void Barycentre(Moment& moment) {
  double total = SystemGravity(kSunNumber);
  for (int planet = 5; planet <= 8; ++planet) total += SystemGravity(planet);
  for (int planet = 5; planet <= 8; ++planet) {
    double* const position = moment.giants[planet - 5];
    ComputePlanetState(SSO_ID(astro::kPlanetKind, planet), moment.dateTT, position, nullptr);
    for (int i = 0; i < 3; ++i) moment.barycentre[i] += SystemGravity(planet) / total * position[i];
  }
}

// Of the place about the Earth's centre: au and au/day. Polar motion (0.3 arc second, 10 m) is left out.
void PlaceOnEarth(const Moment& moment, const Place& place, double position[3], double velocity[3]) {
  double fixed[3];
  Plg2Plc(place.height / 1000.0, place.longitude, place.latitude, kEarthEquatorialRadius, kEarthFlattening,
          fixed);
  const double dateUT = moment.dateTT - moment.deltaT / astro::kSecondsPerDay;
  const double day = std::floor(dateUT + 0.5);
  const double angle = ApparentSiderealTime(static_cast<int>(day), dateUT - day, moment.deltaT);
  const double c = std::cos(angle), s = std::sin(angle);
  const double turned[3] = {c * fixed[0] - s * fixed[1], s * fixed[0] + c * fixed[1], fixed[2]};
  const double moving[3] = {-kEarthRate * turned[1], kEarthRate * turned[0], 0.0};
  double toDate[9];
  PrecessionNutationMatrix(moment.dateTT, toDate);
  V3Mprod(turned, toDate, position);
  V3Mprod(moving, toDate, velocity);
  for (int i = 0; i < 3; ++i) {
    position[i] /= kKilometresPerAu;
    velocity[i] /= kKilometresPerAu;
  }
}

}  // namespace

Moment MomentAt(double dateTT, double deltaT, const Place& place) {
  Moment moment;
  moment.dateTT = dateTT;
  moment.deltaT = deltaT;
  moment.usable = std::fabs(dateTT - astro::kJ2000) <= kFarthestDays && std::fabs(deltaT) <= kLargestDeltaT;
  if (!moment.usable) return moment;
  moment.earthKnown = ComputePlanetState(astro::kEarth, dateTT, moment.earth, moment.earthVelocity);
  EarthVelocity(dateTT, moment.observerVelocity);
  if (!moment.earthKnown) return moment;
  Barycentre(moment);
  double offset[3] = {}, offsetVelocity[3] = {};
  if (place.onSurface) PlaceOnEarth(moment, place, offset, offsetVelocity);
  for (int i = 0; i < 3; ++i) {
    moment.observer[i] = moment.earth[i] + offset[i];
    moment.sunVelocity[i] = moment.observerVelocity[i] * astro::kLightAuPerDay - moment.earthVelocity[i];
    moment.observerVelocity[i] += offsetVelocity[i] / astro::kLightAuPerDay;
  }
  return moment;
}

}  // namespace astro_internal
