// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sky_brightness.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "companions/astro/light/bounded.h"

namespace astro {
namespace {

constexpr double kPerNanolambert = 1e-5 / kPi;  // cd/m2
constexpr double kSunMagnitude = -26.74;

double Tenfold(double count) { return std::exp(2.302585092994046 * count); }
double Magnitudes(double count) { return Tenfold(-0.4 * count); }

// The zenith's magnitude per square arcsecond in twilight alone, without the night's own glow, by each three
// degrees that the Sun stands below the horizon, from 9 degrees above it on; between them a cubic, beyond
// them straight on. From 6 degrees on Patat et al. less a night of 21.6; above that illuminance, set to meet
// them at 5 degrees.
double FindTwilightZenith(double degreesBelow) {
  constexpr double kFirst = -9.0, kStep = 3.0;
  constexpr double kMagnitudes[] = {3.9, 4.8, 5.9, 7.2, 9.65, 13.2, 17.0, 19.9, 22.9, 26.2};
  constexpr int kLast = static_cast<int>(std::size(kMagnitudes)) - 1;
  const auto slope = [&](int i) {
    const int before = std::max(i - 1, 0), behind = std::min(i + 1, kLast);
    return (kMagnitudes[behind] - kMagnitudes[before]) / (behind - before);
  };
  const double at = (degreesBelow - kFirst) / kStep;
  if (at <= 0.0) return kMagnitudes[0] + slope(0) * at;
  if (at >= kLast) return kMagnitudes[kLast] + slope(kLast) * (at - kLast);
  const int i = static_cast<int>(at);
  const double t = at - i, u = 1.0 - t;
  return u * u * ((1.0 + 2.0 * t) * kMagnitudes[i] + t * slope(i)) +
         t * t * ((1.0 + 2.0 * u) * kMagnitudes[i + 1] - u * slope(i + 1));
}

// Krisciunas & Schaefer, equation 9; phase angle in degrees.
double FindMoonMagnitude(double phase) {
  return -12.73 + 0.026 * phase + 4e-9 * phase * phase * phase * phase;
}

}  // namespace

double GetLuminance(double magnitudes) { return 1.08e5 * Magnitudes(Bounded(magnitudes, -40.0, 60.0)); }

double GetSurfaceMagnitude(double luminance) {
  return -2.5 * std::log10(Bounded(luminance, 1e-12, 1e12) / 1.08e5);
}

double GetAirMass(double altitude) {
  const double h = Bounded(altitude, 0.0, 0.5 * kPi);
  return 1.0 / (std::sin(h) + 0.50572 * std::pow(h / kRadiansPerDegree + 6.07995, -1.6364));
}

// What light meets on its way from the sky.
struct SkyBrightness::Path {
  double scattered;  // the part of sunlight that air scatters out of it
  double rise;       // of twilight from the zenith to there
};

SkyBrightness::SkyBrightness(const SkyLights& lights)
    : m_Extinction(Bounded(lights.extinction, 0.05, 1.0)),
      m_Zenith(astro::GetLuminance(Bounded(lights.darkness, 10.0, 23.0))),
      m_Transparency(Magnitudes(m_Extinction * GetAirMass(0.5 * kPi))),
      m_Sun(MakeLamp(Bounded(lights.sunlight, 0.0, 1.0), lights.sunAltitude, m_Extinction)),
      m_Moon(MakeLamp(Bounded(lights.moonlight, 0.0, 1.0) *
                          Magnitudes(FindMoonMagnitude(Bounded(std::fabs(lights.moonPhaseAngle), 0.0, kPi) /
                                                       kRadiansPerDegree) -
                                     kSunMagnitude),
                      lights.moonAltitude, m_Extinction)) {}

SkyBrightness::Lamp SkyBrightness::MakeLamp(double flux, double altitude, double extinction) {
  const double h = Bounded(altitude, -0.5 * kPi, 0.5 * kPi);
  return {flux * kPerNanolambert * Magnitudes(kSunMagnitude + 16.57), Magnitudes(extinction * GetAirMass(h)),
          flux * astro::GetLuminance(FindTwilightZenith(-h / kRadiansPerDegree)) /
              (1.0 - Magnitudes(extinction))};
}

SkyBrightness::Parts SkyBrightness::GetParts(double altitude, double fromSun, double fromMoon) const {
  const double h = Bounded(altitude, 0.0, 0.5 * kPi), c = std::cos(h);
  const double through = Magnitudes(m_Extinction * GetAirMass(h)), fromZenith = 90.0 - h / kRadiansPerDegree;
  const Path path = {1.0 - through, Magnitudes(-fromZenith / (720.0 * m_Extinction))};
  return {m_Zenith * (0.4 + 0.6 / std::sqrt(1.0 - 0.96 * c * c)) * through / m_Transparency,
          Scatter(m_Sun, path, fromSun) + Scatter(m_Moon, path, fromMoon)};
}

// By day light scattered once (Krisciunas & Schaefer, equations 15 to 20, of the light that reaches the
// ground) and more often (Schaefer, of the light that does not); in twilight the zenith's, spread as Schaefer
// does, but rising half as steeply towards the horizon, so that the whole sky gives the ground the light of
// the almanac. Both rise without bound where the other one holds, so that the smaller one counts, and where
// they are alike half of it. Close to the lamp, where the formulas rise without bound too, they are held by a
// few degrees.
double SkyBrightness::Scatter(const Lamp& lamp, const Path& path, double fromLamp) const {
  constexpr double kHeldByDay = 2.0, kHeldInTwilight = 8.0;  // degrees
  const double rho = Bounded(fromLamp, 0.0, kPi), degrees = rho / kRadiansPerDegree, c = std::cos(rho);
  const double once = 229087.0 * (1.06 + c * c) + 1412538.0 * Tenfold(-degrees / 40.0) +
                      6.2e7 / (degrees * degrees + kHeldByDay * kHeldByDay);
  const double day = lamp.day * path.scattered * (once * lamp.direct + 440000.0 * (1.0 - lamp.direct));
  const double twilight = lamp.twilight * path.scattered * path.rise * 90.0 /
                          std::sqrt(degrees * degrees + kHeldInTwilight * kHeldInTwilight);
  const double sum = day + twilight;
  return sum > 0.0 ? day * twilight / sum : 0.0;
}

// Schaefer 1998, an eye of normal acuity: rods and cones each have a threshold, and the lower one counts.
double GetNakedEyeLimit(double luminance) {
  const double sky = Bounded(luminance, 0.0, 1e12) / kPerNanolambert;
  const auto threshold = [sky](double scale, double slope) {
    const double root = 1.0 + std::sqrt(slope * sky);
    return scale * root * root;
  };
  const double rods = threshold(1.58489e-10, 0.0125893), cones = threshold(4.46684e-9, 1.25893e-6);
  return -16.57 - 2.5 * std::log10(std::min(rods, cones));
}

double GetDarknessOfBortle(int bortleClass) {
  constexpr double kClasses[] = {22.0, 21.94, 21.79, 21.09, 20.0, 19.22, 18.66, 18.09, 17.5};
  return kClasses[std::clamp(bortleClass, 1, static_cast<int>(std::size(kClasses))) - 1];
}

// The limit grows with the darkness.
double GetDarknessOfLimit(double magnitude) {
  double bright = 10.0, dark = 23.0;
  for (int i = 0; i < 60; ++i) {
    const double middle = 0.5 * (bright + dark);
    (GetNakedEyeLimit(GetLuminance(middle)) < magnitude ? bright : dark) = middle;
  }
  return dark;
}

}  // namespace astro
