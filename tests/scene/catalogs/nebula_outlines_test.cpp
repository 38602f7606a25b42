// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/nebula_outlines.h"

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"

using namespace scene;

namespace {

const std::string kHeader = "Object:text\tType:text\tNumber:i32\tLevel:i32\tContour:i32\tRA:f32\tDec:f32\n";

class NebulaOutlinesTest : public testing::Test {
 protected:
  const NebulaOutlines& Load(const std::string& rows) {
    sky.dir.Write("data/catalogs/nebula_outlines.txt", kHeader + rows);
    std::string error;
    EXPECT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error)) << error;
    return catalogs.nebulaOutlines;
  }
  host_test::SmallRoot sky;
  test_support::DebugCapture diagnostics;
  SkyCatalogs catalogs;
};

}  // namespace

TEST_F(NebulaOutlinesTest, ADataRootMayLackThem) {
  std::string error;
  ASSERT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_TRUE(catalogs.nebulaOutlines.outlines.empty());
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(NebulaOutlinesTest, AVertexWithALevelBeginsARing) {
  const NebulaOutlines& all = Load(
      "Great\tnebu\t42\t1\t0\t1\t0\n\t\t\t\t\t1.02\t0\n\t\t\t\t\t1.01\t0.01\n"
      "Great\tnebu\t42\t1\t1\t1.1\t0\n\t\t\t\t\t1.12\t0\n"
      "Great\tnebu\t42\t2\t0\t1.01\t0\n"
      "Region\t\t\t1\t0\t2\t0\n\t\t\t\t\t2.1\t0\n");
  ASSERT_EQ(all.outlines.size(), 2u);
  EXPECT_EQ(catalogs.deepsky[static_cast<std::size_t>(all.outlines[0].object)].number, 42);
  EXPECT_EQ(all.outlines[1].object, -1);
  EXPECT_EQ(all.outlines[0].areaCount, 2);
  ASSERT_EQ(all.areas.size(), 3u);
  EXPECT_EQ(all.areas[0].level, 1);
  EXPECT_EQ(all.areas[0].ringCount, 2);
  EXPECT_EQ(all.areas[1].level, 2);
  EXPECT_EQ(all.areas[1].firstRing, 2);
  const int counts[] = {3, 2, 1, 2};
  ASSERT_EQ(all.rings.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(all.rings[i].count, counts[i]) << i;
}

TEST_F(NebulaOutlinesTest, AnOutlineKnowsItsMiddleAndItsReach) {
  const NebulaOutlines& all = Load("A\t\t\t1\t0\t1.0\t0\n\t\t\t\t\t1.2\t0\n");
  const Direction middle = MakeDirection(1.1, 0.0);
  EXPECT_NEAR(VectorsAngle(all.outlines[0].centre.v, middle.v), 0.0, 1e-7);
  EXPECT_NEAR(all.outlines[0].radius, 0.1, 1e-7);
}

// A vertex before the first level, one of a fourth level and the next ones of its ring, one without a place.
TEST_F(NebulaOutlinesTest, VerticesOfNoRingAreCountedInOneLine) {
  const NebulaOutlines& all =
      Load("\t\t\t\t\t1\t0\nA\t\t\t1\t0\t1\t0\n\t\t\t\t\t1.1\t\nA\t\t\t4\t0\t1\t0\n\t\t\t\t\t1.2\t0\n");
  EXPECT_EQ(all.points.size(), 1u);
  ASSERT_EQ(diagnostics.lines.size(), 1u);
  EXPECT_NE(diagnostics.lines[0].find(" 4 "), std::string::npos) << diagnostics.lines[0];
}
