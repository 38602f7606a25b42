// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The single things of a picture. Each paints one and leaves the context's colour, width and path changed.
#pragma once

#include <cairo.h>

#include "scene/frame/sky_frame.h"

namespace skyview {

// 0 to 1 each.
struct Colour {
  double red, green, blue, opacity;
};

inline constexpr Colour kMark = {0.56, 0.93, 0.62, 0.95};           // of the user's markers
inline constexpr Colour kAccent = {0.96, 0.60, 0.28, 1.0};          // of the compass points
inline constexpr Colour kRadiantColour = {1.00, 0.72, 0.62, 0.95};  // of meteor showers

inline void SetColour(const Colour& colour, cairo_t* context) {
  cairo_set_source_rgba(context, colour.red, colour.green, colour.blue, colour.opacity);
}

// A disc in the colour of the star's spectral class, with a soft shine around the bright ones.
void PaintStar(const SkyFrame& frame, const DrawnStar& drawn, cairo_t* context);

// Galaxies as ellipses, clusters as dashed circles, nebulae as boxes, anything else as a diamond.
void PaintDeepskySymbol(const SkyFrame& frame, const DrawnDeepsky& drawn, cairo_t* context);

void PaintLabel(const SkyFrame& frame, const Label& label, cairo_t* context);

}  // namespace skyview
