// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/deepsky_catalog.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "scene/catalogs/data_root.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"
#include "utils/text.h"

using namespace scene;

namespace {

const std::string kNgcHeader =
    "Type:text\tNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tLargestDimension:f32\tSmallestDimension:f32\t"
    "PositionAngle:f32\tMessierNumber:i32\tNGC_ICnumber:text\tProperName:text\tOtherNames:text\n";

class DeepskyCatalogTest : public testing::Test {
 protected:
  void Load(const std::string& ngc) {
    sky.dir.Write("data/catalogs/ngc_ic.txt", kNgcHeader + ngc);
    std::string error;
    ASSERT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error)) << error;
  }
  const DeepskyObject& Get(const std::string& label) const {
    for (const auto& object : catalogs.deepsky) {
      if (object.label == label) return object;
    }
    ADD_FAILURE() << label << " is not in the catalog";
    static const DeepskyObject s_None = {};
    return s_None;
  }

  host_test::SmallRoot sky;
  test_support::DebugCapture diagnostics;
  SkyCatalogs catalogs;
};

}  // namespace

TEST_F(DeepskyCatalogTest, ADataRootMayLackTheNgc) {
  std::string error;
  ASSERT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_EQ(catalogs.deepsky.size(), 3u);
  EXPECT_TRUE(std::isnan(catalogs.deepsky[0].positionAngle));
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(DeepskyCatalogTest, ObjectsOfBothTablesComeBrightestFirst) {
  Load(
      "gala\t7\t1\t0\t9\t\t\t\t\tNGC 7\n"
      "clst\t8\t1\t0\t2\t\t\t\t\tIC 8\tSome Cluster\n");
  ASSERT_EQ(catalogs.deepsky.size(), 5u);
  const char* const labels[] = {"M45", "IC 8", "M31", "M42", "NGC 7"};
  for (std::size_t i = 0; i < 5; ++i) EXPECT_STREQ(catalogs.deepsky[i].label, labels[i]);
  EXPECT_EQ(Get("IC 8").catalogs, kInIc);
  EXPECT_EQ(Get("NGC 7").catalogs, kInNgc);
  EXPECT_STREQ(Get("IC 8").GetLabel({true, true, false, false, false}), "Some Cluster");
}

TEST_F(DeepskyCatalogTest, ARecordAboutAMessierObjectGivesItsAngleAndIsNoObject) {
  Load("gala\t31\t0.186\t0.72\t3.4\t0.05\t0.02\t0.6108652\t31\tNGC 224\tAndromeda Galaxy\tPGC 2557\n");
  EXPECT_EQ(catalogs.deepsky.size(), 3u);
  EXPECT_FLOAT_EQ(Get("M31").positionAngle, 0.6108652f);
  EXPECT_FLOAT_EQ(Get("M31").largest, 0.0518f) << "size and place stay those of Messier's list";
  const CatalogTable* const further = catalogs.deepsky.SelectFurther(Get("M31"));
  ASSERT_NE(further, nullptr);
  EXPECT_STREQ(FieldText(*further, GetUniqueID("OtherNames")), "PGC 2557");
  EXPECT_EQ(catalogs.deepsky.SelectFurther(Get("M42")), nullptr);
}

// Somebody may have taken an object off Messier's list.
TEST_F(DeepskyCatalogTest, ARecordAboutAMessierObjectThatIsNotThereIsAnObject) {
  Load("gala\t33\t0.4\t0.5\t5.7\t\t\t\t33\tNGC 598\n");
  EXPECT_EQ(catalogs.deepsky.size(), 4u);
  EXPECT_EQ(Get("M33").catalogs, kInMessier | kInNgc);
}

// 1' by 1' are 2827.43 square seconds of arc: 23 - 2.5 log10 of it is 14.372.
TEST_F(DeepskyCatalogTest, AnObjectWithoutMagnitudeIsShownByItsSize) {
  Load(
      "nebu\t7\t1\t0\t\t0.00029088821\t\t\t\tNGC 7\n"
      "nebu\t8\t1\t0\t\t0.00058177642\t0.00029088821\t\t\tNGC 8\n"
      "nebu\t9\t1\t0\t\t\t\t\t\tNGC 9\n"
      "nebu\t10\t1\t0\t\t0.0000001\t\t\t\tNGC 10\n");
  EXPECT_NEAR(Get("NGC 7").code, 10.0f * (14.3716f + 2.0f), 0.01f);
  EXPECT_NEAR(Get("NGC 8").code, 10.0f * (13.6190f + 2.0f), 0.01f) << "twice the area";
  EXPECT_NEAR(Get("NGC 9").code, 180.0f, 1e-3f);
  EXPECT_NEAR(Get("NGC 10").code, 180.0f, 1e-3f) << "no fainter than without a size";
  for (const char* label : {"NGC 7", "NGC 8", "NGC 9", "NGC 10"}) {
    EXPECT_FALSE(Get(label).hasMagnitude);
    EXPECT_TRUE(std::isnan(GetTraits(Get(label)).code)) << "filters take it for unknown";
  }
  EXPECT_TRUE(Get("M31").hasMagnitude);
  EXPECT_EQ(GetTraits(Get("M31")).code, Get("M31").code);
}

TEST_F(DeepskyCatalogTest, TextsOutliveMovesAndCopiesOfTheCatalogs) {
  Load("gala\t7\t1\t0\t9\t\t\t\t\tNGC 7\tSeven\n");
  const DeepskyCatalog copy = catalogs.deepsky;
  const SkyCatalogs moved = std::move(catalogs);
  catalogs = SkyCatalogs();
  EXPECT_STREQ(copy[3].properName, "Seven");
  EXPECT_STREQ(moved.deepsky[3].designation, "NGC 7");
}

TEST_F(DeepskyCatalogTest, RecordsWithoutPositionAreCountedInOneLine) {
  Load("gala\t7\t\t0\t9\t\t\t\t\tNGC 7\ngala\t8\t1\t\t9\t\t\t\t\tNGC 8\n");
  EXPECT_EQ(catalogs.deepsky.size(), 3u);
  ASSERT_EQ(diagnostics.lines.size(), 1u);
  EXPECT_NE(diagnostics.lines[0].find(" 2 "), std::string::npos) << diagnostics.lines[0];
}
