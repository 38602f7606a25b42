// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/landscape_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scene/chart/sky_background.h"
#include "scene/frame_helpers.h"
#include "scene/search/object_search.h"
#include "scene/search/pick.h"
#include "scene/search/why.h"
#include "support/allocation_counter.h"
#include "utils/text.h"

using namespace scene;

namespace {

// Everywhere 40 degrees high: Sirius and Rigel, 20 and 29 degrees high in the south, stand behind it.
Landscape MakeWall() {
  Landscape wall;
  std::string error;
  EXPECT_TRUE(ParseLandscape(
      "<svg viewBox=\"0 0 360 40\"><polygon fill=\"#40a040\" points=\"0,0 360,0\"/></svg>", 0.0, wall, error))
      << error;
  for (auto& layer : wall.layers) {
    layer.altitudes.assign(layer.altitudes.size(), 40.0 * kRadiansPerDegree);
    for (auto& point : layer.skyline)
      point = MakeDirection(std::atan2(point.v[1], point.v[0]), 40.0 * kRadiansPerDegree);
  }
  return wall;
}

double Brightness(const Rgba& colour) {
  return 0.2126 * colour.red + 0.7152 * colour.green + 0.0722 * colour.blue;
}

class LandscapePictureTest : public testing::Test {
 protected:
  LandscapePictureTest() {
    f.camera.SetZoom(0.6);
    f.frame.SetLandscape(MakeWall());
  }
  int CountGroundAreas() {
    f.Compute();
    int count = 0;
    for (const scene::Run& run : f.frame.GetDisplayList().GetRuns()) {
      if (run.layer == Layer::kGround && run.type == RecordType::kPolygon) count += run.count;
    }
    return count;
  }
  bool IsWritten(const char* text) {
    const DisplayList& list = f.frame.GetDisplayList();
    return std::any_of(list.GetTexts().begin(), list.GetTexts().end(),
                       [&](const TextRecord& record) { return std::string(list.GetText(record)) == text; });
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(LandscapePictureTest, StandsInPlaceOfThePlainGround) {
  EXPECT_EQ(CountGroundAreas(), 8) << "the layer and seven bands of shade";
  f.frame.SetLandscape({});
  EXPECT_EQ(CountGroundAreas(), 1);
}

TEST_F(LandscapePictureTest, ReachesItsAltitude) {
  f.Compute();
  const DisplayList& list = f.frame.GetDisplayList();
  const auto ground = std::find_if(list.GetRuns().begin(), list.GetRuns().end(),
                                   [](const scene::Run& run) { return run.layer == Layer::kGround; });
  ASSERT_NE(ground, list.GetRuns().end());
  const PolygonRecord& area = list.GetPolygons()[static_cast<std::size_t>(ground->first)];
  const RingRecord& ring = list.GetRings()[static_cast<std::size_t>(area.firstRing)];
  const auto south =
      ViewGeometry(f.camera).Project(MakeDirection(-kPi, 40.0 * kRadiansPerDegree), SkyFrameOf::kHorizon);
  double nearest = 1e9;
  for (int i = 0; i < ring.vertexCount; ++i) {
    const Vertex& vertex = list.GetVertices()[static_cast<std::size_t>(ring.firstVertex + i)];
    nearest = std::min(nearest, std::hypot(vertex.x - south.x, vertex.y - (1000.0 - south.y)));
  }
  EXPECT_LT(nearest, 0.1);
}

TEST_F(LandscapePictureTest, NamesOfWhatStandsBehindItAreNotWritten) {
  f.frame.SetLandscape({});
  f.Compute();
  EXPECT_TRUE(IsWritten("Rigel"));
  EXPECT_TRUE(IsWritten("Betelgeuse")) << "45 degrees high";
  f.frame.SetLandscape(MakeWall());
  f.Compute();
  EXPECT_FALSE(IsWritten("Rigel"));
  EXPECT_TRUE(IsWritten("Betelgeuse"));
  EXPECT_TRUE(IsWritten("S")) << "the compass stands before it";
}

TEST_F(LandscapePictureTest, WhatStandsBehindItIsNeitherDrawnNorPicked) {
  constexpr int kRigel = 1713, kBetelgeuse = 2061;
  f.frame.SetLandscape({});
  f.Compute();
  ASSERT_NE(f.Find(kRigel), nullptr);
  const auto& place = f.Find(kRigel)->output->m_Place;
  const double x = place.x, y = 1000.0 - place.y;
  const auto picks = [&] {
    for (const Hit& hit : PickObjects(f.frame.GetDisplayList(), x, y, 3.0)) {
      if (hit.object == ObjectRef{FourCC("star"), kRigel}) return true;
    }
    return false;
  };
  EXPECT_TRUE(picks());
  f.frame.SetLandscape(MakeWall());
  f.Compute();
  EXPECT_EQ(f.Find(kRigel), nullptr);
  EXPECT_NE(f.Find(kBetelgeuse), nullptr);
  EXPECT_FALSE(picks());
  f.shown.style = ChartStyle::kPrint;  // which has no landscape
  f.Compute();
  EXPECT_NE(f.Find(kRigel), nullptr);
}

TEST_F(LandscapePictureTest, ExplanationSaysWhatHidesAStar) {
  f.Compute();
  std::string error;
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "nothing.data");
  const auto rigel = ObjectSearch(f.catalogs).FindOne("Rigel", error).value();
  const Explanation why =
      Explain(rigel, {f.frame, f.camera, f.observer, f.shown, ObjectFilters::None(), settings});
  EXPECT_EQ(why.obstacles, unsigned{kBehindLand});
  const auto canopus = ObjectSearch(f.catalogs).FindOne("Canopus", error).value();
  EXPECT_EQ(
      Explain(canopus, {f.frame, f.camera, f.observer, f.shown, ObjectFilters::None(), settings}).obstacles &
          (kBelowHorizon | kBehindLand),
      unsigned{kBelowHorizon})
      << "the horizon alone, of what has not risen";
}

// A disc of a quarter of a degree is seen while its upper limb stands over the edge.
TEST(LandscapeHides, WhatIsLowerThanItsSkylineByItsRadius) {
  const Landscape wall = MakeWall();
  const auto at = [](double degrees) { return MakeDirection(1.0, degrees * kRadiansPerDegree); };
  EXPECT_TRUE(wall.Hides(at(39.9)));
  EXPECT_FALSE(wall.Hides(at(40.1)));
  EXPECT_FALSE(wall.Hides(at(39.9), 0.25 * kRadiansPerDegree));
  EXPECT_TRUE(wall.Hides(at(39.7), 0.25 * kRadiansPerDegree));
  EXPECT_FALSE(wall.Hides(at(85.0)));
  EXPECT_FALSE(Landscape().Hides(at(-5.0)));
}

TEST_F(LandscapePictureTest, ChartsAndSkiesWithoutAHorizonHaveNone) {
  f.shown.style = ChartStyle::kPrint;
  EXPECT_EQ(CountGroundAreas(), 1);
  f.shown.style = ChartStyle::kScreen;
  f.shown.horizon = false;
  EXPECT_EQ(CountGroundAreas(), 0);
}

TEST_F(LandscapePictureTest, AllocatesNothingAfterTheFirstFrame) {
  f.Compute();
  const auto before = host_test::GetAllocationCount();
  f.frame.Compute(f.camera, f.observer, f.shown);
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}

// A green hill by day; a silhouette before the sky at night, darker where it is nearer.
TEST(LandColour, FollowsTheLightOfTheSky) {
  host_test::FrameFixture f;
  const Colour green = {0.27, 0.38, 0.25, 1.0};
  SkyLight light;
  SkySources sources;
  sources.sun = MakeDirection(0.0, 60.0 * kRadiansPerDegree);
  sources.moon = MakeDirection(0.0, -1.0);
  light.Compute(ViewGeometry(f.camera), sources);
  const Rgba noon = FindLandColour(light, green, 0.0);
  EXPECT_GT(noon.green, noon.red + 10);
  EXPECT_GT(noon.green, noon.blue + 10);
  EXPECT_GT(Brightness(noon), 60.0);
  sources.sun = MakeDirection(0.0, -1.0);
  light.Compute(ViewGeometry(f.camera), sources);
  const Rgba near = FindLandColour(light, green, 0.0), far = FindLandColour(light, green, 1.0);
  EXPECT_LT(Brightness(near), Brightness(far));
  EXPECT_LT(Brightness(far), Brightness(ToRgba(palette::kSkyFoot)));
}
