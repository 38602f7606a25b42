// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/picture_axes.h"

#include <cmath>

namespace scene {

PictureAxes FindPictureAxes(const ViewGeometry& geometry) {
  constexpr double kStep = 1e-4;  // radians
  const double* const v = geometry.centreJ2000.v;
  const double aside = std::hypot(v[0], v[1]);
  // Where the meridian of the centre is; at a pole any one.
  const double x = aside > 1e-9 ? v[0] / aside : -1.0, y = aside > 1e-9 ? v[1] / aside : 0.0;
  const Direction north = {{-x * v[2], -y * v[2], aside}}, east = {{-y, x, 0.0}};
  const auto here = geometry.Project(geometry.centreJ2000, SkyFrameOf::kJ2000);
  const auto towards = [&](const Direction& along) -> tPoint<double> {
    const auto there = geometry.Project(
        Normalised({{v[0] + kStep * along.v[0], v[1] + kStep * along.v[1], v[2] + kStep * along.v[2]}}),
        SkyFrameOf::kJ2000);
    const double length = std::max(std::hypot(there.x - here.x, there.y - here.y), 1e-12);
    return {(there.x - here.x) / length, (here.y - there.y) / length};
  };
  return {towards(north), towards(east)};
}

}  // namespace scene
