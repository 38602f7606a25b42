// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/near_names.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

TEST(NearNames, NearestComesFirstAndStrangersNever) {
  const Names names = {"VisMagnitude", "Draw", "MagnitudeOn", "Drawn"};
  EXPECT_EQ(FindNearNames("drew", names), (Names{"Draw"}));
  EXPECT_EQ(FindNearNames("drow", {"Draw", "Grid", "Drow"}), (Names{"Drow", "Draw"}));
  EXPECT_TRUE(FindNearNames("Compass", names).empty());
  EXPECT_TRUE(FindNearNames("xyz", {"Draw", ""}).empty());
}

TEST(NearNames, NamesThatBeginWithItAreNear) {
  const Names names = {"VisMagnitude", "Draw", "MagnitudeOn", "Drawn"};
  EXPECT_EQ(FindNearNames("Dra", names), (Names{"Draw", "Drawn"}));
  EXPECT_EQ(FindNearNames("Show", {"ShowLabel", "Sound"}), (Names{"ShowLabel"}));
  EXPECT_TRUE(FindNearNames("V", {"VisMagnitude"}).empty());
}

TEST(NearNames, AThirdOfTheLettersMayDiffer) {
  EXPECT_EQ(FindNearNames("ShowLabelX", {"ShowLabel"}), (Names{"ShowLabel"}));
  EXPECT_EQ(FindNearNames("abcdef", {"abcdxy", "abcxyz"}), (Names{"abcdxy"}));
}

TEST(NearNames, OneLetterMayDifferInTheShortest) {
  EXPECT_EQ(FindNearNames("az", {"ax", "a", "bx", "xaz"}), (Names{"ax", "a", "xaz"}));
  EXPECT_EQ(FindNearNames("AZ", {"az", "Az"}), (Names{"az", "Az"}));
  EXPECT_EQ(FindNearNames("M 3", {"m_31", "M 3"}), (Names{"M 3"}));
}

TEST(NearNames, AtMostSoManyAndEachOnce) {
  EXPECT_EQ(FindNearNames("visMag", {"VisMagnitude", "VisMagA"}, 1), (Names{"VisMagnitude"}));
  EXPECT_EQ(FindNearNames("Draw", {"Draw", "Drew", "Draw", "Drow", "Drawn"}),
            (Names{"Draw", "Drawn", "Drew"}));
  EXPECT_TRUE(FindNearNames("Draw", {"Draw"}, 0).empty());
  EXPECT_TRUE(FindNearNames("Draw", {"Draw"}, -1).empty());
}

TEST(NearNames, AnEmptyNameIsLikeNone) { EXPECT_TRUE(FindNearNames("", {"Draw", "Grid"}).empty()); }

}  // namespace
