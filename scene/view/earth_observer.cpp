// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/earth_observer.h"

#include "astro/constants.h"

namespace scene {

SkyMoment GetMoment(const CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return MakeMoment(time.day, time.fraction);
}

EarthPlace GetPlace(const CommonInterfaces::Camera& camera) {
  const SphCoor& location = camera.GetLocation();
  return {location.lon, location.lat, location.dist * astro::kMetresPerAu};
}

}  // namespace scene
