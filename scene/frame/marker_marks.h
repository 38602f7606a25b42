// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "common_interfaces/marker_info.h"
#include "scene/display/labels.h"
#include "scene/view/view_geometry.h"

namespace scene {

// A marker of the camera that is on screen, with its identifier as text.
struct DrawnMarker {
  tPoint<double> place;
  char text[12];
};

// The camera's markers in one frame. Allocates only for more markers than before.
class MarkerMarks {
 public:
  // The markers of the next frame, placed by UpdateOIMarkers.
  void SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers) { m_Markers = markers; }

  // Their labels point into the list and are valid until the next Compute.
  void Compute(const ViewGeometry& geometry, LabelPlacer& labels);

  // Crosses that leave what they mark free.
  void Draw(DisplayList& list) const;

  const std::vector<DrawnMarker>& GetDrawn() const { return m_Drawn; }

 private:
  std::vector<CommonInterfaces::MARKER_INFO> m_Markers;
  std::vector<DrawnMarker> m_Drawn;
};

}  // namespace scene
