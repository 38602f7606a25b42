// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What all finders of events share: the span that is searched, and looks on a grid that is fixed in time.
// Dates are Julian dates in dynamical time (TT).
#pragma once

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/planets.h"
#include "astro/sky_events.h"
#include "companions/astro/events/bracketing.h"

namespace astro_internal {

// To which moments are refined: 0.01 second.
inline constexpr double kEventPrecision = 1e-7;  // days

// The part of a search for which the series of the planets can tell. A finder may look up to kSpanMargin days
// outside of it.
struct EventSpan {
  static constexpr double kSpanMargin = 400.0;

  explicit EventSpan(const astro::EventSearch& search)
      : from(std::max(search.from.julianDateTT, kFirstPlanetDate + kSpanMargin)),
        to(std::min(search.to.julianDateTT, kLastPlanetDate - kSpanMargin)),
        isWhole(from == search.from.julianDateTT && to == search.to.julianDateTT) {}

  bool Has(double date) const { return date >= from && date < to; }

  double from, to;  // nothing is searched unless from < to
  bool isWhole;     // what a finder returns
};

// Calls found(date, rises) for each zero in [from, to) of a function of the date that is looked at every
// `step` days, at multiples of it; where it is an angle a jump from +pi to -pi is no zero. Two zeros within
// one step are not seen: `step` stays below half of the shortest time between them. What is not finite has no
// zeros. The same zero comes out the same to the last digit, whatever the span.
template <class Function, class Found>
void FindZeros(Function function, double from, double to, double step, Found found) {
  double before = from < to ? function(std::floor(from / step) * step) : 0.0;
  for (double k = std::floor(from / step); k * step < to; k += 1.0) {
    const double a = k * step, b = (k + 1.0) * step, now = function(b);
    if ((before < 0.0) != (now < 0.0) && std::fabs(now - before) < astro::kPi) {
      const double date = FindZero(function, a, before, b, now, kEventPrecision);
      if (date >= from && date < to) found(date, now >= 0.0);
    }
    before = now;
  }
}

// How a function grows in some seconds about a date.
template <class Function>
double Slope(Function& function, double date) {
  constexpr double kBeside = 1e-4;  // days
  return function(date + kBeside) - function(date - kBeside);
}

// The minimum of a smooth function that falls at one moment and rises at the other, or its maximum: where
// the slope is zero.
template <class Function>
double FindTurn(Function function, double a, double b) {
  const auto slope = [&function](double date) { return Slope(function, date); };
  return FindZero(slope, a, slope(a), b, slope(b), kEventPrecision);
}

// The lowest point between two moments of a smooth function, whose dips are wider than two steps.
template <class Function>
double FindLowest(Function function, double a, double b, double step) {
  double lowest = a, least = function(a);
  for (double date = a + step; date < b; date += step) {
    const double value = function(date);
    if (value < least) {
      lowest = date;
      least = value;
    }
  }
  return FindTurn(function, lowest - step, lowest + step);
}

// FindZeros for a smooth function that rises and falls: two zeros that are closer than a step, on both sides
// of a minimum or maximum, are found too, however close. `step` stays below half of the shortest time between
// a minimum and a maximum.
template <class Function, class Found>
void FindZerosAndGrazes(Function function, double from, double to, double step, Found found) {
  const auto slope = [&function](double date) { return Slope(function, date); };
  const auto report = [&](double a, double fa, double b, double fb) {
    const double date = FindZero(function, a, fa, b, fb, kEventPrecision);
    if (date >= from && date < to) found(date, fb >= 0.0);
  };
  if (!(from < to)) return;
  double k = std::floor(from / step), before = function(k * step), slopeBefore = slope(k * step);
  for (; k * step < to; k += 1.0) {
    const double a = k * step, b = (k + 1.0) * step, now = function(b), slopeNow = slope(b);
    if ((before < 0.0) != (now < 0.0)) {
      if (std::isfinite(before) && std::isfinite(now)) report(a, before, b, now);
    } else if (before < 0.0 ? slopeBefore > 0.0 && slopeNow < 0.0 : slopeBefore < 0.0 && slopeNow > 0.0) {
      const double top = FindZero(slope, a, slopeBefore, b, slopeNow, kEventPrecision), there = function(top);
      if ((there < 0.0) != (now < 0.0)) {
        report(a, before, top, there);
        report(top, there, b, now);
      }
    }
    before = now;
    slopeBefore = slopeNow;
  }
}

// The angle within -pi to pi.
inline double Wrap(double angle) { return std::remainder(angle, astro::kTurn); }

}  // namespace astro_internal
