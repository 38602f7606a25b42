// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/vectors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "astro/coordinates.h"
#include "helpers/measure.h"

using astro_test::kDegree;

namespace {

void ExpectVector(const double v[3], double x, double y, double z) {
  EXPECT_DOUBLE_EQ(v[0], x);
  EXPECT_DOUBLE_EQ(v[1], y);
  EXPECT_DOUBLE_EQ(v[2], z);
}

const double kA[9] = {1, 2, 3, 4, 5, 6, 7, 8, 10};
const double kB[9] = {2, 0, 1, -1, 3, 5, 4, 1, -2};

}  // namespace

TEST(Vectors, LengthTakesAsManyNumbersAsAsked) {
  const double v[] = {2.0, -3.0, 6.0, 24.0};
  EXPECT_DOUBLE_EQ(Vmod(v, 3), 7.0);
  EXPECT_DOUBLE_EQ(Vmod(v, 4), 25.0);
  EXPECT_DOUBLE_EQ(Vmod(v, 1), 2.0);
  EXPECT_DOUBLE_EQ(Vmod(v, 0), 0.0);
  EXPECT_DOUBLE_EQ(Vmod(v, -1), 0.0);
}

TEST(Vectors, CrossProductIsRightHanded) {
  const double x[3] = {1, 0, 0};
  const double y[3] = {0, 1, 0};
  double r[3];
  Vprod(x, y, r);
  ExpectVector(r, 0, 0, 1);
  const double a[3] = {1, 2, 3};
  const double b[3] = {4, 5, 7};
  Vprod(a, b, r);
  ExpectVector(r, -1, 5, -3);
}

TEST(Vectors, MatrixTimesVectorTakesRows) {
  const double v[3] = {1, -1, 2};
  double r[3];
  MV3prod(kA, v, r);
  ExpectVector(r, 5, 11, 19);
}

TEST(Vectors, VectorTimesMatrixTakesColumns) {
  const double v[3] = {1, -1, 2};
  double r[3];
  V3Mprod(v, kA, r);
  ExpectVector(r, 11, 13, 17);
}

TEST(Vectors, MatrixProductByHand) {
  double r[9];
  M3prod(kA, kB, r);
  const double expected[9] = {12, 9, 5, 27, 21, 17, 46, 34, 27};
  for (int i = 0; i < 9; ++i) EXPECT_DOUBLE_EQ(r[i], expected[i]) << i;
}

TEST(Vectors, ResultMayBeAnArgument) {
  double v[3] = {1, -1, 2};
  MV3prod(kA, v, v);
  ExpectVector(v, 5, 11, 19);
  double w[3] = {1, -1, 2};
  V3Mprod(w, kA, w);
  ExpectVector(w, 11, 13, 17);
  double a[3] = {1, 2, 3};
  double b[3] = {4, 5, 7};
  Vprod(a, b, a);
  ExpectVector(a, -1, 5, -3);
  double c[3] = {1, 2, 3};
  Vprod(c, b, b);
  ExpectVector(b, -1, 5, -3);
  const double expected[9] = {12, 9, 5, 27, 21, 17, 46, 34, 27};
  double left[9], right[9];
  for (int i = 0; i < 9; ++i) left[i] = kA[i], right[i] = kB[i];
  M3prod(left, kB, left);
  M3prod(kA, right, right);
  for (int i = 0; i < 9; ++i) {
    EXPECT_DOUBLE_EQ(left[i], expected[i]) << i;
    EXPECT_DOUBLE_EQ(right[i], expected[i]) << i;
  }
}

// Meeus, Astronomical Algorithms (1998), example 17.a.
TEST(Vectors, AngleFromArcturusToSpica) {
  double arcturus[3], spica[3];
  sfp(1.0, 213.9154 * kDegree, 19.1825 * kDegree, arcturus);
  sfp(1.0, 201.2983 * kDegree, -11.1614 * kDegree, spica);
  EXPECT_NEAR(VectorsAngle(arcturus, spica) / kDegree, 32.7930, 0.00005);
}

TEST(Vectors, AngleIsExactNearBothEnds) {
  const double x[3] = {1, 0, 0};
  const double tiny[3] = {1, 1e-12, 0};
  const double opposite[3] = {-1, 1e-12, 0};
  EXPECT_DOUBLE_EQ(VectorsAngle(x, tiny), 1e-12);
  EXPECT_DOUBLE_EQ(VectorsAngle(x, x), 0.0);
  EXPECT_NEAR(std::numbers::pi - VectorsAngle(x, opposite), 1e-12, 5e-16);
}

TEST(Vectors, AngleNeedsNoUnitVectorsAndIsZeroForNone) {
  const double a[3] = {3e5, 0, 0};
  const double b[3] = {0, 0, 1e-5};
  const double none[3] = {0, 0, 0};
  EXPECT_DOUBLE_EQ(VectorsAngle(a, b), std::numbers::pi / 2.0);
  EXPECT_DOUBLE_EQ(VectorsAngle(a, none), 0.0);
}

TEST(Vectors, ScalarProduct) {
  const double a[3] = {1.0, -2.0, 3.0}, b[3] = {4.0, 5.0, 6.0};
  EXPECT_EQ(astro::Dot(a, b), 12.0);
  EXPECT_EQ(astro::Dot(a, a), 14.0);
  // Summed from the first to the last: the large ones meet first.
  const double large[3] = {1e20, -1e20, 1.0}, ones[3] = {1.0, 1.0, 1.0};
  EXPECT_EQ(astro::Dot(large, ones), 1.0);
}
