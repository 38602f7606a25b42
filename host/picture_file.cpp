// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/picture_file.h"

#include <cairo-svg.h>
#include <cairo.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "host/painter.h"
#include "utils/file.h"

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

bool PaintOn(const SkyFrame& frame, cairo_surface_t* surface, std::string& error) {
  cairo_t* context = cairo_create(surface);
  PaintFrame(frame, context);
  const cairo_status_t status = cairo_status(context);
  cairo_destroy(context);
  return Succeeded(status, error);
}

void AppendEscaped(const char* text, std::string& to) {
  for (; *text; ++text) {
    switch (*text) {
      case '&':
        to += "&amp;";
        break;
      case '<':
        to += "&lt;";
        break;
      case '>':
        to += "&gt;";
        break;
      default:
        to += *text;
    }
  }
}

std::string MakeTextLayer(const SkyFrame& frame) {
  std::string layer = "<g id=\"labels\" fill-opacity=\"0\" font-family=\"sans-serif\">\n";
  char start[160];
  for (const auto& label : frame.GetLabels()) {
    std::snprintf(start, sizeof start, "<text x=\"%.1f\" y=\"%.1f\" font-size=\"%.1f\" text-anchor=\"%s\">",
                  label.place.x, frame.GetHeight() - label.place.y, label.size,
                  label.anchor == 0.0   ? "start"
                  : label.anchor == 1.0 ? "end"
                                        : "middle");
    layer += start;
    AppendEscaped(label.text, layer);
    layer += "</text>\n";
  }
  return layer + "</g>\n";
}

bool WriteBytes(const std::string& path, const std::string& bytes) {
  std::FILE* file = mm_fopen(path.c_str(), "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace

bool CanDraw() { return true; }

bool MakeSvg(const SkyFrame& frame, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(
      cairo_svg_surface_create_for_stream(Append, &bytes, frame.GetWidth(), frame.GetHeight()),
      cairo_surface_destroy);
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  if (!PaintOn(frame, surface.get(), error)) return false;
  cairo_surface_finish(surface.get());
  if (!Succeeded(cairo_surface_status(surface.get()), error)) return false;
  const auto end = bytes.rfind("</svg>");
  if (end != std::string::npos) bytes.insert(end, MakeTextLayer(frame));
  return true;
}

bool MakePng(const SkyFrame& frame, std::string& bytes, std::string& error) {
  bytes.clear();
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, frame.GetWidth(), frame.GetHeight()),
                        cairo_surface_destroy);
  return PaintOn(frame, surface.get(), error) &&
         Succeeded(cairo_surface_write_to_png_stream(surface.get(), Append, &bytes), error);
}

bool WritePicture(const SkyFrame& frame, const std::string& path, std::string& error) {
  std::string bytes;
  const bool made = path.ends_with(".svg") ? MakeSvg(frame, bytes, error) : MakePng(frame, bytes, error);
  if (!made) {
    error = path + ": cannot be drawn: " + error;
    return false;
  }
  return WritePictureBytes(path, bytes, error);
}

bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error) {
  const std::string beside = path + ".part";
  std::error_code failure;
  if (WriteBytes(beside, bytes)) {
    std::filesystem::rename(beside, path, failure);
    if (!failure) return true;
  } else {
    failure = std::error_code(errno, std::generic_category());
  }
  error = path + ": cannot be written: " + failure.message();
  std::filesystem::remove(beside, failure);
  return false;
}

}  // namespace skyview
