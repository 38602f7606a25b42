// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moons.h"

#include <algorithm>

#include "astro/planets.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro {

namespace {

constexpr int kOfEarth[] = {kMoonNumber};
constexpr int kOfMars[] = {401, 402};
constexpr int kOfJupiter[] = {501, 502, 503, 504};
constexpr int kOfSaturn[] = {601, 602, 603, 604, 605, 606, 607, 608};
constexpr int kOfUranus[] = {705, 701, 702, 703, 704};
constexpr int kOfNeptune[] = {801};
constexpr int kOfPluto[] = {901};

}  // namespace

std::span<const int> GetMoonsOfPlanet(int planet) {
  constexpr std::span<const int> kMoons[9] = {{},        {},        kOfEarth,   kOfMars, kOfJupiter,
                                              kOfSaturn, kOfUranus, kOfNeptune, kOfPluto};
  return planet >= 1 && planet <= 9 ? kMoons[planet - 1] : std::span<const int>();
}

bool IsMoonOfPlanet(const SSO_ID& body) {
  const std::span<const int> moons = GetMoonsOfPlanet(body.number / 100);
  return body.kind == kMoonKind && std::find(moons.begin(), moons.end(), body.number) != moons.end();
}

bool ComputeMoonOfPlanet(const SSO_ID& moon, double date, double position[3], double velocity[3]) {
  if (!IsMoonOfPlanet(moon) || !(date >= kFirstPlanetDate && date <= kLastPlanetDate)) return false;
  const int index = moon.number % 100 - 1;
  switch (moon.number / 100) {
    case 3:
      return ComputeMoonState(date, position, velocity);
    case 4:
      astro_internal::MarsMoonState(index, date, position, velocity);
      return true;
    case 5:
      return astro_internal::JupiterMoonState(index, date, position, velocity);
    case 6:
      astro_internal::SaturnMoonState(index, date, position, velocity);
      return true;
    case 7:
      astro_internal::UranusMoonState(index, date, position, velocity);
      return true;
    case 8:
      astro_internal::TritonState(date, position, velocity);
      return true;
    default:
      astro_internal::CharonState(date, position, velocity);
      return true;
  }
}

}  // namespace astro
