// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "companions/astro/model/magnitudes.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// A moon of the model that is not the Earth's.
bool IsFarMoon(const SSO_ID& id);

// About the Sun at a date (TT): position (au) and velocity (au/day; may be null). False outside the ranges;
// the results are then undefined.
bool FarMoonState(const SSO_ID& moon, double date, double position[3], double velocity[3]);

// A moon when the light left that arrives at the moment from its planet, and how it moves on from there: over
// the seconds by which its own light is earlier or later, straight on is good to some metres.
struct FarMoonPath {
  double lightTime;
  double position[3], velocity[3];  // about the Sun

  // Where it is some days before the moment.
  bool operator()(double days, double place[3]) const {
    for (int i = 0; i < 3; ++i) place[i] = position[i] + (lightTime - days) * velocity[i];
    return true;
  }
};

// False where there is no such moon, or the moment is out of range. The planet is computed once a moment.
bool MakeFarMoonPath(const Moment& moment, const SSO_ID& moon, FarMoonPath& path);

// Visual magnitude; kUnknownStarMagnitude where there is none.
double FarMoonMagnitude(const SSO_ID& moon, const Illumination& light);

}  // namespace astro_internal
