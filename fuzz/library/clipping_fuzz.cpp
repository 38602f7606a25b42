// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clipping against exact clipping where the two must agree, within what doubles and pixels can tell; any
// numbers besides.
#include <cmath>
#include <limits>

#include "common_interfaces/clipping.h"
#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "tests/output/exact_clipping.h"

namespace {

using CommonInterfaces::line_in_rect;
using CommonInterfaces::line_in_rectD;
using fuzz::Input;
using fuzz::Require;

constexpr double kMost = 30000.0;  // pixels

// At least a pixel wide and high.
tRect<int> TakeRect(Input& input) {
  tRect<int> r{};
  r.left = input.TakeBelow(2000) - 1000, r.top = input.TakeBelow(2000) - 1000;
  r.right = r.left + 2 + input.TakeBelow(4000), r.bottom = r.top + 2 + input.TakeBelow(4000);
  return r;
}

// Often on an edge or beside one.
double TakeCoordinate(Input& input, int low, int high) {
  switch (input.TakeBelow(6)) {
    case 0:
      return low;
    case 1:
      return high - 1;
    case 2:
      return input.TakeReal(low, high);
    case 3:
      return std::round(input.TakeReal(-kMost, kMost));
    default:
      return input.TakeReal(-kMost, kMost);
  }
}

tPoint<double> TakePoint(Input& input, tRect<int> r) {
  const double x = TakeCoordinate(input, r.left, r.right);
  return {x, TakeCoordinate(input, r.top, r.bottom)};
}

double Distance(tPoint<double> p, long double x, long double y) {
  return static_cast<double>(std::hypot(p.x - x, p.y - y));
}

void CheckDoubles(Input& input) {
  const tRect<int> r = TakeRect(input);
  const tPoint<double> a = TakePoint(input, r), b = TakePoint(input, r);
  if (!test_support::CrossesOneEdgeAnAxisAtMost(a.x, a.y, b.x, b.y, r)) return;
  const auto exact = test_support::ExactPart({a.x, a.y, b.x, b.y}, r);
  tPoint<double> p0 = a, p1 = b;
  const bool isVisible = line_in_rectD(&p0, &p1, r);
  // An end that was moved onto an edge is off by some roundings of a coordinate, and so many times more along
  // a second edge as the segment is slanted to it.
  const double dx = std::abs(b.x - a.x), dy = std::abs(b.y - a.y);
  const double slant = dx == 0.0 || dy == 0.0 ? 0.0 : std::max(dx / dy, dy / dx);
  const double tolerance = 8 * std::numeric_limits<double>::epsilon() * kMost * (1.0 + slant);
  if (!isVisible) {
    const auto areBeyond = [](double p, double q, int low, int high) {
      return (p <= low && q <= low) || (p >= high - 1 && q >= high - 1);
    };
    const auto isOnEdge = [&r](double y) { return y == r.top || y == r.bottom - 1; };
    const bool touchesEdge = areBeyond(a.x, b.x, r.left, r.right) || areBeyond(a.y, b.y, r.top, r.bottom) ||
                             isOnEdge(a.y) || isOnEdge(b.y);
    const double length =
        exact ? static_cast<double>(std::hypot(exact->x1 - exact->x0, exact->y1 - exact->y0)) : 0.0;
    Require(touchesEdge || length <= 2 * tolerance, "what is refused is certainly invisible");
    return;
  }
  if (!exact) return;  // to be drawn is no promise
  Require(Distance(p0, exact->x0, exact->y0) <= tolerance, "the first end is that of exact clipping");
  Require(Distance(p1, exact->x1, exact->y1) <= tolerance, "and so is the second");
}

double DistanceFromLine(tPoint<int> p, tPoint<int> a, tPoint<int> b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  return std::abs((p.x - a.x) * dy - (p.y - a.y) * dx) / std::hypot(dx, dy);
}

// With one end inside nothing can be refused, and the other comes to rest on an edge beside the line: within
// two pixels of it in doubles, three in fixed point (tests/output/clipping_exact_test.cpp).
void CheckPixels(Input& input, double scale, double tolerance) {
  tRect<int> r = TakeRect(input);
  r.right += 2, r.bottom += 2;
  const tPoint<int> inside{r.left + 1 + input.TakeBelow(r.right - r.left - 3),
                           r.top + 1 + input.TakeBelow(r.bottom - r.top - 3)};
  const tPoint<int> other{input.TakeBelow(30000) - 15000, input.TakeBelow(30000) - 15000};
  tPoint<int> p0 = inside, p1 = other;
  const bool isSwapped = input.TakeBool();
  Require(isSwapped ? line_in_rect(&p1, &p0, r, scale) : line_in_rect(&p0, &p1, r, scale),
          "a segment with an end inside is visible");
  Require(p0.x == inside.x && p0.y == inside.y, "an end inside stays");
  Require(p1.x >= r.left && p1.x < r.right && p1.y >= r.top && p1.y < r.bottom, "the other comes inside");
  if (p1.x == other.x && p1.y == other.y) return;
  Require(DistanceFromLine(p1, inside, other) < tolerance, "beside the line");
}

void TakeAnything(Input& input) {
  const auto r = input.TakeBits<tRect<int>>();
  auto p0 = input.TakeBits<tPoint<double>>(), p1 = input.TakeBits<tPoint<double>>();
  line_in_rectD(&p0, &p1, r);
  auto q0 = input.TakeBits<tPoint<int>>(), q1 = input.TakeBits<tPoint<int>>();
  for (const double scale : {0.0, 1.0}) line_in_rect(&q0, &q1, r, scale);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  switch (input.TakeBelow(4)) {
    case 0:
      CheckPixels(input, 0.0, 2.0);
      break;
    case 1:
      CheckPixels(input, 1.0, 3.0);
      break;
    case 2:
      TakeAnything(input);
      break;
    default:
      CheckDoubles(input);
  }
  return 0;
}
