// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pictures from drawing calls: the one way from the drawing library to bytes.
#pragma once

#include <cairo.h>

#include <functional>
#include <string>

namespace skyview {

using Paint = std::function<void(cairo_t*)>;

// What the calls paint on a canvas of that size, pixels, as the bytes of an SVG or PNG file. False when the drawing
// library fails: `error` then says how.
bool PaintSvg(int width, int height, const Paint& paint, std::string& bytes, std::string& error);
bool PaintPng(int width, int height, const Paint& paint, std::string& bytes, std::string& error);

}  // namespace skyview
