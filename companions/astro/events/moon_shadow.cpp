// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/eclipse.h"
#include "astro/moon_phenomena.h"
#include "astro/vectors.h"
#include "companions/astro/events/moon_lines.h"

namespace astro {

namespace {

using astro_internal::Spheroid;

// Where a line that starts at a place (from the spheroid's centre) first meets the spheroid: in lengths of
// `along`; negative: nowhere ahead.
double WayTo(const Spheroid& planet, const double place[3], const double along[3]) {
  double start[3], way[3];
  for (int i = 0; i < 3; ++i) {
    start[i] = place[i];
    way[i] = along[i];
  }
  Stretch(planet, start);
  Stretch(planet, way);
  const double square = Dot(way, way), half = Dot(start, way) / square;
  const double rest = half * half - (Dot(start, start) - planet.equatorial * planet.equatorial) / square;
  return rest >= 0.0 ? -half - std::sqrt(rest) : -1.0;
}

}  // namespace

std::optional<MoonShadow> FindMoonShadow(const SSO_ID& planet, const ObservedBody& planetSeen,
                                         const ObservedBody& moonSeen, double moonRadius,
                                         double julianDateTT) {
  Spheroid body;
  if (!(planetSeen.sunDistance > 0.0 && moonSeen.sunDistance > 0.0)) return std::nullopt;
  if (!MakeSpheroid(planet, julianDateTT - planetSeen.lightTime, 0.0, body)) return std::nullopt;
  double fromPlanet[3], sunFromMoon[3];
  for (int i = 0; i < 3; ++i) {
    fromPlanet[i] = moonSeen.fromSun[i] - planetSeen.fromSun[i];
    sunFromMoon[i] = -moonSeen.fromSun[i];
  }
  const double way = WayTo(body, fromPlanet, moonSeen.fromSun);
  if (!(way > 0.0)) return std::nullopt;
  MoonShadow shadow;
  double spotFromMoon[3];
  for (int i = 0; i < 3; ++i) {
    spotFromMoon[i] = way * moonSeen.fromSun[i];
    shadow.place[i] = fromPlanet[i] + spotFromMoon[i];
  }
  const Shadow cast = CastShadow(moonRadius, sunFromMoon, spotFromMoon);
  shadow.umbraRadius = cast.umbraRadius;
  shadow.penumbraRadius = cast.penumbraRadius;
  return shadow;
}

}  // namespace astro
