// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/picture_size.h"

#include <gtest/gtest.h>

using namespace scene;

TEST(SizeValue, TakesWidthAndHeight) {
  const auto size = ParseSize("800x600");
  ASSERT_TRUE(size);
  EXPECT_EQ(size->width, 800);
  EXPECT_EQ(size->height, 600);
  for (const char* text : {"800", "63x600", "800x16385", "800*600", "8e2x600", "-800x600"}) {
    EXPECT_FALSE(ParseSize(text)) << text;
  }
}
