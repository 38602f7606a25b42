// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rotation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"

namespace {

using astro::BodyShape;
using astro::CloudLongitudeShift;
using astro::CloudSystem;
using astro::ComputeRotation;
using astro::GetBodyShape;
using astro_test::ExpectDegrees;
using astro_test::Planet;

}  // namespace

// The report's own numbers at the epoch, by hand: what has no periodic terms.
TEST(Rotation, ValuesOfTheReportAtTheEpoch) {
  const auto sun = ComputeRotation(Planet(10), 2451545.0);
  ASSERT_TRUE(sun);
  ExpectDegrees(sun->poleRA, 286.13, 1e-9);
  ExpectDegrees(sun->poleDec, 63.87, 1e-9);
  ExpectDegrees(sun->primeMeridian, 84.176, 1e-9);
  const auto later = ComputeRotation(Planet(6), 2451545.0 + 36525.0);
  ASSERT_TRUE(later);
  ExpectDegrees(later->poleRA, 40.589 - 0.036, 1e-9);
  ExpectDegrees(later->primeMeridian, 38.90 + 810.7939024 * 36525.0, 1e-6);
  // Io at the epoch: 268.05 + 0.094 sin 283.9 + 0.024 sin 355.8 degrees.
  const auto io = ComputeRotation(SSO_ID(FourCC("moon"), 501), 2451545.0);
  ASSERT_TRUE(io);
  ExpectDegrees(io->poleRA, 268.05 - 0.094 * 0.970716 - 0.024 * 0.073238, 1e-6);
  ExpectDegrees(io->poleDec, 64.5 + 0.04 * 0.240228 + 0.011 * 0.997314, 1e-6);
  EXPECT_LT(ComputeRotation(Planet(2), 2451545.0)->turning, 0.0);
}

TEST(Rotation, MatrixTurnsThePoleAndTheMeridianToTheAxes) {
  for (const int number : {1, 2, 4, 5, 6, 7, 8, 9, 10}) {
    const auto rotation = ComputeRotation(Planet(number), 2460000.5);
    ASSERT_TRUE(rotation) << number;
    double pole[3], z[3];
    sfp(1.0, rotation->poleRA, rotation->poleDec, pole);
    MV3prod(rotation->toBody, pole, z);
    EXPECT_NEAR(z[2], 1.0, 1e-14);
    double node[3], x[3];
    sfp(1.0, rotation->poleRA + astro_test::kTurn / 4.0, 0.0, node);
    MV3prod(rotation->toBody, node, x);
    EXPECT_NEAR(std::remainder(std::atan2(x[1], x[0]) + rotation->primeMeridian, astro_test::kTurn), 0.0,
                1e-12);
    EXPECT_NEAR(x[2], 0.0, 1e-14);
  }
}

TEST(Rotation, OtherBodiesHaveNone) {
  for (const SSO_ID& body :
       {SSO_ID(), Planet(3), Planet(0), Planet(11), Planet(501), SSO_ID(FourCC("moon"), 5),
        SSO_ID(FourCC("moon"), 607), SSO_ID(FourCC("astr"), 5)}) {
    EXPECT_FALSE(ComputeRotation(body, 2451545.0)) << body.number;
  }
  EXPECT_FALSE(ComputeRotation(Planet(5), std::numeric_limits<double>::quiet_NaN()));
  EXPECT_FALSE(CloudLongitudeShift(Planet(6), CloudSystem::kSecond, 2451545.0));
  EXPECT_FALSE(CloudLongitudeShift(Planet(4), CloudSystem::kFirst, 2451545.0));
  EXPECT_TRUE(CloudLongitudeShift(Planet(6), CloudSystem::kFirst, 2451545.0));
}

TEST(Rotation, ShapesOfTheReport) {
  const auto phobos = GetBodyShape(SSO_ID(FourCC("moon"), 401));
  ASSERT_TRUE(phobos);
  EXPECT_EQ(phobos->a, 13.0);
  EXPECT_EQ(phobos->b, 11.4);
  EXPECT_EQ(phobos->c, 9.1);
  const std::optional<BodyShape> pluto = GetBodyShape(Planet(9));
  ASSERT_TRUE(pluto);
  EXPECT_EQ(pluto->c, 1188.3);
  EXPECT_FALSE(GetBodyShape(SSO_ID(FourCC("moon"), 999)));
  EXPECT_FALSE(GetBodyShape(Planet(0)));
}

TEST(Rotation, CloudsOfOtherKindsAndAtNoTimeHaveNoShift) {
  EXPECT_FALSE(CloudLongitudeShift(SSO_ID(FourCC("star"), 5), CloudSystem::kFirst, 2451545.0));
  EXPECT_FALSE(CloudLongitudeShift(Planet(5), CloudSystem::kFirst, std::numeric_limits<double>::quiet_NaN()));
}

// Who finds a rotation relies on it.
TEST(Rotation, WhatTurnsHasAShape) {
  int found = 0;
  for (const int kind : {FourCC("plnt"), FourCC("moon")}) {
    for (int number = 0; number < 1000; ++number) {
      const SSO_ID body(kind, number);
      if (!ComputeRotation(body, 2451545.0)) continue;
      ++found;
      const auto shape = GetBodyShape(body);
      ASSERT_TRUE(shape) << number;
      EXPECT_GT(shape->c, 0.0);
    }
  }
  EXPECT_GT(found, 20);
}
