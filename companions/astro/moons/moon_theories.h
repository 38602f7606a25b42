// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The theories of the moons; astro/moons.h names them. Position and velocity (may be null) relative to the
// planet's centre, au and au/day, J2000 (ICRS) equatorial axes, at a Julian date (TT). The caller has looked
// after the number, and after the range of the planets. Nothing here keeps state.
#pragma once

namespace astro_internal {

// Two of Mars, four of Jupiter, eight of Saturn, five of Uranus: `moon` counts from 0 in the order of their
// numbers.
void MarsMoonState(int moon, double date, double position[3], double velocity[3]);
// False outside the range of the theory.
bool JupiterMoonState(int moon, double date, double position[3], double velocity[3]);
void SaturnMoonState(int moon, double date, double position[3], double velocity[3]);
void UranusMoonState(int moon, double date, double position[3], double velocity[3]);
void TritonState(double date, double position[3], double velocity[3]);
// From Pluto itself, not from the barycentre of the two.
void CharonState(double date, double position[3], double velocity[3]);

}  // namespace astro_internal
