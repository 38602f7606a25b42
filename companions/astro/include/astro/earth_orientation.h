// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The frames that an observer on the Earth needs. Matrices take components of the first frame into the
// second: v2 = MV3prod(M, v1). Nothing here fails or keeps state; every thread may call. Numbers that are not
// finite give results that are not finite.
//
// Julian dates are in dynamical time (TT); a double holds them to 0.00004 second.
#pragma once

#include <cmath>

#include "astro/api.h"
#include "astro/vectors.h"

// Catalogue frame (J2000, ICRS axes) to true equator and equinox of date: frame bias and precession IAU 2006
// (Hilton et al. 2006), nutation IAU 2000B (McCarthy & Luzum 2003, 77 terms). Within 0.003 arc second of the
// full IAU 2006/2000A model over 1900 to 2100, 0.01 over 1700 to 2300. Farther away the polynomials drift
// from the long-term theory of Vondrak, Capitaine & Wallace 2011: by less than 1 arc second in the year 0, 20
// in -3000, 90 in -5000; 5 in 5000, 250 in 10000.
ASTRO_API void PrecessionNutationMatrix(double julianDateTT, double m[9]);

// Catalogue frame to the ecliptic and the true equinox of date, with the precession and the nutation of
// above; turned about the equinox by the true obliquity of date it is the matrix above.
ASTRO_API void TrueEclipticMatrix(double julianDateTT, double m[9]);

// Mean obliquity of the ecliptic of date, radians, IAU 2006 (Hilton et al. 2006): a polynomial of the fifth
// degree, to be trusted for some thousands of years around 2000.
ASTRO_API double MeanObliquity(double julianDateTT);

// Greenwich apparent sidereal time in radians, [0, 2 pi), IAU 2006 with the nutation above. The moment is
// given in Universal Time (UT1) as day number and fraction; deltaT is TT - UT1 in seconds (ET_UT::Get).
// Within 0.0002 second of time of the full model, IAU 2006/2000A, over 1900 to 2100, 0.0005 over 1700 to 2300
// and 0.1 over -3000 to 3000: what the abridged nutation leaves. The models of before are others: that of IAU
// 2000 is up to 0.0005 second from this one over 1900 to 2100, that of 1994 0.02. Farther away it stays true
// to PrecessionNutationMatrix, which is what keeps the sky in place: the two drift apart by less than 0.1 arc
// second from 0 to 4500, 20 back to -5000, 65 until 10000.
ASTRO_API double ApparentSiderealTime(int julianDay, double fraction, double deltaT);

// True equator and equinox of date to the horizon frame of a place: x to the north point, y to the west
// point, z to the zenith, so that the longitude is 2 pi - azimuth (azimuth from north by east) and the
// latitude the altitude. localSiderealTime is the apparent one of Greenwich plus the longitude (east
// positive); latitude is geodetic. Both in radians. Diurnal parallax, aberration and refraction are not part
// of it.
ASTRO_API void HorizonMatrix(double localSiderealTime, double latitude, double m[9]);

// Velocity of the Earth's centre relative to the barycentre of the solar system, in units of the speed of
// light, J2000 axes. Series of Ron & Vondrak 1986 (36 terms): directions are good to 0.001 arc second over
// 1700 to 2300, and to some 0.1 in -5000 and 10000.
ASTRO_API void EarthVelocity(double julianDateTT, double v[3]);

// Annual aberration: the direction in which an observer moving with `velocity` (units of the speed of light,
// below 1) sees a light source whose direction is the unit vector `direction`, by the theory of relativity;
// the bending of light by the Sun is not part of it. The result is a unit vector; it may be the same array.
ASTRO_API void Aberration(const double direction[3], const double velocity[3], double apparent[3]);

namespace astro {

// The same for many directions: what depends on the velocity alone is computed once. It is the inverse of the
// Lorentz factor, 1 for an observer at rest.
ASTRO_API double InverseLorentzFactor(const double velocity[3]);

// Lorentz transformation of a direction, for example Explanatory Supplement to the Astronomical Almanac (3rd
// edition, 2013), equation 7.40. The product with the velocity is taken before anything is written: both
// arrays may be the same.
inline void Aberration(const double direction[3], const double velocity[3], double inverseLorentzFactor,
                       double apparent[3]) {
  const double share = 1.0 + Dot(direction, velocity) / (1.0 + inverseLorentzFactor);
  double seen[3];
  for (int i = 0; i < 3; ++i) seen[i] = inverseLorentzFactor * direction[i] + share * velocity[i];
  const double length = std::sqrt(Dot(seen, seen));
  for (int i = 0; i < 3; ++i) apparent[i] = seen[i] / length;
}

}  // namespace astro
