// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/colour.h"
#include "paint/records.h"

namespace paint {
namespace {

bool HaveOneStyle(const scene::PolylineRecord& a, const scene::PolylineRecord& b) {
  return a.width == b.width && a.dash == b.dash && a.colour == b.colour && a.flags == b.flags;
}

void AddLine(const scene::DisplayList& list, const scene::PolylineRecord& line, cairo_t* context) {
  cairo_new_sub_path(context);
  for (int i = 0; i < line.vertexCount; ++i) {
    const scene::Vertex& vertex = list.GetVertices()[static_cast<std::size_t>(line.firstVertex + i)];
    cairo_line_to(context, vertex.x, vertex.y);
  }
  if (line.flags & scene::kClosedLine) cairo_close_path(context);
}

void Stroke(const scene::PolylineRecord& style, cairo_t* context) {
  SetColour(style.colour, context);
  cairo_set_line_width(context, style.width);
  cairo_set_line_cap(context, style.flags & scene::kRoundCaps ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
  cairo_set_line_join(context,
                      style.flags & scene::kRoundJoins ? CAIRO_LINE_JOIN_ROUND : CAIRO_LINE_JOIN_MITER);
  const double dash = style.dash;
  if (dash > 0.0) cairo_set_dash(context, &dash, 1, 0.0);
  cairo_stroke(context);
  cairo_set_dash(context, nullptr, 0, 0.0);
}

}  // namespace

void PaintPolylines(const scene::DisplayList& list, std::span<const scene::PolylineRecord> lines,
                    cairo_t* context) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    AddLine(list, lines[i], context);
    if (i + 1 == lines.size() || !HaveOneStyle(lines[i], lines[i + 1])) Stroke(lines[i], context);
  }
  cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_MITER);
}

}  // namespace paint
