// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/earth_orientation.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/vectors.h"
#include "companions/astro/earth/nutation.h"

namespace {

using astro::kDaysPerJulianCentury;
using astro::kJ2000;
using astro::kRadiansPerArcsecond;
using astro::kSecondsPerDay;
using astro::kTurn;

// Polynomials in Julian centuries of dynamical time from J2000.0, arc seconds.
using Polynomial = double[6];

// Bias and precession together, IAU 2006, as the four angles of Fukushima and Williams: Hilton et al. 2006
// (Celestial Mechanics and Dynamical Astronomy 94, 351); the fourth is the mean obliquity.
constexpr Polynomial kGamma = {-0.052928, 10.556378, 0.4932044, -0.00031238, -0.000002788, 0.0000000260};
constexpr Polynomial kPhi = {84381.412819, -46.811016, 0.0511268, 0.00053289, -0.000000440, -0.0000000176};
constexpr Polynomial kPsi = {-0.041775, 5038.481484, 1.5584175, -0.00018522, -0.000026452, -0.0000000148};
constexpr Polynomial kObliquity = {84381.406,  -46.836769,   -0.0001831,
                                   0.00200340, -0.000000576, -0.0000000434};

// Greenwich mean sidereal time less the Earth rotation angle, IAU 2006: Capitaine, Wallace & Chapront 2005
// (Astronomy and Astrophysics 432, 355), equation 42.
constexpr Polynomial kSiderealTime = {0.014506,    4612.156534,  1.3915817,
                                      -0.00000044, -0.000029956, -0.0000000368};

double Evaluate(const Polynomial& coefficients, double centuries) {
  double sum = 0.0;
  for (int i = 5; i >= 0; --i) sum = sum * centuries + coefficients[i];
  return sum * kRadiansPerArcsecond;
}

// m = R m, where R turns the axes by `angle` about axis 0 (x) or 2 (z), counterclockwise seen from its tip.
void TurnAxes(int axis, double angle, double m[9]) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  const double aboutX[9] = {1, 0, 0, 0, c, s, 0, -s, c};
  const double aboutZ[9] = {c, s, 0, -s, c, 0, 0, 0, 1};
  M3prod(axis == 0 ? aboutX : aboutZ, m, m);
}

// Earth rotation angle, IAU 2000 (Capitaine, Guinot & McCarthy 2000). The whole days drop out of the turn
// before anything is multiplied: that keeps the digits of the fraction.
double EarthRotationAngle(int julianDay, double fraction) {
  const double days = (julianDay - kJ2000) + fraction;
  return kTurn * (std::fmod(fraction, 1.0) + 0.7790572732640 + std::fmod(0.00273781191135448 * days, 1.0));
}

// Nutation of the equinox along the equator, with the two largest terms that make the sidereal time
// consistent with the Earth rotation angle (IERS Conventions 2010, table 5.2e); the third has 0.00001 arc
// second.
double EquationOfEquinoxes(double centuries) {
  const astro_internal::Nutation nutation = astro_internal::NutationAt(centuries);
  const double complementary =
      0.00264096 * std::sin(nutation.ascendingNode) + 0.00006352 * std::sin(2.0 * nutation.ascendingNode);
  return nutation.longitude * std::cos(Evaluate(kObliquity, centuries)) +
         complementary * kRadiansPerArcsecond;
}

// Catalogue frame to the ecliptic and the true equinox of date.
void EclipticAxes(double centuries, const astro_internal::Nutation& nutation, double m[9]) {
  for (int i = 0; i < 9; ++i) m[i] = i % 4 == 0 ? 1.0 : 0.0;
  TurnAxes(2, Evaluate(kGamma, centuries), m);
  TurnAxes(0, Evaluate(kPhi, centuries), m);
  TurnAxes(2, -(Evaluate(kPsi, centuries) + nutation.longitude), m);
}

double Centuries(double julianDateTT) { return (julianDateTT - kJ2000) / kDaysPerJulianCentury; }

}  // namespace

void TrueEclipticMatrix(double julianDateTT, double m[9]) {
  const double centuries = Centuries(julianDateTT);
  EclipticAxes(centuries, astro_internal::NutationAt(centuries), m);
}

void PrecessionNutationMatrix(double julianDateTT, double m[9]) {
  const double centuries = Centuries(julianDateTT);
  const astro_internal::Nutation nutation = astro_internal::NutationAt(centuries);
  EclipticAxes(centuries, nutation, m);
  TurnAxes(0, -(Evaluate(kObliquity, centuries) + nutation.obliquity), m);
}

double MeanObliquity(double julianDateTT) { return Evaluate(kObliquity, Centuries(julianDateTT)); }

double ApparentSiderealTime(int julianDay, double fraction, double deltaT) {
  const double centuries =
      ((julianDay - kJ2000) + fraction + deltaT / kSecondsPerDay) / kDaysPerJulianCentury;
  const double angle = std::fmod(EarthRotationAngle(julianDay, fraction) +
                                     Evaluate(kSiderealTime, centuries) + EquationOfEquinoxes(centuries),
                                 kTurn);
  const double positive = angle < 0.0 ? angle + kTurn : angle;
  return positive >= kTurn ? 0.0 : positive;
}

void HorizonMatrix(double localSiderealTime, double latitude, double m[9]) {
  const double sinTime = std::sin(localSiderealTime);
  const double cosTime = std::cos(localSiderealTime);
  const double sinLat = std::sin(latitude);
  const double cosLat = std::cos(latitude);
  const double north[3] = {-sinLat * cosTime, -sinLat * sinTime, cosLat};
  const double west[3] = {sinTime, -cosTime, 0.0};
  const double zenith[3] = {cosLat * cosTime, cosLat * sinTime, sinLat};
  for (int i = 0; i < 3; ++i) {
    m[i] = north[i];
    m[3 + i] = west[i];
    m[6 + i] = zenith[i];
  }
}
