// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Artificial satellites over the horizon of a place, in the sunlight or in the Earth's shadow. Nothing here
// allocates.
#pragma once

#include "astro/api.h"
#include "astro/horizon_frame.h"
#include "astro/satellite.h"

namespace astro {

// Whether sunlight reaches a satellite: the Earth, a ball of its mean radius, does not hide the Sun's centre
// from it. `satellite` from the Earth's centre in km, `sun` in any unit, both on the same axes. The
// atmosphere is left out: a low satellite enters and leaves the shadow within some 10 seconds of what this
// says. Every thread may call.
ASTRO_API bool IsSunlit(const double satellite[3], const double sun[3]);

// The same as an angle, radians: how far the Sun's centre stands from the Earth's limb as the satellite sees
// them, negative behind it.
ASTRO_API double SunlightMargin(const double satellite[3], const double sun[3]);

// Where a satellite is at a moment: from the Earth's centre, km, J2000 (ICRS) axes. `epoch`: of its elements,
// Julian date in Universal Time. False, and the result untouched, when the model cannot tell. One thread at a
// time for one satellite.
ASTRO_API bool GetSatellitePosition(const SatelliteModel& satellite, double epoch, const SkyMoment& moment,
                                    double position[3]);

// A point of the path of a satellite over the sky of a place.
struct SatellitePlace {
  double direction[3] = {0.0, 0.0, 0.0};  // unit vector: x north, y west, z zenith; geometric
  bool known = false;                     // else nothing else holds
  bool sunlit = false;
};

// `sun`: its direction from the Earth's centre, J2000 (ICRS) axes, any length. It may be that of another
// moment of the same hour: in an hour the Sun moves by two and a half minutes of arc.
ASTRO_API SatellitePlace FindSatellitePlace(const SatelliteModel& satellite, double epoch,
                                            const SkyMoment& moment, const EarthPlace& place,
                                            const double sun[3]);

}  // namespace astro
