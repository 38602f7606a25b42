// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/view/view_geometry.h"

namespace scene {

// The directions that pixels stand for: the projection the other way. Makes no allocation.
class PixelDirections {
 public:
  // Directions are given in that frame; those of J2000 are apparent ones.
  explicit PixelDirections(const ViewGeometry& geometry, SkyFrameOf frame = SkyFrameOf::kHorizon);

  // The pixel counts from the bottom upwards and may lie outside the window.
  Direction Find(const tPoint<double>& pixel) const;
  // The same as a vector of any length but 0.
  Direction FindOfAnyLength(const tPoint<double>& pixel) const {
    const double x = (pixel.x - m_Middle.x) * m_PerPixel, y = (pixel.y - m_Middle.y) * m_PerPixel;
    const double ahead = 1.0 - x * x - y * y;  // x and y are parts of the tangent of half the angle
    Direction direction;
    for (int i = 0; i < 3; ++i)
      direction.v[i] = ahead * m_Centre.v[i] + 2.0 * (x * m_Right.v[i] + y * m_Up.v[i]);
    return direction;
  }
  // Unit vectors at right angles to the view axis.
  const Direction& GetRight() const { return m_Right; }
  const Direction& GetUp() const { return m_Up; }

 private:
  tPoint<double> m_Middle;
  double m_PerPixel;                  // the inverse of the scale
  Direction m_Centre, m_Right, m_Up;  // unit vectors at right angles to each other
};

}  // namespace scene
