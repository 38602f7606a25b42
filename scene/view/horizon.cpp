// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/horizon.h"

namespace scene {

void AppendAltitudeCircle(double altitude, std::vector<Direction>& points) {
  for (std::size_t i = 0; i < kAltitudeCirclePoints; ++i) {
    points.push_back(MakeDirection(static_cast<double>(i) * 2.0 * kPi / kAltitudeCirclePoints, altitude));
  }
}

}  // namespace scene
