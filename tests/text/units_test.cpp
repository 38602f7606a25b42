// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/units.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

using namespace CommonInterfaces;

TEST(Units, CodesAreThoseThatFilesKeep) {
  EXPECT_EQ(kMetre, 0);
  EXPECT_EQ(kKilometre, 1);
  EXPECT_EQ(kThousandKilometres, 2);
  EXPECT_EQ(kMillionKilometres, 3);
  EXPECT_EQ(kAstronomicalUnit, 4);
  EXPECT_EQ(kLightYear, 5);
  EXPECT_EQ(kParsec, 6);
  EXPECT_EQ(kKiloparsec, 7);
}

TEST(Units, OneAstronomicalUnitIn) {
  EXPECT_EQ(ConvertUnitFromAU(1.0, kMetre), 149597870700.0);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kKilometre), 149597870.7);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kThousandKilometres), 149597.8707);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kMillionKilometres), 149.5978707);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kAstronomicalUnit), 1.0);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kLightYear), 149597870.7 / 9460730472580.799);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kParsec), 1 / 206264.80624709636);
  EXPECT_EQ(ConvertUnitFromAU(1.0, kKiloparsec), 1 / 206264806.24709636);
}

TEST(Units, AstronomicalUnitsInOne) {
  EXPECT_EQ(ConvertUnitToAU(1.0, kMetre), 1 / 149597870700.0);
  EXPECT_EQ(ConvertUnitToAU(1.0, kKilometre), 1 / 149597870.7);
  EXPECT_EQ(ConvertUnitToAU(1.0, kThousandKilometres), 1 / 149597.8707);
  EXPECT_EQ(ConvertUnitToAU(1.0, kMillionKilometres), 1 / 149.5978707);
  EXPECT_EQ(ConvertUnitToAU(1.0, kAstronomicalUnit), 1.0);
  EXPECT_EQ(ConvertUnitToAU(1.0, kLightYear), 365.25 * 86400 * 299792.458 / 149597870.7);
  EXPECT_EQ(ConvertUnitToAU(1.0, kParsec), 206264.80624709636);
  EXPECT_EQ(ConvertUnitToAU(1.0, kKiloparsec), 206264.80624709636 * 1000);
}

// IAU: a light year is 63241.077 au, a parsec 3.26156 light years.
TEST(Units, AgreeWithPublishedFigures) {
  EXPECT_NEAR(ConvertUnitToAU(1.0, kLightYear), 63241.077, 0.001);
  EXPECT_NEAR(ConvertUnitFromAU(ConvertUnitToAU(1.0, kParsec), kLightYear), 3.26156, 0.00001);
}

// Each way of writing it serves in the other's direction too.
TEST(Units, TheTwoWaysToWriteTheLightYearAreOneLength) {
  EXPECT_EQ(ConvertUnitFromAU(1.0, kLightYear), 149597870.7 / (365.25 * 86400 * 299792.458));
  EXPECT_EQ(ConvertUnitToAU(1.0, kLightYear), 9460730472580.799 / 149597870.7);
}

TEST(Units, ThereAndBackAgain) {
  for (char unit = 0; unit < 8; ++unit) {
    for (const double distance : {-3.0, 0.0, 1e-12, 1.0, 39.5, 1e12}) {
      EXPECT_NEAR(ConvertUnitToAU(ConvertUnitFromAU(distance, unit), unit), distance,
                  1e-15 * std::fabs(distance) * 2)
          << int{unit};
    }
  }
}

TEST(Units, AnyOtherCodeGivesZeroBothWays) {
  for (int unit = -128; unit < 128; ++unit) {
    if (unit >= 0 && unit <= 7) continue;
    EXPECT_EQ(ConvertUnitFromAU(5.0, static_cast<char>(unit)), 0.0) << unit;
    EXPECT_EQ(ConvertUnitToAU(5.0, static_cast<char>(unit)), 0.0) << unit;
  }
}

TEST(Units, WhatIsNotFiniteStaysSo) {
  EXPECT_TRUE(std::isinf(ConvertUnitFromAU(std::numeric_limits<double>::infinity(), kParsec)));
  EXPECT_TRUE(std::isnan(ConvertUnitToAU(std::numeric_limits<double>::quiet_NaN(), kKilometre)));
}

}  // namespace
