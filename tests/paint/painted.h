// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>

#include "paint/painter.h"
#include "scene/display/display_list.h"

namespace host_test {

struct Pixel {
  int red, green, blue;
  bool operator==(const Pixel&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Pixel& pixel) {
  return out << pixel.red << " " << pixel.green << " " << pixel.blue;
}

// A picture in memory: a display list painted on black, or the bytes of a PNG file.
class Painted {
 public:
  explicit Painted(const scene::DisplayList& list, const paint::PaintScope& scope = {})
      : m_Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, list.GetWidth(), list.GetHeight())) {
    cairo_t* context = cairo_create(m_Surface);
    paint::PaintDisplayList(list, context, scope);
    m_Status = cairo_status(context);
    cairo_destroy(context);
    cairo_surface_flush(m_Surface);
  }
  explicit Painted(const std::string& png)
      : m_Surface(Decode(png)), m_Status(cairo_surface_status(m_Surface)) {}
  ~Painted() { cairo_surface_destroy(m_Surface); }
  Painted(const Painted&) = delete;
  Painted& operator=(const Painted&) = delete;

  bool WritePng(const std::string& path) const {
    return cairo_surface_write_to_png(m_Surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
  }
  bool IsGood() const { return m_Status == CAIRO_STATUS_SUCCESS; }
  int GetWidth() const { return cairo_image_surface_get_width(m_Surface); }
  int GetHeight() const { return cairo_image_surface_get_height(m_Surface); }
  // Of the pixel whose upper left corner lies there.
  Pixel At(int x, int y) const {
    std::uint32_t word = 0;
    const unsigned char* data = cairo_image_surface_get_data(m_Surface);
    std::memcpy(&word, data + y * cairo_image_surface_get_stride(m_Surface) + 4 * x, sizeof word);
    return {static_cast<int>(word >> 16 & 255), static_cast<int>(word >> 8 & 255),
            static_cast<int>(word & 255)};
  }
  // The first and the last column in which anything lies, -1 when all is black.
  int GetFirstColumn() const {
    for (int x = 0; x < GetWidth(); ++x) {
      if (HasColumn(x)) return x;
    }
    return -1;
  }
  int GetLastColumn() const {
    for (int x = GetWidth() - 1; x >= 0; --x) {
      if (HasColumn(x)) return x;
    }
    return -1;
  }
  bool IsBlack() const { return GetFirstColumn() < 0; }

 private:
  bool HasColumn(int x) const {
    for (int y = 0; y < GetHeight(); ++y) {
      if (At(x, y) != Pixel{0, 0, 0}) return true;
    }
    return false;
  }
  static cairo_surface_t* Decode(const std::string& png) {
    struct Source {
      const std::string& bytes;
      std::size_t at;
    } source = {png, 0};
    const auto read = [](void* from, unsigned char* data, unsigned length) {
      Source& bytes = *static_cast<Source*>(from);
      if (bytes.bytes.size() - bytes.at < length) return CAIRO_STATUS_READ_ERROR;
      std::memcpy(data, bytes.bytes.data() + bytes.at, length);
      bytes.at += length;
      return CAIRO_STATUS_SUCCESS;
    };
    return cairo_image_surface_create_from_png_stream(read, &source);
  }

  cairo_surface_t* m_Surface;
  cairo_status_t m_Status;
};

}  // namespace host_test
