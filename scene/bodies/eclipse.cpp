// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/eclipse.h"

#include <cmath>
#include <memory>

#include "astro/planets.h"
#include "astro/vectors.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::QX_ShadowParams;
using ShadowList = std::vector<QX_ShadowParams>;

constexpr double kKmPerAu = 149597870.7;  // IAU 2012 resolution B2
constexpr double kEarthRadius = 6378.137 / kKmPerAu;
constexpr double kShadowEnlargement = 1.01;

const SSO_ID kEarth(FourCC("plnt"), kEarthNumber), kMoon(FourCC("moon"), kMoonNumber),
    kSun(FourCC("plnt"), kSunNumber);

double RadiusInAu(const SSO_ID& body) { return GetBodyRadius(body) / kKmPerAu; }

double Product(const double a[3], const double b[3]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

void AddEmptyList(const SSO_ID& id, CommonInterfaces::ObjectShadowMap& map) {
  auto list = std::make_unique<ShadowList>();
  list->reserve(1);
  if (!map.FindList(id)) map.AddList(id, list.release());
}

// The shadow that a ball casts at the foot of the perpendicular from the target. `target` is relative to the caster,
// `sun` too; au.
QX_ShadowParams MakeShadow(const SSO_ID& caster, double casterRadius, const double sun[3],
                           const double target[3]) {
  QX_ShadowParams shadow = {};
  shadow.m_Caster = caster;
  const double sunDistance = Vmod(sun, 3);
  for (int i = 0; i < 3; ++i) shadow.m_Axis[i] = -sun[i] / sunDistance;
  const double along = Product(target, shadow.m_Axis);
  for (int i = 0; i < 3; ++i) shadow.m_Foot[i] = along * shadow.m_Axis[i] - target[i];
  const double sunRadius = RadiusInAu(kSun);
  shadow.m_UmbraRadius = casterRadius - along * (sunRadius - casterRadius) / sunDistance;
  shadow.m_PenumbraRadius = casterRadius + along * (sunRadius + casterRadius) / sunDistance;
  return shadow;
}

}  // namespace

EclipseShadows::EclipseShadows() {
  AddEmptyList(kMoon, m_Map);
  AddEmptyList(kEarth, m_Map);
}

void EclipseShadows::Compute(const BodyModel& model) {
  m_OnMoon = nullptr;
  m_Map.FindList(kMoon)->clear();
  m_Map.FindList(kEarth)->clear();
  m_Lunar = LunarEclipse::kNone;
  m_Solar = SolarEclipse::kNone;
  m_UmbralMagnitude = m_PenumbralMagnitude = m_SolarMagnitude = 0.0;
  if (!model.GetSun().known || !model.GetMoon().known) return;
  ComputeLunar(model);
  ComputeSolar(model);
}

void EclipseShadows::ComputeLunar(const BodyModel& model) {
  const double* sun = model.GetSunFromCentre();
  const double* moon = model.GetMoonFromCentre();
  if (Product(sun, moon) > 0.0) return;
  const QX_ShadowParams shadow = MakeShadow(kEarth, kEarthRadius * kShadowEnlargement, sun, moon);
  const double radius = RadiusInAu(kMoon), away = Vmod(shadow.m_Foot, 3);
  m_UmbralMagnitude = (shadow.m_UmbraRadius + radius - away) / (2.0 * radius);
  m_PenumbralMagnitude = (shadow.m_PenumbraRadius + radius - away) / (2.0 * radius);
  if (m_PenumbralMagnitude <= 0.0) return;
  m_Lunar = m_UmbralMagnitude >= 1.0  ? LunarEclipse::kTotal
            : m_UmbralMagnitude > 0.0 ? LunarEclipse::kPartial
                                      : LunarEclipse::kPenumbral;
  ShadowList& list = *m_Map.FindList(kMoon);
  list.push_back(shadow);
  m_OnMoon = &list.back();
}

void EclipseShadows::ComputeSolar(const BodyModel& model) {
  const double* moon = model.GetMoonFromCentre();
  double sun[3], earth[3];
  for (int i = 0; i < 3; ++i) {
    sun[i] = model.GetSunFromCentre()[i] - moon[i];
    earth[i] = -moon[i];
  }
  if (Product(sun, earth) > 0.0) return;
  const QX_ShadowParams shadow = MakeShadow(kMoon, RadiusInAu(kMoon), sun, earth);
  if (Vmod(shadow.m_Foot, 3) >= shadow.m_PenumbraRadius + kEarthRadius) return;
  m_Map.FindList(kEarth)->push_back(shadow);
  const ObservedBody& sunSeen = model.GetSun().seen;
  const ObservedBody& moonSeen = model.GetMoon().seen;
  const double apart = VectorsAngle(sunSeen.apparent, moonSeen.apparent);
  const double sunRadius = sunSeen.angularRadius, moonRadius = moonSeen.angularRadius;
  if (apart >= sunRadius + moonRadius) {
    m_Solar = SolarEclipse::kElsewhere;
  } else if (apart > std::fabs(sunRadius - moonRadius)) {
    m_Solar = SolarEclipse::kPartial;
    m_SolarMagnitude = (sunRadius + moonRadius - apart) / (2.0 * sunRadius);
  } else {
    // While the one disc lies within the other the magnitude is the ratio of their diameters.
    m_Solar = moonRadius >= sunRadius ? SolarEclipse::kTotal : SolarEclipse::kAnnular;
    m_SolarMagnitude = moonRadius / sunRadius;
  }
}

}  // namespace scene
