// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter_overlays.h"

#include <cmath>

#include "paint/painter_parts.h"

namespace skyview {
namespace {

constexpr Colour kFavourite = {1.00, 0.82, 0.25, 1.0}, kDarkEdge = {0.02, 0.03, 0.06, 0.9};

Colour FrameColour(ImageGroup group) {
  switch (group) {
    case kConstellationImages:
      return {0.45, 0.66, 0.90, 0.75};
    case kDeepskyImages:
      return {0.90, 0.91, 0.94, 0.75};
    default:
      return {0.80, 0.72, 0.92, 0.75};
  }
}

void AddMark(double x, double y, double radius, cairo_t* context) {
  constexpr int kPoints = 5;
  constexpr double kInner = 0.45;  // a little fuller than a pentagram, whose inner points lie at 0.38
  for (int i = 0; i < 2 * kPoints; ++i) {
    const double angle = kPi * i / kPoints, r = i % 2 == 0 ? radius : kInner * radius;
    cairo_line_to(context, x + r * std::sin(angle), y - r * std::cos(angle));
  }
  cairo_close_path(context);
}

}  // namespace

void PaintImageFrames(const SkyFrame& frame, cairo_t* context) {
  cairo_set_line_width(context, 1.1 * frame.GetUnit());
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  for (const ImageGroup group : kImageGroups) {
    cairo_new_path(context);
    for (const auto& drawn : frame.GetImageFrames().GetLines()) {
      if (drawn.group != group) continue;
      cairo_move_to(context, drawn.line.from.x, frame.GetHeight() - drawn.line.from.y);
      cairo_line_to(context, drawn.line.to.x, frame.GetHeight() - drawn.line.to.y);
    }
    SetColour(FrameColour(group), context);
    cairo_stroke(context);
  }
  cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
}

void PaintRadiants(const SkyFrame& frame, cairo_t* context) {
  constexpr int kRays = 8;
  const double outer = ShowerRadiants::kRadius * frame.GetUnit();
  for (const auto& radiant : frame.GetRadiants().GetDrawn()) {
    const double x = radiant.place.x, y = frame.GetHeight() - radiant.place.y;
    cairo_new_path(context);
    for (int i = 0; i < kRays; ++i) {
      const double angle = 2.0 * kPi * i / kRays, from = 0.45 * outer, to = (i % 2 == 0 ? 1.0 : 0.75) * outer;
      cairo_move_to(context, x + from * std::cos(angle), y + from * std::sin(angle));
      cairo_line_to(context, x + to * std::cos(angle), y + to * std::sin(angle));
    }
    SetColour(kRadiantColour, context);
    cairo_set_line_width(context, 1.4 * frame.GetUnit());
    cairo_stroke(context);
    if (!radiant.peak) continue;
    cairo_arc(context, x, y, 0.22 * outer, 0.0, 2.0 * kPi);
    cairo_fill(context);
  }
}

void PaintFavouriteMarks(const SkyFrame& frame, cairo_t* context) {
  const double radius = FavouriteMarks::GetRadius(frame.GetUnit());
  for (const auto& place : frame.GetFavouriteMarks().GetPlaces()) {
    cairo_new_path(context);
    AddMark(place.x, frame.GetHeight() - place.y, radius, context);
    SetColour(kDarkEdge, context);
    cairo_set_line_width(context, 0.35 * radius);
    cairo_stroke_preserve(context);
    SetColour(kFavourite, context);
    cairo_fill(context);
  }
}

}  // namespace skyview
