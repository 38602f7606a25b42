// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;

constexpr double kTurn = 2 * kPi;

// The smallest angle between two directions on a circle.
double CircleDistance(double a, double b) { return std::fabs(std::remainder(a - b, kTurn)); }

TEST(ViewMatrix, WithoutAnglesLooksAlongTheFirstAxisWithTheThirdUpAndTheSecondLeft) {
  const double angles[3] = {0, 0, 0};
  double m[9];
  Camera::InitCameraMatrix(angles, m);
  const double expected[9] = {0, 1, 0, 0, 0, 1, 1, 0, 0};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(m[i], expected[i]) << "element " << i;
}

TEST(ViewMatrix, ElementsFollowTheirFormula) {
  // Longitude 90, latitude 30, slope 60 degrees: sines 1, 1/2, r; cosines 0, r, 1/2 with r = sqrt(3) / 2.
  const double angles[3] = {90 * kDegree, 30 * kDegree, 60 * kDegree};
  const double r = std::sqrt(3.0) / 2;
  const double expected[9] = {-0.5, -r / 2, r * r, r, -0.25, r / 2, 0, r, 0.5};
  double m[9];
  Camera::InitCameraMatrix(angles, m);
  for (int i = 0; i < 9; ++i) EXPECT_NEAR(m[i], expected[i], 1e-15) << "element " << i;
}

TEST(ViewMatrix, RowsAreOrthonormalAndRightHandedAndTheLastIsTheDirection) {
  Random random(1);
  for (int n = 0; n < 500; ++n) {
    const double angles[3] = {random.Real(-7, 7), random.Real(-kPi / 2, kPi / 2), random.Real(-7, 7)};
    double m[9], cross[3];
    Camera::InitCameraMatrix(angles, m);
    Vprod(m, m + 3, cross);
    const Direction direction(angles[0], angles[1]);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(m[6 + i], direction.v[i], 1e-15);
      EXPECT_NEAR(cross[i], m[6 + i], 1e-15);
      EXPECT_NEAR(Vmod(m + 3 * i, 3), 1.0, 1e-15);
    }
  }
}

TEST(ViewMatrix, AnglesComeBackFromTheMatrix) {
  Random random(2);
  for (int n = 0; n < 2000; ++n) {
    const double angles[3] = {random.Real(0, kTurn), random.Real(-1.5, 1.5), random.Real(0, kTurn)};
    double m[9], back[3];
    Camera::InitCameraMatrix(angles, m);
    Camera::CalcAnglesFromCameraMatrix(m, back);
    // The inverse takes the angles from sines, which give only half of the digits near 90 degrees.
    EXPECT_LT(CircleDistance(back[0], angles[0]), 2e-7);
    EXPECT_NEAR(back[1], angles[1], 1e-13);
    EXPECT_LT(CircleDistance(back[2], angles[2]), 2e-7);
    for (double angle : {back[0], back[2]}) {
      EXPECT_GE(angle, 0.0);
      EXPECT_LT(angle, kTurn);
    }
  }
}

TEST(ViewMatrix, EveryQuadrantOfLongitudeAndSlopeComesBack) {
  for (int lon = 0; lon < 360; lon += 30) {
    for (int slope = 0; slope < 360; slope += 30) {
      const double angles[3] = {lon * kDegree, 20 * kDegree, slope * kDegree};
      double m[9], back[3];
      Camera::InitCameraMatrix(angles, m);
      Camera::CalcAnglesFromCameraMatrix(m, back);
      EXPECT_LT(CircleDistance(back[0], angles[0]), 2e-7) << lon << " " << slope;
      EXPECT_LT(CircleDistance(back[2], angles[2]), 2e-7) << lon << " " << slope;
    }
  }
}

TEST(ViewMatrix, AtThePolesTheSlopeIsZeroAndFoldsIntoTheLongitude) {
  for (double sign : {1.0, -1.0}) {
    const double angles[3] = {1.0, sign * kPi / 2, 0.25};
    double m[9], back[3];
    Camera::InitCameraMatrix(angles, m);
    Camera::CalcAnglesFromCameraMatrix(m, back);
    EXPECT_NEAR(back[0], 1.0 + sign * 0.25, 1e-12);
    EXPECT_EQ(back[1], sign * kPi / 2);
    EXPECT_EQ(back[2], 0.0);
  }
}

TEST(ViewMatrix, ElementsThatRoundingCarriedPastOneStillGiveAngles) {
  const double beyond = 1.0 + 1e-15;
  const double up[9] = {-beyond, 0, 0, 0, -1, 0, 0, 0, beyond};
  double back[3];
  Camera::CalcAnglesFromCameraMatrix(up, back);
  EXPECT_EQ(back[0], kPi / 2);
  EXPECT_EQ(back[1], kPi / 2);
  const double down[9] = {beyond, 0, 0, 0, 1, 0, 0, 0, -beyond};
  Camera::CalcAnglesFromCameraMatrix(down, back);
  EXPECT_EQ(back[0], 1.5 * kPi);
  EXPECT_EQ(back[1], -kPi / 2);
}

TEST(ViewMatrix, TinyNegativeAnglesGiveZeroNotAFullTurn) {
  const double angles[3] = {-1e-17, 0.1, -1e-17};
  double m[9], back[3];
  Camera::InitCameraMatrix(angles, m);
  Camera::CalcAnglesFromCameraMatrix(m, back);
  EXPECT_EQ(back[0], 0.0);
  EXPECT_EQ(back[2], 0.0);
}

TEST(ViewMatrix, ArgumentAndResultMayBeTheSameArray) {
  double buffer[9] = {0.4, 0.3, 0.2};
  Camera::InitCameraMatrix(buffer, buffer);
  Camera::CalcAnglesFromCameraMatrix(buffer, buffer);
  EXPECT_NEAR(buffer[0], 0.4, 1e-14);
  EXPECT_NEAR(buffer[1], 0.3, 1e-14);
  EXPECT_NEAR(buffer[2], 0.2, 1e-14);
}

TEST(SetRA_Dec, StoresTheAnglesWithAClearedFlag) {
  Camera camera(1);
  camera.SetRA_Dec({1.0, 0.5, 0.25, 7});
  const SphViewCoor& angles = camera.GetViewAngles();
  EXPECT_EQ(angles.lon, 1.0);
  EXPECT_EQ(angles.lat, 0.5);
  EXPECT_EQ(angles.slope, 0.25);
  EXPECT_EQ(angles.flag, 0);
}

TEST(SetRA_Dec, TurnsTheView) {
  Camera camera(1);
  camera.SetWinRect(Window(800, 600));
  camera.SetZoom(1.0);
  LookAt(camera, 1.0, 0.5, 0.25);
  tPoint<double> p;
  camera.RA_Dec2PixD(Direction(1.0, 0.5).v, &p);
  EXPECT_NEAR(p.x, 400, 1e-9);
  EXPECT_NEAR(p.y, 300, 1e-9);
}

TEST(ViewCentreJ2000, IsWhatTheOwnerSet) {
  Camera camera(1);
  camera.SetRA_Dec2K(1.25, -0.5);
  double ra = 0, dec = 0;
  camera.GetRA_Dec2K(ra, dec);
  EXPECT_EQ(ra, 1.25);
  EXPECT_EQ(dec, -0.5);
}

}  // namespace
