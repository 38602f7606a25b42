// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sky_colour.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "companions/astro/light/bounded.h"

namespace astro {
namespace {

constexpr double kTurbidity = 2.5;

// Preetham et al., table 2 and appendix A.2: the distribution over the sky, and the zenith by the Sun's
// distance from it.
struct Daylight {
  double a, b, c, d, e;

  double At(double cosineFromZenith, double fromSun) const {
    const double cosine = std::cos(fromSun);
    return (1.0 + a * std::exp(b / std::max(cosineFromZenith, 0.02))) *
           (1.0 + c * std::exp(d * fromSun) + e * cosine * cosine);
  }
};

constexpr Daylight kX = {-0.0193 * kTurbidity - 0.2592, -0.0665 * kTurbidity + 0.0008,
                         -0.0004 * kTurbidity + 0.2125, -0.0641 * kTurbidity - 0.8989,
                         -0.0033 * kTurbidity + 0.0452};
constexpr Daylight kY = {-0.0167 * kTurbidity - 0.2608, -0.0950 * kTurbidity + 0.0092,
                         -0.0079 * kTurbidity + 0.2102, -0.0441 * kTurbidity - 1.6537,
                         -0.0109 * kTurbidity + 0.0529};
constexpr double kZenithX[3][4] = {{0.00166, -0.00375, 0.00209, 0.0},
                                   {-0.02903, 0.06377, -0.03202, 0.00394},
                                   {0.11693, -0.21196, 0.06052, 0.25886}};
constexpr double kZenithY[3][4] = {{0.00275, -0.00610, 0.00317, 0.0},
                                   {-0.04214, 0.08970, -0.04153, 0.00516},
                                   {0.15346, -0.26756, 0.06670, 0.26688}};

double FindZenith(const double (&table)[3][4], double sunFromZenith) {
  double value = 0.0;
  for (const auto& row : table) {
    const double cubic =
        ((row[0] * sunFromZenith + row[1]) * sunFromZenith + row[2]) * sunFromZenith + row[3];
    value = value * kTurbidity + cubic;
  }
  return value;
}

// From 0 below `from` to 1 above `to`, without corners.
double Rise(double value, double from, double to) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3.0 - 2.0 * t);
}

double Bump(double distance, double width) { return std::exp(-(distance / width) * (distance / width)); }

Chromaticity Mix(const Chromaticity& a, const Chromaticity& b, double part) {
  return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part};
}

}  // namespace

struct SkyColour::Place {
  double altitude, fromSun;  // radians
  double height;             // degrees
  double towards;            // -1 opposite of the Sun's azimuth to 1 under it; 0 at the zenith
};

SkyColour::SkyColour(double sunAltitude, double sunlight) {
  const double h = Bounded(sunAltitude, -0.5 * kPi, 0.5 * kPi);
  m_SunHeight = h / kRadiansPerDegree;
  m_SineOfSun = std::sin(h);
  m_CosineOfSun = std::max(std::cos(h), 1e-3);
  const double fromZenith = 0.5 * kPi - std::max(h, 0.0);
  m_ZenithX = {FindZenith(kZenithX, fromZenith), 1.0 / kX.At(1.0, fromZenith)};
  m_ZenithY = {FindZenith(kZenithY, fromZenith), 1.0 / kY.At(1.0, fromZenith)};
  m_Day = Rise(m_SunHeight, 2.0, 30.0);
  m_Glow = Rise(m_SunHeight, -20.0, -3.0) * (1.0 - Rise(m_SunHeight, 0.0, 18.0));
  m_Opposite = Bump(m_SunHeight + 2.0, 3.2);
  m_Ring = Bounded(-std::log10(Bounded(sunlight, 1e-6, 1.0)) / 3.0, 0.0, 1.0);
  m_Ring *= m_Ring * Rise(m_SunHeight, -6.0, 2.0);
}

SkyColour::Place SkyColour::FindPlace(double altitude, double fromSun) const {
  const double h = Bounded(altitude, 0.0, 0.5 * kPi), rho = Bounded(fromSun, 0.0, kPi);
  const double towards = (std::cos(rho) - std::sin(h) * m_SineOfSun) / m_CosineOfSun;
  return {h, rho, h / kRadiansPerDegree, std::clamp(towards, -1.0, 1.0)};
}

double SkyColour::FindArch(const Place& place) const {
  const double middle = 5.0 + 1.9 * std::max(-m_SunHeight, 0.0), opposite = Rise(-place.towards, -0.3, 1.0);
  return m_Opposite * opposite * Bump(place.height - middle, 6.0);
}

double SkyColour::FindShadow(const Place& place) const {
  const double edge = 1.9 * std::max(-m_SunHeight, 0.0), opposite = Rise(-place.towards, -0.3, 1.0);
  return Bump(m_SunHeight + 4.0, 5.0) * opposite * (1.0 - Rise(place.height, edge - 3.0, edge + 4.0));
}

SkyTint SkyColour::Get(double altitude, double fromSun) const {
  const Place place = FindPlace(altitude, fromSun);
  const double cosine = std::sin(place.altitude);
  const Chromaticity day = {m_ZenithX.value * m_ZenithX.scale * kX.At(cosine, place.fromSun),
                            m_ZenithY.value * m_ZenithY.scale * kY.At(cosine, place.fromSun)};
  const double low = std::exp(-place.height / 18.0), depth = Rise(-m_SunHeight, 0.0, 9.0);
  const Chromaticity blue = Mix(Mix({0.250, 0.258}, {0.232, 0.225}, depth), {0.285, 0.295}, 0.8 * low);
  Chromaticity colour = Mix(blue, day, m_Day);
  colour = Mix(colour, {0.318, 0.333}, 0.6 * m_Day * std::exp(-place.height / 7.0));  // haze
  const double side = Rise(place.towards, -0.6, 1.0);
  // From the horizon up: orange red, yellow, and a trace of both into the blue.
  const double reach = 9.0 + 5.0 * (1.0 - depth), glow = m_Glow * side;
  colour = Mix(colour, {0.385, 0.385}, 0.85 * glow * std::exp(-place.height / reach));
  colour = Mix(colour, Mix({0.455, 0.405}, {0.50, 0.395}, depth),
               0.9 * glow * std::exp(-place.height / (0.45 * reach)));
  const double shadow = FindShadow(place), arch = FindArch(place);
  colour = Mix(colour, {0.268, 0.272}, 0.8 * shadow);
  colour = Mix(colour, {0.362, 0.316}, 0.8 * arch);
  const double ring = m_Ring * std::exp(-place.height / 5.0);
  return {Mix(Mix(colour, {0.245, 0.245}, 0.7 * m_Ring), {0.46, 0.40}, ring),
          (1.0 - 0.75 * shadow) * (1.0 + 0.25 * arch) * (1.0 + 4.0 * ring)};
}

}  // namespace astro
