// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace scene {

// How the dot of a star or of a small body is painted. One below the resolution of the picture keeps its
// light: larger, and fainter by the area.
struct PaintedDot {
  float radius;    // pixels
  double opacity;  // what its own is multiplied with

  static PaintedDot Fit(float radius) {
    constexpr float kLeastRadius = 0.55f;
    const float drawn = std::max(radius, kLeastRadius);
    const double share = static_cast<double>(radius) / static_cast<double>(drawn);
    return {drawn, share * share};
  }
  // Only large dots shine. `unit` is a pixel of the standard picture.
  static bool Shines(float radius, float unit) { return radius > 1.9f * unit; }
};

}  // namespace scene
