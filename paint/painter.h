// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "scene/display_list.h"

namespace paint {

// Paints the list on a surface of its size whose y counts downwards. The same calls make every kind of
// picture. The context is left as it was, its path aside.
void PaintDisplayList(const scene::DisplayList& list, cairo_t* context);

}  // namespace paint
