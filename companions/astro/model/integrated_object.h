// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "companions/astro/model/model_object.h"
#include "companions/astro/model/moment.h"
#include "companions/astro/orbits/orbit_integrator.h"

namespace astro_internal {

// A body whose orbit about the Sun is integrated numerically, disturbed by the eight planets, Pluto while its
// place is known, and the Moon. It goes on from where it stands: moments that follow one another cost little.
class IntegratedObject {
 public:
  // At the epoch of the elements. Nothing for an object that has no elements about
  // the Sun, or whose epoch is out of range.
  static std::optional<IntegratedObject> Begin(const ModelObject& object);

  // Integrates to the moment, then observes. False, and the result untouched, when that fails; the
  // integration then stands where it came to.
  bool Observe(const Moment& moment, ObservedBody& result);

  // Integrates to a date (TT): position and velocity about the Sun.
  bool Advance(double dateTT);
  const OrbitState& GetState() const { return m_State; }

 private:
  IntegratedObject(const SSO_ID& id, const OrbitalElements& elements) : m_ID(id), m_Elements(elements) {}

  SSO_ID m_ID;
  OrbitalElements m_Elements;
  OrbitState m_State = {};
  double m_Days = 0.0;  // since the epoch
};

}  // namespace astro_internal
