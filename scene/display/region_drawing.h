// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display_list.h"
#include "scene/view/sky_region.h"

namespace scene {

// Adds the rings of a region to the list as those of one area: to be closed by AddArea. Points nearer than
// `leastStep` pixels to the last one are left out.
void AddRegion(const RegionPicture& region, double leastStep, DisplayList& list);

// Strokes the outlines of a region.
void AddOutlines(const RegionPicture& region, double leastStep, Layer layer, const PolylineRecord& style,
                 DisplayList& list);

}  // namespace scene
