// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/display/display_list.h"

namespace paint {

inline void SetColour(const scene::Rgba& colour, cairo_t* context) {
  cairo_set_source_rgba(context, colour.red / 255.0, colour.green / 255.0, colour.blue / 255.0,
                        colour.alpha / 255.0);
}

inline void AddStop(cairo_pattern_t* pattern, double offset, const scene::Rgba& colour) {
  cairo_pattern_add_color_stop_rgba(pattern, offset, colour.red / 255.0, colour.green / 255.0,
                                    colour.blue / 255.0, colour.alpha / 255.0);
}

// Fills the path with the pattern, which is gone afterwards.
inline void FillWith(cairo_pattern_t* pattern, cairo_t* context) {
  cairo_set_source(context, pattern);
  cairo_fill(context);
  cairo_pattern_destroy(pattern);
}

}  // namespace paint
