// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "helpers/measure.h"

// Meeus, Astronomical Algorithms (1998), example 23.b: 1e-8 au a day on 2028 November 13.19 TD, to the last
// digit that is printed.
TEST(EarthVelocity, PublishedExample) {
  const double lightPerDay = 173.144632674;  // au
  double v[3];
  EarthVelocity(2462088.69, v);
  EXPECT_NEAR(v[0] * lightPerDay * 1e8, -1363700, 0.5);
  EXPECT_NEAR(v[1] * lightPerDay * 1e8, 990286, 0.5);
  EXPECT_NEAR(v[2] * lightPerDay * 1e8, 429285, 0.5);
}

// The constant of aberration, 20.4955 arc seconds, times 1 less or more the eccentricity 0.0167, and what the
// planets and the Moon add (0.01 arc second).
TEST(EarthVelocity, SpeedStaysNearTheConstantOfAberration) {
  for (double date = 2415020.0; date < 2488070.0; date += 17.3) {
    double v[3];
    EarthVelocity(date, v);
    const double speed = Vmod(v, 3) / astro_test::kArcSecond;
    EXPECT_GT(speed, 20.4955 * (1.0 - 0.0168) - 0.02) << date;
    EXPECT_LT(speed, 20.4955 * (1.0 + 0.0168) + 0.02) << date;
  }
}
