// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/colour.h"
#include "paint/records.h"

namespace paint {

void PaintText(const scene::DisplayList& list, const scene::TextRecord& text, cairo_t* context) {
  const char* utf8 = list.GetText(text);
  cairo_select_font_face(context, "sans-serif",
                         text.style & scene::kItalicText ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                         text.style & scene::kBoldText ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, text.size);
  cairo_text_extents_t extents;
  cairo_text_extents(context, utf8, &extents);
  cairo_move_to(context, text.x - text.anchor * extents.x_advance, text.y);
  SetColour(text.colour, context);
  cairo_show_text(context, utf8);
}

}  // namespace paint
