// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/solar_system_part.h"

#include <algorithm>

#include "scene/view/base_plane.h"

namespace scene {

void SolarSystemPart::Observe(const ViewGeometry& geometry) {
  m_FromEarth = IsNearSurface(geometry.camera);
  if (!m_FromEarth) return;
  m_Model.Compute(GetMoment(geometry.camera), GetPlace(geometry.camera));
  m_Shadows.Compute(m_Model);
}

std::optional<SkySources> SolarSystemPart::FindSources(const ObserverFrame& observer) const {
  if (!m_FromEarth || !observer.horizon || !m_Model.GetSun().known || !m_Model.GetMoon().known) return {};
  const auto towards = [&observer](const ObservedBody& seen) {
    Direction direction;
    MV3prod(observer.reduction, seen.apparent, direction.v);
    return direction;
  };
  const ObservedBody &sun = m_Model.GetSun().seen, &moon = m_Model.GetMoon().seen;
  SkySources sources = {towards(sun), towards(moon)};
  sources.sunlight = std::max(1.0 - m_Shadows.GetSolarObscuration(), SkySources::kLeft);
  sources.moonlight = std::max(1.0 - std::clamp(m_Shadows.GetUmbralMagnitude(), 0.0, 1.0), SkySources::kLeft);
  sources.moonPhaseAngle = moon.phaseAngle;
  return sources;
}

void SolarSystemPart::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                              const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light,
                              const Landscape& landscape, LabelPlacer& labels) {
  m_Orbits.Clear();
  m_Paths.Clear();
  m_Passes.Clear();
  m_Names.Clear();
  if (!m_FromEarth) return m_Marks.Clear();
  const EarthPlace place = GetPlace(geometry.camera);
  const BodyTests tests(m_Model, geometry, observer, shown, filters, light, landscape);
  m_Marks.Compute(geometry, tests, shown, m_Shadows);
  m_Names.Compute(geometry, observer, m_Model, m_Marks.GetDrawn(), shown, labels);
  m_Marks.KeepClear(labels);
  const bool hidden = shown.horizon && observer.horizon;
  m_Orbits.Compute(geometry, observer, place, hidden);
  m_Paths.Compute(geometry, observer, place, {shown.planetCelPath, shown.planetLocPath, hidden});
}

void SolarSystemPart::PlaceLabels(const ViewGeometry& geometry, const ObserverFrame& observer,
                                  const ShownKinds& shown, const ObjectFilters& filters,
                                  const SkyLight& light, const Landscape& landscape, LabelPlacer& labels) {
  if (!m_FromEarth) return;
  m_Marks.PlaceLabels(geometry, BodyTests(m_Model, geometry, observer, shown, filters, light, landscape),
                      shown, labels);
  if (observer.horizon && shown.spacecraft) {
    m_Passes.Compute(geometry, GetPlace(geometry.camera), geometry.camera.GetLocUTCdelta(), labels);
  }
}

}  // namespace scene
