// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Zeros of functions of the date, looked for on a grid that is fixed in time. Dates are Julian dates (TT).
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "astro/constants.h"
#include "astro/sky_events.h"
#include "companions/astro/events/bracketing.h"

namespace astro_internal {

// To which the finders of this folder refine a moment: 0.01 second.
inline constexpr double kDatePrecision = 1e-7;  // days

// A stretch of the grid of all multiples of a step that covers a span and one step more to both sides, so
// that each zero of the span has neighbours on the grid.
struct DateGrid {
  DateGrid(double from, double to, double days)
      : step(days),
        first(std::floor(from / days) - 1.0),
        count(static_cast<int>(std::floor(to / days) - first) + 3) {}

  double Date(int i) const { return (first + i) * step; }

  double step, first;
  int count;
};

template <class Function>
std::vector<double> SampleDates(const DateGrid& grid, Function function) {
  std::vector<double> values(static_cast<std::size_t>(grid.count));
  for (int i = 0; i < grid.count; ++i) values[static_cast<std::size_t>(i)] = function(grid.Date(i));
  return values;
}

// Whether a function that has three such neighbouring values, the middle one the nearest to 0, may touch 0
// between them: a parabola through them goes beyond the middle one by an eighth at most of what is added
// here.
inline bool MayTouchZero(double before, double now, double after) {
  const bool above = now > 0.0;
  if ((before > 0.0) != above || (after > 0.0) != above) return false;
  const double size = std::fabs(now), bend = std::fabs(before) + std::fabs(after) - 2.0 * size;
  return size < std::fabs(before) && size <= std::fabs(after) && size < bend;
}

// Calls found(date, rises) for each zero in [from, to) of a function whose values on the grid are given,
// also for two that lie within one step, as where paths nearly touch: between three looks of which the middle
// one is the nearest to zero the extreme is searched. From one look to the next the function changes by less
// than pi: what changes by more, an angle that jumps from +pi to -pi, is no zero. What is not finite has no
// zeros. The same zero comes out the same to the last digit, whatever the span.
template <class Function, class Found>
void FindDates(const DateGrid& grid, const std::vector<double>& values, Function function, double from,
               double to, Found found) {
  const auto search = [&](double a, double fa, double b, double fb) {
    const double date = FindZero(function, a, fa, b, fb, kDatePrecision);
    if (date >= from && date < to) found(date, fb >= 0.0);
  };
  for (int i = 1; i < grid.count; ++i) {
    const double before = values[static_cast<std::size_t>(i - 1)], now = values[static_cast<std::size_t>(i)];
    if (!std::isfinite(before) || !std::isfinite(now)) continue;
    if ((before < 0.0) != (now < 0.0) && std::fabs(now - before) < astro::kPi) {
      search(grid.Date(i - 1), before, grid.Date(i), now);
    }
    if (i + 1 == grid.count) continue;
    const double after = values[static_cast<std::size_t>(i + 1)];
    if (!std::isfinite(after) || !MayTouchZero(before, now, after)) continue;
    const double sign = now > 0.0 ? 1.0 : -1.0;
    const auto size = [&](double date) { return sign * function(date); };
    const double nearest = FindMinimum(size, grid.Date(i - 1), grid.Date(i + 1), kDatePrecision);
    const double least = function(nearest);
    if (!(sign * least < 0.0)) continue;
    search(grid.Date(i - 1), before, nearest, least);
    search(nearest, least, grid.Date(i + 1), after);
  }
}

// The same where nobody else needs the values.
template <class Function, class Found>
void FindDates(double from, double to, double step, Function function, Found found) {
  const DateGrid grid(from, to, step);
  FindDates(grid, SampleDates(grid, function), function, from, to, found);
}

// Divides a span into pieces of some years, so that memory does not grow with it: calls search(from, to).
template <class Search>
void SearchPieces(double from, double to, Search search) {
  constexpr double kLongest = 2000.0;  // days
  for (double begin = from; begin < to; begin += kLongest) search(begin, std::min(begin + kLongest, to));
}

}  // namespace astro_internal
