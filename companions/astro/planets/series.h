// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The three sources of the positions of the solar system; planets.h says what each is good for. Nothing here
// keeps state.
#pragma once

namespace astro_internal {

// Position and velocity (au, au/day; the velocity may be null) on J2000 (ICRS) axes at a moment (Julian date,
// TT). The caller has looked after the range.

// Planets 1 to 8, about the Sun.
void PlanetSeriesState(int planet, double julianDateTT, double position[3], double velocity[3]);

// About the Earth's centre.
void MoonSeriesState(double julianDateTT, double position[3], double velocity[3]);

// About the Sun; false outside its table.
bool PlutoState(double julianDateTT, double position[3], double velocity[3]);

}  // namespace astro_internal
