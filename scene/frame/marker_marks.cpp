// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/marker_marks.h"

#include <cstdio>

#include "scene/display/palette.h"

namespace scene {

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

void MarkerMarks::Draw(DisplayList& list) const {
  const double unit = list.GetUnit(), arm = 9.0 * unit, gap = 3.0 * unit;
  PolylineRecord line = {};
  line.width = 1.3f * list.GetUnit();
  line.colour = ToRgba(palette::kMark);
  for (const auto& marker : m_Drawn) {
    const double x = marker.place.x, y = list.GetHeight() - marker.place.y;
    for (const double side : {-1.0, 1.0}) {
      list.AddVertex(x + side * gap, y);
      list.AddVertex(x + side * arm, y);
      list.AddLine(Layer::kMarkers, line);
      list.AddVertex(x, y + side * gap);
      list.AddVertex(x, y + side * arm);
      list.AddLine(Layer::kMarkers, line);
    }
  }
}

}  // namespace scene
