// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The moons of the planets from published theories. Nothing here keeps state or allocates; every thread may
// call. Julian dates are in dynamical time (TT); positions in astronomical units and velocities in au/day on
// J2000 (ICRS) equatorial axes, geometric: no light time, no aberration. docs/solar_system.md has the
// accuracy as measured.
//
//   Io to Callisto      L1.2 (Lainey, Duriez & Vienne 2006), the years 1131 to 2762
//   Mimas to Iapetus    TASS 1.7 (Vienne & Duriez 1995)
//   Miranda to Oberon   GUST86 (Laskar & Jacobson 1987)
//   Phobos, Deimos      Sinclair 1989
//   Triton              Emelyanov & Samorodov 2015
//   Charon              uniform circular motion in the plane of Pluto's equator (Archinal et al. 2018)
//   the Moon            ComputeMoonState
#pragma once

#include <span>

#include "astro/api.h"
#include "astro/constants.h"
#include "astro/object_id.h"

namespace astro {

// The numbers of the moons of a planet ("plnt" 1 to 9) that the functions below know, from the innermost to
// the outermost; none for other numbers.
ASTRO_API std::span<const int> GetMoonsOfPlanet(int planet);

// Whether the body is a moon that the functions below know.
ASTRO_API bool IsMoonOfPlanet(const SSO_ID& body);

// The planet of a moon.
constexpr SSO_ID PlanetOfMoon(const SSO_ID& moon) { return SSO_ID(kPlanetKind, moon.number / 100); }

// A moon relative to the centre of its planet. The velocity may be null; it is that of the osculating orbit.
// False, and the results untouched, for a moon that is not known, and outside the range of its theory or that
// of the planets (kFirstPlanetDate to kLastPlanetDate).
ASTRO_API bool ComputeMoonOfPlanet(const SSO_ID& moon, double julianDateTT, double position[3],
                                   double velocity[3]);

}  // namespace astro
