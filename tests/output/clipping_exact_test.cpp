// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clipping against exact clipping. The two must agree on segments that cross at most one of the left and
// right edge lines and at most one of the top and bottom edge lines: no end is then moved twice along one
// axis, and a refused segment has both ends beyond one edge. Segments across two opposite edges deliberately
// differ.

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "common_interfaces/clipping.h"
#include "output/exact_clipping.h"

using CommonInterfaces::line_in_rect;
using CommonInterfaces::line_in_rectD;
using test_support::CrossesOneEdgeAnAxisAtMost;
using test_support::ExactPart;

namespace {

TEST(ClippingExactTest, DoublesAgreeWithExactClippingOnSegmentsAcrossOneEdgeAnAxis) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> coordinate(-300.0, 400.0);
  const tRect<int> r{-20, 10, 161, 121};
  int visible = 0, invisible = 0;
  for (int i = 0; i < 200000; ++i) {
    const double x0 = coordinate(random), y0 = coordinate(random), x1 = coordinate(random),
                 y1 = coordinate(random);
    if (!CrossesOneEdgeAnAxisAtMost(x0, y0, x1, y1, r)) continue;
    tPoint<double> p0{x0, y0}, p1{x1, y1};
    const bool isVisible = line_in_rectD(&p0, &p1, r);
    const auto exact = ExactPart({x0, y0, x1, y1}, r);
    ASSERT_EQ(isVisible, exact.has_value()) << x0 << ' ' << y0 << ' ' << x1 << ' ' << y1;
    ++(isVisible ? visible : invisible);
    if (!exact) continue;
    // The slope of the shortened segment decides how far rounding (some 1e-14) reaches along an edge.
    const double tolerance = 1e-10;
    ASSERT_NEAR(p0.x, static_cast<double>(exact->x0), tolerance);
    ASSERT_NEAR(p0.y, static_cast<double>(exact->y0), tolerance);
    ASSERT_NEAR(p1.x, static_cast<double>(exact->x1), tolerance);
    ASSERT_NEAR(p1.y, static_cast<double>(exact->y1), tolerance);
  }
  EXPECT_GT(visible, 10000);
  EXPECT_GT(invisible, 10000);
}

double DistanceFromLine(tPoint<int> p, tPoint<int> a, tPoint<int> b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  return std::abs((p.x - a.x) * dy - (p.y - a.y) * dx) / std::hypot(dx, dy);
}

// With one end inside nothing can be refused, so that rounding to pixels cannot turn the decision.
void CompareOneEndInside(double scale, double tolerance) {
  std::mt19937 random(12);
  const tRect<int> r{-40, 20, 1241, 821};
  std::uniform_int_distribution<int> anywhere(-15000, 15000), insideX(-39, 1239), insideY(21, 819);
  int moved = 0;
  for (int i = 0; i < 100000; ++i) {
    const tPoint<int> inside{insideX(random), insideY(random)}, other{anywhere(random), anywhere(random)};
    tPoint<int> p0 = inside, p1 = other;
    const bool swapped = i % 2 != 0;
    ASSERT_TRUE(swapped ? line_in_rect(&p1, &p0, r, scale) : line_in_rect(&p0, &p1, r, scale));
    ASSERT_EQ(p0.x, inside.x);
    ASSERT_EQ(p0.y, inside.y);
    ASSERT_TRUE(p1.x >= r.left && p1.x <= r.right - 1 && p1.y >= r.top && p1.y <= r.bottom - 1);
    if (p1.x == other.x && p1.y == other.y) continue;
    ++moved;
    ASSERT_TRUE(p1.x == r.left || p1.x == r.right - 1 || p1.y == r.top || p1.y == r.bottom - 1);
    ASSERT_LT(DistanceFromLine(p1, inside, other), tolerance);
  }
  EXPECT_GT(moved, 50000);
}

// Two roundings to a pixel, the first of which reaches the second at most in full: below two pixels.
TEST(ClippingExactTest, IntegersInDoublesStayWithinTwoPixelsOfTheLine) { CompareOneEndInside(0.0, 2.0); }

// As before, and each parameter is short by up to 1/65536 of at most 32767 pixels: below half a pixel each.
TEST(ClippingExactTest, FixedPointStaysWithinThreePixelsOfTheLine) { CompareOneEndInside(1.0, 3.0); }

}  // namespace
