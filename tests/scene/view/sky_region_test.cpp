// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A region's picture, filled by the even-odd rule, must hold exactly the pixels whose directions lie in the
// region.
#include "scene/view/sky_region.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "scene/view/horizon.h"

using namespace scene;

namespace {

constexpr int kWidth = 400, kHeight = 300;

CommonInterfaces::Camera MakeCamera(double lon, double lat, double slope, double zoom) {
  CommonInterfaces::Camera camera(1);
  camera.SetZoom(zoom);
  camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
  SphViewCoor angles;
  angles.lon = lon;
  angles.lat = lat;
  angles.slope = slope;
  camera.SetRA_Dec(angles);
  return camera;
}

bool IsInPicture(const RegionPicture& picture, double x, double y) {
  bool inside = picture.holdsOutside;
  int first = 0;
  for (const int end : picture.ringEnds) {
    for (int i = first, j = end - 1; i < end; j = i++) {
      const auto &a = picture.points[i], &b = picture.points[j];
      if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) inside = !inside;
    }
    first = end;
  }
  return inside;
}

// The direction of a pixel, y down, in the horizon frame.
Direction DirectionAt(const CommonInterfaces::Camera& camera, int x, int yDown) {
  Direction direction;
  camera.Pix2Vec({x, yDown}, direction.v);
  return direction;
}

// Compares the picture of the region around `pole` out to `radius` with the angle of each pixel's direction.
// Pixels within a degree of the edge are left to the rounding of the polygon.
void CheckCap(const CommonInterfaces::Camera& camera, const Direction& pole, double radius) {
  std::vector<Direction> ring;
  for (int i = 0; i < 720; ++i) {
    // A circle about the z axis, turned so that z becomes the pole.
    const Direction raw = MakeDirection(i * kPi / 360.0, 0.5 * kPi - radius);
    const double st = std::hypot(pole.v[0], pole.v[1]), ct = pole.v[2];
    const double cl = st > 0.0 ? pole.v[0] / st : 1.0, sl = st > 0.0 ? pole.v[1] / st : 0.0;
    const double tilted = ct * raw.v[0] + st * raw.v[2];
    ring.push_back(
        {{cl * tilted - sl * raw.v[1], sl * tilted + cl * raw.v[1], -st * raw.v[0] + ct * raw.v[2]}});
  }
  const ViewGeometry geometry(camera);
  RegionPicture picture;
  picture.Clear();
  const Direction outside = {{-pole.v[0], -pole.v[1], -pole.v[2]}};
  RegionProjector(geometry, SkyFrameOf::kHorizon, outside, picture).AddRing(ring);
  int wrong = 0, seen = 0;
  for (int y = 1; y < kHeight; y += 7) {
    for (int x = 1; x < kWidth; x += 7) {
      const double angle = std::acos(std::clamp(Dot(DirectionAt(camera, x, y), pole), -1.0, 1.0));
      if (std::fabs(angle - radius) < kRadiansPerDegree) continue;
      ++seen;
      wrong += IsInPicture(picture, x + 0.01, kHeight - y + 0.013) != (angle < radius);
    }
  }
  EXPECT_GT(seen, 0);
  EXPECT_EQ(wrong, 0) << "of " << seen << " pixels";
}

}  // namespace

TEST(SkyRegion, HalfTheSkyIsRightInEveryDirectionAtEveryZoom) {
  const Direction nadir = {{0.0, 0.0, -1.0}};
  for (const double zoom : {0.25, 0.5, 1.0, 8.0}) {
    for (int altitude = -80; altitude <= 80; altitude += 20) {
      SCOPED_TRACE(testing::Message() << "zoom " << zoom << ", altitude " << altitude);
      CheckCap(MakeCamera(1.0, altitude * kRadiansPerDegree, 0.3, zoom), nadir, 0.5 * kPi);
    }
  }
}

TEST(SkyRegion, RingThroughThePointOppositeToTheView) {
  const Direction pole = {{0.0, 0.0, 1.0}};
  for (const double radius : {0.5, 1.0, 2.0}) {
    SCOPED_TRACE(radius);
    // The view axis lies radius above the opposite pole, so the ring passes the opposite point.
    CheckCap(MakeCamera(2.0, radius - 0.5 * kPi, 0.0, 0.3), pole, radius);
    CheckCap(MakeCamera(2.0, radius - 0.5 * kPi + 1e-4, 0.0, 0.3), pole, radius);
  }
}

TEST(SkyRegion, LargeRegionAroundTheViewFillsTheWindow) {
  const Direction pole = MakeDirection(0.5, 0.2);
  CheckCap(MakeCamera(0.5, 0.2, 0.0, 2.0), pole, 1.5);
  CheckCap(MakeCamera(0.5, 0.2, 0.0, 2.0), pole, 3.0);
}

TEST(SkyRegion, RegionBehindTheViewStaysOutOfTheWindow) {
  const Direction pole = MakeDirection(0.5 + kPi, -0.2);
  CheckCap(MakeCamera(0.5, 0.2, 0.0, 1.0), pole, 0.3);
  CheckCap(MakeCamera(0.5, 0.2, 0.0, 0.3), pole, 0.7);
}

TEST(SkyRegion, EdgesLongerThanTheWindowCrossItWhole) {
  // At zoom 200 the window is a fifth of a degree wide, and the ring's edges are half a degree long.
  const Direction nadir = {{0.0, 0.0, -1.0}};
  const auto camera = MakeCamera(1.003, 0.0, 0.0, 200.0);
  std::vector<Direction> circle;
  AppendAltitudeCircle(0.0, circle);
  const ViewGeometry geometry(camera);
  RegionPicture picture;
  RegionProjector(geometry, SkyFrameOf::kHorizon, {{0.0, 0.0, 1.0}}, picture).AddRing(circle);
  EXPECT_TRUE(IsInPicture(picture, kWidth * 0.5, 10.0)) << "below the horizon";
  EXPECT_FALSE(IsInPicture(picture, kWidth * 0.5, kHeight - 10.0)) << "above the horizon";
  EXPECT_LT(Dot(nadir, geometry.centreHorizon), 1e-9);
}

TEST(SkyRegion, NoPointLiesBeyondTheRim) {
  const auto camera = MakeCamera(1.0, 0.4, 0.0, 0.25);
  std::vector<Direction> circle;
  AppendAltitudeCircle(-0.4, circle);
  const ViewGeometry geometry(camera);
  RegionPicture picture;
  RegionProjector(geometry, SkyFrameOf::kHorizon, {{0.0, 0.0, 1.0}}, picture).AddRing(circle);
  ASSERT_FALSE(picture.points.empty());
  for (const auto& p : picture.points) {
    EXPECT_LE(std::hypot(p.x - kWidth * 0.5, p.y - kHeight * 0.5), picture.rim * (1.0 + 1e-9));
  }
}

// A circle of 100 degrees about the view, behind it all around: its picture is the rim. Steps of five degrees
// have a point each, of one degree wait until they add up to three.
TEST(SkyRegion, OutlineAlongTheRimHasAPointEveryThreeDegreesAtMost) {
  const auto camera = MakeCamera(0.0, 0.5 * kPi, 0.0, 1.0);
  const ViewGeometry geometry(camera);
  const auto trace = [&](int count) {
    std::vector<Direction> ring;
    for (int i = 0; i < count; ++i)
      ring.push_back(MakeDirection((i + 0.25) * 2.0 * kPi / count, -10.0 * kRadiansPerDegree));
    RegionPicture picture;
    RegionProjector(geometry, SkyFrameOf::kHorizon, {{0.0, 0.0, -1.0}}, picture).AddRing(ring);
    for (const auto& p : picture.points)
      EXPECT_NEAR(std::hypot(p.x - kWidth * 0.5, p.y - kHeight * 0.5), picture.rim, 1e-6);
    return static_cast<int>(picture.points.size());
  };
  EXPECT_EQ(trace(72), 72);
  EXPECT_EQ(trace(90), 90);
  EXPECT_NEAR(trace(360), 120, 30) << "every third or fourth";
}

TEST(SkyRegion, CapsOfARingChangeNothingInItsPicture) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(-1.0, 1.0);
  int outside = 0;
  for (int i = 0; i < 3000; ++i) {
    // A ragged circle of any size, its points up to two degrees apart.
    const double radius = 0.02 * std::pow(70.0, 0.5 + 0.5 * unit(random));
    const double tilt = unit(random), turn = kPi * unit(random);
    std::vector<Direction> ring;
    for (int k = 0; k < 300; ++k) {
      const Direction raw = MakeDirection(k * kPi / 150.0, 0.5 * kPi - radius * (1.0 + 0.03 * unit(random)));
      const double x = std::cos(tilt) * raw.v[0] - std::sin(tilt) * raw.v[2];
      ring.push_back(
          {{std::cos(turn) * x - std::sin(turn) * raw.v[1], std::sin(turn) * x + std::cos(turn) * raw.v[1],
            std::sin(tilt) * raw.v[0] + std::cos(tilt) * raw.v[2]}});
    }
    std::vector<SkyCap> caps;
    RegionProjector::AppendCaps(ring, caps);
    ASSERT_EQ(caps.size(), 10u) << "300 points in stretches of 32";
    const auto camera = MakeCamera(kPi * unit(random), std::asin(unit(random)), unit(random),
                                   0.25 * std::pow(400.0, 0.5 + 0.5 * unit(random)));
    const ViewGeometry geometry(camera);
    const Direction opposite = {{-ring[0].v[0], -ring[0].v[1], -ring[0].v[2]}};
    RegionPicture with, without;
    RegionProjector(geometry, SkyFrameOf::kHorizon, opposite, with).AddRing(ring, caps);
    RegionProjector(geometry, SkyFrameOf::kHorizon, opposite, without).AddRing(ring);
    ASSERT_EQ(with.points.size(), without.points.size()) << i;
    for (std::size_t k = 0; k < with.points.size(); ++k) {
      ASSERT_EQ(with.points[k].x, without.points[k].x) << i;
      ASSERT_EQ(with.points[k].y, without.points[k].y) << i;
    }
    EXPECT_EQ(with.holdsOutside, without.holdsOutside) << i;
    outside += with.points.size() < ring.size();
  }
  EXPECT_GT(outside, 1000) << "views that ring was not wholly in";
}
