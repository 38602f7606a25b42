// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the solar-system model (solar_system.h) takes of an object: plain records, already converted. Which
// one belongs to an object follows from its kind:
//   "star" "uSTR"                                             StarRecord
//   "gala" "nebu" "clst" "dsnv" "uDSO" "uNEB" "uCLS" "uGAL"   DeepskyRecord
//   "cnst"                                                    ConstellationRecord
//   "comt" "astr" "scft" "fAST" "fCOM" "fSCO" "uSCO"          OrbitalElements
//   "plnt" "moon"                                             none: the model knows them
#pragma once

#include "astro/api.h"
#include "astro/constants.h"
#include "utils/text.h"

inline constexpr float kUnknownStarMagnitude = 999999.0f;
inline constexpr float kUnknownDeepskyMagnitude = 9999.0f;

// The converted record of a star.
struct StarRecord {
  double ra = 0.0, dec = 0.0;    // radians, ICRS axes, epoch J2000.0
  double properMotionRA = 0.0;   // radians per Julian year on the sky: the factor cos(dec) is in it
  double properMotionDec = 0.0;  // radians per Julian year
  double parallax = 0.0;         // radians; 0: unknown, infinitely far
  float radialVelocity = 0.0f;   // km/s, away from us positive
  float radius = 0.0f;           // solar radii; 0: unknown
  float magnitude = kUnknownStarMagnitude;
  float visMagnitude = kUnknownStarMagnitude;
  float blueMagnitude = kUnknownStarMagnitude;
  float absMagnitude = kUnknownStarMagnitude;
};

// The converted record of a deep-sky object.
struct DeepskyRecord {
  double ra = 0.0, dec = 0.0;  // radians, ICRS axes
  double parallax = 0.0;       // radians; 0: unknown
  double angularSize = 0.0;    // radians, largest dimension; 0: unknown
  float linearSize = 0.0f;     // astronomical units, half the largest dimension; 0: unknown
  float visMagnitude = kUnknownDeepskyMagnitude;
  float blueMagnitude = kUnknownDeepskyMagnitude;
};

// The converted record of a constellation.
struct ConstellationRecord {
  double center[3] = {0.0, 0.0, 0.0};  // unit vector, ICRS axes
};

// Codes of OrbitalElements::elementSet; lists of users keep them: frozen.
enum ElementSet : unsigned char {
  kKeplerElements = 0,  // every code but 9 stands for it
  kTwoLineElements = 9  // mean elements of SGP4, relative to the true equator and mean equinox of their epoch
};

// The tag of two-line elements that are ready for the model: the four-character code "TLE_".
inline constexpr int kTwoLineTag = FourCC("TLE_");

// The orbit of one body. Converted records have angles in radians; the lists of users keep degrees, and the
// mean motion of two-line elements in revolutions per day (see ConvertDBRecord of the application's library).
struct OrbitalElements {
  unsigned char elementSet = kKeplerElements;
  int tag = 0;                            // kTwoLineTag, else 0
  int centralKind = astro::kPlanetKind;   // the body that it goes around: "plnt" ...
  int centralNumber = astro::kSunNumber;  // ... 10, the Sun
  double epoch = astro::kJ2000;  // Julian date: dynamical time (TT); of two-line elements Universal Time
  // au: the semi-major axis for e < 1, the perihelion distance for e >= 1; two-line elements: unused.
  double a = 0.0;
  double e = 0.0;   // eccentricity
  double i = 0.0;   // inclination to the ecliptic J2000; of two-line elements to the equator
  double om = 0.0;  // longitude of the ascending node
  double w = 0.0;   // argument of the pericentre
  double M0 = 0.0;  // mean anomaly at the epoch: n times the time since the pericentre, for every e
  // Mean motion, radians per day (two-line elements: per minute). e < 1: sqrt(mu / a^3). e >= 1:
  // sqrt(mu / |q / (1 - e)|^3), or sqrt(mu / (2 q^3)) where |1 - e| < 1e-6.
  double n = 0.0;
  // H of asteroids; of comets the magnitude at 1 au from Sun and Earth.
  float absMagnitude = kUnknownStarMagnitude;
  // G of asteroids; of comets y in H + 5 log(distance) + y log(distance from the Sun), 10-based.
  float slope = 0.0f;
  // Two-line elements only, as SGP4 takes them.
  double meanMotionDot = 0.0;     // half the first derivative, revolutions per day^2
  double meanMotionDotDot = 0.0;  // a sixth of the second, revolutions per day^3
  double dragTerm = 0.0;          // B*, per Earth radius
};
