// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// GUST86: J. Laskar & R. A. Jacobson 1987, "GUST86. An analytical ephemeris of the Uranian satellites",
// Astronomy and Astrophysics 188, 212. Series on the plane of Uranus' equator, time in days from 1980.
#include <cmath>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "companions/astro/moons/moon_orbit.h"
#include "companions/astro/moons/moon_series.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

namespace {

#include "companions/astro/moons/uranus_moon_tables.inc"

// The tables begin with Miranda, whose number is the last.
constexpr int kRows[5] = {1, 2, 3, 4, 0};

constexpr double kEpoch = 2444239.5;
constexpr double kUranusGravity = 5794950.5;                     // km^3 / s^2
constexpr double kGravity[5] = {4.4, 86.1, 84.0, 230.0, 200.0};  // of the moons, in the order of the tables
constexpr double kToEquator[9] = {0.975320689787805506,  0.061943212277559903,  0.211925908266559604,
                                  -0.220742291478488117, 0.252990568240833158,  0.941949368633859696,
                                  0.004732113777988428,  -0.965483718541726765, 0.260420422133248453};
constexpr double kSquaredDay = astro::kSecondsPerDay * astro::kSecondsPerDay;

void ToEquator(double v[3]) {
  MV3prod(kToEquator, v, v);
  for (int i = 0; i < 3; ++i) v[i] /= astro::kKilometresPerAu;
}

}  // namespace

void UranusMoonState(int moon, double date, double position[3], double velocity[3]) {
  const int row = kRows[moon];
  const MoonSeries<SeriesTerm>& series = kUranusMoons[row];
  const TimeArgument argument = {date - kEpoch};
  MoonOrbit orbit = {};
  SumOrbit(series, argument.time, argument, orbit);
  const double motion = SumCosines(series.size, argument);  // radians a day
  orbit.gravity = (kUranusGravity + kGravity[row]) * kSquaredDay;
  orbit.axis = std::cbrt(orbit.gravity / (motion * motion));
  ToState(orbit, position, velocity);
  ToEquator(position);
  if (velocity != nullptr) ToEquator(velocity);
}

}  // namespace astro_internal
