// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/display_list.h"
#include "scene/display/palette.h"
#include "scene/view/sky_region.h"

namespace scene {

// Adds the rings of a region to the list as those of one area: to be closed by AddArea. Points nearer than
// `leastStep` pixels to the last one are left out.
void AddRegion(const RegionPicture& region, double leastStep, DisplayList& list);

// The same for `count` rings from `first` on of a region that holds nothing beyond its rim.
void AddRings(const RegionPicture& region, int first, int count, double leastStep, DisplayList& list);

// Gives an area a soft edge of that colour. The inside gets as much light as meets at the edge.
void SetSoftColour(const Colour& edge, float softness, PolygonRecord& area);

// Strokes the outlines of a region.
void AddOutlines(const RegionPicture& region, double leastStep, Layer layer, const PolylineRecord& style,
                 DisplayList& list);

}  // namespace scene
