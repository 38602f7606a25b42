// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/constants.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"

using namespace astro;

TEST(Constants, AnglesAreTheNearestDoubles) {
  const double pi = std::acos(-1.0);
  EXPECT_EQ(kPi, pi);
  EXPECT_EQ(kTurn, 4.0 * std::acos(0.0));
  EXPECT_EQ(kRadiansPerDegree, 0.017453292519943295);     // 0.0174532925199432957692...
  EXPECT_EQ(kRadiansPerArcsecond, 4.84813681109536e-06);  // 4.8481368110953599358991...e-6
}

TEST(Constants, EpochIsNoonOfTheFirstDayOf2000) {
  int day = 0;
  double fraction = 0.0;
  DJ({2000, 1, 1, 12, 0, 0.0}, day, fraction);
  EXPECT_EQ(day + fraction, kJ2000);
  EXPECT_EQ(kSecondsPerDay, 24.0 * 60.0 * 60.0);
  EXPECT_EQ(kMinutesPerDay, 24.0 * 60.0);
  EXPECT_EQ(kDaysPerJulianCentury, 100.0 * kDaysPerJulianYear);
  EXPECT_EQ(kDaysPerJulianYear, (3.0 * 365.0 + 366.0) / 4.0);
}

// 648000 / pi = 206264.806247096355156473...
TEST(Constants, TheTwoParsecsAreNeighbours) {
  EXPECT_EQ(kAuPerParsec, 648000.0 / kPi);
  EXPECT_EQ(kAuPerParsecAbove, std::nextafter(kAuPerParsec, 1e9));
}

TEST(Constants, LengthsBelongTogether) {
  EXPECT_EQ(kMetresPerAu, 1000.0 * kKilometresPerAu);
  EXPECT_EQ(kLightSpeed, 299792.458);
  const double exact = kLightSpeed * kSecondsPerDay / kKilometresPerAu;
  EXPECT_NEAR(kLightAuPerDay, exact, 0.5e-9);
  // The polar radius of WGS 84 is 6356.752314245 km.
  EXPECT_NEAR(kEarthEquatorialRadius * (1.0 - kEarthFlattening), 6356.752314245, 5e-10);
}

TEST(Constants, IdentifiersAreThoseOfFiles) {
  EXPECT_EQ(kSun, SSO_ID(FourCC("plnt"), 10));
  EXPECT_EQ(kEarth, SSO_ID(FourCC("plnt"), 3));
  EXPECT_EQ(kMoon, SSO_ID(FourCC("moon"), 301));
  EXPECT_EQ(kMoonNumber, 100 * kEarthNumber + 1);
  EXPECT_EQ(kPlutoNumber, kSunNumber - 1);
}
