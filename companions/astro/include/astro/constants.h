// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Numbers of astronomy that many places need. Each is the one double that all of them compute with: another
// way of writing the same quantity may differ in the last digit, and with it what is drawn or stored.
#pragma once

#include <numbers>

#include "astro/object_id.h"
#include "utils/text.h"

namespace astro {

// Angles.
inline constexpr double kPi = std::numbers::pi;
inline constexpr double kTurn = 2.0 * kPi;  // radians
inline constexpr double kRadiansPerDegree = kPi / 180.0;
inline constexpr double kRadiansPerArcsecond = kPi / 648000.0;

// Time.
inline constexpr double kJ2000 = 2451545.0;  // Julian date of the epoch J2000.0: 2000 January 1, 12 h (TT)
inline constexpr double kSecondsPerDay = 86400.0;
inline constexpr double kMinutesPerDay = 1440.0;
inline constexpr double kDaysPerJulianYear = 365.25;
inline constexpr double kDaysPerJulianCentury = 36525.0;

// Lengths. The astronomical unit is exact: IAU 2012 Resolution B2.
inline constexpr double kKilometresPerAu = 149597870.7;
inline constexpr double kMetresPerAu = 149597870700.0;

// The parsec is 648000 / pi astronomical units: IAU 2015 Resolution B2. Two neighbouring doubles stand for
// it, and each has results that rest on it: the nearer one in the conversion of units that users read, the
// one above it in the radii and sizes of far objects.
inline constexpr double kAuPerParsec = 206264.80624709636;
inline constexpr double kAuPerParsecAbove = 206264.8062470964;

// Light.
inline constexpr double kLightSpeed = 299792.458;  // km/s, exact: the definition of the metre
// The same in astronomical units a day, rounded to nine decimals: what the model has always computed with.
// The quotient of the exact numbers is larger by 1.4e-12 of it.
inline constexpr double kLightAuPerDay = 173.144632674;

// The Earth's ellipsoid, WGS 84.
inline constexpr double kEarthEquatorialRadius = 6378.137;  // km
inline constexpr double kEarthFlattening = 1.0 / 298.257223563;

// The kinds of the bodies that the model knows by itself, and the identifiers of those that others refer to.
inline constexpr int kPlanetKind = FourCC("plnt");  // Mercury is 1, Pluto 9
inline constexpr int kMoonKind = FourCC("moon");    // of a planet: 100 times its number and the moon's own
inline constexpr int kEarthNumber = 3;
inline constexpr int kPlutoNumber = 9;
inline constexpr int kSunNumber = 10;
inline constexpr int kMoonNumber = 301;
inline constexpr SSO_ID kSun = {kPlanetKind, kSunNumber};
inline constexpr SSO_ID kEarth = {kPlanetKind, kEarthNumber};
inline constexpr SSO_ID kMoon = {kMoonKind, kMoonNumber};

}  // namespace astro
