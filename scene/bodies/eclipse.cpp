// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/eclipse.h"

#include <algorithm>
#include <memory>

#include "astro/constants.h"

namespace scene {
namespace {

using CommonInterfaces::QX_ShadowParams;
using ShadowList = std::vector<QX_ShadowParams>;

void AddEmptyList(const SSO_ID& id, CommonInterfaces::ObjectShadowMap& map) {
  auto list = std::make_unique<ShadowList>();
  list->reserve(1);
  if (!map.FindList(id)) map.AddList(id, list.release());
}

QX_ShadowParams MakeParams(const SSO_ID& caster, const astro::Shadow& shadow) {
  QX_ShadowParams params = {};
  params.m_Caster = caster;
  std::copy_n(shadow.axis, 3, params.m_Axis);
  std::copy_n(shadow.foot, 3, params.m_Foot);
  params.m_UmbraRadius = shadow.umbraRadius;
  params.m_PenumbraRadius = shadow.penumbraRadius;
  return params;
}

}  // namespace

EclipseShadows::EclipseShadows() {
  AddEmptyList(astro::kMoon, m_Map);
  AddEmptyList(astro::kEarth, m_Map);
}

void EclipseShadows::Compute(const BodyModel& model) {
  ShadowList& onMoon = *m_Map.FindList(astro::kMoon);
  ShadowList& onEarth = *m_Map.FindList(astro::kEarth);
  onMoon.clear();
  onEarth.clear();
  m_OnMoon = nullptr;
  m_Lunar = {};
  m_Solar = {};
  if (!model.GetSun().known || !model.GetMoon().known) return;
  const double* sun = model.GetSunFromCentre();
  const double* moon = model.GetMoonFromCentre();
  m_Lunar = astro::FindLunarEclipse(sun, moon);
  if (m_Lunar.kind != LunarEclipse::kNone) {
    onMoon.push_back(MakeParams(astro::kEarth, m_Lunar.shadow));
    m_OnMoon = &onMoon.back();
  }
  m_Solar = astro::FindSolarEclipse(sun, moon, model.GetSun().seen, model.GetMoon().seen);
  if (m_Solar.kind != SolarEclipse::kNone) onEarth.push_back(MakeParams(astro::kMoon, m_Solar.shadow));
}

}  // namespace scene
