// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// ELP 2000-82B: M. Chapront-Touze & J. Chapront 1983, "The lunar ephemeris ELP 2000", Astronomy and
// Astrophysics 124, 50, and 1988, "ELP 2000-85: a semi-analytical lunar ephemeris adequate for historical
// times", ibid. 190, 342. Longitude, latitude and distance as sums of sines of the multiples of four
// arguments (the main problem) and of sums of linear arguments (all that disturbs it). The mean longitude is
// the one fitted to DE405: J. Chapront & G. Francou 2003, "The lunar theory ELP revisited", ibid. 404, 735;
// with the older constants the Moon would be 0.7 arc second off in 2060 and 14 in 1600. The terms that are
// kept and the thresholds are in tables/SOURCE.md.
#include <cmath>
#include <iterator>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "companions/astro/planets/series.h"
#include "companions/astro/planets/spherical_state.h"

namespace {

struct DelaunayTerm {
  signed char multiples[4];  // of D, l', l, F
  double amplitude;
};

struct PoissonTerm {
  int power;  // of the time in centuries
  double amplitude;
  double phase;
  double rate;
};

#include "companions/astro/planets/moon_tables.inc"

using astro::kDaysPerJulianCentury;
using astro::kRadiansPerArcsecond;

// What the distances of the series are multiplied with: the theory's mean distance for the masses of its
// constants over the one of its main problem.
constexpr double kDistanceScale = 384747.9806743165 / 384747.9806448954;

// Polynomials in Julian centuries of TDB from J2000.0, arc seconds.
using Polynomial = double[5];

// The Moon's mean longitude W1 from the inertial mean equinox J2000.0.
constexpr Polynomial kMeanLongitude = {785939.88563, 1732559343.38498, -6.84583, 0.00641535, -0.00004193};
// Its perigee, its node, the Earth's mean longitude, the Earth's perihelion.
constexpr Polynomial kPerigee = {300071.67475, 14643420.2632, -38.2776, -0.045047, 0.00021301};
constexpr Polynomial kNode = {450160.39816, -6967919.3622, 6.3622, 0.007625, -0.00003586};
constexpr Polynomial kEarth = {361679.22059, 129597742.2758, -0.0202, 0.000009, 0.00000015};
constexpr Polynomial kPerihelion = {370574.42753, 1161.2283, 0.5327, -0.000138, 0.0};

struct ValueAndRate {
  double value = 0.0;
  double rate = 0.0;  // per century
};

ValueAndRate Evaluate(const Polynomial& coefficients, double t) {
  ValueAndRate sum;
  for (int i = 4; i >= 0; --i) {
    sum.rate = sum.rate * t + sum.value;
    sum.value = sum.value * t + coefficients[i];
  }
  return {sum.value * kRadiansPerArcsecond, sum.rate * kRadiansPerArcsecond};
}

ValueAndRate operator-(const ValueAndRate& a, const ValueAndRate& b) {
  return {a.value - b.value, a.rate - b.rate};
}

// The arguments of the main problem: elongation D, the Sun's anomaly l', the
// Moon's anomaly l, argument of latitude F.
struct Arguments {
  ValueAndRate meanLongitude;
  ValueAndRate delaunay[4];
};

Arguments ArgumentsAt(double t) {
  const ValueAndRate moon = Evaluate(kMeanLongitude, t);
  const ValueAndRate earth = Evaluate(kEarth, t);
  const ValueAndRate halfTurn = {astro::kPi, 0.0};
  return {moon,
          {moon - earth - halfTurn, earth - Evaluate(kPerihelion, t), moon - Evaluate(kPerigee, t),
           moon - Evaluate(kNode, t)}};
}

// `quarter`: what stands before the sine: 0, or a quarter turn for a series of cosines.
template <std::size_t N>
ValueAndRate SumMain(const DelaunayTerm (&terms)[N], const Arguments& arguments, double quarter) {
  ValueAndRate sum;
  for (const DelaunayTerm& term : terms) {
    ValueAndRate angle = {quarter, 0.0};
    for (int i = 0; i < 4; ++i) {
      angle.value += term.multiples[i] * arguments.delaunay[i].value;
      angle.rate += term.multiples[i] * arguments.delaunay[i].rate;
    }
    sum.value += term.amplitude * std::sin(angle.value);
    sum.rate += term.amplitude * angle.rate * std::cos(angle.value);
  }
  return sum;
}

template <std::size_t N>
ValueAndRate SumOther(const PoissonTerm (&terms)[N], double t) {
  ValueAndRate sum;
  for (const PoissonTerm& term : terms) {
    const double angle = term.phase + term.rate * t;
    const double sine = term.amplitude * std::sin(angle);
    const double grown = std::pow(t, term.power);
    sum.value += sine * grown;
    sum.rate += term.amplitude * term.rate * std::cos(angle) * grown;
    if (term.power > 0) sum.rate += sine * term.power * std::pow(t, term.power - 1);
  }
  return sum;
}

ValueAndRate operator+(const ValueAndRate& a, const ValueAndRate& b) {
  return {a.value + b.value, a.rate + b.rate};
}

astro_internal::SphericalState StateAt(double t) {
  const Arguments arguments = ArgumentsAt(t);
  const ValueAndRate lon = SumMain(kLongitudeMain, arguments, 0.0) + SumOther(kLongitudeOther, t);
  const ValueAndRate lat = SumMain(kLatitudeMain, arguments, 0.0) + SumOther(kLatitudeOther, t);
  const ValueAndRate dist = SumMain(kDistanceMain, arguments, astro::kPi / 2.0) + SumOther(kDistanceOther, t);
  constexpr double kLength = kDistanceScale / astro::kKilometresPerAu;
  return {arguments.meanLongitude.value + lon.value * kRadiansPerArcsecond,
          lat.value * kRadiansPerArcsecond,
          dist.value * kLength,
          (arguments.meanLongitude.rate + lon.rate * kRadiansPerArcsecond) / kDaysPerJulianCentury,
          lat.rate * kRadiansPerArcsecond / kDaysPerJulianCentury,
          dist.rate * kLength / kDaysPerJulianCentury};
}

// From the mean ecliptic of date with the departure point of the theory to the ecliptic J2000.0: J. Laskar
// 1986, Astronomy and Astrophysics 157, 59, as the theory's notice gives it.
void EclipticMatrix(double t, double m[9]) {
  const double p = t * (0.10180391e-4 +
                        t * (0.47020439e-6 + t * (-0.5417367e-9 + t * (-0.2507948e-11 + t * 0.463486e-14))));
  const double q = t * (-0.113469002e-3 +
                        t * (0.12372674e-6 + t * (0.1265417e-8 + t * (-0.1371808e-11 - t * 0.320334e-14))));
  const double root = 2.0 * std::sqrt(1.0 - p * p - q * q);
  const double rows[9] = {1.0 - 2.0 * p * p, 2.0 * p * q,       p * root,
                          2.0 * p * q,       1.0 - 2.0 * q * q, -q * root,
                          -p * root,         q * root,          1.0 - 2.0 * p * p - 2.0 * q * q};
  for (int i = 0; i < 9; ++i) m[i] = rows[i];
}

// From the inertial mean ecliptic and equinox J2000.0 to the equator and
// equinox of FK5, as the theory's notice gives it.
constexpr double kToEquator[9] = {
    1.0, 0.000000437913, -0.000000189859, -0.000000477299, 0.917482137607, -0.397776981701,
    0.0, 0.397776981701, 0.917482137607};

}  // namespace

// The plane of the ecliptic turns by half an arc second a year: that is 7e-12 au/day of the Moon's
// velocity, a hundred-millionth of it, and left out.
void astro_internal::MoonSeriesState(double julianDateTT, double position[3], double velocity[3]) {
  const double t = (julianDateTT - astro::kJ2000) / kDaysPerJulianCentury;
  ToRectangular(StateAt(t), position, velocity);
  double turn[9];
  EclipticMatrix(t, turn);
  M3prod(kToEquator, turn, turn);
  MV3prod(turn, position, position);
  if (velocity != nullptr) MV3prod(turn, velocity, velocity);
}
