// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_canvas.h"

#include <cairo-svg.h>

#include <memory>

namespace skyview {
namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned length) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

bool Succeeded(cairo_status_t status, std::string& error) {
  if (status == CAIRO_STATUS_SUCCESS) return true;
  error = cairo_status_to_string(status);
  return false;
}

bool PaintOn(const Paint& paint, cairo_surface_t* surface, std::string& error) {
  cairo_t* context = cairo_create(surface);
  paint(context);
  const cairo_status_t status = cairo_status(context);
  cairo_destroy(context);
  return Succeeded(status, error);
}

}  // namespace

bool PaintSvg(int width, int height, const Paint& paint, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(cairo_svg_surface_create_for_stream(Append, &bytes, width, height),
                        cairo_surface_destroy);
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  if (!PaintOn(paint, surface.get(), error)) return false;
  cairo_surface_finish(surface.get());
  return Succeeded(cairo_surface_status(surface.get()), error);
}

bool PaintPng(int width, int height, const Paint& paint, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height), cairo_surface_destroy);
  return PaintOn(paint, surface.get(), error) &&
         Succeeded(cairo_surface_write_to_png_stream(surface.get(), Append, &bytes), error);
}

}  // namespace skyview
