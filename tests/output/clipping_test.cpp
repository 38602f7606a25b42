// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/clipping.h"

#include <cmath>
#include <limits>
#include <ostream>
#include <random>
#include <type_traits>

#include <gtest/gtest.h>

using CommonInterfaces::line_in_rect;
using CommonInterfaces::line_in_rectD;

namespace {

constexpr double kLimit = 0.006457718232378999;
constexpr int kMin = std::numeric_limits<int>::min(), kMax = std::numeric_limits<int>::max();
constexpr tRect<int> kSquare{0, 0, 101, 101};  // usable from 0 to 100

// A segment, and what becomes of it.
template <class T>
struct Segment {
  T x0, y0, x1, y1;
  bool operator==(const Segment&) const = default;
};
template <class T>
std::ostream& operator<<(std::ostream& out, const Segment<T>& s) {
  return out << '(' << s.x0 << ", " << s.y0 << ")-(" << s.x1 << ", " << s.y1 << ')';
}
using Pixels = Segment<int>;
using Reals = Segment<double>;

// The three ways to clip; each changes the segment in place.
struct FixedPath {
  using Line = Pixels;
  static bool Clip(Pixels& s, tRect<int> r) { return Run(s, r, 1.0); }
  static bool Run(Pixels& s, tRect<int> r, double scale) {
    tPoint<int> p0{s.x0, s.y0}, p1{s.x1, s.y1};
    const bool visible = line_in_rect(&p0, &p1, r, scale);
    s = {p0.x, p0.y, p1.x, p1.y};
    return visible;
  }
};
struct DoublePath {
  using Line = Pixels;
  static bool Clip(Pixels& s, tRect<int> r) { return FixedPath::Run(s, r, kLimit); }
};
struct RealPath {
  using Line = Reals;
  static bool Clip(Reals& s, tRect<int> r) {
    tPoint<double> p0{s.x0, s.y0}, p1{s.x1, s.y1};
    const bool visible = line_in_rectD(&p0, &p1, r);
    s = {p0.x, p0.y, p1.x, p1.y};
    return visible;
  }
};

// Rules whose results are whole numbers, the same on every path.
template <class Path>
class ClippingTest : public testing::Test {
 protected:
  static void Expect(Pixels before, bool visible, Pixels after, tRect<int> r = kSquare) {
    auto line = Convert(before);
    EXPECT_EQ(Path::Clip(line, r), visible) << before;
    EXPECT_EQ(line, Convert(after)) << before;
  }
  static typename Path::Line Convert(const Pixels& s) {
    using T = decltype(Path::Line::x0);
    return {static_cast<T>(s.x0), static_cast<T>(s.y0), static_cast<T>(s.x1), static_cast<T>(s.y1)};
  }
  static void ExpectUnchanged(Pixels s, bool visible) { Expect(s, visible, s); }
};
struct PathNames {
  template <class Path>
  static std::string GetName(int) {
    if (std::is_same_v<Path, FixedPath>) return "FixedPoint";
    return std::is_same_v<Path, DoublePath> ? "DoubleParameter" : "DoublePoint";
  }
};
using Paths = testing::Types<FixedPath, DoublePath, RealPath>;
TYPED_TEST_SUITE(ClippingTest, Paths, PathNames);

TYPED_TEST(ClippingTest, SegmentWhollyInsideIsVisibleAndUnchanged) {
  this->ExpectUnchanged({1, 1, 99, 99}, true);
  this->ExpectUnchanged({70, 20, 30, 80}, true);
  this->ExpectUnchanged({50, 50, 50, 50}, true);
}

TYPED_TEST(ClippingTest, SegmentWhollyBesideTheRectangleIsInvisibleAndUntouched) {
  this->ExpectUnchanged({-50, 10, -1, 90}, false);
  this->ExpectUnchanged({101, 10, 150, 90}, false);
  this->ExpectUnchanged({10, -50, 90, -1}, false);
  this->ExpectUnchanged({10, 150, 90, 101}, false);
}

TYPED_TEST(ClippingTest, SegmentAlongAnEdgeIsInvisible) {
  this->ExpectUnchanged({0, 10, 0, 90}, false);
  this->ExpectUnchanged({100, 10, 100, 90}, false);
  this->ExpectUnchanged({10, 0, 90, 0}, false);
  this->ExpectUnchanged({10, 100, 90, 100}, false);
  this->ExpectUnchanged({-50, 10, 0, 90}, false);  // only reaches the edge
}

TYPED_TEST(ClippingTest, EndsOnEdgesAreNotInsideButNothingIsLeftToClip) {
  this->ExpectUnchanged({0, 50, 100, 50}, true);
  this->ExpectUnchanged({50, 100, 50, 0}, true);
}

TYPED_TEST(ClippingTest, HorizontalSegmentAcrossEverythingIsCutAtBothSides) {
  this->Expect({-50, 50, 150, 50}, true, {0, 50, 100, 50});
  this->Expect({150, 50, -50, 50}, true, {100, 50, 0, 50});
}

TYPED_TEST(ClippingTest, VerticalSegmentAcrossEverythingIsCutAtTopAndBottom) {
  this->Expect({50, -50, 50, 150}, true, {50, 0, 50, 100});
  this->Expect({50, 150, 50, -50}, true, {50, 100, 50, 0});
}

TYPED_TEST(ClippingTest, OneEndOutsideIsMovedToItsEdge) {
  this->Expect({50, 50, 150, 90}, true, {50, 50, 100, 70});
  this->Expect({50, 50, -50, 90}, true, {50, 50, 0, 70});
  this->Expect({50, 50, 90, 150}, true, {50, 50, 70, 100});
  this->Expect({90, -50, 50, 50}, true, {70, 0, 50, 50});
}

TYPED_TEST(ClippingTest, EndOutsideACornerIsCutInXAndThenInY) {
  // At x = 100 the segment is at y = 150, from where half of it lies below the bottom.
  this->Expect({50, 50, 150, 250}, true, {50, 50, 75, 100});
}

TYPED_TEST(ClippingTest, SegmentPastACornerIsRefusedAfterTheRightEdgeWithOnePointMoved) {
  this->Expect({50, 150, 150, 50}, false, {50, 150, 100, 100});
}

TYPED_TEST(ClippingTest, SegmentPastACornerIsRefusedAfterTheLeftEdgeWithOnePointMoved) {
  this->Expect({-100, 50, 100, -150}, false, {0, -50, 100, -150});
}

TYPED_TEST(ClippingTest, EdgeThroughTheFirstPointDoesNotClipThere) {
  this->Expect({0, 50, 200, 50}, true, {0, 50, 100, 50});
  this->Expect({100, 50, -100, 50}, true, {100, 50, 0, 50});
  this->Expect({50, 0, 50, 200}, true, {50, 0, 50, 100});
}

TYPED_TEST(ClippingTest, EdgeThroughTheSecondPointDoesNotClipThere) {
  this->Expect({200, 50, 0, 50}, true, {100, 50, 0, 50});
  this->Expect({50, -100, 50, 100}, true, {50, 0, 50, 100});
}

// right - 1 does not fit an int: it must not wrap to the largest one.
TYPED_TEST(ClippingTest, SmallestIntAsRightOrBottomRefusesEverything) {
  for (tRect<int> r : {tRect<int>{kMin, kMin, kMin, 101}, tRect<int>{kMin, kMin, 101, kMin}}) {
    this->Expect({-10, -10, 50, 50}, false, {-10, -10, 50, 50}, r);
  }
}

// Both side edges are crossed at one quarter and three quarters. The left crossing is computed with the
// parameter of the whole segment from a segment that already ends at the right edge, so it lies at 34.375
// instead of 37.5.
TEST(ClippingOdditiesTest, SlantingSegmentAcrossBothSidesEndsBesideItsTrueCrossing) {
  Reals real{-50, 25, 150, 75};
  EXPECT_TRUE(RealPath::Clip(real, kSquare));
  EXPECT_EQ(real, (Reals{0, 34.375, 100, 62.5}));
  Reals reversed{150, 75, -50, 25};
  EXPECT_TRUE(RealPath::Clip(reversed, kSquare));
  EXPECT_EQ(reversed, (Reals{100, 62.5, 0, 34.375}));
  Pixels fixed{-50, 25, 150, 75}, pixels = fixed;
  EXPECT_TRUE(FixedPath::Clip(fixed, kSquare));
  EXPECT_EQ(fixed, (Pixels{0, 34, 100, 62}));
  EXPECT_TRUE(DoublePath::Clip(pixels, kSquare));
  EXPECT_EQ(pixels, (Pixels{0, 34, 100, 62}));
}

TEST(ClippingOdditiesTest, SlantingSegmentAcrossTopAndBottomEndsBesideItsTrueCrossing) {
  Reals real{25, -50, 75, 150};
  EXPECT_TRUE(RealPath::Clip(real, kSquare));
  EXPECT_EQ(real, (Reals{34.375, 0, 62.5, 100}));
}

// The true segment passes below the corner: at x = 0 it is at y = 102.5. The displaced left end lies inside
// at 99.375 and nothing is tested after the clipping in y.
// From (0, 100) to (50, 0) it is within the area: the end on the bottom edge counts as outside, and the other
// one comes to rest on the line of the right edge, above the top.
TEST(ClippingOdditiesTest, SegmentFromTheBottomEdgeThroughTheTopAndBeyondTheRightIsRefused) {
  for (const double scale : {0.0, 1.0}) {
    Pixels pixels{0, 100, 200, -300};
    EXPECT_FALSE(FixedPath::Run(pixels, kSquare, scale));
  }
  Reals reals{0.0, 100.0, 200.0, -300.0};
  EXPECT_FALSE(RealPath::Clip(reals, kSquare));
  reals = {0.0, 99.0, 200.0, -300.0};
  EXPECT_TRUE(RealPath::Clip(reals, kSquare)) << "from beside the edge";
}

TEST(ClippingOdditiesTest, NothingIsTestedAfterTheClippingInY) {
  Reals real{-200, 90, 200, 115};
  EXPECT_TRUE(RealPath::Clip(real, kSquare));
  EXPECT_EQ(real.x0, 0.0);
  EXPECT_EQ(real.y0, 99.375);
  EXPECT_NEAR(real.x1, 100.0 / 15.0, 1e-12);
  EXPECT_EQ(real.y1, 100.0);
}

TEST(ClippingOdditiesTest, FixedPointRoundsDownAndDoublesTowardsZero) {
  // From (-10, -11) to (10, 10): the left edge -5 is crossed at a quarter, y = -11 + 5.25 = -5.75.
  const tRect<int> r{-5, -20, 21, 21};
  Pixels fixed{-10, -11, 10, 10}, pixels = fixed;
  EXPECT_TRUE(FixedPath::Clip(fixed, r));
  EXPECT_EQ(fixed, (Pixels{-5, -6, 10, 10}));
  EXPECT_TRUE(DoublePath::Clip(pixels, r));
  EXPECT_EQ(pixels, (Pixels{-5, -5, 10, 10}));
}

// 32868 << 16 wraps to a negative number, so the fixed-point path sees no crossing.
TEST(ClippingOdditiesTest, DifferencesFrom32768OnWrapInFixedPoint) {
  const Pixels before{-32768, 50, 200, 50};
  Pixels fixed = before;
  EXPECT_TRUE(FixedPath::Clip(fixed, kSquare));
  EXPECT_EQ(fixed, before);
  Pixels pixels = before;
  EXPECT_TRUE(DoublePath::Clip(pixels, kSquare));
  EXPECT_EQ(pixels, (Pixels{0, 50, 100, 50}));
}

TEST(ClippingOdditiesTest, TheScaleLimitItselfStillComputesInDoubles) {
  Pixels at{-32768, 50, 200, 50}, above = at, notANumber = at;
  FixedPath::Run(at, kSquare, kLimit);
  EXPECT_EQ(at.x0, 0);
  FixedPath::Run(above, kSquare, std::nextafter(kLimit, 1.0));
  EXPECT_EQ(above.x0, -32768);
  FixedPath::Run(notANumber, kSquare, std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(notANumber.x0, 0);
}

// One pixel in 70000 is less than 1/65536: the fixed parameter is 0, which is not inside.
TEST(ClippingOdditiesTest, FixedPointParameterOfZeroDoesNotClip) {
  Pixels fixed{-1, 50, 69999, 50};
  EXPECT_TRUE(FixedPath::Clip(fixed, kSquare));
  EXPECT_EQ(fixed, (Pixels{-1, 50, 100, 50}));
}

// 65536 * 49152 wraps to -16384 << 16: at the right edge y is 50 - 16384, at the left one 50 - 4096.
TEST(ClippingOdditiesTest, FixedPointProductsWrap) {
  Pixels fixed{-50, 50, 150, 50 + 65536};
  EXPECT_FALSE(FixedPath::Clip(fixed, kSquare));
  EXPECT_EQ(fixed, (Pixels{0, -4046, 100, -16334}));
}

// 32768 << 16 is the smallest int, and dividing it by -1 wraps to itself; then y clips at 5/55 of the way,
// where x is 10 - 1/11, rounded down.
TEST(ClippingOdditiesTest, SmallestIntDividedByMinusOneWraps) {
  Pixels fixed{10, -5, 9, 50};
  EXPECT_TRUE(FixedPath::Clip(fixed, {0, 0, 32779, 101}));
  EXPECT_EQ(fixed, (Pixels{9, 0, 9, 50}));
}

TEST(ClippingOdditiesTest, DoublesCutTheLongestSegmentThereIs) {
  Pixels pixels{kMin, 50, kMax, 50};
  EXPECT_TRUE(DoublePath::Clip(pixels, kSquare));
  EXPECT_EQ(pixels, (Pixels{0, 50, 100, 50}));
  Pixels upright{50, kMax, 50, kMin};
  EXPECT_TRUE(DoublePath::Clip(upright, kSquare));
  EXPECT_EQ(upright, (Pixels{50, 100, 50, 0}));
}

TEST(ClippingOdditiesTest, PointsThatAreNotNumbersAreLeftAlone) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Reals real{nan, nan, 50, 50};
  EXPECT_TRUE(RealPath::Clip(real, kSquare));
  EXPECT_TRUE(std::isnan(real.x0) && std::isnan(real.y0));
  EXPECT_EQ(real.x1, 50.0);
  EXPECT_EQ(real.y1, 50.0);
}

// Whatever the numbers, nothing traps, and the two quick tests decide as they say.
TEST(ClippingOdditiesTest, ExtremeCoordinatesKeepTheQuickTests) {
  const int values[] = {kMin, kMin + 1, -65536, -32768, -1, 0, 1, 50, 100, 32767, 65536, kMax - 1, kMax};
  std::mt19937 random(7);
  const auto pick = [&] { return values[random() % std::size(values)]; };
  int refused = 0, accepted = 0;
  for (int i = 0; i < 200000; ++i) {
    const Pixels before{pick(), pick(), pick(), pick()};
    const tRect<int> r{pick(), pick(), pick(), pick()};
    const long long right = r.right - 1LL, bottom = r.bottom - 1LL;
    const int minX = std::min(before.x0, before.x1), maxX = std::max(before.x0, before.x1);
    const int minY = std::min(before.y0, before.y1), maxY = std::max(before.y0, before.y1);
    const bool refuse = maxX <= r.left || minX >= right || maxY <= r.top || minY >= bottom;
    const bool accept = maxX < right && minX > r.left && maxY < bottom && minY > r.top;
    for (double scale : {1.0, 0.0}) {
      Pixels after = before;
      const bool visible = FixedPath::Run(after, r, scale);
      if (!refuse && !accept) continue;
      ASSERT_EQ(visible, accept) << before;
      ASSERT_EQ(after, before);
      ++(accept ? accepted : refused);
    }
  }
  EXPECT_GT(refused, 1000);
  EXPECT_GT(accepted, 1000);
}

}  // namespace
