// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The records of a display list, each kind by a function of its own. They find the context without a path and
// leave it so; they change its colour and widths.
#pragma once

#include <cairo.h>

#include <span>

#include "scene/display/display_list.h"

namespace paint {

// Whether the picture is a file of paths, whose time and bytes go into the numbers that it is made of.
bool WritesPaths(cairo_t* context);

void PaintPoint(const scene::PointRecord& point, cairo_t* context);
void PaintDisc(const scene::DiscRecord& disc, cairo_t* context);
// As a picture of its surface, made pixel by pixel.
void PaintGlobe(const scene::DisplayList& list, const scene::GlobeRecord& globe, cairo_t* context);
void PaintGlow(double x, double y, const scene::Glow& glow, cairo_t* context);
void PaintShadow(const scene::ShadowRecord& shadow, cairo_t* context);
// Neighbours of one style with one stroke, so that nothing darkens where they meet.
void PaintPolylines(const scene::DisplayList& list, std::span<const scene::PolylineRecord> lines,
                    cairo_t* context);
void PaintEllipse(const scene::EllipseRecord& ellipse, cairo_t* context);
void PaintPolygon(const scene::DisplayList& list, const scene::PolygonRecord& area, cairo_t* context);
void PaintGradient(const scene::GradientRecord& gradient, cairo_t* context);
void PaintMesh(const scene::DisplayList& list, const scene::MeshRecord& mesh, cairo_t* context);
void PaintText(const scene::DisplayList& list, const scene::TextRecord& text, cairo_t* context);

}  // namespace paint
