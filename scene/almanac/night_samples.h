// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/sky_brightness.h"
#include "scene/almanac/night_plan.h"
#include "scene/view/directions.h"

namespace scene {

// The sky of one of the moments at which a night is looked at.
struct NightSample {
  SkyMoment moment;
  double axes[9];  // HorizonAxes
  astro::SkyBrightness sky;
  Direction sun, moon;  // apparent, J2000 axes

  double GetAltitude(const Direction& direction) const;
  // Of the sky behind a direction at an altitude.
  double GetLuminance(const Direction& direction, double altitude) const;
};

// Over the dark part of a night, a quarter of an hour apart at most; none without one, and where nobody can
// tell where Sun and Moon are.
std::vector<NightSample> MakeNightSamples(const NightPlan& plan, const EarthPlace& place);

}  // namespace scene
