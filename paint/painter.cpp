// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter.h"

#include <cmath>
#include <iterator>

#include "scene/frame/caption.h"
#include "paint/painter_bodies.h"
#include "paint/painter_overlays.h"
#include "paint/painter_parts.h"

namespace skyview {
namespace {

// Points nearer than `leastStep` pixels to the last one are left out.
void AddOutlines(const SkyFrame& frame, const RegionPicture& region, double leastStep, cairo_t* context) {
  std::size_t point = 0;
  for (const int end : region.ringEnds) {
    tPoint<double> last{};
    for (bool first = true; point < static_cast<std::size_t>(end); ++point) {
      const auto& p = region.points[point];
      const double y = frame.GetHeight() - p.y;
      if (first) {
        cairo_move_to(context, p.x, y);
      } else if (std::hypot(p.x - last.x, p.y - last.y) < leastStep) {
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

// The region as a path for the even-odd rule, or, with `inverted`, all that lies outside it.
void AddRegion(const SkyFrame& frame, const RegionPicture& region, double leastStep, bool inverted,
               cairo_t* context) {
  cairo_new_path(context);
  AddOutlines(frame, region, leastStep, context);
  if (region.holdsOutside != inverted) {
    const double beyond = 2.0 * region.rim;
    cairo_rectangle(context, frame.GetWidth() * 0.5 - beyond, frame.GetHeight() * 0.5 - beyond, 2.0 * beyond,
                    2.0 * beyond);
  }
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
}

void FillRegion(const SkyFrame& frame, const RegionPicture& region, double leastStep, cairo_t* context) {
  AddRegion(frame, region, leastStep, false, context);
  cairo_fill(context);
}

// The region with an edge that fades outwards: the outside is clipped free and the outline stroked on it, broader and
// broader. `colour` has the opacity of one layer; the inside gets as many layers as meet at its edge.
void FillRegionSoftly(const SkyFrame& frame, const RegionPicture& region, const Colour& colour,
                      cairo_t* context) {
  constexpr double kWidths[] = {9.0, 21.0, 36.0, 56.0};  // pixels
  constexpr double kLeastStep = 2.0;
  Colour inside = colour;
  inside.opacity = 1.0 - std::pow(1.0 - colour.opacity, std::size(kWidths) + 1.0);
  SetColour(inside, context);
  FillRegion(frame, region, kLeastStep, context);

  cairo_save(context);
  AddRegion(frame, region, kLeastStep, true, context);
  cairo_clip(context);
  AddOutlines(frame, region, kLeastStep, context);
  SetColour(colour, context);
  cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
  for (const double width : kWidths) {
    cairo_set_line_width(context, width * frame.GetUnit());
    cairo_stroke_preserve(context);
  }
  cairo_new_path(context);
  cairo_restore(context);
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
  // The outermost level is wide and faint; the inner ones lie on top of it.
  constexpr Colour kLevels[] = {{0.62, 0.70, 0.92, 0.0100},
                                {0.66, 0.73, 0.93, 0.0115},
                                {0.72, 0.76, 0.92, 0.0130},
                                {0.80, 0.80, 0.90, 0.0155},
                                {0.88, 0.86, 0.90, 0.0180}};
  std::size_t level = 0;
  for (const auto& region : frame.GetMilkyWay()) {
    if (!region.points.empty() || region.holdsOutside)
      FillRegionSoftly(frame, region, kLevels[level], context);
    ++level;
  }
}

void PaintHaze(const SkyFrame& frame, cairo_t* context) {
  SetColour({0.33, 0.47, 0.60, 0.022}, context);
  for (const auto& band : frame.GetHaze()) FillRegion(frame, band, 0.5, context);
}

void PaintGround(const SkyFrame& frame, cairo_t* context) {
  constexpr double kLeastStep = 0.5;
  const auto& ground = frame.GetGround();
  if (ground.ringEnds.empty()) return;
  SetColour({0.034, 0.044, 0.048, 1.0}, context);
  FillRegion(frame, ground, kLeastStep, context);
  AddOutlines(frame, ground, kLeastStep, context);
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

// Crosses that leave what they mark free.
void PaintMarkers(const SkyFrame& frame, cairo_t* context) {
  const double arm = 9.0 * frame.GetUnit(), gap = 3.0 * frame.GetUnit();
  cairo_new_path(context);
  for (const auto& marker : frame.GetMarkers()) {
    const double x = marker.place.x, y = frame.GetHeight() - marker.place.y;
    for (const double side : {-1.0, 1.0}) {
      cairo_move_to(context, x + side * gap, y);
      cairo_line_to(context, x + side * arm, y);
      cairo_move_to(context, x, y + side * gap);
      cairo_line_to(context, x, y + side * arm);
    }
  }
  SetColour(kMark, context);
  cairo_set_line_width(context, 1.3 * frame.GetUnit());
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

// Darkens the foot of the picture so that the caption can be read whatever lies behind it.
void PaintCaptionGround(const SkyFrame& frame, cairo_t* context) {
  constexpr double kFade = 48.0;  // pixels of the standard picture above the text
  const double text = frame.GetCaptionLineCount() * kCaptionLineStep;
  const double height = (text + kFade) * frame.GetUnit();
  const double bottom = frame.GetHeight();
  cairo_pattern_t* shade = cairo_pattern_create_linear(0.0, bottom - height, 0.0, bottom);
  cairo_pattern_add_color_stop_rgba(shade, 0.0, 0.01, 0.015, 0.03, 0.0);
  cairo_pattern_add_color_stop_rgba(shade, kFade / (text + kFade), 0.01, 0.015, 0.03, 0.6);
  cairo_pattern_add_color_stop_rgba(shade, 1.0, 0.01, 0.015, 0.03, 0.8);
  cairo_set_source(context, shade);
  cairo_rectangle(context, 0.0, bottom - height, frame.GetWidth(), height);
  cairo_fill(context);
  cairo_pattern_destroy(shade);
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
  PaintImageFrames(frame, context);
  PaintOrbits(frame, context);
  for (const auto& drawn : frame.GetDeepsky()) PaintDeepskySymbol(frame, drawn, context);
  // The faintest first, so that a bright star lies over its neighbours.
  for (auto star = frame.GetStars().rbegin(); star != frame.GetStars().rend(); ++star) {
    PaintStar(frame, *star, context);
  }
  PaintBodies(frame, context);
  PaintGround(frame, context);
  PaintRadiants(frame, context);
  PaintFavouriteMarks(frame, context);
  if (frame.GetCaptionLineCount() > 0) PaintCaptionGround(frame, context);
  PaintCompassMarks(frame, context);
  if (!frame.GetMarkers().empty()) PaintMarkers(frame, context);
  for (const auto& label : frame.GetLabels()) PaintLabel(frame, label, context);
  cairo_restore(context);
}

}  // namespace skyview
