// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/display/display_list.h"

namespace paint {

// Chooses the font of a text; `style`: of scene::TextStyle.
inline void SelectFont(double size, unsigned style, cairo_t* context) {
  cairo_select_font_face(context, "sans-serif",
                         style & scene::kItalicText ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                         style & scene::kBoldText ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, size);
}

inline double GetAdvance(const char* utf8, cairo_t* context) {
  cairo_text_extents_t extents;
  cairo_text_extents(context, utf8, &extents);
  return extents.x_advance;
}

}  // namespace paint
