// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What lies over the sky when it is asked for. Each leaves the context's colour, width, dash and path changed.
#pragma once

#include <cairo.h>

#include "scene/frame/sky_frame.h"

namespace skyview {

void PaintImageFrames(const SkyFrame& frame, cairo_t* context);

// Rays that lead away from the radiant, as the tracks of the meteors do; with a disc on the day of the maximum.
void PaintRadiants(const SkyFrame& frame, cairo_t* context);

// Stars of five points with a dark edge, legible on any ground.
void PaintFavouriteMarks(const SkyFrame& frame, cairo_t* context);

}  // namespace skyview
