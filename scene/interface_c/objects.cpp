// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstddef>
#include <limits>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/rise_set.h"
#include "scene/interface_c/sky.h"
#include "scene/search/aim.h"
#include "scene/search/object_sight.h"
#include "scene/search/pick.h"
#include "scene/view/base_plane.h"
#include "scene/view/earth_observer.h"

namespace {

using scene::kRadiansPerDegree;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

int FailObject(SceneSky& sky, const SceneObject& object, const char* why) {
  return scene::Fail(sky, SCENE_NOT_FOUND,
                     scene::GetCodeText(object.kind) + " " + std::to_string(object.number) + ": " + why);
}

void SetPlace(const double v[3], double& rightAscension, double& declination) {
  psf(v, 1.0, rightAscension, declination);
  rightAscension /= kRadiansPerDegree;
  declination /= kRadiansPerDegree;
}

SceneSight Describe(const ObservedBody& seen, const scene::SkyMoment& moment,
                    const scene::EarthPlace& place) {
  SceneSight sight = {};
  SetPlace(seen.astrometric, sight.right_ascension, sight.declination);
  double orientation[9], ofDate[3], axes[9];
  PrecessionNutationMatrix(moment.julianDateTT, orientation);
  MV3prod(orientation, seen.apparent, ofDate);
  SetPlace(ofDate, sight.right_ascension_of_date, sight.declination_of_date);
  scene::HorizonAxes(moment, place, axes);
  const auto stands = astro::MakeHorizonPlace(axes, seen.apparent, 0.0);
  sight.azimuth = stands.azimuth / kRadiansPerDegree;
  sight.altitude = stands.altitude / kRadiansPerDegree;
  const bool isOfSystem = seen.sunDistance > 0.0;
  sight.distance = seen.distance > 0.0 ? seen.distance : kUnknown;
  sight.magnitude = seen.magnitude < kUnknownStarMagnitude ? seen.magnitude : kUnknown;
  sight.diameter = seen.angularRadius > 0.0 ? 2.0 * seen.angularRadius / kRadiansPerDegree : kUnknown;
  sight.phase_angle = isOfSystem ? seen.phaseAngle / kRadiansPerDegree : kUnknown;
  sight.elongation = seen.elongation / kRadiansPerDegree;
  return sight;
}

}  // namespace

int scene_find(SceneSky* sky, const char* name, SceneObject* object) {
  return scene::Call(sky, [&] {
    if (!name || !object)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a name and a place for the object");
    std::string error;
    const auto found = sky->GetSearch().FindOne(name, error);
    if (!found) return scene::Fail(*sky, SCENE_NOT_FOUND, error);
    *object = scene::NameObject(*found, *sky);
    return static_cast<int>(SCENE_OK);
  });
}

const char* scene_get_title(SceneSky* sky, SceneObject object) {
  const int status = scene::Call(sky, [&] {
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    sky->title = sky->GetSearch().GetTitle(*found);
    return static_cast<int>(SCENE_OK);
  });
  return status == SCENE_OK ? sky->title.c_str() : nullptr;
}

int scene_pick(SceneSky* sky, double x, double y, double tolerance, SceneObject* objects, int32_t capacity,
               int32_t* count) {
  return scene::Call(sky, [&] {
    if (!count || capacity < 0 || (capacity > 0 && !objects))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants room for objects and for their count");
    if (!std::isfinite(x) || !std::isfinite(y) || !(tolerance >= 0.0))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a pixel and a tolerance from 0 on");
    const auto hits = scene::PickObjects(sky->maker->GetFrame().GetDisplayList(), x, y, tolerance);
    *count = static_cast<int32_t>(hits.size());
    for (int32_t i = 0; i < std::min(capacity, *count); ++i) {
      const scene::ObjectRef& object = hits[static_cast<std::size_t>(i)].object;
      objects[i] = {object.kind, object.number};
    }
    return static_cast<int>(SCENE_OK);
  });
}

int scene_look_at(SceneSky* sky, SceneObject object) {
  return scene::Call(sky, [&] {
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    if (scene::AimAt(*found, sky->catalogs, sky->camera, sky->shown.refraction))
      return static_cast<int>(SCENE_OK);
    return FailObject(*sky, object, "nobody can tell where it is at that moment from there");
  });
}

int scene_observe(SceneSky* sky, SceneObject object, SceneSight* sight) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(sight, offsetof(SceneSight, elongation) + sizeof sight->elongation))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the sight is null or its size too small");
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    const scene::SkyMoment moment = scene::GetMoment(sky->camera);
    const scene::EarthPlace place = scene::GetPlace(sky->camera);
    ObservedBody seen;
    if (!scene::IsNearSurface(sky->camera) ||
        !scene::ObjectSight(*found, sky->catalogs).Observe(moment, place, seen))
      return FailObject(*sky, object, "nobody can tell where it is at that moment from there");
    scene::Give(Describe(seen, moment, place), sight);
    return static_cast<int>(SCENE_OK);
  });
}
