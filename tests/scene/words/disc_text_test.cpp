// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/disc_text.h"

#include <gtest/gtest.h>

#include "scene/catalogs/texts.h"
#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

TEST(DiscText, PhaseOfTheMoonFollowsFromWhatIsLit) {
  const struct {
    int lit, waxing, waning;
  } expected[] = {{0, 0, 0},  {2, 1, 7},  {32, 1, 7}, {44, 1, 7}, {50, 2, 6},
                  {55, 2, 6}, {56, 3, 5}, {98, 3, 5}, {99, 4, 4}};
  for (const auto& entry : expected) {
    EXPECT_EQ(GetMoonPhase(entry.lit, true), entry.waxing) << entry.lit;
    EXPECT_EQ(GetMoonPhase(entry.lit, false), entry.waning) << entry.lit;
  }
}

TEST(DiscText, SizesAreInTheUnitThatReadsBest) {
  FrameFixture f;
  EXPECT_EQ(FormatSize(23.14 / 3600.0 * kRadiansPerDegree), "23.1 arcsec");
  EXPECT_EQ(FormatSize(31.0 * kRadiansPerDegree / 60.0), "31.0 arcmin");
  EXPECT_EQ(ToUtf8(FormatSize(2.5 * kRadiansPerDegree)), "2.5°");
  EXPECT_EQ(GetLitPercent(0.0), 100);
  EXPECT_EQ(GetLitPercent(0.5 * kPi), 50);
  EXPECT_EQ(GetLitPercent(kPi), 0);
}

TEST(DiscText, PhasesHaveNames) {
  FrameFixture f;
  EXPECT_EQ(GetMoonPhaseName(0), "new moon");
  EXPECT_EQ(GetMoonPhaseName(4), "full moon");
  EXPECT_EQ(GetMoonPhaseName(7), "waning crescent");
}
