// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "astro/vectors.h"
#include "helpers/measure.h"

using astro_test::FromDms;
using astro_test::kDegree;
using astro_test::kTurn;

TEST(Coordinates, SphericalToRectangularByHand) {
  double v[3];
  sfp(2.0, 90.0 * kDegree, 30.0 * kDegree, v);
  EXPECT_NEAR(v[0], 0.0, 1e-15);
  EXPECT_NEAR(v[1], std::sqrt(3.0), 1e-15);
  EXPECT_NEAR(v[2], 1.0, 1e-15);
  const double spherical[3] = {2.0, 90.0 * kDegree, 30.0 * kDegree};
  double same[3];
  sfp1(spherical, same);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(same[i], v[i]);
}

TEST(Coordinates, OneArrayMayServeBothSides) {
  double v[3] = {3.0, kTurn / 4.0, 0.0};
  sfp1(v, v);
  EXPECT_NEAR(v[0], 0.0, 1e-15);
  EXPECT_DOUBLE_EQ(v[1], 3.0);
  EXPECT_DOUBLE_EQ(v[2], 0.0);
}

TEST(Coordinates, ThereAndBackOverTheSphere) {
  astro_test::Largest longitudes("longitude there and back", "radian");
  astro_test::Largest latitudes("latitude there and back", "radian");
  for (int lonDegrees = 0; lonDegrees < 360; ++lonDegrees) {
    for (int latDegrees = -89; latDegrees <= 89; ++latDegrees) {
      double v[3], lon, lat;
      sfp(7.5, lonDegrees * kDegree, latDegrees * kDegree, v);
      psf(v, Vmod(v, 3), lon, lat);
      longitudes.Note(std::remainder(lon - lonDegrees * kDegree, kTurn), lonDegrees);
      latitudes.Note(lat - latDegrees * kDegree, latDegrees);
    }
  }
  longitudes.Expect(2e-15);
  latitudes.Expect(2e-14);
}

TEST(Coordinates, LongitudesLieInOneTurn) {
  double lon, lat;
  const double south[3] = {0.0, -2.0, 0.0};
  psf(south, 2.0, lon, lat);
  EXPECT_DOUBLE_EQ(lon, 0.75 * kTurn);
  const double west[3] = {-1.0, -0.0, 0.0};
  psf(west, 1.0, lon, lat);
  EXPECT_DOUBLE_EQ(lon, std::numbers::pi);
  const double justBelow[3] = {1.0, -1e-300, 0.0};
  psf(justBelow, 1.0, lon, lat);
  EXPECT_EQ(lon, 0.0);
}

TEST(Coordinates, PolesAndNoVectorHaveLongitudeZero) {
  double lon = 5.0, lat = 5.0;
  const double north[3] = {0.0, 0.0, 3.0};
  psf(north, 3.0, lon, lat);
  EXPECT_EQ(lon, 0.0);
  EXPECT_DOUBLE_EQ(lat, kTurn / 4.0);
  const double southPole[3] = {-0.0, -0.0, -3.0};
  psf(southPole, 3.0, lon, lat);
  EXPECT_EQ(lon, 0.0);
  EXPECT_DOUBLE_EQ(lat, -kTurn / 4.0);
  const double none[3] = {0.0, 0.0, 0.0};
  lon = lat = 5.0;
  psf(none, 0.0, lon, lat);
  EXPECT_EQ(lon, 0.0);
  EXPECT_EQ(lat, 0.0);
}

TEST(Coordinates, QuotientAboveOneIsClamped) {
  double lon, lat;
  const double v[3] = {1e-9, 0.0, 1.0 + 1e-15};
  psf(v, 1.0, lon, lat);
  EXPECT_DOUBLE_EQ(lat, kTurn / 4.0);
  const double w[3] = {1.0, 1.0, -5.0};
  psf(w, 1.0, lon, lat);
  EXPECT_DOUBLE_EQ(lat, -kTurn / 4.0);
  EXPECT_DOUBLE_EQ(lon, kTurn / 8.0);
}

// Meeus, Astronomical Algorithms (1998), example 11.a: Palomar, on the ellipsoid of the IAU 1976.
TEST(Coordinates, GeocentricPlaceOfPalomar) {
  const double radius = 6378140.0;
  double xyz[3];
  Plg2Plc(1706.0, 0.0, FromDms(33, 21, 22), radius, 1.0 / 298.257, xyz);
  EXPECT_NEAR(xyz[0] / radius, 0.836339, 5e-7);
  EXPECT_EQ(xyz[1], 0.0);
  EXPECT_NEAR(xyz[2] / radius, 0.546861, 5e-7);
}

// The polar radius of WGS 84: 6356752.3142 m (NIMA TR8350.2, 2000).
TEST(Coordinates, HeightCountsFromTheEllipsoidAtPoleAndEquator) {
  const double flattening = 1.0 / 298.257223563;
  double xyz[3];
  Plg2Plc(1.0, 0.3, kTurn / 4.0, 6378.137, flattening, xyz);
  EXPECT_NEAR(std::hypot(xyz[0], xyz[1]), 0.0, 1e-11);
  EXPECT_NEAR(xyz[2], 6357.7523142, 5e-8);
  Plg2Plc(1.0, kTurn / 4.0, 0.0, 6378.137, flattening, xyz);
  EXPECT_NEAR(xyz[0], 0.0, 1e-11);
  EXPECT_DOUBLE_EQ(xyz[1], 6379.137);
  EXPECT_EQ(xyz[2], 0.0);
}
