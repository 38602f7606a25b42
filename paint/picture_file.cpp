// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "paint/painter.h"
#include "paint/painter_light_curve.h"
#include "paint/picture_canvas.h"
#include "utils/file.h"

namespace skyview {
namespace {

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
  const Paint paint = [&frame](cairo_t* context) { PaintFrame(frame, context); };
  if (!PaintSvg(frame.GetWidth(), frame.GetHeight(), paint, bytes, error)) return false;
  const auto end = bytes.rfind("</svg>");
  if (end != std::string::npos) bytes.insert(end, MakeTextLayer(frame));
  return true;
}

bool MakePng(const SkyFrame& frame, std::string& bytes, std::string& error) {
  const Paint paint = [&frame](cairo_t* context) { PaintFrame(frame, context); };
  return PaintPng(frame.GetWidth(), frame.GetHeight(), paint, bytes, error);
}

bool WriteCurve(const LightCurve& curve, int width, int height, const std::string& path, std::string& error) {
  std::string bytes;
  const Paint paint = [&](cairo_t* context) { PaintLightCurve(curve, width, height, context); };
  const bool made = path.ends_with(".svg") ? PaintSvg(width, height, paint, bytes, error)
                                           : PaintPng(width, height, paint, bytes, error);
  if (!made) {
    error = path + ": cannot be drawn: " + error;
    return false;
  }
  return WritePictureBytes(path, bytes, error);
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
