// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/png_bytes.h"

#include <png.h>

#include <csetjmp>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace paint {
namespace {

// A sky is dark and flat: rows as they are become smaller than filtered ones, in a fifth of the time that the
// choice of a filter for each row takes. Measured with five views of 1600 x 1000 pixels: level 4 gives 1 %
// more to 18 % less than what libpng does by itself.
constexpr int kLevel = 4;

struct Writing {
  std::string& bytes;
  std::string& error;
};

// Exceptions must not pass through libpng.
void Append(png_structp png, png_bytep data, png_size_t size) {
  auto& writing = *static_cast<Writing*>(png_get_io_ptr(png));
  bool appended = true;
  try {
    writing.bytes.append(reinterpret_cast<const char*>(data), size);
  } catch (const std::bad_alloc&) {
    appended = false;
  }
  if (!appended) png_error(png, "out of memory");
}

void Flush(png_structp) {}

[[noreturn]] void Fail(png_structp png, png_const_charp message) {
  static_cast<Writing*>(png_get_error_ptr(png))->error.assign(message);
  png_longjmp(png, 1);
}

void Ignore(png_structp, png_const_charp) {}

// A pixel of a surface is a number: red in the bits from 16 on, green from 8, blue from 0.
void ConvertRow(const unsigned char* from, int width, unsigned char* to) {
  for (int x = 0; x < width; ++x, from += sizeof(std::uint32_t), to += 3) {
    std::uint32_t pixel;
    std::memcpy(&pixel, from, sizeof pixel);
    to[0] = static_cast<unsigned char>(pixel >> 16);
    to[1] = static_cast<unsigned char>(pixel >> 8);
    to[2] = static_cast<unsigned char>(pixel);
  }
}

// Comes back from every failure with false. Nothing here has a destructor, which a jump would pass over.
bool Write(png_structp png, png_infop info, cairo_surface_t* surface, unsigned char* row) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  const int width = cairo_image_surface_get_width(surface), height = cairo_image_surface_get_height(surface);
  png_set_IHDR(png, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
               PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_set_compression_level(png, kLevel);
  png_write_info(png, info);
  const unsigned char* const pixels = cairo_image_surface_get_data(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  for (int y = 0; y < height; ++y) {
    ConvertRow(pixels + static_cast<std::ptrdiff_t>(y) * stride, width, row);
    png_write_row(png, row);
  }
  png_write_end(png, info);
  return true;
}

}  // namespace

bool MakePngBytes(cairo_surface_t* surface, std::string& bytes, std::string& error) {
  bytes.clear();
  cairo_surface_flush(surface);
  if (const cairo_status_t status = cairo_surface_status(surface); status != CAIRO_STATUS_SUCCESS) {
    error = cairo_status_to_string(status);
    return false;
  }
  std::vector<unsigned char> row(3 * static_cast<std::size_t>(cairo_image_surface_get_width(surface)));
  error.reserve(256);  // for what libpng says
  Writing writing = {bytes, error};
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &writing, Fail, Ignore);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (!info) throw std::bad_alloc();
  png_set_write_fn(png, &writing, Append, Flush);
  const bool written = Write(png, info, surface, row.data());
  png_destroy_write_struct(&png, &info);
  return written;
}

}  // namespace paint
