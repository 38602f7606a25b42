// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/font_extents.h"

#include "paint/font.h"

namespace paint {

FontExtents::FontExtents()
    : m_Surface(cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)), m_Context(cairo_create(m_Surface)) {}

FontExtents::~FontExtents() {
  cairo_destroy(m_Context);
  cairo_surface_destroy(m_Surface);
}

double FontExtents::GetWidth(const char* utf8, double size, unsigned style) const {
  SelectFont(size, style, m_Context);
  return GetAdvance(utf8, m_Context);
}

}  // namespace paint
