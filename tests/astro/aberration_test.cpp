// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "helpers/measure.h"

using astro_test::kDegree;

// Einstein's formula for the angle from the direction of motion: cos a' = (cos a + v) / (1 + v cos a).
TEST(Aberration, FollowsTheRelativisticFormulaAtAnySpeed) {
  for (const double speed : {0.0, 1e-4, 0.3, 0.9}) {
    for (int degrees = 0; degrees <= 180; degrees += 5) {
      double direction[3], apparent[3];
      sfp(1.0, 0.0, degrees * kDegree, direction);
      const double velocity[3] = {speed, 0.0, 0.0};
      Aberration(direction, velocity, apparent);
      const double cosine = std::cos(degrees * kDegree);
      EXPECT_NEAR(apparent[0], (cosine + speed) / (1.0 + speed * cosine), 1e-15);
      EXPECT_NEAR(apparent[1], 0.0, 1e-15);
      EXPECT_NEAR(Vmod(apparent, 3), 1.0, 1e-15);
    }
  }
}

TEST(Aberration, ResultMayBeEitherArgument) {
  const double direction[3] = {0.0, 0.6, 0.8};
  const double velocity[3] = {1e-4, 0.0, 0.0};
  double apart[3];
  Aberration(direction, velocity, apart);
  double first[3] = {0.0, 0.6, 0.8};
  Aberration(first, velocity, first);
  double second[3] = {1e-4, 0.0, 0.0};
  Aberration(direction, second, second);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(first[i], apart[i]);
    EXPECT_EQ(second[i], apart[i]);
  }
}

// Meeus, Astronomical Algorithms (1998), examples 21.b and 23: theta Persei, J2000.0 position with its proper
// motion on 2028 November 13.19 TD, gives the apparent place 2h 46m 14.390s, +49 21' 07.45". His constants of
// precession are those of 1976, 0.30 arc second a century larger in longitude: 0.09 arc second until then.
TEST(Aberration, ApparentPlaceOfThetaPersei) {
  const double date = 2462088.69;
  double direction[3], velocity[3], m[9];
  sfp(1.0, 41.054063 * kDegree, 49.227750 * kDegree, direction);
  EarthVelocity(date, velocity);
  Aberration(direction, velocity, direction);
  PrecessionNutationMatrix(date, m);
  MV3prod(m, direction, direction);
  double expected[3];
  sfp(1.0, astro_test::FromHms(2, 46, 14.390), astro_test::FromDms(49, 21, 7.45), expected);
  const double difference = VectorsAngle(direction, expected) / astro_test::kArcSecond;
  std::printf("[ largest  ] apparent place of theta Persei: %.3f arc second (tolerance 0.15)\n", difference);
  EXPECT_LT(difference, 0.15);
}
