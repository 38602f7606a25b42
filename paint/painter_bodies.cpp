// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter_bodies.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "paint/painter_parts.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr Colour kSun = {1.00, 0.93, 0.72, 1.0}, kMoon = {0.93, 0.92, 0.88, 1.0};
// Mercury to Pluto, as the eye has them.
constexpr Colour kPlanets[] = {{0.84, 0.78, 0.70, 1.0}, {1.00, 0.95, 0.80, 1.0}, {0.60, 0.75, 1.00, 1.0},
                               {1.00, 0.62, 0.42, 1.0}, {0.98, 0.89, 0.74, 1.0}, {0.96, 0.86, 0.60, 1.0},
                               {0.68, 0.90, 0.93, 1.0}, {0.55, 0.68, 1.00, 1.0}, {0.86, 0.80, 0.74, 1.0}};
constexpr Colour kAsteroid = {0.80, 0.76, 0.66, 1.0}, kComet = {0.70, 0.92, 0.86, 1.0},
                 kSatellite = {0.62, 0.90, 0.96, 1.0};
constexpr double kNightSide = 0.10;  // brightness of the part that the Sun does not light
constexpr Colour kUmbra = {0.42, 0.13, 0.07,
                           1.0};  // sunlight that the Earth's atmosphere bends into its shadow

Colour Scaled(const Colour& colour, double factor, double opacity) {
  return {colour.red * factor, colour.green * factor, colour.blue * factor, opacity};
}

const SSO_ID& GetId(const SkyFrame& frame, const DrawnBody& drawn) {
  return frame.GetCatalogs().bodies[static_cast<std::size_t>(drawn.body)].id;
}

Colour GetColour(const SSO_ID& id) {
  if (id.kind == FourCC("moon")) return kMoon;
  if (id.kind == FourCC("astr")) return kAsteroid;
  if (id.kind == FourCC("comt")) return kComet;
  if (id.kind == FourCC("scft")) return kSatellite;
  const int index = id.number - 1;
  return id.number == kSunNumber || index < 0 || index >= static_cast<int>(std::size(kPlanets))
             ? kSun
             : kPlanets[index];
}

void PaintHalo(const SkyFrame& frame, const DrawnBody& drawn, double radius, const Colour& colour,
               double strength, cairo_t* context) {
  const double x = drawn.place.x, y = frame.GetHeight() - drawn.place.y;
  cairo_pattern_t* halo = cairo_pattern_create_radial(x, y, 0.5 * drawn.radius, x, y, radius);
  cairo_pattern_add_color_stop_rgba(halo, 0.0, colour.red, colour.green, colour.blue, strength);
  cairo_pattern_add_color_stop_rgba(halo, 0.4, colour.red, colour.green, colour.blue, 0.3 * strength);
  cairo_pattern_add_color_stop_rgba(halo, 1.0, colour.red, colour.green, colour.blue, 0.0);
  cairo_set_source(context, halo);
  cairo_arc(context, x, y, radius, 0.0, 2.0 * kPi);
  cairo_fill(context);
  cairo_pattern_destroy(halo);
}

void FillCircle(const SkyFrame& frame, const tPoint<double>& place, double radius, const Colour& colour,
                cairo_t* context) {
  cairo_new_path(context);
  cairo_arc(context, place.x, frame.GetHeight() - place.y, radius, 0.0, 2.0 * kPi);
  SetColour(colour, context);
  cairo_fill(context);
}

// The lit part: half a circle on the side of the Sun, and the terminator, which is half an ellipse whose short axis is
// the radius times the cosine of the phase angle.
void FillLitPart(const SkyFrame& frame, const DrawnBody& drawn, const Colour& colour, cairo_t* context) {
  cairo_save(context);
  cairo_translate(context, drawn.place.x, frame.GetHeight() - drawn.place.y);
  cairo_rotate(context, std::atan2(-drawn.toSun.y, drawn.toSun.x));
  cairo_scale(context, drawn.radius, drawn.radius);
  cairo_new_path(context);
  cairo_arc(context, 0.0, 0.0, 1.0, -0.5 * kPi, 0.5 * kPi);  // the Sun is to the right now
  constexpr int kSteps = 48;
  for (int i = 1; i < kSteps; ++i) {
    const double turn = 0.5 * kPi - kPi * i / kSteps;
    cairo_line_to(context, -drawn.cosPhase * std::cos(turn), std::sin(turn));
  }
  cairo_close_path(context);
  SetColour(colour, context);
  cairo_fill(context);
  cairo_restore(context);
}

// The penumbra takes more and more of the sunlight towards the umbra, which is dark and red.
void PaintShadow(const SkyFrame& frame, const DrawnBody& moon, const DrawnShadow& shadow, cairo_t* context) {
  const double x = shadow.centre.x, y = frame.GetHeight() - shadow.centre.y;
  cairo_save(context);
  cairo_new_path(context);
  cairo_arc(context, moon.place.x, frame.GetHeight() - moon.place.y, moon.radius, 0.0, 2.0 * kPi);
  cairo_clip(context);
  cairo_pattern_t* shade = cairo_pattern_create_radial(x, y, shadow.umbra, x, y, shadow.penumbra);
  cairo_pattern_add_color_stop_rgba(shade, 0.0, 0.10, 0.06, 0.05, 0.70);
  cairo_pattern_add_color_stop_rgba(shade, 0.25, 0.08, 0.06, 0.05, 0.48);
  cairo_pattern_add_color_stop_rgba(shade, 1.0, 0.05, 0.05, 0.05, 0.0);
  cairo_set_source(context, shade);
  cairo_arc(context, x, y, shadow.penumbra, 0.0, 2.0 * kPi);
  cairo_fill(context);
  cairo_pattern_destroy(shade);
  if (shadow.umbra > 0.0) {
    cairo_pattern_t* umbra = cairo_pattern_create_radial(x, y, 0.0, x, y, shadow.umbra);
    cairo_pattern_add_color_stop_rgba(umbra, 0.0, 0.5 * kUmbra.red, 0.5 * kUmbra.green, 0.5 * kUmbra.blue,
                                      0.94);
    cairo_pattern_add_color_stop_rgba(umbra, 0.8, kUmbra.red, kUmbra.green, kUmbra.blue, 0.92);
    cairo_pattern_add_color_stop_rgba(umbra, 1.0, kUmbra.red, 1.4 * kUmbra.green, 1.6 * kUmbra.blue, 0.88);
    cairo_set_source(context, umbra);
    cairo_arc(context, x, y, shadow.umbra, 0.0, 2.0 * kPi);
    cairo_fill(context);
    cairo_pattern_destroy(umbra);
  }
  cairo_restore(context);
}

void PaintSun(const SkyFrame& frame, const DrawnBody& drawn, cairo_t* context) {
  PaintHalo(frame, drawn, 4.0 * drawn.radius, kSun, 0.55, context);
  FillCircle(frame, drawn.place, drawn.radius, kSun, context);
}

void PaintDisc(const SkyFrame& frame, const DrawnBody& drawn, const Colour& colour, cairo_t* context) {
  constexpr double kLarge = 40.0;  // pixels; a shine around a large disc would look like fog
  if (drawn.radius < kLarge * frame.GetUnit()) {
    const double lit = 0.5 * (1.0 + drawn.cosPhase);
    PaintHalo(frame, drawn, 2.6 * drawn.radius, colour, 0.35 * lit * drawn.opacity, context);
  }
  FillCircle(frame, drawn.place, drawn.radius, Scaled(colour, kNightSide, drawn.opacity), context);
  FillLitPart(frame, drawn, Scaled(colour, 1.0, drawn.opacity), context);
  const DrawnShadow& shadow = frame.GetSolarSystem().GetMarks().GetMoonShadow();
  if (shadow.falls && drawn.body == kMoonBody) PaintShadow(frame, drawn, shadow, context);
}

void PaintDot(const SkyFrame& frame, const DrawnBody& drawn, const Colour& colour, cairo_t* context) {
  PaintHalo(frame, drawn, 3.4 * drawn.radius, colour, 0.45 * drawn.opacity, context);
  FillCircle(frame, drawn.place, drawn.radius, Scaled(colour, 1.0, drawn.opacity), context);
}

// A ring around the dot tells it from a star.
void PaintAsteroid(const SkyFrame& frame, const DrawnBody& drawn, cairo_t* context) {
  FillCircle(frame, drawn.place, drawn.radius, Scaled(kAsteroid, 1.0, drawn.opacity), context);
  cairo_new_path(context);
  cairo_arc(context, drawn.place.x, frame.GetHeight() - drawn.place.y, drawn.radius + 2.5 * frame.GetUnit(),
            0.0, 2.0 * kPi);
  SetColour(Scaled(kAsteroid, 1.0, 0.55 * drawn.opacity), context);
  cairo_set_line_width(context, 0.9 * frame.GetUnit());
  cairo_stroke(context);
}

void PaintComet(const SkyFrame& frame, const DrawnBody& drawn, cairo_t* context) {
  const double length = 9.0 * drawn.radius + 8.0 * frame.GetUnit();
  cairo_save(context);
  cairo_translate(context, drawn.place.x, frame.GetHeight() - drawn.place.y);
  cairo_rotate(context, std::atan2(drawn.toSun.y, -drawn.toSun.x));  // away from the Sun is to the right now
  cairo_pattern_t* tail = cairo_pattern_create_linear(0.0, 0.0, length, 0.0);
  cairo_pattern_add_color_stop_rgba(tail, 0.0, kComet.red, kComet.green, kComet.blue, 0.55 * drawn.opacity);
  cairo_pattern_add_color_stop_rgba(tail, 1.0, kComet.red, kComet.green, kComet.blue, 0.0);
  cairo_set_source(context, tail);
  cairo_new_path(context);
  cairo_move_to(context, 0.0, -drawn.radius);
  cairo_line_to(context, length, -0.28 * length);
  cairo_line_to(context, length, 0.28 * length);
  cairo_line_to(context, 0.0, drawn.radius);
  cairo_close_path(context);
  cairo_fill(context);
  cairo_pattern_destroy(tail);
  cairo_restore(context);
  PaintDot(frame, drawn, kComet, context);
}

void PaintSatellite(const SkyFrame& frame, const DrawnBody& drawn, cairo_t* context) {
  const double x = drawn.place.x, y = frame.GetHeight() - drawn.place.y, r = 1.4 * drawn.radius;
  cairo_new_path(context);
  cairo_move_to(context, x - r, y);
  cairo_line_to(context, x, y - r);
  cairo_line_to(context, x + r, y);
  cairo_line_to(context, x, y + r);
  cairo_close_path(context);
  SetColour(kSatellite, context);
  cairo_fill(context);
}

void PaintBody(const SkyFrame& frame, const DrawnBody& drawn, cairo_t* context) {
  const SSO_ID& id = GetId(frame, drawn);
  if (drawn.body == kSunBody) return PaintSun(frame, drawn, context);
  if (drawn.asDisc) return PaintDisc(frame, drawn, GetColour(id), context);
  if (id.kind == FourCC("comt")) return PaintComet(frame, drawn, context);
  if (id.kind == FourCC("astr")) return PaintAsteroid(frame, drawn, context);
  if (id.kind == FourCC("scft")) return PaintSatellite(frame, drawn, context);
  PaintDot(frame, drawn, GetColour(id), context);
}

// Dashed where the satellite is in the Earth's shadow and not seen.
void PaintPasses(const SkyFrame& frame, cairo_t* context) {
  const SatellitePasses& passes = frame.GetSolarSystem().GetPasses();
  for (const bool sunlit : {false, true}) {
    cairo_new_path(context);
    for (const auto& line : passes.GetLines()) {
      if (line.sunlit != sunlit) continue;
      cairo_move_to(context, line.from.x, frame.GetHeight() - line.from.y);
      cairo_line_to(context, line.to.x, frame.GetHeight() - line.to.y);
    }
    SetColour(Scaled(kSatellite, 1.0, sunlit ? 0.75 : 0.28), context);
    cairo_set_line_width(context, (sunlit ? 1.4 : 1.0) * frame.GetUnit());
    cairo_stroke(context);
  }
  for (const auto& mark : passes.GetMarks()) {
    FillCircle(frame, mark.place, 2.0 * frame.GetUnit(), Scaled(kSatellite, 1.0, 0.85), context);
  }
}

Colour OrbitColour(int kind) {
  if (kind == FourCC("plnt")) return {0.90, 0.70, 0.42, 0.62};
  if (kind == FourCC("moon")) return {0.85, 0.85, 0.80, 0.60};
  if (kind == FourCC("comt")) return {0.50, 0.85, 0.78, 0.50};
  return kind == FourCC("scft") ? Colour{0.55, 0.80, 0.92, 0.50} : Colour{0.70, 0.66, 0.55, 0.45};
}

}  // namespace

void PaintOrbits(const SkyFrame& frame, cairo_t* context) {
  cairo_set_line_width(context, 1.2 * frame.GetUnit());
  const auto& lines = frame.GetSolarSystem().GetOrbits().GetLines();
  cairo_new_path(context);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto& line = lines[i];
    cairo_move_to(context, line.from.x, frame.GetHeight() - line.from.y);
    cairo_line_to(context, line.to.x, frame.GetHeight() - line.to.y);
    const bool last =
        i + 1 == lines.size() || lines[i + 1].kind != line.kind || lines[i + 1].opacity != line.opacity;
    if (!last) continue;
    const Colour colour = OrbitColour(line.kind);
    SetColour(Scaled(colour, 1.0, colour.opacity * line.opacity), context);
    cairo_stroke(context);
  }
}

void PaintBodies(const SkyFrame& frame, cairo_t* context) {
  PaintPasses(frame, context);
  for (const auto& drawn : frame.GetSolarSystem().GetMarks().GetDrawn()) PaintBody(frame, drawn, context);
}

}  // namespace skyview
