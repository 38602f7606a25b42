// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Shadows of moons on their planets' discs, and the paths of moons about them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "astro/moon_phenomena.h"
#include "scene/frame_helpers.h"
#include "scene/view/standing.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr double kMinute = 1.0 / 1440.0;

class MoonShadowsAndPaths : public testing::Test {
 protected:
  MoonShadowsAndPaths() {
    f.shown.horizon = false;
    f.shown.naturalSky = false;
    f.camera.SetZoom(1500.0);
  }
  // Jupiter in the middle.
  void ComputeAt(double julianDate) {
    const SkyMoment moment = MakeMoment(static_cast<int>(std::floor(julianDate)), std::fmod(julianDate, 1.0));
    CommonInterfaces::_Date time;
    time.day = moment.day;
    time.fraction = moment.fraction;
    f.camera.SetUniversalTime(time);
    f.Compute();
    const Standing there = FindStanding(MakeDirection(JupiterState().seen.apparent), f.observer);
    f.SetLook(there.azimuth, there.altitude);
    f.Compute();
  }
  const SolarSystemPart& Part() const { return f.frame.GetParts().solarSystem; }
  int Find(const SSO_ID& id) const { return FindBody(f.catalogs.bodies, id); }
  const BodyState& JupiterState() const {
    return Part().GetModel().GetStates()[static_cast<std::size_t>(Find(SSO_ID(FourCC("plnt"), 5)))];
  }

  FrameFixture f;
};

}  // namespace

TEST_F(MoonShadowsAndPaths, ShadowOfIoLiesOnJupiterWhileAlmanacsHaveItThere) {
  constexpr double kDeltaT = 69.2 / 86400.0;
  int transits = 0;
  for (const auto& event : astro::FindMoonEvents(5, 2461050.5, 2461060.5)) {
    if (event.kind != astro::MoonPhenomenon::kShadowTransit || event.moon.number != 501) continue;
    ++transits;
    const double begin = event.begin - kDeltaT, end = event.end - kDeltaT;
    for (const double outside : {begin - 5.0 * kMinute, end + 5.0 * kMinute}) {
      ComputeAt(outside);
      EXPECT_TRUE(f.frame.GetDisplayList().GetShadows().empty()) << outside;
    }
    ComputeAt(0.5 * (begin + end));
    ASSERT_EQ(f.frame.GetDisplayList().GetShadows().size(), 1u);
    const ShadowRecord shadow = f.frame.GetDisplayList().GetShadows()[0];
    EXPECT_EQ(shadow.object.number, 5);
    const double radius = shadow.clipRadius;
    EXPECT_LT(std::hypot(shadow.x - shadow.clipX, shadow.y - shadow.clipY), 0.5 * radius);
    // Io has 1821.5 km and goes 350,000 km above the clouds: the Sun's disc, 696,000 km at 778 million, adds
    // 313 km to the penumbra and takes as much from the umbra. Jupiter has 71,492 km.
    EXPECT_NEAR(shadow.outerRadius / radius, 2134.0 / 71492.0, 0.0007);
    EXPECT_NEAR(shadow.innerRadius / radius, 1508.0 / 71492.0, 0.0007);
    ComputeAt(begin + 5.0 * kMinute);
    ASSERT_EQ(f.frame.GetDisplayList().GetShadows().size(), 1u);
    const ShadowRecord first = f.frame.GetDisplayList().GetShadows()[0];
    const double away = std::hypot(first.x - first.clipX, first.y - first.clipY) / first.clipRadius;
    EXPECT_GT(away, 0.8);
    EXPECT_LT(away, 1.0);
  }
  EXPECT_EQ(transits, 5);
}

TEST_F(MoonShadowsAndPaths, NoShadowOnThePlanetThatIsADot) {
  f.camera.SetZoom(3.0);
  ComputeAt(2461053.7044);
  EXPECT_TRUE(f.frame.GetDisplayList().GetShadows().empty());
}

TEST_F(MoonShadowsAndPaths, OrbitLeadsThroughTheMoonAndAboutThePlanet) {
  const int io = Find(SSO_ID(FourCC("moon"), 501));
  ASSERT_TRUE(f.frame.ShowOrbit(io, 0.0));
  f.camera.SetZoom(800.0);
  for (const double moment : {2461050.3, 2461050.8, 2461051.3}) {
    ComputeAt(moment);
    const DrawnBody* const drawn = Part().GetMarks().Find(io);
    ASSERT_NE(drawn, nullptr);
    double nearest = 1e9, left = 1e9, right = -1e9;
    for (const auto& polyline : f.frame.GetDisplayList().GetPolylines()) {
      if (polyline.object.number != 501) continue;
      const auto* const p = f.frame.GetDisplayList().GetVertices().data() + polyline.firstVertex;
      const double dx = p[1].x - p[0].x, dy = p[1].y - p[0].y, square = std::max(dx * dx + dy * dy, 1e-9);
      const double y = f.frame.GetHeight() - drawn->place.y;
      const double part = std::clamp(((drawn->place.x - p[0].x) * dx + (y - p[0].y) * dy) / square, 0.0, 1.0);
      nearest = std::min(nearest, std::hypot(p[0].x + part * dx - drawn->place.x, p[0].y + part * dy - y));
      left = std::min<double>(left, p[0].x - 800.0);
      right = std::max<double>(right, p[0].x - 800.0);
    }
    // Pixels, where Jupiter is 240 wide and the orbit 1400 long.
    EXPECT_LT(nearest, 1.5) << moment;
    EXPECT_NEAR(left, -right, 0.06 * right) << moment;
  }
}

TEST_F(MoonShadowsAndPaths, OrbitsWithinADotAreLeftOut) {
  ASSERT_TRUE(f.frame.ShowOrbit(Find(SSO_ID(FourCC("moon"), 501)), 0.0));
  f.camera.SetZoom(2.0);
  ComputeAt(2461050.3);
  for (const auto& polyline : f.frame.GetDisplayList().GetPolylines()) EXPECT_NE(polyline.object.number, 501);
}
