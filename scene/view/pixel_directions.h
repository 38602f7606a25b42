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

 private:
  tPoint<double> m_Middle;
  double m_Scale;
  Direction m_Centre, m_Right, m_Up;  // unit vectors at right angles to each other
};

}  // namespace scene
