// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/mark_text.h"

#include <gtest/gtest.h>

using namespace scene;

TEST(ParseMark, DegreesOrHours) {
  const auto mark = ParseMark("5.5h,-5.25,7");
  ASSERT_TRUE(mark);
  EXPECT_EQ(mark->ra, 82.5);
  EXPECT_EQ(mark->dec, -5.25);
  EXPECT_EQ(mark->id, 7);
  ASSERT_TRUE(ParseMark("360,90"));
  EXPECT_FALSE(ParseMark("360,90")->id);
  ASSERT_TRUE(ParseMark("24h,-90")) << "a whole turn, as 360 degrees are";
  EXPECT_EQ(ParseMark("24h,-90")->ra, 360.0);
  for (const char* bad : {"", "1", "1,", "361,0", "24.01h,0", "0,91", "0,0,", "0,0,-1", "0,0,1.5", "0,0,1,2",
                          "nan,0", "0,inf", "h,0"}) {
    EXPECT_FALSE(ParseMark(bad)) << bad;
  }
}

TEST(MarkText, ComesBackToTheLastBit) {
  const SkyMark mark = {0.1, -1.0 / 3.0, 7};
  const auto back = ParseMark(FormatMark(mark));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->ra, mark.ra);
  EXPECT_EQ(back->dec, mark.dec);
  EXPECT_EQ(back->id, mark.id);
}
