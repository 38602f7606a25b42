// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How the air lifts what is seen through it. Model and accuracy: docs/refraction.md.
#pragma once

#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

// The sine of the true altitude that is seen on the horizon, of -34 minutes of arc: astro::GetRiseAltitude of
// a point.
inline constexpr double kRisingSine = -0.0098900381;

// What the air adds to the sine of a true altitude (-1 to 1) before the sum is divided by the unchanged
// cosine: the library's table (common_interfaces/refraction.h), of which the lowest three degrees are reduced
// so that things rise when almanacs say so. Continuous, and nothing changes places: who is higher without air
// is higher with it. From 1.4 degrees below the horizon it fades away over fourteen degrees. Any thread.
SCENE_API double FindAirLift(double sineOfAltitude);

// Of unit vectors in the horizon frame: from where a thing stands to where it is seen, and back.
SCENE_API Direction Lifted(const Direction& standing);
SCENE_API Direction Lowered(const Direction& seen);

// The same of altitudes, radians.
SCENE_API double LiftedAltitude(double altitude);
SCENE_API double LoweredAltitude(double altitude);

}  // namespace scene
