// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <numbers>

#include "paint/colour.h"
#include "paint/records.h"

namespace paint {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi, kQuarter = 0.5 * std::numbers::pi;

scene::Rgba Faded(scene::Rgba colour) {
  colour.alpha = 0;
  return colour;
}

void FillCircle(double x, double y, double radius, const scene::Rgba& colour, cairo_t* context) {
  cairo_arc(context, x, y, radius, 0.0, kTurn);
  SetColour(colour, context);
  cairo_fill(context);
}

// A circle as one point that is stroked with a round end, of four numbers where a filled one has fifty.
void StrokeDot(double x, double y, double radius, const scene::Rgba& colour, cairo_t* context) {
  cairo_move_to(context, x, y);
  cairo_line_to(context, x, y);
  SetColour(colour, context);
  cairo_set_line_width(context, 2.0 * radius);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  cairo_stroke(context);
  cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
}

// The lit part: half a circle on the side of the Sun, and the terminator, which is half an ellipse whose
// short axis is the radius times the cosine of the phase angle.
void FillLitPart(const scene::DiscRecord& disc, cairo_t* context) {
  constexpr int kSteps = 48;
  cairo_save(context);
  cairo_translate(context, disc.x, disc.y);
  cairo_rotate(context, std::atan2(disc.sunY, disc.sunX));
  cairo_scale(context, disc.radius, disc.radius);
  cairo_arc(context, 0.0, 0.0, 1.0, -kQuarter, kQuarter);  // the Sun is to the right now
  for (int i = 1; i < kSteps; ++i) {
    const double turn = kQuarter - 2.0 * kQuarter * i / kSteps;
    cairo_line_to(context, -disc.cosPhase * std::cos(turn), std::sin(turn));
  }
  cairo_close_path(context);
  SetColour(disc.lit, context);
  cairo_fill(context);
  cairo_restore(context);
}

}  // namespace

void PaintGlow(double x, double y, const scene::Glow& glow, cairo_t* context) {
  if (!(glow.radius > 0.0f)) return;
  cairo_pattern_t* shine = cairo_pattern_create_radial(x, y, glow.innerRadius, x, y, glow.radius);
  AddStop(shine, 0.0, glow.colour);
  AddStop(shine, glow.middle, glow.middleColour);
  AddStop(shine, 1.0, Faded(glow.colour));
  cairo_arc(context, x, y, glow.radius, 0.0, kTurn);
  FillWith(shine, context);
}

void PaintPoint(const scene::PointRecord& point, cairo_t* context) {
  PaintGlow(point.x, point.y, point.glow, context);
  const auto paint = WritesPaths(context) ? StrokeDot : FillCircle;
  paint(point.x, point.y, point.radius, point.colour, context);
}

void PaintDisc(const scene::DiscRecord& disc, cairo_t* context) {
  PaintGlow(disc.x, disc.y, disc.glow, context);
  FillCircle(disc.x, disc.y, disc.radius, disc.dark, context);
  FillLitPart(disc, context);
}

void PaintShadow(const scene::ShadowRecord& shadow, cairo_t* context) {
  cairo_save(context);
  cairo_arc(context, shadow.clipX, shadow.clipY, shadow.clipRadius, 0.0, kTurn);
  cairo_clip(context);
  cairo_pattern_t* shade = cairo_pattern_create_radial(shadow.x, shadow.y, shadow.innerRadius, shadow.x,
                                                       shadow.y, shadow.outerRadius);
  AddStop(shade, 0.0, shadow.inner);
  AddStop(shade, shadow.middle, shadow.middleColour);
  AddStop(shade, 1.0, shadow.outer);
  cairo_arc(context, shadow.x, shadow.y, shadow.outerRadius, 0.0, kTurn);
  FillWith(shade, context);
  cairo_restore(context);
}

// The path is made in the frame of the ellipse, the stroke is not: it has one width all around.
void PaintEllipse(const scene::EllipseRecord& ellipse, cairo_t* context) {
  cairo_save(context);
  cairo_translate(context, ellipse.x, ellipse.y);
  cairo_rotate(context, ellipse.angle);
  cairo_scale(context, ellipse.semiMajor, ellipse.semiMinor);
  cairo_arc(context, 0.0, 0.0, 1.0, 0.0, kTurn);
  cairo_restore(context);
  SetColour(ellipse.colour, context);
  cairo_set_line_width(context, ellipse.width);
  const double dash = ellipse.dash;
  if (dash > 0.0) cairo_set_dash(context, &dash, 1, 0.0);
  cairo_stroke(context);
  cairo_set_dash(context, nullptr, 0, 0.0);
}

}  // namespace paint
