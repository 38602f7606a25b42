// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_catalogs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "astro/vectors.h"
#include "scene/catalogs/data_root.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"

using namespace scene;

class SkyCatalogsTest : public testing::Test {
 protected:
  bool Load() { return SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error); }

  host_test::SmallRoot sky;
  test_support::DebugCapture diagnostics;
  SkyCatalogs catalogs;
  std::string error;
};

TEST_F(SkyCatalogsTest, QuestionsDoWithoutTheMilkyWay) {
  ASSERT_TRUE(Load()) << error;
  EXPECT_FALSE(catalogs.milkyWay.IsEmpty());
  std::filesystem::remove(sky.dir.Path("data/catalogs/milkyway.map"));
  EXPECT_FALSE(LoadSkyCatalogs(catalogs, error));
  EXPECT_NE(error.find("milkyway.map"), std::string::npos) << error;
  EXPECT_FALSE(catalogs.milkyWay.IsEmpty()) << "what was there stays";
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error, CatalogUse::kQuestions)) << error;
  EXPECT_TRUE(catalogs.milkyWay.IsEmpty());
  EXPECT_EQ(catalogs.stars.GetCount(), 10);
}

TEST_F(SkyCatalogsTest, StarsComeBrightestFirstWithTheirNames) {
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(catalogs.stars.GetCount(), 10);
  EXPECT_STREQ(catalogs.stars.GetLabel(0), "Sirius");
  EXPECT_EQ(catalogs.stars.GetNumber(0), 2491);
  EXPECT_NEAR(catalogs.stars.GetCode(0), 5.4f, 1e-5f);
  EXPECT_EQ(catalogs.stars.GetSpectrum(9), 6) << "Betelgeuse is of class M";
  for (int i = 1; i < 10; ++i) EXPECT_LE(catalogs.stars.GetCode(i - 1), catalogs.stars.GetCode(i));
}

TEST_F(SkyCatalogsTest, ProperMotionIsAlongTheTangent) {
  ASSERT_TRUE(Load()) << error;
  // Alpha Centauri, the fastest of these: sqrt(3642^2 + 699^2) mas a year.
  EXPECT_NEAR(catalogs.stars.GetMaxMotion() / 4.84813681109536e-9, 3708.5, 0.2);
  for (int i = 0; i < 10; ++i) {
    EXPECT_NEAR(Dot(catalogs.stars.GetDirection(i), catalogs.stars.GetMotion(i)), 0.0, 1e-18);
  }
}

TEST_F(SkyCatalogsTest, LabelIsNameThenLetterThenNumber) {
  sky.dir.Write(
      "data/catalogs/stars.txt",
      "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\tBayer:text\tFlamsteed:text\n"
      "1\t0\t1\tVega\tα Lyr\t3 Lyr\n1\t0\t2\t\tβ Lyr\t10 Lyr\n1\t0\t3\t\t\t17 Lyr\n1\t0\t4\t\t\t\n");
  ASSERT_TRUE(Load()) << error;
  EXPECT_STREQ(catalogs.stars.GetLabel(0), "Vega");
  EXPECT_TRUE(catalogs.stars.HasProperName(0));
  EXPECT_STREQ(catalogs.stars.GetLabel(1), "β");
  EXPECT_FALSE(catalogs.stars.HasProperName(1));
  EXPECT_STREQ(catalogs.stars.GetLabel(2), "17");
  EXPECT_STREQ(catalogs.stars.GetLabel(3), "");
}

TEST_F(SkyCatalogsTest, StarsWithoutPositionOrMagnitudeAreCountedInOneLine) {
  sky.dir.Write("data/catalogs/stars.txt",
                "RA:f64\tDec:f64\tVisMagnitude:f32\n1\t0\t1\n\t0\t1\n1\t\t1\n1\t0\t\n");
  ASSERT_TRUE(Load()) << error;
  EXPECT_EQ(catalogs.stars.GetCount(), 1);
  ASSERT_EQ(diagnostics.lines.size(), 1u);
  EXPECT_NE(diagnostics.lines[0].find(" 3 "), std::string::npos) << diagnostics.lines[0];
}

TEST_F(SkyCatalogsTest, DeepSkyObjectsCarryKindSizeAndLabel) {
  ASSERT_TRUE(Load()) << error;
  ASSERT_EQ(catalogs.deepsky.size(), 3u);
  EXPECT_STREQ(catalogs.deepsky[0].label, "M45");
  EXPECT_STREQ(catalogs.deepsky[0].GetLabel({true, false, false, false, false}), "M45");
  EXPECT_STREQ(catalogs.deepsky[0].GetLabel({true, true, false, false, false}), "Pleiades");
  EXPECT_EQ(catalogs.deepsky[1].kind, FourCC("gala"));
  EXPECT_FLOAT_EQ(catalogs.deepsky[1].smallest, 0.0116f);
}

TEST_F(SkyCatalogsTest, FiguresAreSplitAlongTheGreatCircle) {
  sky.dir.Write(
      "data/catalogs/constellation_lines.txt",
      "Label:text\tNumber:i32\tRA:f64\tDec:f64\nA\t0\t0\t0\nA\t0\t0.5\t0\nA\t1\t1\t0\nB\t1\t1.1\t0\n");
  ASSERT_TRUE(Load()) << error;
  // Neither the second polyline nor the second figure continues the one before.
  ASSERT_EQ(catalogs.figures.size(), 1u);
  const auto& stroke = catalogs.figures[0];
  // 0.5 radians are 28.6 degrees: 15 pieces of at most 2 degrees, 16 points.
  ASSERT_EQ(stroke.count, 16);
  for (int i = 1; i < stroke.count; ++i) {
    EXPECT_NEAR(VectorsAngle(catalogs.figurePoints[i - 1].v, catalogs.figurePoints[i].v), 0.5 / 15.0, 1e-12);
    EXPECT_NEAR(catalogs.figurePoints[i].v[2], 0.0, 1e-15);
  }
}

// What lacks its name and number belongs to the figure "" all the same, but no stroke comes from nowhere.
TEST_F(SkyCatalogsTest, VertexWithoutPositionBeginsNoStroke) {
  sky.dir.Write("data/catalogs/constellation_lines.txt",
                "Label:text\tNumber:i32\tRA:f64\tDec:f64\n\t0\n\t0\t1\t0\n");
  ASSERT_TRUE(Load()) << error;
  EXPECT_TRUE(catalogs.figures.empty());
}

TEST_F(SkyCatalogsTest, ADamagedMapOfTheMilkyWayIsNamed) {
  std::string map = sky.dir.Read("data/catalogs/milkyway.map");
  map.back() = 'x';
  sky.dir.Write("data/catalogs/milkyway.map", map);
  EXPECT_FALSE(Load());
  EXPECT_EQ(error, ZentharPath::GetPath("catalogs:milkyway.map") + ": the map is damaged: its sum is wrong");
}

TEST_F(SkyCatalogsTest, EachMissingTableIsNamed) {
  for (const char* name :
       {"stars.txt", "deepsky.txt", "constellations.txt", "constellation_lines.txt", "milkyway.map"}) {
    const std::string file = std::string("data/catalogs/") + name;
    const std::string content = sky.dir.Read(file);
    std::filesystem::remove(sky.dir.Path(file));
    catalogs = SkyCatalogs();
    EXPECT_FALSE(Load());
    EXPECT_NE(error.find(name), std::string::npos) << error;
    sky.dir.Write(file, content);
  }
}
