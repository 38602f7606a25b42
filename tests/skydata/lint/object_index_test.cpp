// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/object_index.h"

#include <gtest/gtest.h>

#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kStar = FourCC("star"), kGalaxy = FourCC("gala"), kCluster = FourCC("clst");
constexpr int kSpiral = 62 << 24;

TEST(ObjectIndex, KnowsNothingOfKindsWithoutACatalog) {
  ObjectIndex index;
  EXPECT_FALSE(index.IsMissing(kStar, 1));
  index.Add(kStar, 2);
  EXPECT_TRUE(index.IsMissing(kStar, 1));
  EXPECT_FALSE(index.IsMissing(kStar, 2));
  EXPECT_FALSE(index.IsMissing(kGalaxy, 1));
}

TEST(ObjectIndex, TakesDeepskyNumbersWithTheirSubTypeWithoutItAndAsArticlesHaveThem) {
  ObjectIndex index;
  index.Add(kGalaxy, kSpiral | 31);
  EXPECT_FALSE(index.IsMissing(kGalaxy, kSpiral | 31));
  EXPECT_FALSE(index.IsMissing(kGalaxy, 31));
  EXPECT_FALSE(index.IsMissing(kGalaxy, 0x3C000000 | 31));
  EXPECT_TRUE(index.IsMissing(kGalaxy, 63 << 24 | 31));
  EXPECT_TRUE(index.IsMissing(kGalaxy, 32));
}

TEST(ObjectIndex, TheTopByteOfOtherKindsCounts) {
  ObjectIndex index;
  index.Add(kStar, 0x3C000001);
  EXPECT_TRUE(index.IsMissing(kStar, 1));
}

TEST(ObjectIndex, PicturesNameObjectsOfAnyKindOrByADesignation) {
  ObjectIndex index;
  EXPECT_FALSE(index.IsPictureMissing(224));
  index.Add(kGalaxy, kSpiral | 31);
  index.Add(kCluster, 40 << 24 | 45);
  index.AddDesignation(224);
  EXPECT_FALSE(index.IsPictureMissing(31));
  EXPECT_FALSE(index.IsPictureMissing(45));
  EXPECT_FALSE(index.IsPictureMissing(224));
  EXPECT_TRUE(index.IsPictureMissing(225));
}

}  // namespace
}  // namespace skydata
