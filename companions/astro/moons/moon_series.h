// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sums of the series in which L1.2, TASS 1.7 and GUST86 give the elements of the moons.
#pragma once

#include <cmath>
#include <span>

#include "companions/astro/moons/moon_orbit.h"

namespace astro_internal {

struct SeriesTerm {
  double amplitude;
  double phase;  // radians
  double rate;   // radians per unit of time
};

template <class Term>
struct MoonSeries {
  double longitude, longitudeRate;   // mean longitude at the epoch, radians
  std::span<const Term> size;        // cosines: the semi-major axis, or the mean motion
  std::span<const Term> variations;  // sines: of the mean longitude
  std::span<const Term> z;           // cosines and sines: k and h
  std::span<const Term> zeta;        // cosines and sines: q and p
};

template <class Term, class Argument>
double SumCosines(std::span<const Term> terms, Argument argument) {
  double sum = 0.0;
  for (const Term& term : terms) sum += argument.Amplitude(term) * std::cos(argument(term));
  return sum;
}

template <class Term, class Argument>
double SumSines(std::span<const Term> terms, Argument argument) {
  double sum = 0.0;
  for (const Term& term : terms) sum += argument.Amplitude(term) * std::sin(argument(term));
  return sum;
}

template <class Term, class Argument>
void SumBoth(std::span<const Term> terms, Argument argument, double& cosines, double& sines) {
  cosines = sines = 0.0;
  for (const Term& term : terms) {
    const double angle = argument(term), amplitude = argument.Amplitude(term);
    cosines += amplitude * std::cos(angle);
    sines += amplitude * std::sin(angle);
  }
}

// All but gravity and axis, which each theory makes of `size` in its own way.
template <class Term, class Argument>
void SumOrbit(const MoonSeries<Term>& series, double time, Argument argument, MoonOrbit& orbit) {
  orbit.longitude = series.longitude + series.longitudeRate * time + SumSines(series.variations, argument);
  SumBoth(series.z, argument, orbit.k, orbit.h);
  SumBoth(series.zeta, argument, orbit.q, orbit.p);
}

// The argument of a plain term.
struct TimeArgument {
  double time;
  double Amplitude(const SeriesTerm& term) const { return term.amplitude; }
  double operator()(const SeriesTerm& term) const { return term.phase + term.rate * time; }
};

}  // namespace astro_internal
