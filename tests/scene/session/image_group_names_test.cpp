// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/image_group_names.h"

#include <gtest/gtest.h>

using namespace scene;

TEST(ImageGroups, AreReadInAnyOrderAndWrittenInOne) {
  EXPECT_EQ(ParseImageGroups("deepsky"), unsigned{kDeepskyImages});
  EXPECT_EQ(ParseImageGroups("milkyway,constellations"), unsigned{kMilkyWayImages | kConstellationImages});
  for (unsigned groups = 1; groups < 8; ++groups) {
    EXPECT_EQ(ParseImageGroups(FormatImageGroups(groups)), groups);
  }
  EXPECT_EQ(FormatImageGroups(0), "");
}

TEST(ImageGroups, OtherTextsAreRefused) {
  for (const char* bad :
       {"", ",", "deepsky,", ",deepsky", "deepsky,deepsky", "Deepsky", "deepsky milkyway"}) {
    EXPECT_FALSE(ParseImageGroups(bad)) << bad;
  }
}
