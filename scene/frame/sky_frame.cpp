// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_frame.h"

#include "scene/visibility/object_tests.h"

namespace skyview {

SkyFrame::SkyFrame(const SkyCatalogs& catalogs)
    : m_Catalogs(catalogs),
      m_MilkyWay(catalogs),
      m_Figures(catalogs),
      m_SolarSystem(catalogs.bodies),
      m_Objects(catalogs),
      m_FavouriteMarks(catalogs) {}

void SkyFrame::Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer,
                       const ShownKinds& shown, const ObjectFilters& filters) {
  const ViewGeometry geometry(camera);
  m_Width = geometry.width;
  m_Height = geometry.height;
  m_Unit = geometry.unit;
  m_Labels.Begin(m_Width, m_Height);

  const ObjectTests tests(m_Catalogs, geometry, observer, shown, filters);
  m_Caption.Place(geometry.unit, m_Labels);
  m_Markers.Compute(geometry, m_Labels);
  m_MilkyWay.Compute(geometry, shown.milkyWay);
  m_Horizon.Compute(geometry, shown.horizon && observer.horizon, shown.compass && observer.horizon, m_Labels);
  m_Figures.Compute(geometry, observer, tests);
  m_Objects.Compute(geometry, tests);
  m_FavouriteMarks.Compute(geometry, tests, m_Labels);
  m_Radiants.Compute(geometry, observer, tests, m_Labels);
  m_ImageFrames.Compute(geometry, observer, tests, m_Labels);
  m_SolarSystem.Compute(geometry, observer, shown, filters, m_Labels);
  m_Objects.PlaceLabels(geometry, tests, m_Labels);
  m_Figures.PlaceNames(geometry, tests, shown.englishNames, m_Labels);
}

}  // namespace skyview
