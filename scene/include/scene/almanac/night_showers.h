// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/almanac/night_plan.h"
#include "scene/api.h"

namespace scene {

// A shower in a night.
struct NightShower {
  int shower;          // its place in astro::GetVisualShowers (astro/meteor_showers.h)
  NightSight radiant;  // where most meteors are seen
  double rate = 0.0;   // meteors an hour then
  double toPeak =
      0.0;  // radians of solar longitude to the maximum, a degree is about a day; negative behind it
};

// The showers of a night that show a meteor in two hours or more when they are best, the most first. The
// rate is that of the maximum at the zenith, falling to a tenth within some degrees of solar longitude
// before and behind it (Jenniskens 1994, A&A 287, 990, in rounded numbers; ten degrees where he has none),
// times the sine of the radiant's altitude, times the population index to the power of what sky and air at
// the zenith leave of stars of magnitude 6.5. Allocates; every thread may call.
SCENE_API std::vector<NightShower> FindNightShowers(const NightPlan& plan, const EarthPlace& place);

}  // namespace scene
