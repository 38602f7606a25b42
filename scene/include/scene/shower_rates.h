// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How many meteors a shower shows.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/night_plan.h"
#include "scene/showers.h"

namespace scene {

// A shower at its strongest.
struct ShowerStrength {
  double solarLongitude;   // of the maximum: the Sun's ecliptic longitude, degrees, J2000
  double zenithRate;       // ZHR: meteors an hour under a sky of magnitude 6.5, the radiant in the zenith
  double populationIndex;  // how many times more meteors there are one magnitude fainter
  double slope;            // the rate falls to a tenth within 1 / slope degrees of longitude
};

// Of the code of the International Astronomical Union, "PER". Nothing for showers that nobody counts by the
// hour. Static data; every thread may call.
SCENE_API std::optional<ShowerStrength> FindShowerStrength(std::string_view code);

// A shower in a night.
struct NightShower {
  int shower;           // index in the list
  NightSight radiant;   // where most meteors are seen
  double rate = 0.0;    // meteors an hour then
  double toPeak = 0.0;  // degrees of solar longitude to the maximum, about days; negative behind it
};

// The showers of a night that show a meteor in two hours or more when they are best, the most first. The rate
// is that of the zenith, less on the days beside the maximum, times the sine of the radiant's altitude and
// the population index to the power of what the sky at the zenith leaves of magnitude 6.5 (Koschack & Rendtel
// 1990, WGN 18, 44). Allocates; every thread may call.
SCENE_API std::vector<NightShower> FindNightShowers(const NightPlan& plan, const EarthPlace& place,
                                                    const std::vector<Shower>& showers);

}  // namespace scene
