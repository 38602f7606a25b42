// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Moments of events: where a function of the time is zero or smallest. The functions are called with days.
#pragma once

#include <cmath>

namespace astro_internal {

// The zero between two moments at which the values have different signs, to `tolerance` days: regula falsi
// that halves the value of an end that stays (the Illinois rule), and every third time halves the span.
template <class Function>
double FindZero(Function function, double a, double fa, double b, double fb, double tolerance) {
  for (int step = 0; step < 100 && std::fabs(b - a) > tolerance; ++step) {
    const bool halves = step % 3 == 2;
    double middle = halves ? 0.5 * (a + b) : (a * fb - b * fa) / (fb - fa);
    // Not at an end: the span would not shrink.
    const double margin = 0.4 * tolerance;
    if (std::fabs(middle - a) < margin) middle = a + std::copysign(margin, b - a);
    if (std::fabs(middle - b) < margin) middle = b - std::copysign(margin, b - a);
    const double value = function(middle);
    if ((value < 0.0) == (fb < 0.0)) {
      b = middle;
      fb = value;
      fa *= 0.5;
    } else {
      a = b;
      fa = fb;
      b = middle;
      fb = value;
    }
  }
  return 0.5 * (a + b);
}

// The minimum between two moments of a function that has one there, to `tolerance` days: the golden section.
template <class Function>
double FindMinimum(Function function, double a, double b, double tolerance) {
  constexpr double kGolden = 0.6180339887498949;
  double left = b - kGolden * (b - a), right = a + kGolden * (b - a);
  double atLeft = function(left), atRight = function(right);
  while (b - a > tolerance) {
    if (atLeft < atRight) {
      b = right;
      right = left;
      atRight = atLeft;
      left = b - kGolden * (b - a);
      atLeft = function(left);
    } else {
      a = left;
      left = right;
      atLeft = atRight;
      right = a + kGolden * (b - a);
      atRight = function(right);
    }
  }
  return 0.5 * (a + b);
}

}  // namespace astro_internal
