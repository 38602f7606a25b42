// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_markers.h"

#include <algorithm>

#include "astro/coordinates.h"

namespace scene {

using CommonInterfaces::MARKER_INFO;

const SkyMarkers::Mark* SkyMarkers::Find(int id) const {
  const auto found = std::find_if(m_Marks.begin(), m_Marks.end(), [id](const Mark& m) { return m.id == id; });
  return found == m_Marks.end() ? nullptr : &*found;
}

void SkyMarkers::Add(const SkyMark& mark, CommonInterfaces::Camera& camera) {
  int id = mark.id.value_or(1);
  if (!mark.id) {
    while (Find(id)) ++id;
  }
  std::erase_if(m_Marks, [id](const Mark& m) { return m.id == id; });
  m_Marks.push_back({id, mark, MakeDirection(mark.ra * kRadiansPerDegree, mark.dec * kRadiansPerDegree)});
  m_Marks.back().mark.id = id;
  MARKER_INFO marker;
  marker.id = id;
  camera.AddOIMarker(marker);
}

void SkyMarkers::Update(const ObserverFrame& observer, CommonInterfaces::Camera& camera) const {
  for (MARKER_INFO& marker : *camera.GetOIMarkerList()) {
    const Mark* const mark = Find(marker.id);
    if (!mark) continue;
    const Direction seen = SeenDirection(ApparentDirection(mark->direction, observer), observer);
    psf(seen.v, 1.0, marker.lon, marker.lat);
  }
  camera.UpdateOIMarkers();
}

std::vector<SkyMark> SkyMarkers::GetMarks() const {
  std::vector<SkyMark> marks;
  for (const Mark& mark : m_Marks) marks.push_back(mark.mark);
  return marks;
}

}  // namespace scene
