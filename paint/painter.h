// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/display/display_list.h"

namespace paint {

// What of a list is painted.
struct PaintScope {
  unsigned layers = ~0u;   // a bit for each scene::Layer, 1 << its number
  float leastText = 0.0f;  // size of the font, pixels: smaller texts are left out

  static constexpr unsigned GetBit(scene::Layer layer) { return 1u << static_cast<int>(layer); }
};

// Paints the list on a surface of its size whose y counts downwards. The same calls make every kind of
// picture. The context is left as it was, its path aside.
void PaintDisplayList(const scene::DisplayList& list, cairo_t* context, const PaintScope& scope = {});

}  // namespace paint
