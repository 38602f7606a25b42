// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro_internal {

// A place in spherical coordinates and how fast each of them changes, per any unit of time.
struct SphericalState {
  double longitude = 0.0, latitude = 0.0, distance = 0.0;              // radians, any length
  double longitudeRate = 0.0, latitudeRate = 0.0, distanceRate = 0.0;  // the same per unit of time
};

// The same in rectangular axes. The velocity may be null.
void ToRectangular(const SphericalState& state, double position[3], double velocity[3]);

}  // namespace astro_internal
