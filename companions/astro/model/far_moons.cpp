// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/far_moons.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/moons.h"
#include "astro/planets.h"

namespace astro_internal {

namespace {

// At 1 au from Sun and Earth, phase angle 0, as the Astronomical Almanac tabulates them (section F); of what
// turns a bright and a dark side to us the mean. The change with the phase angle in degrees, linear and
// squared: Jupiter's moons D. Morrison & N. D. Morrison 1977 (Planetary Satellites, ed. J. A. Burns, 363),
// good to 12 degrees, which is all that is seen from the Earth; Titan, which has an atmosphere, hardly
// changes; the others 0.03 a degree, as bodies without air usually do.
struct Brightness {
  int number;
  double atUnitDistance, linear, squared;
};
constexpr double kUsual = 0.03;
constexpr Brightness kBrightness[] = {
    {401, 11.8, kUsual, 0.0},       {402, 12.89, kUsual, 0.0},      {501, -1.68, 0.046, -0.0010},
    {502, -1.41, 0.0312, -0.00125}, {503, -2.09, 0.0323, -0.00066}, {504, -1.05, 0.078, -0.00274},
    {601, 3.3, kUsual, 0.0},        {602, 2.1, kUsual, 0.0},        {603, 0.6, kUsual, 0.0},
    {604, 0.8, kUsual, 0.0},        {605, 0.1, kUsual, 0.0},        {606, -1.28, 0.005, 0.0},
    {607, 4.63, kUsual, 0.0},       {608, 1.5, kUsual, 0.0},        {701, 1.45, kUsual, 0.0},
    {702, 2.10, kUsual, 0.0},       {703, 1.02, kUsual, 0.0},       {704, 1.23, kUsual, 0.0},
    {705, 3.6, kUsual, 0.0},        {801, -1.24, kUsual, 0.0},      {901, 0.9, kUsual, 0.0},
};

}  // namespace

bool IsFarMoon(const SSO_ID& id) { return astro::IsMoonOfPlanet(id) && !(id == astro::kMoon); }

bool FarMoonState(const SSO_ID& moon, double date, double position[3], double velocity[3]) {
  double there[3], speed[3];
  const bool known = ComputePlanetState(astro::PlanetOfMoon(moon), date, position, velocity) &&
                     astro::ComputeMoonOfPlanet(moon, date, there, velocity != nullptr ? speed : nullptr);
  if (!known) return false;
  for (int i = 0; i < 3; ++i) {
    position[i] += there[i];
    if (velocity != nullptr) velocity[i] += speed[i];
  }
  return true;
}

bool MakeFarMoonPath(const Moment& moment, const SSO_ID& moon, StraightPath& path) {
  StraightPath planet = {};
  if (!MakePlanetPath(moment, astro::PlanetOfMoon(moon), planet)) return false;
  if (!astro::ComputeMoonOfPlanet(moon, moment.dateTT - planet.lightTime, path.position, path.velocity))
    return false;
  path.lightTime = planet.lightTime;
  for (int i = 0; i < 3; ++i) {
    path.position[i] += planet.position[i];
    path.velocity[i] += planet.velocity[i];
  }
  return true;
}

double FarMoonMagnitude(const SSO_ID& moon, const Illumination& light) {
  for (const Brightness& row : kBrightness) {
    if (row.number != moon.number) continue;
    const double phase = light.phaseAngle / astro::kRadiansPerDegree;
    const double magnitude = row.atUnitDistance + phase * (row.linear + phase * row.squared) +
                             5.0 * std::log10(light.sunDistance * light.distance);
    if (std::isfinite(magnitude)) return magnitude;
  }
  return static_cast<double>(kUnknownStarMagnitude);
}

}  // namespace astro_internal
