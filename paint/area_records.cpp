// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <span>

#include "paint/colour.h"
#include "paint/records.h"

namespace paint {
namespace {

// Widths of the strokes of a soft edge, in halves of its softness.
constexpr double kEdgeWidths[] = {9.0, 21.0, 36.0, 56.0};
constexpr double kWidest = 56.0;
constexpr double kSoftTolerance = 0.5;  // pixels by which the roundings of these strokes may be off

// Sides of the picture, widened by what is painted round an outline, that a vertex lies beyond.
class Surroundings {
 public:
  Surroundings(const scene::DisplayList& list, double margin)
      : m_Least(-margin), m_MostX(list.GetWidth() + margin), m_MostY(list.GetHeight() + margin) {}

  unsigned FindSides(const scene::Vertex& vertex) const {
    return (vertex.x < m_Least ? 1u : 0u) | (vertex.x > m_MostX ? 2u : 0u) | (vertex.y < m_Least ? 4u : 0u) |
           (vertex.y > m_MostY ? 8u : 0u);
  }

 private:
  double m_Least, m_MostX, m_MostY;
};

void AddWholeRing(std::span<const scene::Vertex> ring, cairo_t* context) {
  cairo_new_sub_path(context);
  for (const auto& vertex : ring) cairo_line_to(context, vertex.x, vertex.y);
  cairo_close_path(context);
}

// A stretch of the ring that runs beyond one side of the picture becomes a straight line there: what it
// encloses in the picture is the same, with far fewer vertices.
void AddSeenRing(std::span<const scene::Vertex> ring, const Surroundings& around, cairo_t* context) {
  if (ring.empty()) return;
  cairo_new_sub_path(context);
  cairo_line_to(context, ring[0].x, ring[0].y);
  unsigned common =
      around.FindSides(ring[0]);  // sides that all lie beyond since the last vertex that was added
  for (auto at = ring.begin() + 1; at != ring.end(); ++at) {
    const unsigned sides = around.FindSides(*at);
    if ((common & sides) == 0) {
      cairo_line_to(context, at[-1].x, at[-1].y);
      common = around.FindSides(at[-1]);
    }
    common &= sides;
  }
  cairo_line_to(context, ring.back().x, ring.back().y);
  cairo_close_path(context);
}

// Of a picture in pixels all vertices are painted, since cairo's strokes round differently without them, if
// only by one step of a colour here and there.
void AddRings(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
  constexpr double kMore = 2.0;  // pixels, for what antialiasing touches
  const Surroundings around(list, 0.25 * kWidest * static_cast<double>(area.softness) + kMore);
  const bool writesPaths = WritesPaths(context);
  for (int r = 0; r < area.ringCount; ++r) {
    const scene::RingRecord& ring = list.GetRings()[static_cast<std::size_t>(area.firstRing + r)];
    const std::span vertices(list.GetVertices().data() + ring.firstVertex,
                             static_cast<std::size_t>(ring.vertexCount));
    if (writesPaths) {
      AddSeenRing(vertices, around, context);
    } else {
      AddWholeRing(vertices, context);
    }
  }
}

// The outside is clipped free and the outline stroked on it, broader and broader.
void PaintSoftEdge(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
  const double beyond = list.GetWidth() + list.GetHeight();
  cairo_save(context);
  AddRings(list, area, context);
  cairo_rectangle(context, -beyond, -beyond, 3.0 * beyond, 3.0 * beyond);
  cairo_clip(context);
  AddRings(list, area, context);
  SetColour(area.edge, context);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  cairo_set_tolerance(context, kSoftTolerance);
  cairo_set_antialias(context, CAIRO_ANTIALIAS_FAST);
  for (const double width : kEdgeWidths) {
    cairo_set_line_width(context, 0.5 * width * area.softness);
    cairo_stroke_preserve(context);
  }
  cairo_new_path(context);
  cairo_restore(context);
}

}  // namespace

bool WritesPaths(cairo_t* context) {
  return cairo_surface_get_type(cairo_get_target(context)) != CAIRO_SURFACE_TYPE_IMAGE;
}

void PaintPolygon(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context) {
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
  for (int i = 0; i < 4; ++i) cairo_line_to(context, gradient.cornerX[i], gradient.cornerY[i]);
  cairo_close_path(context);
  FillWith(fill, context);
}

}  // namespace paint
