// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "camera/zoom_rows.h"
#include "common_interfaces/camera.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::FindZoomRow;
using CommonInterfaces::ZoomDependDesc;
using CommonInterfaces::ZoomRows;

struct ExpectedPair {
  const char* cls;
  const char* prefix;
  float base, slope;
  int drawOffset, reserved;
};

TEST(ZoomDependTable, HoldsItsTwentyRows) {
  const ExpectedPair pairs[10] = {{"star", "Star", 6, 4, 35, -40}, {"clst", "SC", 6, 3, 85, -40},
                                  {"gala", "GL", 0, 2, 155, 20},   {"nebu", "NB", 6, 3, 85, -40},
                                  {"dsnv", "NO", 0, 2, 75, -40},   {"plnt", "Plnt", 6, 3, 75, -40},
                                  {"moon", "Moon", 6, 3, 75, -40}, {"astr", "Astr", 6, 3, 75, -40},
                                  {"comt", "Comt", 6, 3, 75, -40}, {"scft", "USCO", 9, 3, 75, -40}};
  ASSERT_EQ(Camera::s_ZoomDependDescSize, 20);
  for (int row = 0; row < 20; ++row) {
    const ExpectedPair& expected = pairs[row / 2];
    const std::string name = std::string(expected.prefix) + (row % 2 ? "ZoomDependLabel" : "ZoomDependShow");
    const ZoomDependDesc& desc = Camera::s_ZoomDependDesc[row];
    EXPECT_EQ(desc.objectClass, static_cast<unsigned>(GetFOURCC(expected.cls))) << row;
    EXPECT_EQ(desc.fieldId, GetUniqueID(name.c_str())) << name;
    EXPECT_EQ(desc.row, row);
    EXPECT_EQ(desc.base, expected.base) << row;
    EXPECT_EQ(desc.slope, expected.slope) << row;
    EXPECT_EQ(desc.drawOffset, expected.drawOffset) << row;
    EXPECT_EQ(desc.reserved, expected.reserved) << row;
  }
}

TEST(ZoomRows, FirstRowOfEachKindIsFound) {
  const int comet = FourCC("comt");
  EXPECT_EQ(FindZoomRow(Camera::s_ZoomDependDesc, comet, ZoomRows::kObjects), 16);
  EXPECT_EQ(FindZoomRow(Camera::s_ZoomDependDesc, comet, ZoomRows::kLabels), 17);
  EXPECT_EQ(FindZoomRow(Camera::s_ZoomDependDesc, comet, ZoomRows::kAll), 16);
}

TEST(ZoomRows, LabelOfAClassFoundOnEvenRowsOnlyIsNotThere) {
  ZoomDependDesc rows[4] = {};
  rows[0].objectClass = rows[2].objectClass = static_cast<unsigned>(FourCC("star"));
  rows[3].objectClass = static_cast<unsigned>(FourCC("gala"));
  EXPECT_EQ(FindZoomRow(rows, FourCC("star"), ZoomRows::kLabels), CommonInterfaces::kNoZoomRow);
  EXPECT_EQ(FindZoomRow(rows, FourCC("star"), ZoomRows::kObjects), 0);
  EXPECT_EQ(FindZoomRow(rows, FourCC("gala"), ZoomRows::kObjects), CommonInterfaces::kNoZoomRow);
  EXPECT_EQ(FindZoomRow(rows, FourCC("gala"), ZoomRows::kAll), 3);
}

}  // namespace
