// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The orbits that are shown, and how they come and go.
#include <algorithm>

#include "common_interfaces/render_settings.h"
#include "utils/clock.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

constexpr double kOrbitsOffFade = 0.15;  // seconds
constexpr float kLeastOpacity = 1.0f / 255.0f;

// On, or being faded in, and not of a planet or a moon, whose orbits have switches of their own.
bool IsNPMOrbit(const SSO_ID& id, const OrbitFade& fade) {
  return fade.m_EndValue != 0.0f && id.kind != FourCC("plnt") && id.kind != FourCC("moon");
}

}  // namespace

bool RenderSettings::isObjectWithOrbit(const SSO_ID& id) {
  const ChangesObject use(this, "RenderSettings");
  const auto found = m_Orbits.find(id);
  if (found == m_Orbits.end()) return false;
  if (found->second.GetCurrent(AnimationInterval::m_CurrentTime) > 0.0f) return true;
  m_Orbits.erase(found);
  return false;
}

bool RenderSettings::isNPMOrbits() const {
  const ReadsObject use(this, "RenderSettings");
  for (const auto& [id, fade] : m_Orbits) {
    if (IsNPMOrbit(id, fade)) return true;
  }
  return false;
}

void RenderSettings::clearNPMOrbits(bool immediately) {
  const ChangesObject use(this, "RenderSettings");
  for (auto entry = m_Orbits.begin(); entry != m_Orbits.end();) {
    if (!IsNPMOrbit(entry->first, entry->second)) {
      ++entry;
    } else if (immediately) {
      entry = m_Orbits.erase(entry);
    } else {
      entry->second.FadeTo(0.0f, AnimationInterval::m_CurrentTime, kOrbitsOffFade);
      ++entry;
    }
  }
}

void RenderSettings::SetOrbit(const SSO_ID& id, const OrbitFade& fade) {
  const ChangesObject use(this, "RenderSettings");
  m_Orbits.insert_or_assign(id, fade);
}

void RenderSettings::ShowOrbit(const SSO_ID& id, bool show, double duration) {
  const ChangesObject use(this, "RenderSettings");
  const auto found = m_Orbits.find(id);
  if (found == m_Orbits.end() && !show) return;
  OrbitFade& fade = found == m_Orbits.end() ? m_Orbits[id] : found->second;
  fade.FadeTo(show ? 1.0f : 0.0f, AnimationInterval::m_CurrentTime, duration);
  // From nothing it would be forgotten by the first isObjectWithOrbit of the same frame.
  if (show) fade.m_StartValue = std::max(fade.m_StartValue, kLeastOpacity);
}

float RenderSettings::GetOrbitAlpha(const SSO_ID& id) const {
  const ReadsObject use(this, "RenderSettings");
  const auto found = m_Orbits.find(id);
  return found == m_Orbits.end() ? 0.0f : found->second.GetCurrent(AnimationInterval::m_CurrentTime);
}

}  // namespace CommonInterfaces
