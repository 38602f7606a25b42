// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Planets: A. Mallama & J. L. Hilton 2018, "Computing apparent planetary magnitudes for the Astronomical
// Almanac", Astronomy and Computing 25, 10; phase angles in degrees. The part of Mars that depends on its
// turning and its season (up to 0.1) is left out.
#include "companions/astro/model/magnitudes.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

constexpr double kDegree = astro::kRadiansPerDegree;
constexpr double kUnknown = static_cast<double>(kUnknownStarMagnitude);

// sum of coefficients[i] x^i
template <int N>
double Polynomial(const double (&coefficients)[N], double x) {
  double sum = 0.0;
  for (int i = N - 1; i >= 0; --i) sum = sum * x + coefficients[i];
  return sum;
}

double Mercury(double phase) {
  return Polynomial({-0.613, 6.3280e-02, -1.6336e-03, 3.3644e-05, -3.4265e-07, 1.6893e-09, -3.0334e-12},
                    phase);
}

double Venus(double phase) {
  if (phase < 163.7) return Polynomial({-4.384, -1.044e-03, 3.687e-04, -2.814e-06, 8.938e-09}, phase);
  return Polynomial({236.05828, -2.81914, 8.39034e-03}, phase);
}

double Earth(double phase) { return Polynomial({-3.99, -1.060e-3, 2.054e-4}, phase); }

double Mars(double phase) {
  if (phase <= 50.0) return Polynomial({-1.601, 2.267e-02, -1.302e-04}, phase);
  return Polynomial({-0.367, -0.02573, 3.445e-04}, phase);
}

double Jupiter(double phase) {
  if (phase <= 12.0) return Polynomial({-9.395, -3.7e-04, 6.16e-04}, phase);
  const double light = Polynomial({1.0, -1.507, -0.363, -0.062, 2.809, -1.876}, phase / 180.0);
  return -9.428 - 2.5 * std::log10(light);
}

// The sine of the latitude where the line that leads `from` afar to a body's centre meets it. The pole, in
// degrees: IAU Working Group on Cartographic Coordinates (Archinal et al. 2018).
double SineOfLatitude(const double from[3], double poleRA, double poleDec) {
  double pole[3];
  sfp(1.0, poleRA * kDegree, poleDec * kDegree, pole);
  const double length = Vmod(from, 3);
  return -astro::Dot(from, pole) / length;
}

// With the rings, whose opening is the geometric mean of the latitudes of Sun and observer; they stay dark
// where the two stand on different sides. Beyond what the Earth can see of phases the globe alone.
double Saturn(double phase, const Illumination& light) {
  if (phase > 6.5) return Polynomial({-8.94, 2.446e-4, 2.672e-4, -1.506e-6, 4.767e-9}, phase);
  const double centuries = (light.dateTT - astro::kJ2000) / astro::kDaysPerJulianCentury;
  const double ra = 40.589 - 0.036 * centuries, dec = 83.537 - 0.004 * centuries;
  const double sun = std::asin(std::clamp(SineOfLatitude(light.fromSun, ra, dec), -1.0, 1.0));
  const double observer = std::asin(std::clamp(SineOfLatitude(light.fromObserver, ra, dec), -1.0, 1.0));
  const double opening = std::sin(sun * observer > 0.0 ? std::sqrt(sun * observer) : 0.0);
  return -8.914 - 1.825 * opening + 0.026 * phase - 0.378 * opening * std::exp(-2.25 * phase);
}

// Planetographic, degrees.
double UranusLatitude(const double from[3]) {
  constexpr double kFlattening = (25559.0 - 24973.0) / 25559.0;
  const double sine = std::fabs(SineOfLatitude(from, 257.311, -15.175));
  const double latitude = std::asin(std::min(sine, 1.0));
  return std::atan(std::tan(latitude) / ((1.0 - kFlattening) * (1.0 - kFlattening))) / kDegree;
}

// Its poles are brighter than its equator.
double Uranus(double phase, const Illumination& light) {
  const double latitude = (UranusLatitude(light.fromSun) + UranusLatitude(light.fromObserver)) / 2.0;
  const double base = -7.110 - 8.4e-04 * latitude;
  return phase > 3.1 ? base + Polynomial({0.0, 6.587e-3, 1.045e-4}, phase) : base;
}

// It brightened from 1980 to 2000.
double Neptune(double phase, double dateTT) {
  const double year = 2000.0 + (dateTT - astro::kJ2000) / astro::kDaysPerJulianYear;
  const double base = year > 2000.0 ? -7.00 : -6.89 - 0.0054 * std::max(year - 1980.0, 0.0);
  return phase > 1.9 ? base + Polynomial({0.0, 7.944e-3, 9.617e-5}, phase) : base;
}

// C. W. Allen, Astrophysical Quantities, as K. Krisciunas & B. E. Schaefer 1991 (PASP 103, 1033) give it: at
// the mean distance of 384400 km, 1 au from the Sun.
double Moon(double phase) {
  constexpr double kMeanDistance = 384400.0 / astro::kKilometresPerAu;
  return -12.73 + 0.026 * phase + 4e-9 * std::pow(phase, 4) - 5.0 * std::log10(kMeanDistance);
}

// At 1 au from the Sun and from the observer.
double AbsoluteMagnitude(int planet, double phase, const Illumination& light) {
  switch (planet) {
    case 1:
      return Mercury(phase);
    case 2:
      return Venus(phase);
    case 3:
      return Earth(phase);
    case 4:
      return Mars(phase);
    case 5:
      return Jupiter(phase);
    case 6:
      return Saturn(phase, light);
    case 7:
      return Uranus(phase, light);
    case 8:
      return Neptune(phase, light.dateTT);
    default:
      return -1.01;  // Pluto: the V(1,0) of the Astronomical Almanac
  }
}

// What is not a number (a phase that no formula covers, a distance of 0) is not known.
double Known(double magnitude) { return std::isfinite(magnitude) ? magnitude : kUnknown; }

}  // namespace

double PlanetMagnitude(const SSO_ID& body, const Illumination& light) {
  constexpr double kSun = -26.74;  // at 1 au: NASA, Sun Fact Sheet
  const double distances = 5.0 * std::log10(light.sunDistance * light.distance);
  const double phase = light.phaseAngle / kDegree;
  if (body == astro::kMoon) return Known(Moon(phase) + distances);
  if (body == astro::kSun) return Known(kSun + 5.0 * std::log10(light.distance));
  return Known(AbsoluteMagnitude(body.number, phase, light) + distances);
}

// E. Bowell et al. 1989, "Application of photometric models to asteroids",
// Asteroids II, 524: the simple form.
double AsteroidMagnitude(const OrbitalElements& elements, const Illumination& light) {
  if (elements.absMagnitude == kUnknownStarMagnitude) return kUnknown;
  const double half = std::tan(light.phaseAngle / 2.0);
  const double first = std::exp(-3.33 * std::pow(half, 0.63));
  const double second = std::exp(-1.87 * std::pow(half, 1.22));
  const double slope = static_cast<double>(elements.slope);
  return Known(static_cast<double>(elements.absMagnitude) +
               5.0 * std::log10(light.sunDistance * light.distance) -
               2.5 * std::log10((1.0 - slope) * first + slope * second));
}

double CometMagnitude(const OrbitalElements& elements, const Illumination& light) {
  if (elements.absMagnitude == kUnknownStarMagnitude) return kUnknown;
  return Known(static_cast<double>(elements.absMagnitude) + 5.0 * std::log10(light.distance) +
               static_cast<double>(elements.slope) * std::log10(light.sunDistance));
}

}  // namespace astro_internal
