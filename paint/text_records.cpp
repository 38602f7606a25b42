// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/colour.h"
#include "paint/font.h"
#include "paint/records.h"

namespace paint {

void PaintText(const scene::DisplayList& list, const scene::TextRecord& text, cairo_t* context) {
  const char* utf8 = list.GetText(text);
  SelectFont(text.size, text.style, context);
  cairo_move_to(context, text.x - text.anchor * GetAdvance(utf8, context), text.y);
  SetColour(text.colour, context);
  cairo_show_text(context, utf8);
  cairo_new_path(context);
}

}  // namespace paint
