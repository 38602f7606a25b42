// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Sun, the planets and the Moon from published series. Nothing here keeps state; every thread may call.
#pragma once

#include "astro/api.h"
#include "astro/object_id.h"

// Position (au) and velocity (au/day) of a body relative to the Sun at a moment (Julian date, TT), J2000 equatorial axes:
// "plnt" 1 to 9 (3 is the Earth's centre, 9 Pluto), "plnt" 10 (the Sun: zero), "moon" 301 (the Moon). The velocity may be
// null. False, and the results untouched, for any other body and outside the range of its series.
ASTRO_API bool ComputePlanetState(const SSO_ID& body, double julianDateTT, double position[3],
                                  double velocity[3]);

// The Moon relative to the Earth's centre, au and au/day, J2000 equatorial axes.
ASTRO_API bool ComputeMoonState(double julianDateTT, double position[3], double velocity[3]);

// Mean radius of "plnt" 1 to 10 and "moon" 301, km (IAU Working Group on Cartographic Coordinates, Archinal et al. 2018;
// the Sun: IAU 2015 Resolution B3); 0 for any other body.
ASTRO_API double GetBodyRadius(const SSO_ID& body);
