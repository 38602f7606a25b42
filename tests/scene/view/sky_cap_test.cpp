// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/sky_cap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "scene/view/view_geometry.h"

using namespace scene;

namespace {

// Points in a patch about `radius` wide somewhere on the sphere.
std::vector<Direction> MakePatch(double radius, std::mt19937& random) {
  std::uniform_real_distribution<double> unit(-1.0, 1.0);
  const Direction centre = MakeDirection(kPi * unit(random), std::asin(unit(random)));
  std::vector<Direction> points;
  for (int i = 0; i < 12; ++i) {
    Direction point = centre;
    for (double& component : point.v) component += radius * unit(random);
    points.push_back(Normalised(point));
  }
  return points;
}

bool MeetsWindow(const ViewGeometry& geometry, const tPoint<double>& a, const tPoint<double>& b) {
  constexpr int kSteps = 200;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = static_cast<double>(i) / kSteps;
    if (geometry.IsInside({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}, 0.0)) return true;
  }
  return false;
}

}  // namespace

TEST(SkyCap, HoldsItsPoints) {
  std::mt19937 random(11);
  for (const double radius : {1e-6, 0.01, 0.3}) {
    const auto points = MakePatch(radius, random);
    const SkyCap cap = MakeCap(points);
    EXPECT_NEAR(cap.sine * cap.sine + cap.cosine * cap.cosine, 1.0, 1e-15);
    EXPECT_LT(cap.sine, 2.0 * radius);
    for (const Direction& point : points) EXPECT_GE(Dot(cap.axis, point), cap.cosine - 1e-15);
  }
}

TEST(SkyCap, OfPointsAllAroundHoldsHalfTheSkyAtMost) {
  const std::vector<Direction> points = {{{1, 0, 0}}, {{-1, 0, 0}}, {{0, 1, 0}}};
  EXPECT_EQ(MakeCap(points).cosine, 0.0);
}

TEST(SkyCap, IsNeverPassedOverWhereSomethingOfItIsSeen) {
  std::mt19937 random(12);
  std::uniform_real_distribution<double> unit(-1.0, 1.0);
  int seen = 0, passedOver = 0;
  for (int i = 0; i < 20000; ++i) {
    CommonInterfaces::Camera camera(1);
    camera.SetZoom(0.25 * std::pow(400.0, 0.5 + 0.5 * unit(random)));
    camera.SetWinRect({400, 300, 400, 300});
    const double identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    camera.SetReductionMatrix(identity);
    SphViewCoor angles;
    angles.lon = kPi * unit(random);
    angles.lat = std::asin(unit(random));
    camera.SetRA_Dec(angles);
    camera.SetRA_Dec2K(angles.lon, angles.lat);
    const ViewGeometry geometry(camera);
    const auto points = MakePatch(0.2, random);
    bool meets = false;
    for (std::size_t k = 1; k < points.size(); ++k) {
      meets = meets || MeetsWindow(geometry, geometry.Project(points[k - 1], SkyFrameOf::kJ2000),
                                   geometry.Project(points[k], SkyFrameOf::kJ2000));
    }
    const bool mayReach = geometry.MayReach(MakeCap(points));
    EXPECT_TRUE(mayReach || !meets) << i;
    seen += meets;
    passedOver += !mayReach;
  }
  EXPECT_GT(seen, 1000);
  EXPECT_GT(passedOver, 10000);
}
