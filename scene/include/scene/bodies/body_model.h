// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/solar_system.h"
#include "scene/api.h"
#include "scene/catalogs/bodies.h"
#include "scene/view/earth_observer.h"

namespace scene {

// A body as the observer sees it.
struct BodyState {
  bool known = false;  // the model tells where it is; else nothing below holds
  ObservedBody seen;
  // Magnitude code, (magnitude + 2) * 10; that of kUnknownStarMagnitude when there is none.
  float code = 0.0f;
};

// The bodies of one moment as an observer on the Earth sees them. The elements of all bodies are handed to
// the model once; computing a moment allocates nothing. `bodies` is kept by reference and must not grow.
class SCENE_API BodyModel {
 public:
  explicit BodyModel(const BodyList& bodies);

  // The states last until a call for another moment or place: a view that turns while time stands costs
  // nothing here.
  void Compute(const SkyMoment& moment, const EarthPlace& place);

  const BodyList& GetBodies() const { return m_Bodies; }
  const std::vector<BodyState>& GetStates() const { return m_States; }  // by index of the body
  const BodyState& GetSun() const { return m_States[kSunBody]; }
  const BodyState& GetMoon() const { return m_States[kMoonBody]; }
  // Seen from the Earth's centre, au, J2000 axes.
  const double* GetSunFromCentre() const { return m_SunFromCentre; }
  const double* GetMoonFromCentre() const { return m_MoonFromCentre; }
  const CQXSolSys& GetModel() const { return m_Model; }
  const SkyMoment& GetMoment() const { return m_Moment; }

 private:
  bool Observe(const SkyBody& body, ObservedBody& seen) const;

  const BodyList& m_Bodies;
  CQXSolSys m_Model;
  CQXSolSys m_Centre;  // the same sky from the Earth's centre
  SkyMoment m_Moment;
  EarthPlace m_Place;
  bool m_IsComputed = false;
  std::vector<BodyState> m_States;
  double m_SunFromCentre[3] = {0.0, 0.0, 0.0}, m_MoonFromCentre[3] = {0.0, 0.0, 0.0};
};

}  // namespace scene
