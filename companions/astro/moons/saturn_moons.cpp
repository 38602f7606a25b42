// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// TASS 1.7: A. Vienne & L. Duriez 1995, "TASS1.6: Ephemerides of the major Saturnian satellites", Astronomy
// and Astrophysics 297, 588; Hyperion: L. Duriez & A. Vienne 1997, Astronomy and Astrophysics 324, 366.
// Series on the plane of Saturn's equator. The arguments of all but Hyperion contain the slow variations of
// the longitudes of the others.
#include <cmath>

#include "astro/constants.h"
#include "astro/two_body.h"
#include "companions/astro/moons/moon_orbit.h"
#include "companions/astro/moons/moon_series.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

namespace {

constexpr int kMoons = 8, kHyperion = 6;

struct CoupledTerm {
  SeriesTerm term;
  signed char multiples[kMoons];  // of the slow variations of the longitudes
};

struct SaturnMoon {
  MoonSeries<CoupledTerm> series;
  double meanSize;     // the constant of `size`, the relative change of the mean motion
  double inverseMass;  // Saturn's mass in that of the moon
  double motion;       // radians a day
  double epoch;        // Julian date, TT
  double unitOfTime;   // days
};

#include "companions/astro/moons/saturn_moon_tables.inc"

constexpr double kInclination = 28.0512 * astro::kRadiansPerDegree;  // of the plane to the ecliptic J2000
constexpr double kNode = 169.5291 * astro::kRadiansPerDegree;
// Of the ecliptic J2000: IAU 1976, 84381.448 arc seconds, in the seven decimals of a degree it is mostly
// given with; the rest would move Iapetus by a metre.
constexpr double kObliquity = 23.4392911 * astro::kRadiansPerDegree;
constexpr double kSaturnGravity = kGaussianConstant * kGaussianConstant / 3498.790;

struct CoupledArgument {
  double time;
  double slow[kMoons];
  double Amplitude(const CoupledTerm& term) const { return term.term.amplitude; }
  double operator()(const CoupledTerm& term) const {
    double angle = term.term.phase + term.term.rate * time;
    for (int i = 0; i < kMoons; ++i) angle += term.multiples[i] * slow[i];
    return angle;
  }
};

void ToEquator(double v[3]) {
  TurnAboutX(kInclination, v);
  TurnAboutZ(kNode, v);
  TurnAboutX(kObliquity, v);
}

}  // namespace

void SaturnMoonState(int moon, double date, double position[3], double velocity[3]) {
  const SaturnMoon& row = kSaturnMoons[moon];
  CoupledArgument argument = {(date - row.epoch) / row.unitOfTime, {}};
  for (int i = 0; i < kMoons && moon != kHyperion; ++i) {
    argument.slow[i] = SumSines(kLongPeriods[i], TimeArgument{argument.time});
  }
  MoonOrbit orbit = {};
  SumOrbit(row.series, argument.time, argument, orbit);
  orbit.longitude += argument.slow[moon];
  const double motion = row.motion * (1.0 + row.meanSize + SumCosines(row.series.size, argument));
  orbit.gravity = kSaturnGravity * (1.0 + 1.0 / row.inverseMass);
  orbit.axis = std::cbrt(orbit.gravity / (motion * motion));
  ToState(orbit, position, velocity);
  ToEquator(position);
  if (velocity != nullptr) ToEquator(velocity);
}

}  // namespace astro_internal
