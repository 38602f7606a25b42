// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/object_id.h"
#include "scene/api.h"
#include "scene/view/earth_observer.h"

namespace scene {

// A moon beside its planet as the Earth's centre sees it.
struct MoonPathPoint {
  float offset;  // along the planet's equator, in its equatorial radii, positive to the west
  bool hidden;   // behind the planet or in its shadow
};

// The way of one moon beside its planet.
struct MoonPath {
  SSO_ID moon;
  std::vector<MoonPathPoint> points;  // at `first`, `step` days later, ...
};

// The paths of Jupiter's four large moons, from the innermost to the outermost, over that many days from
// `first`, the last point at their end. None where nobody can tell where they are (astro/moons.h has the
// range), and for a span or a step that is not above 0. Allocates; every thread may call.
SCENE_API std::vector<MoonPath> MakeJupiterMoonPaths(const SkyMoment& first, double days, double step);

}  // namespace scene
