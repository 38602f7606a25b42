// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/planet_paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

class PlanetPathsTest : public testing::Test {
 protected:
  PlanetPathsTest() {
    f.shown.horizon = false;
    f.shown.naturalSky = false;
  }
  const BodyState& StateOf(int number) {
    const int body = FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), number));
    return f.frame.GetParts().solarSystem.GetModel().GetStates()[static_cast<std::size_t>(body)];
  }
  // How far the planet's path passes from a place of the picture, pixels, y down; 1e9 where there is none.
  double FindDistance(int number, double x, double y) const {
    const DisplayList& list = f.frame.GetDisplayList();
    double nearest = 1e9;
    for (const auto& line : list.GetPolylines()) {
      if (line.object.kind != FourCC("plnt") || line.object.number != number) continue;
      const Vertex* const p = list.GetVertices().data() + line.firstVertex;
      const double dx = p[1].x - p[0].x, dy = p[1].y - p[0].y, square = std::max(dx * dx + dy * dy, 1e-9);
      const double part = std::clamp(((x - p[0].x) * dx + (y - p[0].y) * dy) / square, 0.0, 1.0);
      nearest = std::min(nearest, std::hypot(p[0].x + part * dx - x, p[0].y + part * dy - y));
    }
    return nearest;
  }
  // Of where the planet is now.
  double FindDistance(int number) {
    const ViewGeometry geometry(f.camera, f.observer);
    const auto p = geometry.Project(MakeDirection(StateOf(number).seen.apparent), SkyFrameOf::kJ2000);
    return FindDistance(number, p.x, geometry.height - p.y);
  }

  FrameFixture f;  // Berlin, 2026-01-15 21:00
};

}  // namespace

TEST_F(PlanetPathsTest, NoneAreDrawnAtFirst) {
  f.SetLook(135.0, 50.0);
  f.Compute();
  EXPECT_EQ(FindDistance(5), 1e9);
}

TEST_F(PlanetPathsTest, BothLeadThroughThePlanet) {
  f.SetLook(135.0, 50.0);
  f.shown.planetCelPath = true;
  f.Compute();
  EXPECT_LT(FindDistance(5), 0.3);
  f.shown.planetCelPath = false;
  f.shown.planetLocPath = true;
  f.Compute();
  EXPECT_LT(FindDistance(5), 0.5);
}

// The path over the horizon is where the planet stands three hours later; that among the stars where it
// stands thirty days later.
TEST_F(PlanetPathsTest, LeadToWhereThePlanetWillBe) {
  f.SetLook(180.0, 50.0);
  f.SetTime(2026, 1, 16, 0, 0);
  f.Compute();
  const ViewGeometry geometry(f.camera);
  const auto later = geometry.Project(MakeDirection(StateOf(5).seen.apparent), SkyFrameOf::kJ2000);
  f.SetTime(2026, 1, 15, 21, 0);
  f.shown.planetLocPath = true;
  f.Compute();
  EXPECT_LT(FindDistance(5, later.x, geometry.height - later.y), 0.5);
  f.shown.planetLocPath = false;
  f.shown.planetCelPath = true;
  f.SetTime(2026, 2, 14, 21, 0);
  f.Compute();
  const Direction there = MakeDirection(StateOf(5).seen.apparent);
  f.SetTime(2026, 1, 15, 21, 0);
  f.SetLook(135.0, 50.0);
  f.Compute();
  const auto p = ViewGeometry(f.camera).Project(there, SkyFrameOf::kJ2000);
  EXPECT_LT(FindDistance(5, p.x, 1000.0 - p.y), 0.5);
}

TEST_F(PlanetPathsTest, TheSunHasADayAndNothingElse) {
  f.SetTime(2026, 6, 21, 11, 0);
  f.SetLook(180.0, 60.0);
  f.shown.planetCelPath = true;
  f.Compute();
  EXPECT_EQ(FindDistance(10), 1e9);
  f.shown.planetLocPath = true;
  f.Compute();
  EXPECT_LT(FindDistance(10), 0.5);
}

TEST_F(PlanetPathsTest, StayAboveTheHorizonThatIsDrawn) {
  f.SetTime(2026, 6, 21, 23, 0);
  f.SetLook(0.0, -30.0);
  f.shown.planetLocPath = true;
  f.Compute();
  EXPECT_LT(FindDistance(10), 0.5);
  f.shown.horizon = true;
  f.Compute();
  EXPECT_EQ(FindDistance(10), 1e9);
}
