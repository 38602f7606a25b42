// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Sun, the planets and the Moon from published series. Nothing here keeps state; every thread may call.
// Julian dates are in dynamical time (TT); positions in astronomical units and velocities in au/day on J2000
// (ICRS) equatorial axes, geometric: no light time, no aberration. docs/solar_system.md has the accuracy as
// measured.
//
//   Mercury to Neptune   VSOP87B (Bretagnon & Francou 1988), shortened: within 4 arc seconds of DE405 from
//                        1900 to 2100 and 8 from 1600 to 2200, as the Sun sees them. Over those years Venus,
//                        Earth and Mars are within 1 of the whole series; so is Mercury at 99 of 100 dates,
//                        and at worst within 2
//   Moon                 ELP 2000-82B (Chapront-Touze & Chapront 1983), shortened: within 2 arc seconds of
//                        DE405 from 1960 to 2059
//   Pluto                a numerical integration fitted to DE405: within 0.1 arc second of it, as the Sun
//                        sees it; 1600 to 2200 only. DE405 ends with the observations of the 1990s: with
//                        later ones Pluto stands up to 3 arc seconds elsewhere by the end of this century
#pragma once

#include "astro/api.h"
#include "astro/object_id.h"

// The range of the series: the Julian years -3000 to 3000. What was cut off the series stays below 25 arc
// seconds even at the ends; the theories themselves are stated to be good to 1 arc second over 2000 (Jupiter,
// Saturn) to 4000 years from J2000.0, and drift beyond.
inline constexpr double kFirstPlanetDate = 625295.0;
inline constexpr double kLastPlanetDate = 2816795.0;

// A body relative to the Sun: "plnt" 1 to 9 (3 is the Earth's centre, not the barycentre with the Moon; 9 is
// Pluto's system), "plnt" 10 (the Sun: zero), "moon" 301 (the Moon). The velocity may be null, which saves
// half the time. False, and the results untouched, for any other body, outside the range of its series, and
// for a date that is not a number.
ASTRO_API bool ComputePlanetState(const SSO_ID& body, double julianDateTT, double position[3],
                                  double velocity[3]);

// The Moon relative to the Earth's centre; the rest as above.
ASTRO_API bool ComputeMoonState(double julianDateTT, double position[3], double velocity[3]);

// Mean radius of "plnt" 1 to 10 and of the moons in rotation.h, km (IAU Working Group on Cartographic
// Coordinates, Archinal et al. 2018; the Sun: IAU 2015 Resolution B3); of moons that of the ball with the
// same volume. 0 for any other body.
ASTRO_API double GetBodyRadius(const SSO_ID& body);
