// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/directions.h"

#include <cmath>

#include "astro/coordinates.h"
#include "astro/vectors.h"

namespace scene {

Direction MakeDirection(double lon, double lat) {
  Direction direction;
  sfp(1.0, lon, lat, direction.v);
  return direction;
}

Direction Normalised(const Direction& direction) {
  const double length = std::sqrt(Dot(direction, direction));
  if (length == 0.0) return direction;
  return {{direction.v[0] / length, direction.v[1] / length, direction.v[2] / length}};
}

}  // namespace scene
