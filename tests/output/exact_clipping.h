// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What clipping is held against: the exact part of a segment, and the segments on which the two must agree.
#pragma once

#include <algorithm>
#include <optional>

#include "utils/geometry.h"

namespace test_support {

struct Line {
  long double x0, y0, x1, y1;
};

// The part of the line within the closed area by intersecting parameter intervals (Y.-D. Liang and B. A.
// Barsky, "A new concept and method for line clipping", 1984); none when it is empty or a point.
inline std::optional<Line> ExactPart(const Line& s, tRect<int> r) {
  long double from = 0, to = 1;
  const auto cut = [&](long double start, long double change, long double low, long double high) {
    if (change == 0) return start >= low && start <= high;
    const long double a = (low - start) / change, b = (high - start) / change;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
    return from < to;
  };
  const long double dx = s.x1 - s.x0, dy = s.y1 - s.y0;
  if (!cut(s.x0, dx, r.left, r.right - 1) || !cut(s.y0, dy, r.top, r.bottom - 1)) return std::nullopt;
  return Line{s.x0 + dx * from, s.y0 + dy * from, s.x0 + dx * to, s.y0 + dy * to};
}

inline bool CrossesOneEdgeAnAxisAtMost(double x0, double y0, double x1, double y1, tRect<int> r) {
  const auto isBetween = [](double edge, double a, double b) {
    return edge > std::min(a, b) && edge < std::max(a, b);
  };
  return !(isBetween(r.left, x0, x1) && isBetween(r.right - 1, x0, x1)) &&
         !(isBetween(r.top, y0, y1) && isBetween(r.bottom - 1, y0, y1));
}

}  // namespace test_support
