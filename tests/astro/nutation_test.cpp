// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/earth/nutation.h"

#include <gtest/gtest.h>

#include "helpers/measure.h"

using astro_test::kArcSecond;

// Meeus, Astronomical Algorithms (1998), example 22.a, by the IAU 1980 theory; the poles of the two theories
// were 0.015 arc second apart in 1987.
TEST(Nutation, TenthOfApril1987) {
  const astro_internal::Nutation nutation = astro_internal::NutationAt((2446895.5 - 2451545.0) / 36525.0);
  EXPECT_NEAR(nutation.longitude / kArcSecond, -3.788, 0.03);
  EXPECT_NEAR(nutation.obliquity / kArcSecond, 9.443, 0.02);
  EXPECT_NEAR(std::remainder(nutation.ascendingNode - 11.2531 * astro_test::kDegree, astro_test::kTurn), 0.0,
              2e-6);
}
