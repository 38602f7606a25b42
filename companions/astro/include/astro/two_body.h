// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Undisturbed motion about one body. Nothing here keeps state; every thread may call.
#pragma once

#include "astro/api.h"
#include "astro/object_records.h"

// The Gaussian gravitational constant, au^1.5 / day: the square root of the Sun's gravitational parameter
// (Gauss 1809; IAU 1976 System of Astronomical Constants).
inline constexpr double kGaussianConstant = 0.01720209895;

// Solves Kepler's equation E - e sin E = M for the eccentric anomaly: 0 <= e < 1, M any number of
// radians. The result is in the same turn as M.
ASTRO_API double SolveKeplerEllipse(double e, double meanAnomaly);

// Solves e sinh H - H = M for e > 1.
ASTRO_API double SolveKeplerHyperbola(double e, double meanAnomaly);

// Solves Barker's equation tan(nu/2) + tan(nu/2)^3 / 3 = M for the true anomaly nu, -pi to pi.
ASTRO_API double SolveBarker(double meanAnomaly);

// The unit vectors of an orbit's plane: P towards the pericentre, Q a quarter turn ahead in the sense of
// motion; in equatorial J2000 axes for elements that count from the ecliptic J2000. What stays the same from
// frame to frame, so that advancing an orbit costs one solution of Kepler's equation.
struct OrbitPlane {
  double p[3];
  double q[3];
};
ASTRO_API OrbitPlane MakeOrbitPlane(const OrbitalElements& elements);

// Position (au) and velocity (au/day) relative to the central body at a moment (Julian date, TT), equatorial
// J2000 axes. Elliptic, parabolic and hyperbolic orbits and all between, the near-parabolic ones without loss
// of digits. False, and the results untouched, for elements that describe no orbit (a <= 0, e < 0, n <= 0,
// numbers that are not finite). The velocity may be null.
ASTRO_API bool ComputeTwoBodyState(const OrbitalElements& elements, const OrbitPlane& plane,
                                   double julianDateTT, double position[3], double velocity[3]);
