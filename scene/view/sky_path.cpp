// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/sky_path.h"

#include "common_interfaces/clipping.h"

namespace scene {

bool SkyPath::GoTo(const Direction& direction, DrawnLine& stretch) {
  const auto p = m_Geometry.Project(direction, SkyFrameOf::kJ2000);
  const bool usable =
      Dot(direction, m_Geometry.centreJ2000) > 0.0 || m_Geometry.IsInside(p, m_Geometry.halfDiagonal);
  const bool both = usable && m_LastUsable;
  if (both) stretch = {m_Last, p};
  m_Last = p;
  m_LastUsable = usable;
  return both;
}

bool SkyPath::Clip(DrawnLine& stretch) const {
  const tRect<int> window = {0, 0, m_Geometry.width + 1, m_Geometry.height + 1};
  return CommonInterfaces::line_in_rectD(&stretch.from, &stretch.to, window);
}

}  // namespace scene
