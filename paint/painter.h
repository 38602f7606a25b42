// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/frame/sky_frame.h"

namespace skyview {

// Paints the frame on a surface of the frame's size whose y counts downwards. The same calls make every kind of
// picture. The context is left as it was, its path aside.
void PaintFrame(const SkyFrame& frame, cairo_t* context);

}  // namespace skyview
