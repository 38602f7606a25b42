// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/constants.h"

namespace astro_internal {

// An orbit in elements that stay regular where it is a circle or lies in the reference plane.
struct MoonOrbit {
  double gravity;    // of planet and moon; cubed length per squared day
  double axis;       // the semi-major axis, in that length
  double longitude;  // mean longitude, radians, from the reference direction over the node
  double k, h;       // eccentricity times cosine and sine of the longitude of the pericentre
  double q, p;       // sine of half the inclination times cosine and sine of the longitude of the node
};

// Position and velocity (may be null) on the axes of the reference plane. Eccentricities of moons: below 0.9.
void ToState(const MoonOrbit& orbit, double position[3], double velocity[3]);

constexpr double Radians(double degrees) { return degrees * astro::kRadiansPerDegree; }

// Turns a vector by an angle (radians): about the third axis, from the first towards the second; about the
// first axis, from the second towards the third.
void TurnAboutZ(double angle, double v[3]);
void TurnAboutX(double angle, double v[3]);

}  // namespace astro_internal
