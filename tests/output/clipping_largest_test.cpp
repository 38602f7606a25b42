// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Segments that end at the largest and the smallest int, in rectangles that do.
#include <gtest/gtest.h>

#include <limits>

#include "common_interfaces/clipping.h"

using CommonInterfaces::line_in_rect;
using CommonInterfaces::line_in_rectD;

namespace {

constexpr int kMost = std::numeric_limits<int>::max(), kLeast = std::numeric_limits<int>::min();
constexpr double kInDoubles = 0.0;  // a scale

void ExpectInts(tPoint<int> p0, tPoint<int> p1, tRect<int> r, tPoint<int> from, tPoint<int> to) {
  ASSERT_TRUE(line_in_rect(&p0, &p1, r, kInDoubles));
  EXPECT_EQ(p0.x, from.x);
  EXPECT_EQ(p0.y, from.y);
  EXPECT_EQ(p1.x, to.x);
  EXPECT_EQ(p1.y, to.y);
}

void ExpectDoubles(tPoint<double> p0, tPoint<double> p1, tRect<int> r, tPoint<double> from,
                   tPoint<double> to) {
  ASSERT_TRUE(line_in_rectD(&p0, &p1, r));
  EXPECT_EQ(p0.x, from.x);
  EXPECT_EQ(p0.y, from.y);
  EXPECT_EQ(p1.x, to.x);
  EXPECT_EQ(p1.y, to.y);
}

}  // namespace

// The usable area ends one before the right and the bottom edge, so that the largest int is outside it.
TEST(ClippingLargest, LargestIntIsCutOffByAnAreaThatEndsThere) {
  ExpectInts({kMost - 10, 5}, {kMost, 5}, {0, 0, kMost, 100}, {kMost - 10, 5}, {kMost - 1, 5});
  ExpectInts({5, kMost}, {5, kMost - 10}, {0, 0, 100, kMost}, {5, kMost - 1}, {5, kMost - 10});
  ExpectDoubles({kMost - 10.0, 5}, {kMost, 5}, {0, 0, kMost, 100}, {kMost - 10.0, 5}, {kMost - 1.0, 5});
  ExpectDoubles({5, kMost}, {5, kMost - 10.0}, {0, 0, 100, kMost}, {5, kMost - 1.0}, {5, kMost - 10.0});
}

TEST(ClippingLargest, SmallestIntIsOnTheEdgeOfAnAreaThatBeginsThere) {
  ExpectInts({kLeast, 5}, {10, 5}, {kLeast, 0, 100, 100}, {kLeast, 5}, {10, 5});
  ExpectDoubles({kLeast, 5}, {10, 5}, {kLeast, 0, 100, 100}, {kLeast, 5}, {10, 5});
}

TEST(ClippingLargest, WholeAxisIsCutAtBothEdges) {
  ExpectInts({kMost, 5}, {kLeast, 5}, {0, 0, 101, 101}, {100, 5}, {0, 5});
  ExpectInts({5, kLeast}, {5, kMost}, {0, 0, 101, 101}, {5, 0}, {5, 100});
  ExpectDoubles({kMost, 5}, {kLeast, 5}, {0, 0, 101, 101}, {100, 5}, {0, 5});
  ExpectDoubles({5, kLeast}, {5, kMost}, {0, 0, 101, 101}, {5, 0}, {5, 100});
}

// Wholly beyond one edge, at the largest coordinates there are.
TEST(ClippingLargest, BesideTheAreaNothingIsSeen) {
  const struct {
    tPoint<int> p0, p1;
  } cases[] = {{{kMost, 0}, {kMost, 50}},
               {{kLeast, 0}, {kLeast, 50}},
               {{0, kMost}, {50, kMost}},
               {{0, kLeast}, {50, kLeast}}};
  for (auto [p0, p1] : cases) {
    for (const double scale : {kInDoubles, 1.0}) {
      tPoint<int> a = p0, b = p1;
      EXPECT_FALSE(line_in_rect(&a, &b, {0, 0, 101, 101}, scale)) << p0.x << " " << p0.y;
    }
    tPoint<double> a = {static_cast<double>(p0.x), static_cast<double>(p0.y)},
                   b = {static_cast<double>(p1.x), static_cast<double>(p1.y)};
    EXPECT_FALSE(line_in_rectD(&a, &b, {0, 0, 101, 101}));
  }
}
