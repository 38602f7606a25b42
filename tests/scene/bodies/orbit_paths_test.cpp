// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/orbit_paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <set>

#include "scene/frame_helpers.h"
#include "utils/clock.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

int Planet(const FrameFixture& f, int number) {
  return FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), number));
}

double DistanceFrom(const std::vector<DrawnOrbitLine>& lines, const tPoint<double>& p) {
  double least = 1e9;
  for (const auto& line : lines) {
    const double dx = line.to.x - line.from.x, dy = line.to.y - line.from.y;
    const double along =
        ((p.x - line.from.x) * dx + (p.y - line.from.y) * dy) / std::max(dx * dx + dy * dy, 1e-9);
    const double t = std::clamp(along, 0.0, 1.0);
    least = std::min(least, std::hypot(line.from.x + t * dx - p.x, line.from.y + t * dy - p.y));
  }
  return least;
}

class Clock {
 public:
  explicit Clock(double time) { AnimationInterval::m_CurrentTime = time; }
  ~Clock() { AnimationInterval::m_CurrentTime = 0.0; }
};

}  // namespace

TEST(OrbitPaths, OrbitLeadsThroughTheBody) {
  FrameFixture f;
  f.camera.SetZoom(0.5);
  f.SetLook(150.0, 45.0);
  f.frame.ShowOrbit(Planet(f, 5), 0.0);
  f.frame.ShowOrbit(Planet(f, 7), 0.0);
  f.Compute();
  for (const int number : {5, 7}) {
    const DrawnBody* body = f.frame.GetParts().solarSystem.GetMarks().Find(Planet(f, number));
    ASSERT_NE(body, nullptr) << number;
    EXPECT_LT(DistanceFrom(f.frame.GetParts().solarSystem.GetOrbits().GetLines(), body->place), 1.0)
        << number;
  }
}

TEST(OrbitPaths, OrbitOfTheMoonGoesAroundTheEarth) {
  FrameFixture f;
  f.SetTime(2026, 1, 25, 18, 0);
  f.shown.horizon = false;
  f.camera.SetZoom(0.3);
  f.SetLook(180.0, 40.0);
  f.frame.ShowOrbit(kMoonBody, 0.0);
  f.Compute();
  const DrawnBody* moon = f.frame.GetParts().solarSystem.GetMarks().Find(kMoonBody);
  ASSERT_NE(moon, nullptr);
  EXPECT_LT(DistanceFrom(f.frame.GetParts().solarSystem.GetOrbits().GetLines(), moon->place), 2.0);
}

TEST(OrbitPaths, LinesStayInTheWindowAndAboveTheHorizon) {
  FrameFixture f;
  f.SetLook(200.0, 5.0);
  for (int body = 1; body < static_cast<int>(f.catalogs.bodies.size()); ++body) f.frame.ShowOrbit(body, 0.0);
  for (const double zoom : {0.25, 1.0, 8.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
    for (const auto& line : f.frame.GetParts().solarSystem.GetOrbits().GetLines()) {
      for (const auto& p : {line.from, line.to}) {
        EXPECT_TRUE(p.x >= -1.0 && p.x <= 1601.0 && p.y >= -1.0 && p.y <= 1001.0) << p.x << " " << p.y;
      }
    }
  }
}

TEST(OrbitPaths, SunHasNone) {
  FrameFixture f;
  EXPECT_FALSE(f.frame.ShowOrbit(kSunBody, 0.0));
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().solarSystem.GetOrbits().GetLines().empty());
}

TEST(OrbitPaths, RoomForLinesDoublesAsOrbitsAreAdded) {
  FrameFixture f;
  const auto& lines = f.frame.GetParts().solarSystem.GetOrbits().GetLines();
  std::set<std::size_t> rooms;
  unsigned shown = 0;
  for (int body = 0; body < static_cast<int>(f.catalogs.bodies.size()); ++body) {
    if (!f.frame.ShowOrbit(body, 0.0)) continue;
    ++shown;
    rooms.insert(lines.capacity());
  }
  ASSERT_GT(shown, 10u);
  EXPECT_EQ(rooms.size(), 1u + std::bit_width(shown - 1));
}

TEST(OrbitPaths, FadeInByTheAnimationClock) {
  FrameFixture f;
  f.camera.SetZoom(0.5);
  f.SetLook(150.0, 45.0);
  {
    const Clock start(10.0);
    f.frame.ShowOrbit(Planet(f, 5), OrbitPaths::kFadeIn);
  }
  const auto& lines = f.frame.GetParts().solarSystem.GetOrbits().GetLines();
  for (const double passed : {0.25, 0.5, 1.0, 3.0}) {
    const Clock clock(10.0 + passed);
    f.Compute();
    ASSERT_FALSE(lines.empty()) << passed;
    // A fade begins at the least opacity that can be seen, 1/255.
    EXPECT_NEAR(lines.front().opacity, std::min(passed, 1.0), 1.0 / 255.0);
  }
}
