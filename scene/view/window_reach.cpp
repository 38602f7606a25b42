// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/window_reach.h"

#include <algorithm>
#include <cmath>

#include "scene/view/pixel_directions.h"

namespace scene {
namespace {

// The most that the air lifts anything in the window, radians. Below a sine of -0.024 the lift falls again;
// up to there it grows, or falls by less than a tenth.
double FindMostLift(const ViewGeometry& geometry) {
  constexpr double kLowest = -0.024, kMore = 1.1;
  if (!geometry.air) return 0.0;
  const double altitude = std::asin(std::clamp(geometry.centreHorizon.v[2], -1.0, 1.0));
  const double lowest = std::max(altitude - geometry.cornerAngle, -0.5 * kPi);
  return kMore * FindAirLift(std::max(std::sin(lowest), kLowest));
}

Direction Turned(const Direction& direction, const ObserverFrame& observer, double factor) {
  Direction turned;
  V3Mprod(direction.v, observer.reduction, turned.v);
  for (double& component : turned.v) component *= factor;
  return turned;
}

}  // namespace

// A direction whose cosine from the view axis is z and that stands x to the right lies within the right edge
// while scale x <= (1 + z) half the width. That is linear in the direction; divided by its slope it changes
// by no more than the angle by which the direction turns.
WindowReach::WindowReach(const ViewGeometry& geometry, const ObserverFrame& observer, double margin)
    : m_Margin(margin + FindMostLift(geometry)) {
  const PixelDirections directions(geometry);
  const double right = std::hypot(geometry.scale, 0.5 * geometry.width),
               up = std::hypot(geometry.scale, 0.5 * geometry.height);
  m_Centre = Turned(geometry.centreHorizon, observer, 1.0);
  m_Right = Turned(directions.GetRight(), observer, geometry.scale / right);
  m_Up = Turned(directions.GetUp(), observer, geometry.scale / up);
  m_Width = 0.5 * geometry.width / right;
  m_Height = 0.5 * geometry.height / up;
}

}  // namespace scene
