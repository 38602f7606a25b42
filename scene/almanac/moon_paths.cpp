// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/moon_paths.h"

#include <cmath>
#include <optional>

#include "astro/moon_phenomena.h"
#include "astro/moons.h"
#include "astro/physical_ephemeris.h"

namespace scene {
namespace {

constexpr int kJupiterNumber = 5;

// The planet of one moment, against which its moons stand.
struct SeenPlanet {
  SSO_ID id;
  ObservedBody seen;
  double west[3];  // along the equator, of length 1 / angular radius
};

std::optional<SeenPlanet> SeePlanet(const CQXSolSys& model, double julianDateTT) {
  SeenPlanet planet = {SSO_ID(astro::kPlanetKind, kJupiterNumber), {}, {}};
  if (!model.Observe(planet.id, nullptr, planet.seen)) return std::nullopt;
  const auto disc = astro::FindPhysicalEphemeris(planet.id, planet.seen, julianDateTT);
  if (!disc) return std::nullopt;
  const double* const pole = disc->toBody + 6;
  Vprod(planet.seen.apparent, pole, planet.west);
  const double length = Vmod(planet.west, 3);
  for (double& component : planet.west) component /= length * disc->equatorialRadius;
  return planet;
}

bool AddPoint(const CQXSolSys& model, const SeenPlanet& planet, double julianDateTT, MoonPath& path) {
  ObservedBody seen;
  if (!model.Observe(path.moon, nullptr, seen)) return false;
  const auto situation = astro::FindMoonSituation(planet.id, planet.seen, seen, julianDateTT);
  path.points.push_back({static_cast<float>(astro::Dot(planet.west, seen.apparent)),
                         situation.isOcculted || situation.isEclipsed});
  return true;
}

bool AddPoints(const SkyMoment& moment, CQXSolSys& model, std::vector<MoonPath>& paths) {
  model.SetMoment(moment.julianDateTT, moment.deltaT);
  const auto planet = SeePlanet(model, moment.julianDateTT);
  if (!planet) return false;
  for (auto& path : paths) {
    if (!AddPoint(model, *planet, moment.julianDateTT, path)) return false;
  }
  return true;
}

}  // namespace

std::vector<MoonPath> MakeJupiterMoonPaths(const SkyMoment& first, double days, double step) {
  if (!(days > 0.0) || !(step > 0.0)) return {};
  std::vector<MoonPath> paths;
  for (const int moon : astro::GetMoonsOfPlanet(kJupiterNumber))
    paths.push_back({SSO_ID(astro::kMoonKind, moon), {}});
  CQXSolSys model;
  model.SetObserverAtEarthCentre();
  const int steps = static_cast<int>(std::ceil(days / step));
  for (int i = 0; i <= steps; ++i) {
    if (!AddPoints(Later(first, days * i / steps), model, paths)) return {};
  }
  return paths;
}

}  // namespace scene
