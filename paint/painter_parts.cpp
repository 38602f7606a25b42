// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter_parts.h"

#include <algorithm>
#include <cmath>

#include "utils/text.h"

namespace skyview {
namespace {

// By GetSpectrType, O to M: the tints of stars as the eye has them, a little stronger than life. The last one is for
// stars of no class.
constexpr Colour kStarColours[] = {{0.62, 0.71, 1.00, 1.0}, {0.68, 0.77, 1.00, 1.0}, {0.81, 0.87, 1.00, 1.0},
                                   {0.98, 0.98, 1.00, 1.0}, {1.00, 0.95, 0.84, 1.0}, {1.00, 0.83, 0.63, 1.0},
                                   {1.00, 0.70, 0.47, 1.0}, {0.93, 0.94, 1.00, 1.0}};
constexpr unsigned kClasses = 7;

constexpr Colour kGalaxy = {0.93, 0.60, 0.66, 0.9}, kCluster = {0.90, 0.80, 0.47, 0.9},
                 kNebula = {0.47, 0.83, 0.70, 0.9}, kOther = {0.75, 0.67, 0.92, 0.9};

Colour WithOpacity(Colour colour, double factor) {
  colour.opacity *= factor;
  return colour;
}

void PaintShine(double x, double y, double radius, const Colour& colour, double opacity, cairo_t* context) {
  cairo_pattern_t* shine = cairo_pattern_create_radial(x, y, 0.0, x, y, radius);
  const auto stop = [&](double offset, double strength) {
    cairo_pattern_add_color_stop_rgba(shine, offset, colour.red, colour.green, colour.blue,
                                      strength * opacity);
  };
  stop(0.0, 0.55);
  stop(0.35, 0.20);
  stop(1.0, 0.0);
  cairo_set_source(context, shine);
  cairo_arc(context, x, y, radius, 0.0, 2.0 * kPi);
  cairo_fill(context);
  cairo_pattern_destroy(shine);
}

const Colour& SymbolColour(LabelKind kind) {
  switch (kind) {
    case LabelKind::kGalaxy:
      return kGalaxy;
    case LabelKind::kCluster:
      return kCluster;
    case LabelKind::kNebula:
      return kNebula;
    default:
      return kOther;
  }
}

// An ellipse lying a little aslant: the catalogue holds no position angles, so all symbols lie alike.
void AddEllipse(double x, double y, double major, double minor, cairo_t* context) {
  constexpr double kSlant = -25.0 * kRadiansPerDegree;
  cairo_save(context);
  cairo_translate(context, x, y);
  cairo_rotate(context, kSlant);
  cairo_scale(context, major, minor);
  cairo_arc(context, 0.0, 0.0, 1.0, 0.0, 2.0 * kPi);
  cairo_restore(context);
}

void AddDiamond(double x, double y, double radius, cairo_t* context) {
  cairo_move_to(context, x - radius, y);
  cairo_line_to(context, x, y - radius);
  cairo_line_to(context, x + radius, y);
  cairo_line_to(context, x, y + radius);
  cairo_close_path(context);
}

Colour LabelColour(LabelKind kind) {
  switch (kind) {
    case LabelKind::kStarName:
      return {0.86, 0.89, 0.96, 0.92};
    case LabelKind::kStarLetter:
      return {0.66, 0.72, 0.84, 0.80};
    case LabelKind::kConstellation:
      return {0.50, 0.60, 0.80, 0.72};
    case LabelKind::kCompass:
      return kAccent;
    case LabelKind::kCompassBetween:
      return WithOpacity(kAccent, 0.75);
    case LabelKind::kMarker:
      return kMark;
    case LabelKind::kImageFrame:
      return {0.70, 0.80, 0.90, 0.90};
    case LabelKind::kRadiant:
      return kRadiantColour;
    case LabelKind::kPlanet:
      return {1.00, 0.90, 0.68, 0.98};
    case LabelKind::kSmallBody:
      return {0.80, 0.84, 0.72, 0.92};
    case LabelKind::kSatellite:
      return {0.62, 0.90, 0.96, 0.95};
    case LabelKind::kPassTime:
      return {0.62, 0.90, 0.96, 0.75};
    case LabelKind::kCaption:
      return {0.72, 0.77, 0.84, 0.95};
    default:
      return WithOpacity(SymbolColour(kind), 0.95);
  }
}

}  // namespace

void PaintStar(const SkyFrame& frame, const DrawnStar& drawn, cairo_t* context) {
  constexpr double kShineFrom = 1.9, kLeastRadius = 0.55;  // pixels
  const auto& place = drawn.output->m_Place;
  const double y = frame.GetHeight() - static_cast<double>(place.y), radius = place.radius;
  const unsigned cls = frame.GetCatalogs().stars.GetSpectrum(drawn.star);
  const Colour& colour = kStarColours[std::min(cls, kClasses)];
  if (radius > kShineFrom * frame.GetUnit())
    PaintShine(place.x, y, 3.6 * radius, colour, drawn.opacity, context);
  // A disc below the resolution of the picture keeps its light: larger, and fainter by the area.
  const double shown = std::max(radius, kLeastRadius);
  cairo_new_path(context);
  cairo_arc(context, place.x, y, shown, 0.0, 2.0 * kPi);
  SetColour(WithOpacity(colour, drawn.opacity * (radius / shown) * (radius / shown)), context);
  cairo_fill(context);
}

void PaintDeepskySymbol(const SkyFrame& frame, const DrawnDeepsky& drawn, cairo_t* context) {
  const auto& output = *drawn.output;
  const double x = output.m_Place.x, y = frame.GetHeight() - static_cast<double>(output.m_Place.y);
  const double major = 0.5 * output.m_MajorSize, minor = 0.5 * output.m_MinorSize;
  const LabelKind kind = LabelKindOfDeepsky(frame.GetCatalogs().deepsky[drawn.object].kind);
  const double dash = 3.0 * frame.GetUnit();
  cairo_new_path(context);
  switch (kind) {
    case LabelKind::kGalaxy:
      AddEllipse(x, y, major, std::min(minor, 0.75 * major), context);
      break;
    case LabelKind::kCluster:
      cairo_arc(context, x, y, major, 0.0, 2.0 * kPi);
      break;
    case LabelKind::kNebula:
      cairo_rectangle(context, x - major, y - minor, 2.0 * major, 2.0 * minor);
      break;
    default:
      AddDiamond(x, y, major, context);
      break;
  }
  SetColour(WithOpacity(SymbolColour(kind), drawn.opacity), context);
  cairo_set_line_width(context, 1.1 * frame.GetUnit());
  if (kind == LabelKind::kCluster) cairo_set_dash(context, &dash, 1, 0.0);
  cairo_stroke(context);
  cairo_set_dash(context, nullptr, 0, 0.0);
}

void PaintLabel(const SkyFrame& frame, const Label& label, cairo_t* context) {
  const bool slanted = label.kind == LabelKind::kConstellation || label.kind == LabelKind::kStarLetter;
  cairo_select_font_face(
      context, "sans-serif", slanted ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
      label.kind == LabelKind::kCompass ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, label.size);
  cairo_text_extents_t extents;
  cairo_text_extents(context, label.text, &extents);
  cairo_move_to(context, label.place.x - label.anchor * extents.x_advance, frame.GetHeight() - label.place.y);
  SetColour(LabelColour(label.kind), context);
  cairo_show_text(context, label.text);
}

}  // namespace skyview
