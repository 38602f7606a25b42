// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "companions/astro/model/magnitudes.h"
#include "companions/astro/model/moment.h"
#include "companions/astro/model/planet_path.h"

namespace astro_internal {

// A moon of the model that is not the Earth's.
bool IsFarMoon(const SSO_ID& id);

// About the Sun at a date (TT): position (au) and velocity (au/day; may be null). False outside the ranges;
// the results are then undefined.
bool FarMoonState(const SSO_ID& moon, double date, double position[3], double velocity[3]);

// False where there is no such moon, or the moment is out of range. Over the seconds by which its own light
// is earlier or later than its planet's the moon goes straight on to some metres.
bool MakeFarMoonPath(const Moment& moment, const SSO_ID& moon, StraightPath& path);

// Visual magnitude; kUnknownStarMagnitude where there is none.
double FarMoonMagnitude(const SSO_ID& moon, const Illumination& light);

}  // namespace astro_internal
