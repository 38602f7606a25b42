// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// VSOP87B: P. Bretagnon & G. Francou 1988, "Planetary theories in rectangular and spherical variables. VSOP87
// solutions", Astronomy and Astrophysics 202, 309. Heliocentric longitude, latitude and radius in the
// dynamical ecliptic and equinox J2000.0, each a sum of A cos(B + C t) and its products with powers of t,
// Julian millennia from J2000.0. The terms that are kept and the thresholds are in tables/SOURCE.md.
#include <cmath>
#include <iterator>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "companions/astro/planets/series.h"
#include "companions/astro/planets/spherical_state.h"

namespace {

struct SeriesTerm {
  double amplitude;
  double phase;
  double rate;
};

struct PlanetSeries {
  const SeriesTerm* terms;  // of all variables, powers in ascending order
  short counts[3][6];
};

#include "companions/astro/planets/planet_tables.inc"

static_assert(std::size(kPlanetSeries) == 8);

constexpr double kDaysPerMillennium = 10.0 * astro::kDaysPerJulianCentury;

// From the dynamical ecliptic and equinox J2000.0 to the equator and equinox of FK5, as the notice of VSOP87
// gives it. The FK5 axes lie within 0.03 arc second of the ICRS.
constexpr double kToEquator[9] = {
    1.0, 0.000000440360, -0.000000190919, -0.000000479966, 0.917482137087, -0.397776982902,
    0.0, 0.397776982902, 0.917482137087};

struct ValueAndRate {
  double value = 0.0;
  double rate = 0.0;  // per millennium
};

// The terms of one power of the time, without the power.
ValueAndRate SumTerms(const SeriesTerm* terms, int count, double t, bool wantsRate) {
  ValueAndRate sum;
  for (int i = 0; i < count; ++i) {
    const double argument = terms[i].phase + terms[i].rate * t;
    sum.value += terms[i].amplitude * std::cos(argument);
    if (wantsRate) sum.rate -= terms[i].amplitude * terms[i].rate * std::sin(argument);
  }
  return sum;
}

// One variable; `terms` moves past it.
ValueAndRate SumVariable(const SeriesTerm*& terms, const short counts[6], double t, bool wantsRate) {
  ValueAndRate sum;
  double power = 1.0;  // t^n
  double slope = 0.0;  // its derivative, n t^(n - 1)
  for (int n = 0; n < 6; ++n) {
    const ValueAndRate part = SumTerms(terms, counts[n], t, wantsRate);
    terms += counts[n];
    sum.value += power * part.value;
    sum.rate += power * part.rate + slope * part.value;
    slope = slope * t + power;
    power *= t;
  }
  return sum;
}

}  // namespace

void astro_internal::PlanetSeriesState(int planet, double julianDateTT, double position[3],
                                       double velocity[3]) {
  const double t = (julianDateTT - astro::kJ2000) / kDaysPerMillennium;
  const PlanetSeries& series = kPlanetSeries[planet - 1];
  const SeriesTerm* terms = series.terms;
  const bool wantsRate = velocity != nullptr;
  const ValueAndRate longitude = SumVariable(terms, series.counts[0], t, wantsRate);
  const ValueAndRate latitude = SumVariable(terms, series.counts[1], t, wantsRate);
  const ValueAndRate radius = SumVariable(terms, series.counts[2], t, wantsRate);
  const SphericalState state = {longitude.value,
                                latitude.value,
                                radius.value,
                                longitude.rate / kDaysPerMillennium,
                                latitude.rate / kDaysPerMillennium,
                                radius.rate / kDaysPerMillennium};
  ToRectangular(state, position, velocity);
  MV3prod(kToEquator, position, position);
  if (wantsRate) MV3prod(kToEquator, velocity, velocity);
}
