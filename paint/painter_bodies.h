// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What moves among the stars, painted. The context's colour, width and path change.
#pragma once

#include <cairo.h>

#include "scene/frame/sky_frame.h"

namespace skyview {

// Under the stars: orbits.
void PaintOrbits(const SkyFrame& frame, cairo_t* context);

// Over the stars, the farthest body first: discs with their phase, dots, comets with a tail away from the Sun, and the
// paths of satellites.
void PaintBodies(const SkyFrame& frame, cairo_t* context);

}  // namespace skyview
