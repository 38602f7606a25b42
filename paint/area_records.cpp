// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/colour.h"
#include "paint/records.h"

namespace paint {
namespace {

void AddRings(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
  for (int r = 0; r < area.ringCount; ++r) {
    const scene::RingRecord& ring = list.GetRings()[static_cast<std::size_t>(area.firstRing + r)];
    cairo_new_sub_path(context);
    for (int i = 0; i < ring.vertexCount; ++i) {
      const scene::Vertex& vertex = list.GetVertices()[static_cast<std::size_t>(ring.firstVertex + i)];
      cairo_line_to(context, vertex.x, vertex.y);
    }
    cairo_close_path(context);
  }
}

// The outside is clipped free and the outline stroked on it, broader and broader.
void PaintSoftEdge(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
  constexpr double kWidths[] = {9.0, 21.0, 36.0, 56.0};
  const double beyond = list.GetWidth() + list.GetHeight();
  cairo_save(context);
  AddRings(list, area, context);
  cairo_rectangle(context, -beyond, -beyond, 3.0 * beyond, 3.0 * beyond);
  cairo_clip(context);
  AddRings(list, area, context);
  SetColour(area.edge, context);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  for (const double width : kWidths) {
    cairo_set_line_width(context, 0.5 * width * area.softness);
    cairo_stroke_preserve(context);
  }
  cairo_new_path(context);
  cairo_restore(context);
}

}  // namespace

void PaintPolygon(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
  cairo_new_path(context);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  AddRings(list, area, context);
  SetColour(area.colour, context);
  cairo_fill(context);
  if (area.softness > 0.0f) PaintSoftEdge(list, area, context);
}

void PaintGradient(const scene::GradientRecord& gradient, cairo_t* context) {
  cairo_pattern_t* fill = cairo_pattern_create_linear(gradient.x0, gradient.y0, gradient.x1, gradient.y1);
  AddStop(fill, 0.0, gradient.colour);
  AddStop(fill, gradient.middle, gradient.middleColour);
  AddStop(fill, 1.0, gradient.endColour);
  cairo_new_path(context);
  for (int i = 0; i < 4; ++i) cairo_line_to(context, gradient.cornerX[i], gradient.cornerY[i]);
  cairo_close_path(context);
  FillWith(fill, context);
}

}  // namespace paint
