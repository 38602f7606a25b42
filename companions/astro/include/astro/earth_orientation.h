// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The frames that an observer on the Earth needs. Matrices take components of the first frame into the second:
// v2 = MV3prod(M, v1).
#pragma once

#include "astro/api.h"

// Catalogue frame (J2000, ICRS axes) to true equator and equinox of date: frame bias, precession, nutation.
// julianDateTT: Julian date in dynamical time.
ASTRO_API void PrecessionNutationMatrix(double julianDateTT, double m[9]);

// Mean obliquity of the ecliptic of date, radians.
ASTRO_API double MeanObliquity(double julianDateTT);

// Greenwich apparent sidereal time in radians, [0, 2 pi). The moment is given in Universal Time (UT1) as day number
// and fraction; deltaT is TT - UT1 in seconds (ET_UT::Get).
ASTRO_API double ApparentSiderealTime(int julianDay, double fraction, double deltaT);

// True equator and equinox of date to the horizon frame of a place: x to the north point, y to the west point, z to
// the zenith, so that the longitude is 2 pi - azimuth and the latitude the altitude. localSiderealTime is the
// apparent one of Greenwich plus the longitude (east positive); latitude is geodetic.
ASTRO_API void HorizonMatrix(double localSiderealTime, double latitude, double m[9]);

// Velocity of the Earth's centre relative to the barycentre of the solar system, in units of the speed of light,
// J2000 axes.
ASTRO_API void EarthVelocity(double julianDateTT, double v[3]);

// Annual aberration: the direction in which an observer moving with `velocity` (units of the speed of light) sees a
// light source whose direction is the unit vector `direction`. The result is a unit vector; it may be the same
// array.
ASTRO_API void Aberration(const double direction[3], const double velocity[3], double apparent[3]);
