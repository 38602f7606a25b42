// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/solar_system_part.h"

#include "scene/base_plane.h"

namespace scene {

void SolarSystemPart::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                              const ShownKinds& shown, const ObjectFilters& filters, LabelPlacer& labels) {
  m_FromEarth = IsNearSurface(geometry.camera);
  m_Orbits.Clear();
  m_Passes.Clear();
  if (!m_FromEarth) return m_Marks.Clear();
  const EarthPlace place = GetPlace(geometry.camera);
  m_Model.Compute(GetMoment(geometry.camera), place);
  m_Shadows.Compute(m_Model);
  const BodyTests tests(m_Model, geometry, observer, shown, filters);
  m_Marks.Compute(geometry, tests, shown, m_Shadows, labels);
  m_Orbits.Compute(geometry, observer, place, shown.horizon && observer.horizon);
}

void SolarSystemPart::PlaceLabels(const ViewGeometry& geometry, const ObserverFrame& observer,
                                  const ShownKinds& shown, const ObjectFilters& filters,
                                  LabelPlacer& labels) {
  if (!m_FromEarth) return;
  m_Marks.PlaceLabels(geometry, BodyTests(m_Model, geometry, observer, shown, filters), shown, labels);
  if (observer.horizon && shown.spacecraft) {
    m_Passes.Compute(geometry, GetPlace(geometry.camera), geometry.camera.GetLocUTCdelta(), labels);
  }
}

}  // namespace scene
