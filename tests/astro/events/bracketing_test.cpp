// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/bracketing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using astro_internal::FindMinimum;
using astro_internal::FindZero;

namespace {

// Functions that are hard on regula falsi: flat on one side, steep on the other, nearly a step, a root at an
// end of the bracket.
TEST(Bracketing, ZerosOfAwkwardFunctions) {
  const auto find = [](auto function, double a, double b) {
    int calls = 0;
    const auto counted = [&](double x) {
      ++calls;
      return function(x);
    };
    const double zero = FindZero(counted, a, function(a), b, function(b), 1e-9);
    EXPECT_LT(calls, 101);
    return zero;
  };
  EXPECT_NEAR(find([](double x) { return std::cos(x); }, 1.0, 2.0), std::numbers::pi / 2.0, 1e-9);
  EXPECT_NEAR(find([](double x) { return x * x * x * x * x - 1e-5; }, 0.0, 10.0), 0.1, 1e-9);
  EXPECT_NEAR(find([](double x) { return std::atan(1e6 * (x - 0.3)); }, -100.0, 1.0), 0.3, 1e-9);
  EXPECT_NEAR(find([](double x) { return x < 0.7 ? -1.0 : 1e6; }, 0.0, 1.0), 0.7, 1e-9);
  EXPECT_NEAR(find([](double x) { return 2.0 - x; }, 0.0, 2.0 + 1e-12), 2.0, 1e-9);
  EXPECT_NEAR(find([](double x) { return std::exp(-x) - 1e-4; }, 0.0, 50.0), std::log(1e4), 1e-9);
}

TEST(Bracketing, MinimaInTheMiddleAndNextToTheEnds) {
  EXPECT_NEAR(FindMinimum([](double x) { return (x - 0.3) * (x - 0.3); }, -5.0, 5.0, 1e-6), 0.3, 1e-6);
  EXPECT_NEAR(FindMinimum([](double x) { return std::fabs(x - 4.9999); }, -5.0, 5.0, 1e-6), 4.9999, 1e-6);
  EXPECT_NEAR(FindMinimum([](double x) { return x; }, -5.0, 5.0, 1e-6), -5.0, 1e-6);
}

// Two doubles that enclose a zero never meet. A third of the rounds halves what is left.
TEST(Bracketing, EndsAfterAHundredRoundsWhereTheToleranceCannotBeMet) {
  int calls = 0;
  const auto counted = [&calls](double x) {
    ++calls;
    return x - 1.0 / 3.0;
  };
  EXPECT_NEAR(FindZero(counted, 0.0, -1.0 / 3.0, 1.0, 2.0 / 3.0, 0.0), 1.0 / 3.0, std::pow(0.5, 33.0));
  EXPECT_EQ(calls, 100);
}

}  // namespace
