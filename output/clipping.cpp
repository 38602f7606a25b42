// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/clipping.h"

#include <cstdint>
#include <limits>
#include <type_traits>

namespace CommonInterfaces {

namespace {

// Scales above this compute in fixed point. One hundredth of 37 degrees in radians, with the digits callers
// have.
constexpr double kFixedPointScale = 0.006457718232378999;

int Wrap(std::int64_t value) { return static_cast<int>(static_cast<std::uint32_t>(value)); }

int Truncate(double value) {
  constexpr int kMin = std::numeric_limits<int>::min(), kMax = std::numeric_limits<int>::max();
  if (value >= kMax) return kMax;
  if (value <= kMin) return kMin;
  return static_cast<int>(value);
}

// 16.16 fixed point. Every step is computed in 64 bits, where nothing overflows, and then wrapped to 32:
// shifts of negative numbers, products beyond 32 bits and INT_MIN / -1 give what 32-bit registers would.
struct FixedPoint {
  using Coordinate = int;
  using Parameter = int;
  static Parameter At(std::int64_t edge, int from, int to) {
    const int rise = Wrap((edge - from) * 65536);
    return Wrap(std::int64_t{rise} / Wrap(std::int64_t{to} - from));
  }
  static bool IsInside(Parameter t) { return t >= 1 && t <= 65534; }
  static int Between(int from, int to, Parameter t) {
    const int difference = Wrap(std::int64_t{to} - from);
    const int product = Wrap(std::int64_t{difference} * t);
    return Wrap(std::int64_t{from} + (product >> 16));
  }
};

// Integer points, parameters in doubles. Differences are exact: those of any two ints fit a double.
struct DoubleParameter {
  using Coordinate = int;
  using Parameter = double;
  static Parameter At(std::int64_t edge, int from, int to) {
    return static_cast<double>(edge - from) / static_cast<double>(std::int64_t{to} - from);
  }
  static bool IsInside(Parameter t) { return t > 0.0 && t < 1.0; }
  static int Between(int from, int to, Parameter t) {
    return Truncate(from + static_cast<double>(std::int64_t{to} - from) * t);
  }
};

struct DoublePoint {
  using Coordinate = double;
  using Parameter = double;
  static Parameter At(std::int64_t edge, double from, double to) {
    return (static_cast<double>(edge) - from) / (to - from);
  }
  static bool IsInside(Parameter t) { return t > 0.0 && t < 1.0; }
  static double Between(double from, double to, Parameter t) { return from + (to - from) * t; }
};

// The usable area. Wider than int, so that the smallest int as right edge makes an empty area instead of
// wrapping.
struct Area {
  std::int64_t left, top, right, bottom;
};

template <class T>
bool IsBetween(T value, std::int64_t low, std::int64_t high) {
  return value > static_cast<T>(low) && value < static_cast<T>(high);
}

// Clips at the left and right edge; false when nothing of the segment can be left.
template <class Math, class Point>
bool ClipInX(Point& p0, Point& p1, Point& larger, Point& smaller, const Area& area) {
  using Coordinate = typename Math::Coordinate;
  if (p1.x == p0.x) return true;
  const auto tRight = Math::At(area.right, p0.x, p1.x);
  const auto tLeft = Math::At(area.left, p0.x, p1.x);
  if (Math::IsInside(tRight)) {
    const Coordinate y = Math::Between(p0.y, p1.y, tRight);
    larger.x = static_cast<Coordinate>(area.right);
    larger.y = y;
    if (!IsBetween(y, area.top, area.bottom) && !IsBetween(smaller.y, area.top, area.bottom)) return false;
  }
  if (Math::IsInside(tLeft)) {
    // tLeft still counts along the whole segment although one end may have moved to the right edge just now.
    // This is deliberate: pictures drawn with these functions must not change. A slanting segment that
    // crosses both edges therefore ends beside its true crossing on the left.
    const Coordinate y = Math::Between(p0.y, p1.y, tLeft);
    smaller.x = static_cast<Coordinate>(area.left);
    smaller.y = y;
    if (!IsBetween(larger.y, area.top, area.bottom) && !IsBetween(y, area.top, area.bottom)) return false;
  }
  return true;
}

// Clips at the top and bottom edge. `larger` and `smaller` are the roles at entry: clipping in x may have
// turned them round, which is deliberately not looked at again.
template <class Math, class Point>
void ClipInY(Point& p0, Point& p1, Point& larger, Point& smaller, const Area& area) {
  using Coordinate = typename Math::Coordinate;
  if (p1.y == p0.y) return;
  const auto tBottom = Math::At(area.bottom, p0.y, p1.y);
  const auto tTop = Math::At(area.top, p0.y, p1.y);
  if (Math::IsInside(tBottom)) {
    const Coordinate x = Math::Between(p0.x, p1.x, tBottom);
    larger.y = static_cast<Coordinate>(area.bottom);
    larger.x = x;
  }
  if (Math::IsInside(tTop)) {
    const Coordinate x = Math::Between(p0.x, p1.x, tTop);
    smaller.y = static_cast<Coordinate>(area.top);
    smaller.x = x;
  }
}

template <class Math, class Point>
bool Clip(Point& p0, Point& p1, const tRect<int>& r) {
  using Coordinate = typename Math::Coordinate;
  using Wide = std::conditional_t<std::is_same_v<Coordinate, int>, std::int64_t, double>;
  const Area area{r.left, r.top, std::int64_t{r.right} - 1, std::int64_t{r.bottom} - 1};
  Point& largerX = p0.x > p1.x ? p0 : p1;
  Point& smallerX = p0.x > p1.x ? p1 : p0;
  Point& largerY = p0.y > p1.y ? p0 : p1;
  Point& smallerY = p0.y > p1.y ? p1 : p0;

  const auto left = static_cast<Wide>(area.left), right = static_cast<Wide>(area.right);
  const auto top = static_cast<Wide>(area.top), bottom = static_cast<Wide>(area.bottom);
  if (largerX.x <= left || smallerX.x >= right || largerY.y <= top || smallerY.y >= bottom) return false;
  if (largerX.x < right && smallerX.x > left && largerY.y < bottom && smallerY.y > top) return true;

  if (!ClipInX<Math>(p0, p1, largerX, smallerX, area)) return false;
  // No test follows this step: what has passed the clipping in x is reported visible.
  ClipInY<Math>(p0, p1, largerY, smallerY, area);
  return true;
}

}  // namespace

bool line_in_rect(tPoint<int>* p0, tPoint<int>* p1, tRect<int> r, double scale) {
  return scale > kFixedPointScale ? Clip<FixedPoint>(*p0, *p1, r) : Clip<DoubleParameter>(*p0, *p1, r);
}

bool line_in_rectD(tPoint<double>* p0, tPoint<double>* p1, tRect<int> r) {
  return Clip<DoublePoint>(*p0, *p1, r);
}

}  // namespace CommonInterfaces
