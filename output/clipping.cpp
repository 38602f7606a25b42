// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/clipping.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace CommonInterfaces {

namespace {

// Scales above this compute in fixed point. One hundredth of 37 degrees in radians, with the digits callers
// have.
constexpr double kFixedPointScale = 0.006457718232378999;

int Wrap(std::int64_t value) { return static_cast<int>(static_cast<std::uint32_t>(value)); }

// How parameters and coordinates are computed. At() gives where along the segment an edge is crossed, counted
// from 0 at `from` to 1 at `to`; 0 stands for a crossing that does not lie strictly inside. Between() is
// asked for parameters of At() alone, so that what it gives lies between the ends.

// 16.16 fixed point. Every step is computed in 64 bits, where nothing overflows, and then wrapped to 32:
// shifts of negative numbers, products beyond 32 bits and INT_MIN / -1 give what 32-bit registers would.
struct FixedPoint {
  static constexpr bool kWraps = true;
  using Coordinate = int;
  using Edge = int;
  using Wide = int;
  using Parameter = int;
  static Parameter At(int edge, int from, int to) {
    const int difference = Wrap(std::int64_t{to} - from);
    const int rise = Wrap((std::int64_t{edge} - from) * 65536);
    const int t = Wrap(std::int64_t{rise} / (difference + int{difference == 0}));
    return t * int{(t >= 1) & (t <= 65534) & (difference != 0)};
  }
  static int Between(int from, int to, Parameter t) {
    const int difference = Wrap(std::int64_t{to} - from);
    const int product = Wrap(std::int64_t{difference} * t);
    return Wrap(std::int64_t{from} + (product >> 16));
  }
};

// The parameter where it lies inside, else 0. A difference of 0 makes it infinite or no number, which is not
// inside.
double InsideOrZero(double t) {
  const std::uint64_t isInside = (t > 0.0) & (t < 1.0);
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(t) & (0 - isInside));
}

struct DoublePoint {
  static constexpr bool kWraps = false;
  using Coordinate = double;
  using Edge = std::int64_t;
  using Wide = double;
  using Parameter = double;
  static Parameter At(std::int64_t edge, double from, double to) {
    return InsideOrZero((static_cast<double>(edge) - from) / (to - from));
  }
  static double Between(double from, double to, Parameter t) { return from + (to - from) * t; }
};

// Integer points in doubles, which hold every int and every difference of two.
struct DoubleParameter {
  static constexpr bool kWraps = false;
  using Coordinate = int;
  using Edge = int;
  using Wide = int;
  using Parameter = double;
  static Parameter At(int edge, int from, int to) {
    const double start = from;
    return InsideOrZero((edge - start) / (to - start));
  }
  static int Between(int from, int to, Parameter t) {
    return static_cast<int>(DoublePoint::Between(from, to, t));
  }
};

// The usable range along one axis: wider than int beside doubles, so that the smallest int as right edge
// makes an empty area instead of wrapping. An int is never within such an area: EndsNowhere.
template <class Edge>
struct Range {
  Edge low, high;
};

bool EndsNowhere(const tRect<int>& r) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  return (r.right == kLeast) | (r.bottom == kLeast);
}

// The coordinates of both ends along one axis, and a third that is written when neither is to be.
//
// Which edges a segment crosses is as good as random, so that a jump for each is guessed wrong often:
// conditions are joined as numbers where that is faster, and what is not to be written is written to the
// third place.
template <class Math>
struct Ends {
  using Coordinate = typename Math::Coordinate;
  using Wide = typename Math::Wide;
  using Range = CommonInterfaces::Range<typename Math::Edge>;
  static constexpr int kNowhere = 2;

  Ends(Coordinate p0, Coordinate p1) : at{p0, p1, p1}, larger(!(p0 > p1)) {}

  auto Crossing(typename Math::Edge edge) const { return Math::At(edge, at[0], at[1]); }
  // Whether the larger one is not above, or the smaller one not below. Told so that a coordinate that is no
  // number counts as it does for the roles: then the second point is the larger one, the first the smaller
  // one.
  bool IsBeyond(const Range& range) const {
    const auto low = static_cast<Wide>(range.low), high = static_cast<Wide>(range.high);
    return ((at[1] <= low) & !(at[0] > low)) + ((at[0] >= high) & !(at[1] < high)) != 0;
  }
  bool IsWithin(const Range& range) const {
    const auto low = static_cast<Wide>(range.low), high = static_cast<Wide>(range.high);
    return ((at[1] < high) & !(at[0] >= high)) + ((at[0] > low) & !(at[1] <= low)) == 2;
  }
  // Whether neither end lies strictly inside.
  bool AreBothOutside(const Range& range) const {
    const auto low = static_cast<Wide>(range.low), high = static_cast<Wide>(range.high);
    return ((at[0] > low) & (at[0] < high)) + ((at[1] > low) & (at[1] < high)) == 0;
  }

  Coordinate at[3];
  int larger;  // the end with the larger coordinate; stays when they are moved
};

// Moves the end `index` to where the segment crosses an edge of the axis `along`, if `moves`.
template <class Math>
void MoveTo(typename Math::Edge edge, typename Math::Parameter t, int index, bool moves, Ends<Math>& along,
            Ends<Math>& across) {
  const auto crossing = Math::Between(across.at[0], across.at[1], t);
  const int place = Ends<Math>::kNowhere + (index - Ends<Math>::kNowhere) * moves;
  along.at[place] = static_cast<typename Math::Coordinate>(edge);
  across.at[place] = crossing;
}

// A function for each way of computing: one that held two of them would save registers for the longer one.
template <class Math, class Point>
[[gnu::noinline]] bool Clip(Point& p0, Point& p1, tRect<int> r) {
  using Edge = typename Math::Edge;
  if (std::is_same_v<Edge, int> && EndsNowhere(r)) return false;
  const Range<Edge> inX{r.left, Edge{r.right} - 1}, inY{r.top, Edge{r.bottom} - 1};
  Ends<Math> x(p0.x, p1.x), y(p0.y, p1.y);
  if (x.IsBeyond(inX) + y.IsBeyond(inY) != 0) return false;
  if (x.IsWithin(inX) + y.IsWithin(inY) == 2) return true;

  bool isLost = false;
  // Many segments that come this far cross edges of the other axis only. Numbers that wrap can seem to cross
  // where they do not.
  if (Math::kWraps || !x.IsWithin(inX)) {
    const auto tRight = x.Crossing(inX.high);
    // The left edge's parameter still counts along the whole segment when one end moves to the right edge
    // below. This is deliberate: pictures drawn with these functions must not change. A slanting segment that
    // crosses both edges therefore ends beside its true crossing on the left.
    const auto tLeft = x.Crossing(inX.low);
    const bool movesRight = tRight != 0;
    MoveTo<Math>(inX.high, tRight, x.larger, movesRight, x, y);
    isLost = movesRight & y.AreBothOutside(inY);
    const bool movesLeft = (tLeft != 0) & !isLost;
    MoveTo<Math>(inX.low, tLeft, 1 - x.larger, movesLeft, x, y);
    isLost |= movesLeft & y.AreBothOutside(inY);
  }

  // Which end is the larger one is deliberately not looked at again, though clipping in x may have turned
  // them round; and no test follows: what has passed the clipping in x is reported visible.
  const auto tBottom = y.Crossing(inY.high), tTop = y.Crossing(inY.low);
  MoveTo<Math>(inY.high, tBottom, y.larger, (tBottom != 0) & !isLost, y, x);
  MoveTo<Math>(inY.low, tTop, 1 - y.larger, (tTop != 0) & !isLost, y, x);
  p0 = {x.at[0], y.at[0]};
  p1 = {x.at[1], y.at[1]};
  return !isLost;
}

}  // namespace

bool line_in_rect(tPoint<int>* p0, tPoint<int>* p1, tRect<int> r, double scale) {
  return scale > kFixedPointScale ? Clip<FixedPoint>(*p0, *p1, r) : Clip<DoubleParameter>(*p0, *p1, r);
}

bool line_in_rectD(tPoint<double>* p0, tPoint<double>* p1, tRect<int> r) {
  return Clip<DoublePoint>(*p0, *p1, r);
}

}  // namespace CommonInterfaces
