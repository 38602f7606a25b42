// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/api.h"
#include "scene/display/display_list.h"

namespace scene {

// An object that is drawn at a pixel.
struct Hit {
  ObjectRef object;
  Layer layer;      // of the record that was hit
  double distance;  // pixels from the pixel to what is painted; 0 inside
};

// The objects drawn at a pixel (y down), or at most `tolerance` pixels beside it: what was painted last comes
// first, each object once, with the record that is hit nearest. Records that stand for no object are passed
// over. Circles, discs, ellipses and areas are hit inside, lines and texts on themselves; the extent of a
// text is estimated (text_extents.h). Reads the list alone, so that it answers for the frame that is on
// screen.
SCENE_API std::vector<Hit> PickObjects(const DisplayList& list, double x, double y, double tolerance);

}  // namespace scene
