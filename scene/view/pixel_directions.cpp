// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/pixel_directions.h"

#include <cmath>

namespace scene {
namespace {

// Of the axes the one that lies farthest from the direction.
Direction FindAside(const Direction& direction) {
  int farthest = 0;
  for (int i = 1; i < 3; ++i) {
    if (std::fabs(direction.v[i]) < std::fabs(direction.v[farthest])) farthest = i;
  }
  Direction axis = {};
  axis.v[farthest] = 1.0;
  Direction aside;
  Vprod(direction.v, axis.v, aside.v);
  return Normalised(aside);
}

Direction Mix(const Direction& a, double ofA, const Direction& b, double ofB) {
  Direction mixed;
  for (int i = 0; i < 3; ++i) mixed.v[i] = a.v[i] * ofA + b.v[i] * ofB;
  return mixed;
}

}  // namespace

// The camera may be turned about its axis: two directions beside it show where right and up are.
PixelDirections::PixelDirections(const ViewGeometry& geometry, SkyFrameOf frame)
    : m_Middle{0.5 * geometry.width, 0.5 * geometry.height},
      m_PerPixel(1.0 / geometry.scale),
      m_Centre(Normalised(frame == SkyFrameOf::kJ2000 ? geometry.centreJ2000 : geometry.centreHorizon)) {
  constexpr double kStep = 1e-3;  // radians
  const Direction aside = FindAside(m_Centre);
  Direction across;
  Vprod(m_Centre.v, aside.v, across.v);
  const auto place = [&](const Direction& towards) {
    const auto p = geometry.Project(Normalised(Mix(m_Centre, 1.0, towards, kStep)), frame);
    const tPoint<double> offset = {p.x - m_Middle.x, p.y - m_Middle.y};
    const double length = std::hypot(offset.x, offset.y);
    return tPoint<double>{offset.x / length, offset.y / length};
  };
  const auto a = place(aside), b = place(across);
  m_Right = Mix(aside, a.x, across, b.x);
  m_Up = Mix(aside, a.y, across, b.y);
}

Direction PixelDirections::Find(const tPoint<double>& pixel) const {
  return Normalised(FindOfAnyLength(pixel));
}

}  // namespace scene
