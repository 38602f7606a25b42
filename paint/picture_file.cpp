// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_file.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <algorithm>
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

bool PaintOn(const scene::DisplayList& list, const std::optional<Sheet>& sheet, cairo_surface_t* surface,
             std::string& error) {
  cairo_t* context = cairo_create(surface);
  if (sheet) {
    const double scale = std::min((sheet->width - 2.0 * sheet->margin) / list.GetWidth(),
                                  (sheet->height - 2.0 * sheet->margin) / list.GetHeight());
    cairo_translate(context, 0.5 * (sheet->width - scale * list.GetWidth()),
                    0.5 * (sheet->height - scale * list.GetHeight()));
    cairo_scale(context, scale, scale);
  }
  PaintDisplayList(list, context);
  const cairo_status_t status = cairo_status(context);
  cairo_destroy(context);
  return Succeeded(status, error);
}

// For surfaces that write while they are painted and when they are finished.
bool PaintStream(const scene::DisplayList& list, const std::optional<Sheet>& sheet, const Surface& surface,
                 std::string& error) {
  if (!PaintOn(list, sheet, surface.get(), error)) return false;
  cairo_surface_finish(surface.get());
  return Succeeded(cairo_surface_status(surface.get()), error);
}

}  // namespace

bool CanDraw() { return true; }

bool MakePng(const scene::DisplayList& list, std::string& bytes, std::string& error) {
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, list.GetWidth(), list.GetHeight()),
                        cairo_surface_destroy);
  return PaintOn(list, std::nullopt, surface.get(), error) && MakePngBytes(surface.get(), bytes, error);
}

bool MakeSvg(const scene::DisplayList& list, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(
      cairo_svg_surface_create_for_stream(Append, &bytes, list.GetWidth(), list.GetHeight()),
      cairo_surface_destroy);
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  if (!PaintStream(list, std::nullopt, surface, error)) return false;
  const auto end = bytes.rfind("</svg>");
  if (end != std::string::npos) bytes.insert(end, MakeTextLayer(list));
  return true;
}

bool MakePdf(const scene::DisplayList& list, std::string& bytes, std::string& error,
             const std::optional<Sheet>& sheet) {
  bytes.clear();
  const double width = sheet ? sheet->width : list.GetWidth(),
               height = sheet ? sheet->height : list.GetHeight();
  const Surface surface(cairo_pdf_surface_create_for_stream(Append, &bytes, width, height),
                        cairo_surface_destroy);
  return PaintStream(list, sheet, surface, error);
}

bool WritePicture(const scene::DisplayList& list, const std::string& path, std::string& error,
                  const std::optional<Sheet>& sheet) {
  std::string bytes;
  const bool made = path.ends_with(".svg")   ? MakeSvg(list, bytes, error)
                    : path.ends_with(".pdf") ? MakePdf(list, bytes, error, sheet)
                                             : MakePng(list, bytes, error);
  if (made) return WritePictureBytes(path, bytes, error);
  error = path + ": cannot be drawn: " + error;
  return false;
}

}  // namespace paint
