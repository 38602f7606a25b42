// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/planet_path.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/planets.h"

namespace astro_internal {

namespace {

// With the planet where it is at the moment the light's way is good to a ten-thousandth: that fraction of a
// second is what the path is straight for.
bool Look(const Moment& moment, const SSO_ID& planet, StraightPath& path) {
  if (!moment.earthKnown) return false;
  double now[3];
  if (planet.number >= 5 && planet.number <= 8) {
    std::copy_n(moment.giants[planet.number - 5], 3, now);
  } else if (!ComputePlanetState(planet, moment.dateTT, now, nullptr)) {
    return false;
  }
  double square = 0.0;
  for (int i = 0; i < 3; ++i) square += (now[i] - moment.observer[i]) * (now[i] - moment.observer[i]);
  path.lightTime = std::sqrt(square) / astro::kLightAuPerDay;
  return ComputePlanetState(planet, moment.dateTT - path.lightTime, path.position, path.velocity);
}

}  // namespace

bool IsPlanet(const SSO_ID& id) {
  return id.kind == astro::kPlanetKind && id.number >= 1 && id.number <= astro::kPlutoNumber;
}

bool MakePlanetPath(const Moment& moment, const SSO_ID& planet, StraightPath& path) {
  PlanetSight& sight = moment.planets[planet.number - 1];
  if (sight.state == PlanetSight::kNotAsked) {
    sight.state = Look(moment, planet, sight.path) ? PlanetSight::kKnown : PlanetSight::kUnknown;
  }
  path = sight.path;
  return sight.state == PlanetSight::kKnown;
}

}  // namespace astro_internal
