// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/planets/spherical_state.h"

#include <cmath>

namespace astro_internal {

void ToRectangular(const SphericalState& state, double position[3], double velocity[3]) {
  const double cosLon = std::cos(state.longitude), sinLon = std::sin(state.longitude);
  const double cosLat = std::cos(state.latitude), sinLat = std::sin(state.latitude);
  const double towards[3] = {cosLat * cosLon, cosLat * sinLon, sinLat};
  for (int i = 0; i < 3; ++i) position[i] = state.distance * towards[i];
  if (velocity == nullptr) return;
  const double alongLon = state.distance * state.longitudeRate;
  const double alongLat = state.distance * state.latitudeRate;
  velocity[0] = state.distanceRate * towards[0] - alongLon * cosLat * sinLon - alongLat * sinLat * cosLon;
  velocity[1] = state.distanceRate * towards[1] + alongLon * cosLat * cosLon - alongLat * sinLat * sinLon;
  velocity[2] = state.distanceRate * towards[2] + alongLat * cosLat;
}

}  // namespace astro_internal
