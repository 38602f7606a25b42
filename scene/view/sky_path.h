// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/view/view_geometry.h"

namespace scene {

// A straight stretch of the picture, pixels, y up.
struct DrawnLine {
  tPoint<double> from, to;
};

// Follows a path along the sky from point to point and gives the straight stretches of its picture. A stretch
// with an end more than a right angle from the view axis and outside the window is left out: its straight
// picture may have nothing to do with the arc. Makes no allocation; the geometry is kept by reference.
class SkyPath {
 public:
  explicit SkyPath(const ViewGeometry& geometry) : m_Geometry(geometry) {}

  // Goes on to a point, a direction on J2000 axes. True when `stretch` is the picture of the way from the
  // last point to this one, not yet clipped; false for the first point.
  bool GoTo(const Direction& direction, DrawnLine& stretch);
  // Clips in place to the window; false when nothing is left.
  bool Clip(DrawnLine& stretch) const;

 private:
  const ViewGeometry& m_Geometry;
  tPoint<double> m_Last{};
  bool m_LastUsable = false;
};

}  // namespace scene
