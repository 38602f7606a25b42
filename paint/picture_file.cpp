// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_file.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <memory>

#include "paint/painter.h"
#include "paint/png_bytes.h"
#include "paint/text_layer.h"

namespace paint {
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

bool PaintOn(const scene::DisplayList& list, cairo_surface_t* surface, std::string& error) {
  cairo_t* context = cairo_create(surface);
  PaintDisplayList(list, context);
  const cairo_status_t status = cairo_status(context);
  cairo_destroy(context);
  return Succeeded(status, error);
}

// For surfaces that write while they are painted and when they are finished.
bool PaintStream(const scene::DisplayList& list, const Surface& surface, std::string& error) {
  if (!PaintOn(list, surface.get(), error)) return false;
  cairo_surface_finish(surface.get());
  return Succeeded(cairo_surface_status(surface.get()), error);
}

}  // namespace

bool CanDraw() { return true; }

bool MakePng(const scene::DisplayList& list, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, list.GetWidth(), list.GetHeight()),
                        cairo_surface_destroy);
  return PaintOn(list, surface.get(), error) && MakePngBytes(surface.get(), bytes, error);
}

bool MakeSvg(const scene::DisplayList& list, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(
      cairo_svg_surface_create_for_stream(Append, &bytes, list.GetWidth(), list.GetHeight()),
      cairo_surface_destroy);
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  if (!PaintStream(list, surface, error)) return false;
  const auto end = bytes.rfind("</svg>");
  if (end != std::string::npos) bytes.insert(end, MakeTextLayer(list));
  return true;
}

bool MakePdf(const scene::DisplayList& list, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(
      cairo_pdf_surface_create_for_stream(Append, &bytes, list.GetWidth(), list.GetHeight()),
      cairo_surface_destroy);
  return PaintStream(list, surface, error);
}

bool WritePicture(const scene::DisplayList& list, const std::string& path, std::string& error) {
  std::string bytes;
  const bool made = path.ends_with(".svg")   ? MakeSvg(list, bytes, error)
                    : path.ends_with(".pdf") ? MakePdf(list, bytes, error)
                                             : MakePng(list, bytes, error);
  if (made) return WritePictureBytes(path, bytes, error);
  error = path + ": cannot be drawn: " + error;
  return false;
}

}  // namespace paint
