// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <limits>

#include "scene/view/view_geometry.h"

namespace scene {

// Which directions on J2000 axes can be seen in the window, asked before anything is known of a direction but
// itself: what may move it, air aside, is part of the margin. Makes no allocation.
class WindowReach {
 public:
  // All directions.
  constexpr WindowReach() = default;
  // Those that stand within `margin` radians, at most, of what is seen in the window.
  WindowReach(const ViewGeometry& geometry, const ObserverFrame& observer, double margin);

  // False only for what is certainly outside.
  bool MayHold(const Direction& direction) const {
    const double ahead = 1.0 + Dot(direction, m_Centre);
    return std::fabs(Dot(direction, m_Right)) <= m_Width * ahead + m_Margin &&
           std::fabs(Dot(direction, m_Up)) <= m_Height * ahead + m_Margin;
  }

 private:
  Direction m_Centre{}, m_Right{}, m_Up{};
  double m_Width = 0.0, m_Height = 0.0;  // the slopes of the sides
  double m_Margin = std::numeric_limits<double>::infinity();
};

}  // namespace scene
