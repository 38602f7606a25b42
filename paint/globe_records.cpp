// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "paint/globe_pixels.h"
#include "paint/records.h"

namespace paint {
namespace {

constexpr int kMostPixels = 8192;  // of a side

// The part of the window that the globe may show in, and how many picture elements a unit of the context
// takes.
struct Field {
  double left, top, step;  // of an element
  int width, height;
};

Field FindField(const scene::DisplayList& list, const scene::DiscRecord& disc, double reach,
                cairo_t* context) {
  double scale = 1.0, across = 0.0;
  cairo_user_to_device_distance(context, &scale, &across);
  scale = std::min(std::hypot(scale, across), 4.0);
  // Files of lines have no pixels of their own: twice as fine as the picture.
  const auto type = cairo_surface_get_type(cairo_get_target(context));
  if (type != CAIRO_SURFACE_TYPE_IMAGE) scale *= 2.0;
  const double radius = disc.radius * reach + 2.0;
  const double left = std::floor(std::max(disc.x - radius, 0.0)),
               top = std::floor(std::max(disc.y - radius, 0.0));
  const double right = std::min<double>(disc.x + radius, list.GetWidth());
  const double bottom = std::min<double>(disc.y + radius, list.GetHeight());
  scale = std::min(scale, kMostPixels / std::max({right - left, bottom - top, 1.0}));
  return {left, top, 1.0 / scale, std::max(0, static_cast<int>(std::ceil((right - left) * scale))),
          std::max(0, static_cast<int>(std::ceil((bottom - top) * scale)))};
}

std::uint32_t Pack(const GlobePixel& pixel) {
  const auto byte = [](float v) { return static_cast<std::uint32_t>(std::lround(255.0f * v)); };
  return byte(pixel.opacity) << 24 | byte(pixel.red) << 16 | byte(pixel.green) << 8 | byte(pixel.blue);
}

}  // namespace

void PaintGlobe(const scene::DisplayList& list, const scene::GlobeRecord& globe, cairo_t* context) {
  const scene::DiscRecord& disc = globe.disc;
  PaintGlow(disc.x, disc.y, disc.glow, context);
  const SurfaceMap* const map =
      globe.map < 0 ? nullptr : FindSurfaceMap(list.GetMaps()[static_cast<std::size_t>(globe.map)]);
  const GlobeShader shader(
      globe,
      {list.GetColours().data() + globe.firstRingColour, static_cast<std::size_t>(globe.ringColourCount)},
      map);
  const Field field = FindField(list, disc, shader.GetReach(), context);
  cairo_surface_t* const image = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, field.width, field.height);
  unsigned char* const bytes = cairo_image_surface_get_data(image);
  if (bytes) {
    cairo_surface_flush(image);
    for (int row = 0; row < field.height; ++row) {
      auto* const pixels = reinterpret_cast<std::uint32_t*>(
          bytes + std::ptrdiff_t{row} * cairo_image_surface_get_stride(image));
      const double y = (field.top + (row + 0.5) * field.step - disc.y) / disc.radius;
      for (int column = 0; column < field.width; ++column) {
        const double x = (field.left + (column + 0.5) * field.step - disc.x) / disc.radius;
        pixels[column] = Pack(shader.Shade(x, y, field.step / disc.radius));
      }
    }
    cairo_surface_mark_dirty(image);
    cairo_save(context);
    cairo_translate(context, field.left, field.top);
    cairo_scale(context, field.step, field.step);
    cairo_set_source_surface(context, image, 0.0, 0.0);
    cairo_paint(context);
    cairo_restore(context);
  }
  cairo_surface_destroy(image);
}

}  // namespace paint
