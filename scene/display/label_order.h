// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "scene/view/view_geometry.h"

namespace scene {

// In which order labels take their room, the smallest first: brighter objects first, and of two alike the
// one nearer to the middle of the picture, where people look. From the middle to a corner an object counts
// as fainter by up to kCornerCodes, with the square of the distance: little from one picture of a turning
// view to the next. What stands in the very middle, which is what a view was aimed at, comes before
// everything.
struct LabelOrder {
  static constexpr float kCornerCodes = 10.0f;  // a magnitude
  static constexpr double kAimed = 2.0;         // pixels of the standard picture
  static constexpr float kFirst = -1e6f;

  // Whether a pixel is the middle of the picture.
  static bool IsAimedAt(const ViewGeometry& geometry, double x, double y) {
    return FindDistance(geometry, x, y) < kAimed * geometry.unit;
  }
  // Of an object of that magnitude code at a pixel.
  static float Find(const ViewGeometry& geometry, double x, double y, float code) {
    if (IsAimedAt(geometry, x, y)) return kFirst;
    const double part = FindDistance(geometry, x, y) / geometry.halfDiagonal;
    return code + kCornerCodes * static_cast<float>(part * part);
  }

 private:
  static double FindDistance(const ViewGeometry& geometry, double x, double y) {
    return std::hypot(x - 0.5 * geometry.width, y - 0.5 * geometry.height);
  }
};

// One that waits for its label: an index, and when it comes.
struct LabelTurn {
  float order;
  unsigned index;
  bool operator<(const LabelTurn& other) const {
    return order != other.order ? order < other.order : index < other.index;
  }
};

}  // namespace scene
