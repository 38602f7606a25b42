// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/contact_sheet.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

#include "paint/font.h"
#include "paint/painter.h"
#include "paint/picture_file.h"
#include "paint/png_bytes.h"
#include "scene/frame/caption.h"

namespace paint {
namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

constexpr double kAspect = 1.6;                                 // of the whole sheet, about
constexpr double kGap = 8.0, kTextHeight = 18.0, kFont = 11.0;  // pixels

Surface MakeSurface(int width, int height) {
  return Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height), cairo_surface_destroy);
}

bool IsGood(cairo_status_t status, std::string& error) {
  if (status == CAIRO_STATUS_SUCCESS) return true;
  error = cairo_status_to_string(status);
  return false;
}

// What can still be read in a copy of that scale. A caption that cannot needs no ground either.
PaintScope FindScope(const scene::DisplayList& list, double scale) {
  constexpr double kLeastFont = 6.5;  // pixels of the sheet
  PaintScope scope;
  scope.leastText = static_cast<float>(kLeastFont / scale);
  if (scene::kCaptionFont * static_cast<double>(list.GetUnit()) * scale < kLeastFont)
    scope.layers &= ~PaintScope::GetBit(scene::Layer::kCaptionGround);
  return scope;
}

}  // namespace

struct ContactSheet::Sheet {
  Sheet(int frames, int width, int height);
  void PaintCopy(double x, double y);
  void PaintText(const std::string& text, double x, double y);

  int count, columns;
  double scale, copyWidth, copyHeight;
  int added = 0;
  Surface frame, sheet;
  Context context;
};

ContactSheet::Sheet::Sheet(int frames, int width, int height)
    : count(std::max(frames, 1)),
      columns(
          std::clamp(static_cast<int>(std::lround(std::sqrt(kAspect * count * height / width))), 1, count)),
      scale(std::clamp(1600.0 / columns, 80.0, 400.0) / width),
      copyWidth(width * scale),
      copyHeight(height * scale),
      frame(MakeSurface(width, height)),
      sheet(MakeSurface(
          static_cast<int>(columns * (copyWidth + kGap) + kGap),
          static_cast<int>((count + columns - 1) / columns * (copyHeight + kTextHeight + kGap) + kGap))),
      context(cairo_create(sheet.get()), cairo_destroy) {
  cairo_set_source_rgb(context.get(), 0.10, 0.11, 0.13);
  cairo_paint(context.get());
}

void ContactSheet::Sheet::PaintCopy(double x, double y) {
  cairo_save(context.get());
  cairo_translate(context.get(), x, y);
  cairo_scale(context.get(), scale, scale);
  cairo_set_source_surface(context.get(), frame.get(), 0.0, 0.0);
  cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_BEST);
  cairo_paint(context.get());
  cairo_restore(context.get());
}

void ContactSheet::Sheet::PaintText(const std::string& text, double x, double y) {
  SelectFont(kFont, 0, context.get());
  cairo_set_source_rgb(context.get(), 0.72, 0.77, 0.84);
  cairo_move_to(context.get(), x + 0.5 * (copyWidth - GetAdvance(text.c_str(), context.get())),
                y + copyHeight + 0.75 * kTextHeight);
  cairo_show_text(context.get(), text.c_str());
}

ContactSheet::ContactSheet(int count, int width, int height)
    : m_Sheet(std::make_unique<Sheet>(count, width, height)) {}
ContactSheet::~ContactSheet() = default;

bool ContactSheet::Add(const scene::DisplayList& list, const std::string& text, std::string& error) {
  if (m_Sheet->added == m_Sheet->count) {
    error = "the contact sheet is full";
    return false;
  }
  const Context whole(cairo_create(m_Sheet->frame.get()), cairo_destroy);
  PaintDisplayList(list, whole.get(), FindScope(list, m_Sheet->scale));
  if (!IsGood(cairo_status(whole.get()), error)) return false;
  const int row = m_Sheet->added / m_Sheet->columns, column = m_Sheet->added % m_Sheet->columns;
  const double x = kGap + column * (m_Sheet->copyWidth + kGap);
  const double y = kGap + row * (m_Sheet->copyHeight + kTextHeight + kGap);
  m_Sheet->PaintCopy(x, y);
  m_Sheet->PaintText(text, x, y);
  ++m_Sheet->added;
  return IsGood(cairo_status(m_Sheet->context.get()), error);
}

bool ContactSheet::Write(const std::string& path, std::string& error) const {
  std::string bytes;
  if (!MakePngBytes(m_Sheet->sheet.get(), bytes, error)) {
    error = path + ": cannot be drawn: " + error;
    return false;
  }
  return WritePictureBytes(path, bytes, error);
}

}  // namespace paint
