// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/satellite_pass.h"
#include "scene/display/palette.h"

namespace scene {

void SatellitePasses::Draw(DisplayList& list) const {
  PolylineRecord record = {};
  for (const bool sunlit : {false, true}) {
    record.width = (sunlit ? 1.4f : 1.0f) * list.GetUnit();
    record.colour = ToRgba(palette::kSatellite, sunlit ? 0.75 : 0.28);
    for (const auto& line : m_Lines) {
      if (line.sunlit != sunlit) continue;
      record.object = line.satellite;
      list.AddVertex(line.from.x, list.GetHeight() - line.from.y);
      list.AddVertex(line.to.x, list.GetHeight() - line.to.y);
      list.AddLine(Layer::kBodies, record);
    }
  }
  for (const auto& mark : m_Marks) {
    PointRecord point = {};
    point.x = static_cast<float>(mark.place.x);
    point.y = static_cast<float>(list.GetHeight() - mark.place.y);
    point.radius = 2.0f * list.GetUnit();
    point.colour = ToRgba(palette::kSatellite, 0.85);
    point.object = mark.satellite;
    list.Add(Layer::kBodies, point);
  }
}

}  // namespace scene
