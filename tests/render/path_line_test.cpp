// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/path_line.h"

#include <gtest/gtest.h>

using CommonInterfaces::PathLine;
using CommonInterfaces::PathPoint;

TEST(PathLineTest, NewPointRestsAtTheReference) {
  const PathPoint point;
  EXPECT_EQ(point.m_Time, 0.0);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(point.m_Position[i], 0.0);
    EXPECT_EQ(point.m_Velocity[i], 0.0);
  }
}

TEST(PathLineTest, NewLineIsEmptyAndOfKind0) {
  const PathLine line;
  EXPECT_EQ(line.m_Kind, 0);
  EXPECT_TRUE(line.m_Points.empty());
  EXPECT_TRUE(line.m_Object.IsEmpty());
  EXPECT_TRUE(line.m_Reference.IsEmpty());
}
