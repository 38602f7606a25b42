// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_asterisms.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/names_files.h"
#include "support/allocation_counter.h"

using namespace scene;

namespace {

class SkyAsterismsTest : public testing::Test {
 protected:
  SkyAsterismsTest() {
    host_test::WriteNames(f.sky.dir);
    f.SetLook(170.0, 38.0);
    f.shown.asterisms = true;
  }
  std::size_t CountLines(const char* key) const {
    std::size_t count = 0;
    for (const PolylineRecord& line : f.frame.GetDisplayList().GetPolylines())
      count += line.object == ObjectRef{FourCC("astm"), GetUniqueID(key)};
    return count;
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(SkyAsterismsTest, LinesAndNamesAreDrawnWhereTheyAreWanted) {
  f.Compute();
  EXPECT_GE(CountLines("Belt"), 2u);
  EXPECT_TRUE(f.HasLabel("Orion's Belt"));
  f.shown.asterisms = false;
  f.Compute();
  EXPECT_EQ(CountLines("Belt"), 0u);
  EXPECT_FALSE(f.HasLabel("Orion's Belt"));
}

TEST_F(SkyAsterismsTest, WhatHasNoLinesIsNone) {
  EXPECT_EQ(LoadAsterisms().size(), 2u);
  for (const Asterism& asterism : LoadAsterisms()) EXPECT_NE(asterism.key, "Empty");
}

// The mean of the unit vectors of the three stars of the belt.
TEST_F(SkyAsterismsTest, ItsPlaceIsTheMiddleOfItsStars) {
  const Asterism belt = LoadAsterisms().at(0);
  EXPECT_NEAR(std::atan2(belt.direction.v[1], belt.direction.v[0]), 1.46750, 1e-4);
  EXPECT_NEAR(std::asin(belt.direction.v[2]), -0.02003, 1e-4);
}

TEST_F(SkyAsterismsTest, NothingIsReadBeforeTheyAreShown) {
  f.shown.asterisms = false;
  f.Compute();
  f.sky.dir.Write("data/catalogs/asterisms.txt", "Key:text\tProperName:text\tPriority:i32\nBelt\tLate\t1\n");
  f.shown.asterisms = true;
  f.Compute();
  EXPECT_TRUE(f.HasLabel("Late"));
}

TEST_F(SkyAsterismsTest, NothingAllocatesOnceTheyWereRead) {
  f.Compute();
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  f.Compute();
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}
