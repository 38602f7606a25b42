// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/moving_modes.h"

#include <gtest/gtest.h>

namespace {

using CommonInterfaces::GetBasePlaneForMode;
using CommonInterfaces::GetSysCoorForMode;

TEST(MovingModes, BasePlaneOfEveryMode) {
  const int expected[12] = {1, 1, -1, 2, 3, -1, -1, -1, -1, -1, 3, 3};
  for (int mode = 0; mode < 12; ++mode)
    EXPECT_EQ(GetBasePlaneForMode(static_cast<char>(mode)), static_cast<char>(expected[mode])) << mode;
}

TEST(MovingModes, CoordinateSystemOfEveryMode) {
  const int expected[12] = {2, 2, -1, 0, 3, -1, -1, -1, -1, -1, 3, 7};
  for (int mode = 0; mode < 12; ++mode)
    EXPECT_EQ(GetSysCoorForMode(static_cast<char>(mode)), static_cast<char>(expected[mode])) << mode;
}

TEST(MovingModes, BasePlaneOfModeTwoIsNone) { EXPECT_EQ(GetBasePlaneForMode(2), static_cast<char>(-1)); }

TEST(MovingModes, OtherModesHaveNone) {
  for (int mode : {-128, -1, 12, 127}) {
    EXPECT_EQ(GetBasePlaneForMode(static_cast<char>(mode)), static_cast<char>(-1)) << mode;
    EXPECT_EQ(GetSysCoorForMode(static_cast<char>(mode)), static_cast<char>(-1)) << mode;
  }
}

}  // namespace
