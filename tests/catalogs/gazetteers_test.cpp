// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/gazetteers.h"

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "utils/text.h"

using CommonInterfaces::GetGazetteersFileName;

TEST(Gazetteers, FourBodiesHaveOne) {
  test_support::DebugCapture debug;
  EXPECT_EQ(GetGazetteersFileName({FourCC("plnt"), 1}), "gazetteers/mercury_features.txt");
  EXPECT_EQ(GetGazetteersFileName({FourCC("plnt"), 2}), "gazetteers/venus_features.txt");
  EXPECT_EQ(GetGazetteersFileName({FourCC("plnt"), 4}), "gazetteers/mars_features.txt");
  EXPECT_EQ(GetGazetteersFileName({FourCC("moon"), 301}), "gazetteers/moon_features.txt");
  EXPECT_TRUE(debug.lines.empty());
}

TEST(Gazetteers, EarthHasNone) {
  test_support::DebugCapture debug;
  EXPECT_EQ(GetGazetteersFileName({FourCC("plnt"), 3}), "");
  EXPECT_EQ(debug.lines, std::vector<std::string>{"Object (1886154356, 3) hasn't gazetteers\n"});
}

TEST(Gazetteers, OtherMoonsHaveNone) {
  test_support::DebugCapture debug;
  for (const int number : {1, 302, 401, -301}) {
    EXPECT_EQ(GetGazetteersFileName({FourCC("moon"), number}), "") << number;
  }
  EXPECT_EQ(debug.lines.size(), 4u);
  EXPECT_EQ(debug.lines[0], "Object (1836019566, 1) hasn't gazetteers\n");
}

TEST(Gazetteers, OtherKindsWithTheNumbersHaveNone) {
  test_support::DebugCapture debug;
  EXPECT_EQ(GetGazetteersFileName({FourCC("astr"), 1}), "");
  EXPECT_EQ(GetGazetteersFileName({FourCC("plnt"), 301}), "");
  EXPECT_EQ(GetGazetteersFileName(SSO_ID()), "");
  ASSERT_EQ(debug.lines.size(), 3u);
  EXPECT_EQ(debug.lines[2], "Object (-1, -1) hasn't gazetteers\n");
}
