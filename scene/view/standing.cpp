// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/standing.h"

#include <cmath>

#include "astro/coordinates.h"

namespace scene {

Standing FindStanding(const Direction& apparent, const ObserverFrame& observer) {
  double longitude = 0.0, latitude = 0.0;
  psf(SeenDirection(apparent, observer).v, 1.0, longitude, latitude);
  // A hair below the full turn would be printed as 360.0.
  const double turned = observer.horizon ? std::fmod(2.0 * kPi - longitude, 2.0 * kPi) : longitude;
  const double azimuth = turned / kRadiansPerDegree;
  return {azimuth >= 359.95 ? 0.0 : azimuth, latitude / kRadiansPerDegree};
}

}  // namespace scene
