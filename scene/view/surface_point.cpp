// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/surface_point.h"

#include "astro/constants.h"

namespace scene {

// The rows of the matrix are the body's axes.
Direction FindSurfaceDirection(const double point[3], const double toBody[9], const ObservedBody& body) {
  Direction there;
  for (int i = 0; i < 3; ++i) {
    const double away = toBody[i] * point[0] + toBody[3 + i] * point[1] + toBody[6 + i] * point[2];
    there.v[i] = body.apparent[i] * body.distance + away / astro::kKilometresPerAu;
  }
  return Normalised(there);
}

}  // namespace scene
