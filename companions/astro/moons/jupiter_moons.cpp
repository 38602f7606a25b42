// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// L1.2: V. Lainey, L. Duriez & A. Vienne 2006, "Synthetic representation of the Galilean satellites' orbital
// motions from L1 ephemerides", Astronomy and Astrophysics 456, 783. Series on the plane of Jupiter's
// equator, time in days from 1950; Chebyshev polynomials take up what has periods of centuries and more.
#include <cmath>

#include "astro/constants.h"
#include "companions/astro/moons/moon_orbit.h"
#include "companions/astro/moons/moon_series.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

namespace {

#include "companions/astro/moons/jupiter_moon_tables.inc"

constexpr double kEpoch = 2433282.5;
constexpr double kFirstYear = -819.727638594856, kLastYear = 812.721806990360;       // from the epoch
constexpr double kNode = 0.6249501830657150e+01, kInclination = 0.4450947364976650;  // of the plane, radians
// Of Jupiter and each moon, au^3 / day^2.
constexpr double kGravity[4] = {0.2824894284338140e-06, 0.2824832743928930e-06, 0.2824981841847230e-06,
                                0.2824921448899090e-06};

// The constant coefficient counts half.
double Chebyshev(const double (&c)[9], double x) {
  double b1 = 0.0, b2 = 0.0;
  for (int i = 8; i > 0; --i) {
    const double b = c[i] + 2.0 * x * b1 - b2;
    b2 = b1;
    b1 = b;
  }
  return 0.5 * c[0] + x * b1 - b2;
}

void ToEquator(double v[3]) {
  TurnAboutX(kInclination, v);
  TurnAboutZ(kNode, v);
}

}  // namespace

bool JupiterMoonState(int moon, double date, double position[3], double velocity[3]) {
  const double time = date - kEpoch;
  const double x = 2.0 * (time / astro::kDaysPerJulianYear - kFirstYear) / (kLastYear - kFirstYear) - 1.0;
  if (!(std::fabs(x) <= 1.0)) return false;
  const MoonSeries<SeriesTerm>& series = kJupiterMoons[moon];
  const TimeArgument argument = {time};
  MoonOrbit orbit = {};
  SumOrbit(series, time, argument, orbit);
  orbit.gravity = kGravity[moon];
  orbit.axis = SumCosines(series.size, argument);
  double* const corrected[] = {&orbit.longitude, &orbit.k, &orbit.h, &orbit.q, &orbit.p};
  for (int i = 0; i < 5; ++i) *corrected[i] += Chebyshev(kLongPeriods[moon][i], x);
  ToState(orbit, position, velocity);
  ToEquator(position);
  if (velocity != nullptr) ToEquator(velocity);
  return true;
}

}  // namespace astro_internal
