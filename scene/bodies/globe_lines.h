// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/display_list.h"

namespace scene {

// Which lines are drawn on the disc of a body.
struct GlobeLines {
  bool grid = false;    // meridians and parallels, 30 degrees apart
  bool guides = false;  // the axis, from the poles outwards, and the equator
};

// Draws them on a globe that is large enough: what lies on the side that is seen, also at night.
void DrawGlobeLines(const GlobeRecord& globe, const GlobeLines& wanted, DisplayList& list);

}  // namespace scene
