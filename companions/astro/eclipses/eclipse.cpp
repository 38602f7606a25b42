// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/eclipse.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/eclipses/covered_part.h"

namespace astro {
namespace {

constexpr double kEarthRadius = kEarthEquatorialRadius / kKilometresPerAu;

double RadiusInAu(const SSO_ID& body) { return GetBodyRadius(body) / kKilometresPerAu; }

// The kind and the magnitude for an observer who sees the two discs so far apart.
void CompareDiscs(const ObservedBody& sun, const ObservedBody& moon, SolarEclipseState& state) {
  const double apart = VectorsAngle(sun.apparent, moon.apparent);
  const double sunRadius = sun.angularRadius, moonRadius = moon.angularRadius;
  state.obscuration = astro_internal::FindCoveredPart(sunRadius, moonRadius, apart);
  if (apart >= sunRadius + moonRadius) {
    state.kind = SolarEclipse::kElsewhere;
  } else if (apart > std::fabs(sunRadius - moonRadius)) {
    state.kind = SolarEclipse::kPartial;
    state.magnitude = (sunRadius + moonRadius - apart) / (2.0 * sunRadius);
  } else {
    state.kind = moonRadius >= sunRadius ? SolarEclipse::kTotal : SolarEclipse::kAnnular;
    state.magnitude = moonRadius / sunRadius;
  }
}

}  // namespace

Shadow CastShadow(double casterRadius, const double sun[3], const double target[3]) {
  Shadow shadow = {};
  const double sunDistance = Vmod(sun, 3);
  for (int i = 0; i < 3; ++i) shadow.axis[i] = -sun[i] / sunDistance;
  const double along = Dot(target, shadow.axis);
  for (int i = 0; i < 3; ++i) shadow.foot[i] = along * shadow.axis[i] - target[i];
  const double sunRadius = RadiusInAu(kSun);
  shadow.umbraRadius = casterRadius - along * (sunRadius - casterRadius) / sunDistance;
  shadow.penumbraRadius = casterRadius + along * (sunRadius + casterRadius) / sunDistance;
  return shadow;
}

LunarEclipseState FindLunarEclipse(const double sun[3], const double moon[3]) {
  LunarEclipseState state;
  if (Dot(sun, moon) > 0.0) return state;
  state.shadow = CastShadow(kEarthRadius * kEarthShadowEnlargement, sun, moon);
  const double radius = RadiusInAu(kMoon), away = Vmod(state.shadow.foot, 3);
  state.umbralMagnitude = (state.shadow.umbraRadius + radius - away) / (2.0 * radius);
  state.penumbralMagnitude = (state.shadow.penumbraRadius + radius - away) / (2.0 * radius);
  if (state.penumbralMagnitude <= 0.0) return state;
  state.kind = state.umbralMagnitude >= 1.0  ? LunarEclipse::kTotal
               : state.umbralMagnitude > 0.0 ? LunarEclipse::kPartial
                                             : LunarEclipse::kPenumbral;
  return state;
}

SolarEclipseState FindSolarEclipse(const double sun[3], const double moon[3], const ObservedBody& sunSeen,
                                   const ObservedBody& moonSeen) {
  SolarEclipseState state;
  double sunFromMoon[3], earthFromMoon[3];
  for (int i = 0; i < 3; ++i) {
    sunFromMoon[i] = sun[i] - moon[i];
    earthFromMoon[i] = -moon[i];
  }
  if (Dot(sunFromMoon, earthFromMoon) > 0.0) return state;
  state.shadow = CastShadow(RadiusInAu(kMoon), sunFromMoon, earthFromMoon);
  if (Vmod(state.shadow.foot, 3) >= state.shadow.penumbraRadius + kEarthRadius) return state;
  CompareDiscs(sunSeen, moonSeen, state);
  return state;
}

}  // namespace astro
