// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/motion_values.h"

#include <gtest/gtest.h>

using namespace scene;
using namespace skyview;

TEST(ParseMovingType, TakesATypeAndKeep) {
  const auto type = ParseMovingType("11,keep");
  ASSERT_TRUE(type);
  EXPECT_EQ(type->type, 11);
  EXPECT_TRUE(type->keep);
  ASSERT_TRUE(ParseMovingType("0"));
  EXPECT_FALSE(ParseMovingType("0")->keep);
  for (const char* bad : {"", "12", "-1", "3,", "3,keep,", "3,hold", "3 ", "x"}) {
    EXPECT_FALSE(ParseMovingType(bad)) << bad;
  }
}

TEST(ParsePlay, StepsOfTimeHaveUnits) {
  for (const auto& [text, days] :
       {std::pair("time=30s", 30.0 / 86400.0), std::pair("time=10m", 10.0 / 1440.0),
        std::pair("time=1h", 1.0 / 24.0), std::pair("time=-1.5d", -1.5)}) {
    const auto play = ParsePlay(text);
    ASSERT_TRUE(play && play->time) << text;
    EXPECT_DOUBLE_EQ(*play->time, days) << text;
    EXPECT_TRUE(play->view.empty());
  }
}

TEST(ParsePlay, StepsOfTheViewAreAzimuthAltitudeSlopeInTheirOrder) {
  const auto play = ParsePlay("view=0,view=-0.5,time=1d,view=360");
  ASSERT_TRUE(play);
  EXPECT_EQ(play->view, (std::vector<double>{0.0, -0.5, 360.0}));
  EXPECT_EQ(play->time, 1.0);
}

TEST(ParsePlay, WhatMovesNothingOrIsNoStepIsRefused) {
  for (const char* bad :
       {"", "time", "time=", "time=10", "time=0s", "time=10x", "time=1h,time=1h", "time=100001d", "time=nand",
        "view=", "view=0", "view=1d", "view=361", "view=1,", "zoom=2", "view=1,view=1,view=1,view=1"}) {
    EXPECT_FALSE(ParsePlay(bad)) << bad;
  }
}

TEST(ParseFrameCount, IsLimited) {
  EXPECT_EQ(ParseFrameCount("1"), 1);
  EXPECT_EQ(ParseFrameCount("10000"), 10000);
  for (const char* bad : {"0", "10001", "-1", "1.5", "", "99999999999999999999"})
    EXPECT_FALSE(ParseFrameCount(bad));
}

TEST(FrameNames, NumberIsPaddedToItsWidth) {
  const auto names = FrameNames::Parse("a/sky-%03d.png");
  ASSERT_TRUE(names);
  EXPECT_EQ(names->Get(7), "a/sky-007.png");
  EXPECT_EQ(names->Get(12345), "a/sky-12345.png");
  for (std::size_t width = 1; width <= 9; ++width) {
    const auto padded = FrameNames::Parse("%0" + std::to_string(width) + "d");
    ASSERT_TRUE(padded) << width;
    EXPECT_EQ(padded->Get(7), std::string(width - 1, '0') + "7");
  }
  ASSERT_TRUE(FrameNames::Parse("%d"));
  EXPECT_EQ(FrameNames::Parse("%d")->Get(10), "10");
}

TEST(FrameNames, OnlyOneNumberAndNothingElseThatPrintfKnows) {
  for (const char* bad : {"sky.png", "", "%", "%s", "%n", "%03", "%3d", "%00d", "%012d", "%d%d", "%d%%",
                          "%%d", "%ld", "%-3d", "%*d", "%1$d"}) {
    EXPECT_FALSE(FrameNames::Parse(bad)) << bad;
  }
}
