// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/angle_text.h"

#include <gtest/gtest.h>

TEST(AngleText, SignStandsBeforeTheDegrees) {
  EXPECT_EQ(scene::PutSignsFirst("Dec 0\u00B0-17'57.41\""), "Dec -0\u00B017'57.41\"");
  EXPECT_EQ(scene::PutSignsFirst("Dec 0\u00B000'-07.41\""), "Dec -0\u00B000'07.41\"");
  EXPECT_EQ(scene::PutSignsFirst("Dec -10\u00B017'57.41\", 0\u00B017'"),
            "Dec -10\u00B017'57.41\", 0\u00B017'");
}
