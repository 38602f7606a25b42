// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/painter.h"

#include <cmath>

#include "host/painter_parts.h"

namespace skyview {
namespace {

// Points nearer than this to the last one add nothing to an outline, pixels.
constexpr double kLeastStep = 0.8;

void AddOutlines(const SkyFrame& frame, const RegionPicture& region, cairo_t* context) {
  std::size_t point = 0;
  for (const int end : region.ringEnds) {
    tPoint<double> last{};
    for (bool first = true; point < static_cast<std::size_t>(end); ++point) {
      const auto& p = region.points[point];
      const double y = frame.GetHeight() - p.y;
      if (first) {
        cairo_move_to(context, p.x, y);
      } else if (std::hypot(p.x - last.x, p.y - last.y) < kLeastStep) {
        continue;
      } else {
        cairo_line_to(context, p.x, y);
      }
      first = false;
      last = p;
    }
    cairo_close_path(context);
  }
}

// The outlines stroked, then the inside filled. `softness` is the width of the widest stroke, pixels.
void PaintRegion(const SkyFrame& frame, const RegionPicture& region, const Colour& fill, double softness,
                 const Colour& edge, cairo_t* context) {
  cairo_new_path(context);
  AddOutlines(frame, region, context);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  for (double width = softness; width > 0.5; width *= 0.5) {
    SetColour(edge, context);
    cairo_set_line_width(context, width);
    cairo_stroke_preserve(context);
  }
  if (region.holdsOutside) {
    const double beyond = 2.0 * region.rim;
    cairo_rectangle(context, frame.GetWidth() * 0.5 - beyond, frame.GetHeight() * 0.5 - beyond, 2.0 * beyond,
                    2.0 * beyond);
  }
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  SetColour(fill, context);
  cairo_fill(context);
}

void PaintBackground(const SkyFrame& frame, cairo_t* context) {
  cairo_pattern_t* sky = cairo_pattern_create_linear(0.0, 0.0, 0.0, frame.GetHeight());
  cairo_pattern_add_color_stop_rgb(sky, 0.0, 0.016, 0.024, 0.055);
  cairo_pattern_add_color_stop_rgb(sky, 1.0, 0.030, 0.047, 0.098);
  cairo_set_source(context, sky);
  cairo_paint(context);
  cairo_pattern_destroy(sky);
}

void PaintMilkyWay(const SkyFrame& frame, cairo_t* context) {
  const Colour fill = {0.66, 0.74, 0.95, 0.050}, edge = {0.66, 0.74, 0.95, 0.010};
  const double softness = 28.0 * frame.GetUnit();
  for (const auto& level : frame.GetMilkyWay()) {
    if (!level.ringEnds.empty()) PaintRegion(frame, level, fill, softness, edge, context);
  }
}

void PaintHaze(const SkyFrame& frame, cairo_t* context) {
  const Colour haze = {0.33, 0.47, 0.60, 0.022};
  for (const auto& band : frame.GetHaze()) PaintRegion(frame, band, haze, 0.0, haze, context);
}

void PaintGround(const SkyFrame& frame, cairo_t* context) {
  const auto& ground = frame.GetGround();
  if (ground.ringEnds.empty()) return;
  PaintRegion(frame, ground, {0.034, 0.044, 0.048, 1.0}, 0.0, {}, context);
  cairo_new_path(context);
  AddOutlines(frame, ground, context);
  SetColour({0.42, 0.58, 0.62, 0.75}, context);
  cairo_set_line_width(context, 1.3 * frame.GetUnit());
  cairo_stroke(context);
}

void PaintCompassMarks(const SkyFrame& frame, cairo_t* context) {
  cairo_new_path(context);
  for (const auto& mark : frame.GetCompass()) {
    const double length = (mark.main ? 10.0 : 6.0) * frame.GetUnit();
    const double y = frame.GetHeight() - mark.place.y;
    cairo_move_to(context, mark.place.x, y);
    cairo_line_to(context, mark.place.x + length * mark.down.x, y - length * mark.down.y);
  }
  SetColour(kAccent, context);
  cairo_set_line_width(context, 1.4 * frame.GetUnit());
  cairo_stroke(context);
}

void PaintFigures(const SkyFrame& frame, cairo_t* context) {
  cairo_new_path(context);
  for (const auto& line : frame.GetLines()) {
    cairo_move_to(context, line.from.x, frame.GetHeight() - line.from.y);
    cairo_line_to(context, line.to.x, frame.GetHeight() - line.to.y);
  }
  SetColour({0.42, 0.53, 0.72, 0.45}, context);
  cairo_set_line_width(context, 1.0 * frame.GetUnit());
  cairo_stroke(context);
}

}  // namespace

void PaintFrame(const SkyFrame& frame, cairo_t* context) {
  cairo_save(context);
  cairo_rectangle(context, 0.0, 0.0, frame.GetWidth(), frame.GetHeight());
  cairo_clip(context);
  PaintBackground(frame, context);
  PaintMilkyWay(frame, context);
  PaintHaze(frame, context);
  PaintFigures(frame, context);
  PaintGround(frame, context);
  for (const auto& drawn : frame.GetDeepsky()) PaintDeepskySymbol(frame, drawn, context);
  // The faintest first, so that a bright star lies over its neighbours.
  for (auto star = frame.GetStars().rbegin(); star != frame.GetStars().rend(); ++star) {
    PaintStar(frame, *star, context);
  }
  PaintCompassMarks(frame, context);
  for (const auto& label : frame.GetLabels()) PaintLabel(frame, label, context);
  cairo_restore(context);
}

}  // namespace skyview
