// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/shower_radiants.h"

#include <gtest/gtest.h>

#include <cmath>

#include "scene/frame_helpers.h"
#include "scene/perseids.h"
#include "scene/view/standing.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

// The north-east in a summer night.
class ShowerRadiantsTest : public testing::Test {
 protected:
  ShowerRadiantsTest() {
    f.SetTime(2026, 8, 12, 22, 0);
    f.SetLook(40.0, 40.0);
    f.camera.SetZoom(0.5);
    f.frame.SetShowers({host_test::MakePerseids()});
  }
  const std::vector<DrawnRadiant>& GetDrawn() const { return f.frame.GetParts().radiants.GetDrawn(); }

  FrameFixture f;
};

}  // namespace

TEST_F(ShowerRadiantsTest, StandWhereTheSkyHasThemWithTheirName) {
  f.Compute();
  ASSERT_EQ(GetDrawn().size(), 1u);
  EXPECT_TRUE(GetDrawn()[0].peak);
  const ViewGeometry geometry(f.camera);
  const auto place = geometry.Project(
      ApparentDirection(MakeDirection(48.0 * kRadiansPerDegree, 58.0 * kRadiansPerDegree), f.observer),
      SkyFrameOf::kJ2000);
  EXPECT_NEAR(GetDrawn()[0].place.x, place.x, 1e-6);
  EXPECT_NEAR(GetDrawn()[0].place.y, place.y, 1e-6);
  EXPECT_TRUE(f.HasLabel("Perseids"));
}

// The name, to the right of the radiant, would lie on the planet.
TEST_F(ShowerRadiantsTest, NameLeavesAPlanetFree) {
  f.SetTime(2026, 8, 12, 3, 0);
  f.shown.horizon = f.shown.naturalSky = false;
  f.camera.SetZoom(0.5);
  f.Compute();
  const SolarSystemPart& bodies = f.frame.GetParts().solarSystem;
  const int jupiter = FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), 5));
  const Direction seen =
      MakeDirection(bodies.GetModel().GetStates()[static_cast<std::size_t>(jupiter)].seen.apparent);
  Shower shower = host_test::MakePerseids();
  shower.radiant = Normalised(Direction{{seen.v[0], seen.v[1], seen.v[2] + 0.001}});
  const Standing standing = FindStanding(seen, f.observer);
  f.SetLook(standing.azimuth, standing.altitude);
  int names = 0;
  for (int step = 0; step < 441; ++step) {
    const double aside = 0.01 * (step % 21 - 10), up = 0.01 * (step / 21 - 10);
    shower.radiant =
        Normalised(Direction{{seen.v[0] + aside * seen.v[1], seen.v[1] - aside * seen.v[0], seen.v[2] + up}});
    f.frame.SetShowers({shower});
    f.Compute();
    const DrawnBody* drawn = bodies.GetMarks().Find(jupiter);
    ASSERT_NE(drawn, nullptr);
    for (const auto& label : f.frame.GetParts().labels.GetLabels()) {
      if (label.kind != LabelKind::kRadiant) continue;
      ++names;
      const double width = TextExtents().GetWidth(label.text, label.size, 0);
      const double left = label.place.x - label.anchor * width;
      EXPECT_FALSE(left < drawn->place.x && drawn->place.x < left + width &&
                   std::abs(label.place.y + 0.3 * label.size - drawn->place.y) < 0.4 * label.size)
          << aside << " " << up;
    }
  }
  EXPECT_GT(names, 0);
}

TEST_F(ShowerRadiantsTest, PeakIsOneDay) {
  f.SetTime(2026, 8, 13, 22, 0);
  f.Compute();
  ASSERT_EQ(GetDrawn().size(), 1u);
  EXPECT_FALSE(GetDrawn()[0].peak);
}

TEST_F(ShowerRadiantsTest, EachFrameTakesThoseOfItsDay) {
  f.SetTime(2026, 9, 12, 22, 0);
  f.Compute();
  EXPECT_TRUE(GetDrawn().empty());
  EXPECT_FALSE(f.HasLabel("Perseids"));
  f.SetTime(2026, 8, 1, 22, 0);
  f.Compute();
  EXPECT_EQ(GetDrawn().size(), 1u);
}

TEST_F(ShowerRadiantsTest, BelowTheHorizonOnlyWithoutOne) {
  f.SetPlace(-50.0, 13.4);
  f.SetLook(0.0, -20.0);
  f.Compute();
  EXPECT_TRUE(GetDrawn().empty());
  f.shown.horizon = false;
  f.SetLook(20.0, -20.0);
  f.camera.SetZoom(0.25);
  f.Compute();
  EXPECT_EQ(GetDrawn().size(), 1u);
}

TEST_F(ShowerRadiantsTest, NothingIsAllocatedAFrame) {
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t drawn = 0;
  for (int i = 0; i < 40; ++i) {
    f.SetTime(2026, 8, 10, i % 24, 0);
    f.SetLook(20.0 + i, 40.0);
    f.Compute();
    drawn += GetDrawn().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(drawn, 0u);
}
