// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/arcs.h"

#include <cmath>

#include "astro/vectors.h"

namespace scene {

void AppendArc(Direction a, Direction b, double maxAngle, std::vector<Direction>& points) {
  const double angle = VectorsAngle(a.v, b.v);
  const int pieces = static_cast<int>(std::ceil(angle / maxAngle));
  for (int i = 1; i < pieces; ++i) {
    const double part = angle * i / pieces;
    const double wa = std::sin(angle - part), wb = std::sin(part);
    Direction point;
    for (int k = 0; k < 3; ++k) point.v[k] = wa * a.v[k] + wb * b.v[k];
    points.push_back(Normalised(point));
  }
  points.push_back(b);
}

}  // namespace scene
