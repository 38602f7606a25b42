// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "common_interfaces/sky_images.h"

using CommonInterfaces::DSOImages;

namespace {

constexpr double kPi = 3.14159265358979323846;

using Corners = std::array<std::array<double, 3>, 4>;

Corners Corner(const std::array<double, 3>& center, float angle, float w, float h) {
  double flat[12];
  DSOImages::CalcCorners(center.data(), angle, w, h, flat);
  Corners corners;
  for (std::size_t i = 0; i < 12; ++i) corners[i / 3][i % 3] = flat[i];
  return corners;
}

std::array<double, 3> Direction(double ra, double dec) {
  return {std::cos(dec) * std::cos(ra), std::cos(dec) * std::sin(ra), std::sin(dec)};
}

void ExpectCorner(const std::array<double, 3>& corner, double x, double y, double z) {
  const double length = std::sqrt(x * x + y * y + z * z);
  EXPECT_NEAR(corner[0], x / length, 1e-15);
  EXPECT_NEAR(corner[1], y / length, 1e-15);
  EXPECT_NEAR(corner[2], z / length, 1e-15);
}

// The picture on the plane that touches the sphere at (1, 0, 0): y east, z north, turned about x by the
// position angle of its first axis, then carried to the centre by Rz(ra) Ry(-dec).
struct Rotations {
  double ra, dec;

  std::array<double, 3> Carry(double east, double north) const {
    const double length = std::sqrt(1.0 + east * east + north * north);
    const double x = 1.0 / length, y = east / length, z = north / length;
    const double tilted = std::cos(dec) * x - std::sin(dec) * z;
    return {std::cos(ra) * tilted - std::sin(ra) * y, std::sin(ra) * tilted + std::cos(ra) * y,
            std::sin(dec) * x + std::cos(dec) * z};
  }
};

Corners ByRotations(double ra, double dec, double angle, double w, double h) {
  const Rotations to = {ra, dec};
  const double signs[4][2] = {{-1, -1}, {-1, 1}, {1, 1}, {1, -1}};
  Corners corners;
  for (std::size_t k = 0; k < 4; ++k) {
    const double along = signs[k][0] * w, across = signs[k][1] * h;
    corners[k] = to.Carry(-along * std::sin(angle) + across * std::cos(angle),
                          along * std::cos(angle) + across * std::sin(angle));
  }
  return corners;
}

double Difference(const Corners& a, const Corners& b) {
  double largest = 0.0;
  for (std::size_t k = 0; k < 4; ++k) {
    for (std::size_t i = 0; i < 3; ++i) largest = std::max(largest, std::fabs(a[k][i] - b[k][i]));
  }
  return largest;
}

// At (1, 0, 0) west is -y and north is z: u is north, v is east.
TEST(ImageCorners, AngleZeroPutsTheFirstAxisNorthAndTheSecondEast) {
  const Corners corners = Corner({1.0, 0.0, 0.0}, 0.0f, 0.25f, 0.125f);
  ExpectCorner(corners[0], 1.0, -0.125, -0.25);
  ExpectCorner(corners[1], 1.0, 0.125, -0.25);
  ExpectCorner(corners[2], 1.0, 0.125, 0.25);
  ExpectCorner(corners[3], 1.0, -0.125, 0.25);
}

// A quarter turn: u is west, v is north. 1.5 is exact; its sine and cosine are those of 1.5 radians.
TEST(ImageCorners, GrowingAngleTurnsTheFirstAxisTowardsWest) {
  const Corners corners = Corner({1.0, 0.0, 0.0}, 1.5f, 1.0f, 0.0f);
  const double s = 0.99749498660405443, c = 0.07073720166770291;
  ExpectCorner(corners[2], 1.0, -s, c);
  ExpectCorner(corners[0], 1.0, s, -c);
}

TEST(ImageCorners, CosineIsNegativeInTheSecondAndThirdQuadrant) {
  for (const float angle : {0.5f, 2.0f, 4.0f, 5.5f, 8.0f, -0.5f, -2.0f, -4.0f, -5.5f, -8.0f}) {
    const Corners corners = Corner({1.0, 0.0, 0.0}, angle, 1.0f, 0.0f);
    EXPECT_EQ(std::signbit(corners[2][2]), std::cos(angle) < 0.0f) << angle;
    EXPECT_LT(Difference(corners, ByRotations(0.0, 0.0, angle, 1.0, 0.0)), 1e-14) << angle;
  }
}

TEST(ImageCorners, TenThousandPicturesAgreeWithRotationMatrices) {
  std::mt19937_64 random(20260121);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  double largest = 0.0;
  for (int i = 0; i < 10000; ++i) {
    const double ra = 2.0 * kPi * unit(random);
    const double dec = std::asin(2.0 * unit(random) - 1.0);
    const auto angle = static_cast<float>(20.0 * unit(random) - 10.0);
    const auto w = static_cast<float>(0.5 * unit(random));
    const auto h = static_cast<float>(0.5 * unit(random));
    const Corners expected =
        ByRotations(ra, dec, static_cast<double>(angle), static_cast<double>(w), static_cast<double>(h));
    largest = std::max(largest, Difference(Corner(Direction(ra, dec), angle, w, h), expected));
  }
  std::printf("10000 pictures against rotation matrices: largest difference %.2g\n", largest);
  EXPECT_LT(largest, 1e-12);
}

TEST(ImageCorners, CornersAreUnitVectors) {
  const Corners corners = Corner(Direction(1.0, 0.5), 0.75f, 3.0f, 7.0f);
  for (const auto& corner : corners) {
    EXPECT_NEAR(corner[0] * corner[0] + corner[1] * corner[1] + corner[2] * corner[2], 1.0, 1e-15);
  }
}

// As for a centre that comes to the pole on the meridian of right ascension 0: north is -x at the north pole.
TEST(ImageCorners, CentreAtThePoleTakesTheMeridianOfZero) {
  const Corners north = Corner({0.0, 0.0, 1.0}, 0.0f, 0.25f, 0.125f);
  ExpectCorner(north[0], 0.25, -0.125, 1.0);
  ExpectCorner(north[2], -0.25, 0.125, 1.0);
  const Corners south = Corner({0.0, 0.0, -1.0}, 0.0f, 0.25f, 0.125f);
  ExpectCorner(south[0], -0.25, -0.125, -1.0);
  ExpectCorner(south[2], 0.25, 0.125, -1.0);
  const Corners beside = Corner(Direction(0.0, kPi / 2 - 1e-12), 0.0f, 0.25f, 0.125f);
  EXPECT_LT(Difference(north, beside), 1e-11);
}

TEST(ImageCorners, PictureWithoutSizeIsItsCentre) {
  const auto center = Direction(2.0, -1.0);
  for (const auto& corner : Corner(center, 1.0f, 0.0f, 0.0f)) {
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(corner[i], center[i], 1e-15);
  }
}

TEST(ImageCorners, AngleThatIsNoNumberEndsWithNoNumber) {
  const Corners corners = Corner({1.0, 0.0, 0.0}, std::numeric_limits<float>::infinity(), 0.1f, 0.1f);
  EXPECT_TRUE(std::isnan(corners[0][0]));
}

TEST(ImageCorners, OffsetsAreAddedAndTheSumsNormalised) {
  const double center[3] = {0.0, 1.0, 0.0};
  const double offsets[12] = {0.0, 1.0, 0.0, 3.0, 3.0, 0.0, 0.0, -1.0, 2.0, -1.0, -1.0, -1.0};
  double corners[12];
  DSOImages::CalcCornersFromOffsets(center, offsets, corners);
  const double expected[12] = {0, 1, 0, 0.6, 0.8, 0, 0, 0, 1, -0.70710678118654752, 0, -0.70710678118654752};
  for (int i = 0; i < 12; ++i) EXPECT_NEAR(corners[i], expected[i], 1e-15) << i;
}

TEST(ImageCorners, ResultMayTakeThePlaceOfTheOffsets) {
  const double center[3] = {1.0, 0.0, 0.0};
  double values[12] = {0, 1, 0, 0, 2, 0, 0, 0, 1, 0, 0, 2};
  double apart[12];
  DSOImages::CalcCornersFromOffsets(center, values, apart);
  DSOImages::CalcCornersFromOffsets(center, values, values);
  for (int i = 0; i < 12; ++i) EXPECT_EQ(values[i], apart[i]) << i;
}

}  // namespace
