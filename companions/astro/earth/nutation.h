// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro_internal {

// Nutation, IAU 2000B: the abridged series of 77 luni-solar terms of McCarthy & Luzum 2003 (Celestial
// Mechanics and Dynamical Astronomy 85, 37), with the fixed offsets that stand for the planetary terms where
// frame bias, precession and nutation are applied one after the other. Within 0.001 arc second of the full
// series from 1995 to 2050.
struct Nutation {
  double longitude = 0.0;      // radians, in the ecliptic of date
  double obliquity = 0.0;      // radians
  double ascendingNode = 0.0;  // radians, mean longitude of the Moon's node, not reduced to one turn
};

// `centuries`: Julian centuries of dynamical time (TT) from J2000.0.
Nutation NutationAt(double centuries);

}  // namespace astro_internal
