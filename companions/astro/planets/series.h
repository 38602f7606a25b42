// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The three sources of the positions of the solar system; planets.h says what each is good for. Nothing here keeps state.
#pragma once

namespace astro_internal {

// Position and velocity (au, au/day; the velocity may be null) on J2000 (ICRS) axes at a moment (Julian date, TT). The
// caller has looked after the range.
void PlanetSeriesState(int planet, double julianDateTT, double position[3], double velocity[3]);  // 1 to 8
void MoonSeriesState(double julianDateTT, double position[3],
                     double velocity[3]);                                      // about the Earth's centre
bool PlutoState(double julianDateTT, double position[3], double velocity[3]);  // false outside its table

}  // namespace astro_internal
