// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/nebula_clouds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <utility>

#include "scene/frame_helpers.h"
#include "scene/search/aim.h"
#include "scene/search/pick.h"
#include "scene/view/standing.h"
#include "utils/text.h"

using namespace scene;

namespace {

// M 42 (RA 1.464, Dec -0.0951 rad) as two squares of 0.8 and 0.2 degrees, one within the other, and a region
// of 4 degrees to the north of it.
std::string Square(const char* object, int level, double ra, double dec, double half) {
  const double corners[][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
  std::string rows;
  char text[160];
  for (int i = 0; i < 4; ++i) {
    std::snprintf(text, sizeof text, "%s\t%s\t%.7f\t%.7f\n", i == 0 ? object : "\t\t",
                  i == 0 ? (std::to_string(level) + "\t0").c_str() : "\t", ra + half * corners[i][0],
                  dec + half * corners[i][1]);
    rows += text;
  }
  return rows;
}

class NebulaCloudsTest : public testing::Test {
 protected:
  NebulaCloudsTest() {
    f.sky.dir.Write("data/catalogs/nebula_outlines.txt",
                    "Object:text\tType:text\tNumber:i32\tLevel:i32\tContour:i32\tRA:f32\tDec:f32\n" +
                        Square("NGC 1976\tnebu\t42", 1, 1.464, -0.0951, 0.4 * kRadiansPerDegree) +
                        Square("NGC 1976\tnebu\t42", 2, 1.464, -0.0951, 0.1 * kRadiansPerDegree) +
                        Square("Region\t\t", 1, 1.464, 0.0, 2.0 * kRadiansPerDegree));
    std::string error;
    EXPECT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(f.catalogs);
    f.camera.SetZoom(10.0);
    const Direction there = ApparentDirection(MakeDirection(1.464, -0.0951), PrepareObserver(f.camera));
    Aim(there);
  }
  void Aim(const Direction& apparent) { LookTo(FindStanding(apparent, PrepareObserver(f.camera)), f.camera); }
  const std::vector<NebulaClouds::Cloud>& Compute() {
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
    return frame->GetParts().nebulae.GetClouds();
  }
  int CountBoxes() const {
    int boxes = 0;
    for (const auto& line : frame->GetDisplayList().GetPolylines())
      boxes += line.object == ObjectRef{FourCC("nebu"), 42};
    return boxes;
  }

  host_test::FrameFixture f;
  std::unique_ptr<SkyFrame> frame;
};

}  // namespace

TEST_F(NebulaCloudsTest, EachLevelIsAnAreaThatNamesItsObject) {
  const auto& clouds = Compute();
  ASSERT_EQ(clouds.size(), 3u);
  EXPECT_EQ(clouds[0].level, 1);
  EXPECT_EQ(clouds[1].level, 2);
  const auto& areas = frame->GetDisplayList().GetPolygons();
  const ObjectRef nebula = {FourCC("nebu"), 42};
  EXPECT_EQ(
      std::count_if(areas.begin(), areas.end(), [&](const auto& area) { return area.object == nebula; }), 2);
}

// The field is 5.9 degrees wide at zoom 10 and 1600 pixels: 0.3 degrees are 80 pixels.
TEST_F(NebulaCloudsTest, AClickOnTheCloudFindsTheNebula) {
  Compute();
  const auto hits = PickObjects(frame->GetDisplayList(), 800.0, 500.0 + 80.0, 1.0);
  ASSERT_FALSE(hits.empty());
  EXPECT_EQ(hits.front().object, (ObjectRef{FourCC("nebu"), 42}));
  const auto outside = PickObjects(frame->GetDisplayList(), 800.0, 500.0 + 200.0, 1.0);
  EXPECT_TRUE(std::none_of(outside.begin(), outside.end(), [](const Hit& hit) {
    return hit.object == ObjectRef{FourCC("nebu"), 42};
  }));
}

TEST_F(NebulaCloudsTest, ANebulaWithItsFormHasNoBox) {
  Compute();
  EXPECT_EQ(CountBoxes(), 0);
  f.camera.SetZoom(0.5);
  Compute();
  EXPECT_EQ(CountBoxes(), 1);
}

TEST_F(NebulaCloudsTest, SmallOnesAreNotDrawn) {
  f.camera.SetZoom(0.3);
  const auto& clouds = Compute();
  ASSERT_EQ(clouds.size(), 1u) << "the region alone";
  EXPECT_LT(clouds[0].opacity, 1.0f);
}

TEST_F(NebulaCloudsTest, ANebulaThatIsSwitchedOffHasNoCloud) {
  f.shown.nebulae = false;
  EXPECT_TRUE(Compute().empty());
}

// The middle of the nebula lies far outside of the window, its cloud reaches in; the window within the cloud
// is filled.
TEST_F(NebulaCloudsTest, ACloudIsDrawnWhereItReachesIntoTheWindow) {
  f.camera.SetZoom(300.0);
  const Direction aside =
      ApparentDirection(MakeDirection(1.464 + 0.3 * kRadiansPerDegree, -0.0951), PrepareObserver(f.camera));
  Aim(aside);
  const auto& clouds = Compute();
  ASSERT_EQ(clouds.size(), 2u) << "both levels";
  const auto hits = PickObjects(frame->GetDisplayList(), 800.0, 500.0, 1.0);
  ASSERT_FALSE(hits.empty());
  EXPECT_EQ(hits.front().object, (ObjectRef{FourCC("nebu"), 42}));
  f.camera.SetZoom(10.0);
  Aim({{-aside.v[0], -aside.v[1], -aside.v[2]}});
  EXPECT_TRUE(Compute().empty());
}

namespace {

// The largest turn from edge to edge of an area's ring, radians, and how many vertices it has.
std::pair<double, int> FindLargestTurn(const DisplayList& list, const PolygonRecord& area) {
  const auto& ring = list.GetRings()[static_cast<std::size_t>(area.firstRing)];
  const auto at = [&](int i) {
    return list.GetVertices()[static_cast<std::size_t>(ring.firstVertex + i % ring.vertexCount)];
  };
  double largest = 0.0;
  for (int i = 0; i < ring.vertexCount; ++i) {
    const auto a = at(i), b = at(i + 1), c = at(i + 2);
    const double turn = std::remainder(
        static_cast<double>(std::atan2(c.y - b.y, c.x - b.x) - std::atan2(b.y - a.y, b.x - a.x)), 2.0 * kPi);
    largest = std::max(largest, std::fabs(turn));
  }
  return {largest, ring.vertexCount};
}

}  // namespace

// The inner square has edges of 0.2 degrees: 53 pixels at zoom 10, 5 at zoom 1.
TEST_F(NebulaCloudsTest, LongEdgesBecomeACurveAndShortOnesStay) {
  Compute();
  const auto inner = FindLargestTurn(frame->GetDisplayList(), frame->GetDisplayList().GetPolygons()[1]);
  EXPECT_GE(inner.second, 16);
  EXPECT_LT(inner.first, 0.5) << "90 degrees before";
}

// A circle of 400 points with edges of 7 pixels: it would be smoothed if there were room for twice as many.
TEST_F(NebulaCloudsTest, OutlineForWhosePointsThereIsNoRoomStaysAsItIs) {
  std::string table = "Object:text\tType:text\tNumber:i32\tLevel:i32\tContour:i32\tRA:f32\tDec:f32\n";
  char row[120];
  for (int i = 0; i < 400; ++i) {
    const double turn = i * kPi / 200.0, radius = 1.7 * kRadiansPerDegree;
    std::snprintf(row, sizeof row, "%s\t%.7f\t%.7f\n", i == 0 ? "Region\t\t\t1\t0" : "\t\t\t\t",
                  1.464 + radius * std::cos(turn), -0.0951 + radius * std::sin(turn));
    table += row;
  }
  f.sky.dir.Write("data/catalogs/nebula_outlines.txt", table);
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
  frame = std::make_unique<SkyFrame>(f.catalogs);
  ASSERT_EQ(Compute().size(), 1u);
  const auto& list = frame->GetDisplayList();
  int vertices = 0;
  for (const PolygonRecord& area : list.GetPolygons()) {
    if (area.ringCount == 1)
      vertices = std::max(vertices, list.GetRings()[static_cast<std::size_t>(area.firstRing)].vertexCount);
  }
  EXPECT_EQ(vertices, 400);
}
