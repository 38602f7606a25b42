// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Positions and angles. All angles are in radians unless a name says otherwise; longitudes count from the
// first axis towards the second, latitudes towards the third, in right-handed axes. Nothing here keeps state:
// every thread may call.
#pragma once

#include <cstddef>

#include "astro/api.h"

// A position. The distance is in astronomical units in memory; `distUnits` chooses how it is shown.
struct SphCoor {
  double dist = 0.0;            // astronomical units
  double lon = 0.0;             // radians
  double lat = 0.0;             // radians, -pi/2 to pi/2
  unsigned char distUnits = 0;  // unit code: 0 m, 1 km, 2 10^3 km, 3 10^6 km, 4 au, 5 light year, 6 pc, 7 kpc
  unsigned char coorSys = 0;    // coordinate-system code
};
// The bytes at the end are padded to the alignment of a double, which is 4 on 32-bit Linux and 8 elsewhere.
static_assert(offsetof(SphCoor, dist) == 0 && offsetof(SphCoor, lon) == 8 && offsetof(SphCoor, lat) == 16);
static_assert(offsetof(SphCoor, distUnits) == 24 && offsetof(SphCoor, coorSys) == 25);
static_assert(sizeof(SphCoor) == 24 + alignof(SphCoor));

// A direction of view.
struct SphViewCoor {
  double lon = 0.0;    // radians
  double lat = 0.0;    // radians
  double slope = 0.0;  // radians, the roll about the view axis
  unsigned char flag = 0;
};
static_assert(offsetof(SphViewCoor, lon) == 0 && offsetof(SphViewCoor, lat) == 8);
static_assert(offsetof(SphViewCoor, slope) == 16 && offsetof(SphViewCoor, flag) == 24);
static_assert(sizeof(SphViewCoor) == 24 + alignof(SphViewCoor));

// An angle as degrees (or hours), minutes and seconds. Only the first field that is not zero carries a sign.
struct M_DMSTag {
  short degrees = 0;
  short minutes = 0;
  float seconds = 0.0f;
};
static_assert(sizeof(M_DMSTag) == 8 && offsetof(M_DMSTag, minutes) == 2 && offsetof(M_DMSTag, seconds) == 4);

// What Rad2GMS and GMS2Rad count in.
enum AngleMode : int {
  kAngleDegrees = 0,        // 0 to 360 degrees
  kAngleSignedDegrees = 2,  // latitude, declination
  kAngleHours = 3           // 0 to 24 hours
};

// Splits an angle (radians), rounded to 0.01 second before splitting, so that neither 60 seconds nor 60
// minutes appear. Modes 0 and 3 reduce the angle to one turn; 359 degrees 59' 59.999" becomes 0. Any other
// mode splits degrees and keeps the sign, and a negative angle carries it on the first field that is not
// zero:
//   Rad2GMS of -0.5 degrees, mode 2  ->    0, -30, 0
//   Rad2GMS of -0.5 degrees, mode 0  ->  359,  30, 0
//   Rad2GMS of -0.5 degrees, mode 3  ->   23,  58, 0
// An angle that rounds to 0 has no sign. An angle that is not finite gives 0, 0, 0; in the signed modes an
// angle beyond the range of the record gives 32767 degrees 59' 59.99", with its sign on the degrees.
ASTRO_API M_DMSTag Rad2GMS(double angle, int mode);

// The inverse, in radians (mode 3: fields in hours, any other: in degrees): the fields' magnitudes are added
// up, and a negative sign on any field makes the whole angle negative. Nothing is reduced to one turn,
// minutes and seconds may pass 60. Seconds that are not finite count as 0.
ASTRO_API double GMS2Rad(const M_DMSTag& angle, int mode);

// Splits a longitude (east positive) and a latitude (north positive) for display: magnitudes, and the letters
// 'E' or 'W' and 'N' or 'S'. The longitude is reduced to -180 to 180 degrees first; the letters follow the
// rounded values: 'E' and 'N' for zero, and 180 degrees are always 'E'. The latitude is not reduced. What is
// not finite counts as 0.
ASTRO_API void LonLatForObjects(double lon, double lat, M_DMSTag& lonOut, char& lonLetter, M_DMSTag& latOut,
                                char& latLetter);

// Spherical to rectangular: v = r (cos lat cos lon, cos lat sin lon, sin lat), in the unit of r.
ASTRO_API void sfp(double r, double lon, double lat, double v[3]);

// The same from one record of three doubles: r, lon, lat.
ASTRO_API void sfp1(const double spherical[3], double v[3]);

// Rectangular to spherical, for a vector whose length r the caller knows: lon in [0, 2 pi), lat in [-pi/2,
// pi/2]. At the poles lon is 0, for r of 0 both are; the quotient v[2] / r is clamped to [-1, 1]. The
// latitude comes from an arc sine: right at the poles it is good to 1e-8 radian, elsewhere to the last
// digits.
ASTRO_API void psf(const double v[3], double r, double& lon, double& lat);

// Geodetic to rectangular on an ellipsoid of revolution: height above the ellipsoid, longitude and geodetic
// latitude; `height`, `equatorialRadius` and the result share one unit. The flattening of the reference
// ellipsoid WGS 84 is 1/298.257223563, its equatorial radius 6378.137 km. Axes: the equator at longitude 0,
// the equator at 90 degrees east, the north pole. Exact; the flattening must be below 1.
ASTRO_API void Plg2Plc(double height, double lon, double lat, double equatorialRadius, double flattening,
                       double xyz[3]);
