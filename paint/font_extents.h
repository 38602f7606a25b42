// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/display/text_extents.h"

namespace paint {

// The widths that texts have in the pictures of this painter. Allocates what the drawing library needs for
// its fonts.
class FontExtents : public scene::TextExtents {
 public:
  FontExtents();
  ~FontExtents() override;
  double GetWidth(const char* utf8, double size, unsigned style) const override;

 private:
  cairo_surface_t* m_Surface;
  cairo_t* m_Context;
};

}  // namespace paint
