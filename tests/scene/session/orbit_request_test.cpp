// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/orbit_request.h"

#include <gtest/gtest.h>

using namespace scene;

TEST(OrbitRequest, NamesWithCommasBetween) {
  EXPECT_TRUE(ParseOrbits("planets")->planets);
  EXPECT_TRUE(ParseOrbits("all")->all);
  EXPECT_TRUE(ParseOrbits("moons")->moons);
  EXPECT_EQ(FormatOrbits(*ParseOrbits("moons,planets")), "planets,moons");
  const auto some = ParseOrbits("planets,Ceres,1P/Halley");
  ASSERT_TRUE(some);
  EXPECT_TRUE(some->planets);
  EXPECT_EQ(some->names, (std::vector<std::string>{"Ceres", "1P/Halley"}));
  EXPECT_EQ(FormatOrbits(*some), "planets,Ceres,1P/Halley");
  for (const char* bad : {"", ",", "Ceres,", ",Ceres", "Ceres, ,Vesta"})
    EXPECT_FALSE(ParseOrbits(bad)) << bad;
}
