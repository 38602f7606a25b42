// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/marker_marks.h"

#include <cstdio>

namespace skyview {

// A marker's y counts from the top. The finder has no place on the sky.
void MarkerMarks::Compute(const ViewGeometry& geometry, LabelPlacer& labels) {
  const double arm = 9.0 * geometry.unit;
  m_Drawn.clear();
  m_Drawn.reserve(m_Markers.size());  // the labels point into the list
  for (const auto& marker : m_Markers) {
    if (marker.id == CommonInterfaces::kOnScreenFinderMarker || marker.x < 0) continue;
    DrawnMarker drawn = {{static_cast<double>(marker.x), static_cast<double>(geometry.height - marker.y)},
                         ""};
    std::snprintf(drawn.text, sizeof drawn.text, "%d", marker.id);
    m_Drawn.push_back(drawn);
    labels.Reserve(drawn.place, arm, arm);
  }
  for (const auto& drawn : m_Drawn) {
    labels.PlaceBeside(drawn.text, drawn.place, arm, 12.0 * geometry.unit, LabelKind::kMarker);
  }
}

}  // namespace skyview
