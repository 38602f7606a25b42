// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Zoom and field of view of a window of so many pixels. Both are pure; the two undo each other. Any thread.
#pragma once

#include "scene/api.h"

namespace scene {

// The angle across the window's width, degrees, as the status text says it (GetFoV in status_strings.h): 63
// at zoom 1 in 1600x1000.
SCENE_API double GetFieldOfZoom(double zoom, int width, int height);

// The zoom at which the window shows that angle across, degrees, above 0 and below 360. It may lie outside
// the range in which frames can be drawn (zoom_range.h).
SCENE_API double FindZoomOfField(double degrees, int width, int height);

}  // namespace scene
