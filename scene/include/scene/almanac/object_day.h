// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// An object's way over the horizon of a place.
#pragma once

#include <optional>

#include "astro/rise_set.h"
#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/search/object_sight.h"

namespace scene {

// Where the object stands at a moment, and the altitude at which it rises and sets: discs of the solar system
// with their upper limb, stars and deep-sky objects with their centre. Nothing when nobody can tell.
SCENE_API std::optional<astro::HorizonPlace> FindPlaceOverHorizon(ObjectSight& sight, const SkyMoment& moment,
                                                                  const EarthPlace& place);

// Rise, transit and set on the day of the camera, from midnight to midnight by the clocks of its zone; the
// next day stands for an event that the day lacks. Of a satellite (`kind` "scft") those of one pass, that
// which is on or the first of the next 24 hours, with its highest point in place of the transit. The camera
// is near the Earth's surface (IsNearSurface).
SCENE_API astro::RiseTransitSet FindObjectDay(ObjectSight& sight, int kind,
                                              const CommonInterfaces::Camera& camera);

}  // namespace scene
