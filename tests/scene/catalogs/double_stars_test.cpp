// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/double_stars.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/names_files.h"

using namespace scene;

TEST(DoubleStars, PairsHaveWhatTheTableKnows) {
  const host_test::FrameFixture f;
  host_test::WriteNames(f.sky.dir);
  const std::vector<StarPair> pairs = LoadStarPairs();
  ASSERT_EQ(pairs.size(), 2u);
  EXPECT_EQ(pairs[0].brightStar, 5054);
  EXPECT_EQ(pairs[0].hipparcos, 65378);
  EXPECT_EQ(pairs[0].discoverer, "STF 1744");
  EXPECT_NEAR(pairs[0].separation / kRadiansPerDegree * 3600.0, 14.4, 0.01);
  EXPECT_NEAR(pairs[0].angle / kRadiansPerDegree, 152.0, 0.01);
  EXPECT_EQ(pairs[1].hipparcos, 0);
  EXPECT_FALSE(pairs[1].magnitudes[1]);
}

TEST(DoubleStars, WithoutTheTableThereAreNone) {
  const host_test::FrameFixture f;
  EXPECT_TRUE(LoadStarPairs().empty());
}
