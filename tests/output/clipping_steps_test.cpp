// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clipping against its steps as one would tell them, one decision after the other: the same answer and the
// same bits for segments of every kind, in windows of every kind.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "common_interfaces/clipping.h"

using CommonInterfaces::line_in_rect;
using CommonInterfaces::line_in_rectD;

namespace {

constexpr int kMin = std::numeric_limits<int>::min(), kMax = std::numeric_limits<int>::max();

// 16.16 fixed point with the registers of 32 bits. What divides by 0 is asked by nobody.
struct Fixed {
  using Coordinate = int;
  static int Wrap(std::int64_t value) { return static_cast<int>(static_cast<std::uint32_t>(value)); }
  static int At(std::int64_t edge, int from, int to) {
    return Wrap(std::int64_t{Wrap((edge - from) * 65536)} / Wrap(std::int64_t{to} - from));
  }
  static bool IsInside(int t) { return t >= 1 && t <= 65534; }
  static int Between(int from, int to, int t) {
    return Wrap(from + std::int64_t{Wrap(std::int64_t{Wrap(std::int64_t{to} - from)} * t) >> 16});
  }
};

struct Halfway {
  using Coordinate = int;
  static double At(std::int64_t edge, int from, int to) {
    return static_cast<double>(edge - from) / static_cast<double>(std::int64_t{to} - from);
  }
  static bool IsInside(double t) { return 0.0 < t && t < 1.0; }
  static int Between(int from, int to, double t) {
    return static_cast<int>(std::trunc(from + static_cast<double>(std::int64_t{to} - from) * t));
  }
};

struct Real {
  using Coordinate = double;
  static double At(std::int64_t edge, double from, double to) {
    return (static_cast<double>(edge) - from) / (to - from);
  }
  static bool IsInside(double t) { return 0.0 < t && t < 1.0; }
  static double Between(double from, double to, double t) { return from + (to - from) * t; }
};

template <class Way>
bool ClipByStep(tPoint<typename Way::Coordinate>& p0, tPoint<typename Way::Coordinate>& p1, tRect<int> r) {
  using T = typename Way::Coordinate;
  using Wide = std::conditional_t<std::is_same_v<T, int>, std::int64_t, double>;
  const std::int64_t left = r.left, right = std::int64_t{r.right} - 1;
  const std::int64_t top = r.top, bottom = std::int64_t{r.bottom} - 1;
  const auto isLess = [](auto a, auto b) { return static_cast<Wide>(a) < static_cast<Wide>(b); };
  const auto isNotAbove = [](auto a, auto b) { return static_cast<Wide>(a) <= static_cast<Wide>(b); };
  auto& largerX = p0.x > p1.x ? p0 : p1;
  auto& smallerX = p0.x > p1.x ? p1 : p0;
  auto& largerY = p0.y > p1.y ? p0 : p1;
  auto& smallerY = p0.y > p1.y ? p1 : p0;
  if (isNotAbove(largerX.x, left)) return false;
  if (isNotAbove(right, smallerX.x)) return false;
  if (isNotAbove(largerY.y, top)) return false;
  if (isNotAbove(bottom, smallerY.y)) return false;
  if (isLess(largerX.x, right) && isLess(left, smallerX.x) && isLess(largerY.y, bottom) &&
      isLess(top, smallerY.y)) {
    return true;
  }
  const auto isInHeight = [&](T y) { return isLess(top, y) && isLess(y, bottom); };
  if (p1.x != p0.x) {
    const auto tRight = Way::At(right, p0.x, p1.x), tLeft = Way::At(left, p0.x, p1.x);
    if (Way::IsInside(tRight)) {
      const T y = Way::Between(p0.y, p1.y, tRight);
      largerX = {static_cast<T>(right), y};
      if (!isInHeight(y) && !isInHeight(smallerX.y)) return false;
    }
    if (Way::IsInside(tLeft)) {
      const T y = Way::Between(p0.y, p1.y, tLeft);
      smallerX = {static_cast<T>(left), y};
      if (!isInHeight(largerX.y) && !isInHeight(y)) return false;
    }
  }
  if (p1.y != p0.y) {
    const auto tBottom = Way::At(bottom, p0.y, p1.y), tTop = Way::At(top, p0.y, p1.y);
    if (Way::IsInside(tBottom)) {
      const T x = Way::Between(p0.x, p1.x, tBottom);
      largerY = {x, static_cast<T>(bottom)};
    }
    if (Way::IsInside(tTop)) {
      const T x = Way::Between(p0.x, p1.x, tTop);
      smallerY = {x, static_cast<T>(top)};
    }
  }
  return true;
}

bool IsSame(int a, int b) { return a == b; }
bool IsSame(double a, double b) { return std::isnan(a) ? std::isnan(b) : std::memcmp(&a, &b, sizeof a) == 0; }

// How often each thing happened, so that a test can see that it tried it.
struct Tally {
  int invisible = 0, untouched = 0, moved = 0, movedAndInvisible = 0;
};

template <class Way, class Clip>
void Compare(tPoint<typename Way::Coordinate> p0, tPoint<typename Way::Coordinate> p1, tRect<int> r,
             Clip clip, Tally& tally) {
  auto q0 = p0, q1 = p1, e0 = p0, e1 = p1;
  const bool isVisible = clip(&q0, &q1, r), expected = ClipByStep<Way>(e0, e1, r);
  ASSERT_EQ(isVisible, expected) << p0.x << ' ' << p0.y << ' ' << p1.x << ' ' << p1.y << " in " << r.left
                                 << ' ' << r.top << ' ' << r.right << ' ' << r.bottom;
  ASSERT_TRUE(IsSame(q0.x, e0.x) && IsSame(q0.y, e0.y) && IsSame(q1.x, e1.x) && IsSame(q1.y, e1.y))
      << p0.x << ' ' << p0.y << ' ' << p1.x << ' ' << p1.y << " in " << r.left << ' ' << r.top << ' '
      << r.right << ' ' << r.bottom << ": " << q0.x << ' ' << q0.y << ' ' << q1.x << ' ' << q1.y
      << " and not " << e0.x << ' ' << e0.y << ' ' << e1.x << ' ' << e1.y;
  const bool isMoved =
      !(IsSame(q0.x, p0.x) && IsSame(q0.y, p0.y) && IsSame(q1.x, p1.x) && IsSame(q1.y, p1.y));
  ++(isMoved ? (isVisible ? tally.moved : tally.movedAndInvisible)
             : (isVisible ? tally.untouched : tally.invisible));
}

// Windows of which some are empty, inside out or as large as integers go.
tRect<int> MakeWindow(std::mt19937& random) {
  const auto some = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  switch (some(8)) {
    case 0: {
      const int ends[] = {kMin, kMin + 1, -1, 0, 1, 2, kMax - 1, kMax};
      return {ends[some(8)], ends[some(8)], ends[some(8)], ends[some(8)]};
    }
    case 1:
      return {some(40) - 20, some(40) - 20, some(40) - 20, some(40) - 20};
    default: {
      const int left = some(60) - 30, top = some(60) - 30;
      return {left, top, left + 1 + some(100), top + 1 + some(100)};
    }
  }
}

// A coordinate on an edge, beside one, near the window or anywhere.
int MakeWhole(std::mt19937& random, int low, int high) {
  switch (random() % 8) {
    case 0:
      return low;
    case 1:
      return static_cast<int>(static_cast<unsigned>(high) - 1u);  // the last usable one
    case 2:
      return static_cast<int>(random());
    case 3: {
      const int ends[] = {kMin, kMin + 1, kMax - 1, kMax, 0};
      return ends[random() % 5];
    }
    default:
      return static_cast<int>(random() % 300) - 100;
  }
}

double MakeReal(std::mt19937& random, int low, int high) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  const double odd[] = {kInfinite, -kInfinite, std::nan(""), 1e308, -1e308, 5e-324, -0.0, 0.0};
  switch (random() % 16) {
    case 0:
      return odd[random() % std::size(odd)];
    case 1:
      return std::nextafter(static_cast<double>(low), random() % 2 != 0 ? 1e9 : -1e9);
    case 2:
      return MakeWhole(random, low, high);
    default:
      return random() % 4 == 0 ? MakeWhole(random, low, high)
                               : std::uniform_real_distribution<double>(-150.0, 250.0)(random);
  }
}

template <class Way, class Make, class Clip>
void CompareMany(unsigned seed, Make make, Clip clip) {
  std::mt19937 random(seed);
  Tally tally;
  for (int i = 0; i < 400000; ++i) {
    const tRect<int> r = MakeWindow(random);
    tPoint<typename Way::Coordinate> p0{make(random, r.left, r.right), make(random, r.top, r.bottom)};
    tPoint<typename Way::Coordinate> p1{make(random, r.left, r.right), make(random, r.top, r.bottom)};
    if (random() % 16 == 0) p1.x = p0.x;
    if (random() % 16 == 0) p1.y = p0.y;
    Compare<Way>(p0, p1, r, clip, tally);
    if (testing::Test::HasFatalFailure()) return;
  }
  EXPECT_GT(tally.invisible, 10000);
  EXPECT_GT(tally.untouched, 2000);
  EXPECT_GT(tally.moved, 10000);
  EXPECT_GT(tally.movedAndInvisible, 2000);
}

TEST(ClippingSteps, DoublesFollowThemToTheBit) { CompareMany<Real>(31, MakeReal, line_in_rectD); }

TEST(ClippingSteps, IntegersInDoublesFollowThemToTheBit) {
  CompareMany<Halfway>(32, MakeWhole,
                       [](auto* p0, auto* p1, tRect<int> r) { return line_in_rect(p0, p1, r, 0.0); });
}

TEST(ClippingSteps, FixedPointFollowsThemToTheBit) {
  CompareMany<Fixed>(33, MakeWhole,
                     [](auto* p0, auto* p1, tRect<int> r) { return line_in_rect(p0, p1, r, 1.0); });
}

}  // namespace
