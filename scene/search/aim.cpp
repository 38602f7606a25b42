// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/aim.h"

#include "astro/rise_set.h"
#include "scene/search/object_sight.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"

namespace scene {

void LookTo(const Standing& direction, CommonInterfaces::Camera& camera) {
  SphViewCoor angles;
  angles.lon = (360.0 - direction.azimuth) * kRadiansPerDegree;
  angles.lat = direction.altitude * kRadiansPerDegree;
  camera.SetBasePlane(kHorizonPlane);
  camera.SetRA_Dec(angles);
}

std::optional<Standing> AimAt(const FoundObject& object, SkyCatalogs& catalogs,
                              CommonInterfaces::Camera& camera, bool refraction) {
  if (!IsNearSurface(camera)) return std::nullopt;
  const SkyMoment moment = GetMoment(camera);
  const EarthPlace place = GetPlace(camera);
  ObservedBody seen;
  if (!ObjectSight(object, catalogs).Observe(moment, place, seen)) return std::nullopt;
  double axes[9];
  HorizonAxes(moment, place, axes);
  const auto there = astro::MakeHorizonPlace(axes, seen.apparent, 0.0);
  const double altitude = refraction ? LiftedAltitude(there.altitude) : there.altitude;
  const Standing direction = {there.azimuth / kRadiansPerDegree, altitude / kRadiansPerDegree};
  LookTo(direction, camera);
  return direction;
}

}  // namespace scene
