// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter_light_curve.h"

#include <cmath>
#include <string>

#include "skyview/reports/host_texts.h"
#include "paint/painter_parts.h"
#include "skyview/reports/text_format.h"
#include "scene/view/view_geometry.h"

namespace skyview {
namespace {

constexpr Colour kGround = {0.020, 0.030, 0.066, 1.0}, kGrid = {0.42, 0.53, 0.72, 0.25},
                 kText = {0.80, 0.85, 0.92, 0.95}, kCurve = {1.00, 0.86, 0.55, 1.0};
constexpr int kDateTicks = 8, kMagnitudeTicks = 8;

// From dates and magnitudes to pixels, y down.
class CurvePainter {
 public:
  CurvePainter(const LightCurve& curve, int width, int height, cairo_t* context)
      : m_Curve(curve),
        m_Context(context),
        m_Unit(GetPictureUnit(width, height)),
        m_Left(110.0 * m_Unit),
        m_Top(90.0 * m_Unit),
        m_Width(width - m_Left - 50.0 * m_Unit),
        m_Height(height - m_Top - 100.0 * m_Unit) {}

  void Paint() {
    SetColour(kGround, m_Context);
    cairo_paint(m_Context);
    cairo_select_font_face(m_Context, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    PaintDates();
    PaintMagnitudes();
    PaintCurve();
    PaintText(m_Curve.title, m_Left + 0.5 * m_Width, 55.0 * m_Unit, 0.5, 26.0);
  }

 private:
  double X(double date) const {
    return m_Left + m_Width * (date - m_Curve.first) / (m_Curve.last - m_Curve.first);
  }
  double Y(double magnitude) const {
    return m_Top + m_Height * (magnitude - m_Curve.brightest) / (m_Curve.faintest - m_Curve.brightest);
  }
  void PaintText(const std::string& text, double x, double y, double anchor, double size) {
    SetColour(kText, m_Context);
    cairo_set_font_size(m_Context, size * m_Unit);
    cairo_text_extents_t extents;
    cairo_text_extents(m_Context, text.c_str(), &extents);
    cairo_move_to(m_Context, x - anchor * extents.x_advance, y);
    cairo_show_text(m_Context, text.c_str());
  }
  void PaintLine(double x0, double y0, double x1, double y1) {
    SetColour(kGrid, m_Context);
    cairo_set_line_width(m_Context, m_Unit);
    cairo_move_to(m_Context, x0, y0);
    cairo_line_to(m_Context, x1, y1);
    cairo_stroke(m_Context);
  }
  void PaintDates();
  void PaintMagnitudes();
  void PaintCurve();

  const LightCurve& m_Curve;
  cairo_t* m_Context;
  double m_Unit, m_Left, m_Top, m_Width, m_Height;
};

// As many decimals as the step needs.
std::string FormatTick(double value, double tick) {
  const int decimals = tick >= 1.0 ? 0 : tick >= 0.1 ? 1 : 2;
  return Format("%.*f", decimals, value);
}

void CurvePainter::PaintDates() {
  const double tick = ChooseTick(m_Curve.last - m_Curve.first, kDateTicks), bottom = m_Top + m_Height;
  for (double date = std::ceil(m_Curve.first / tick) * tick; date <= m_Curve.last; date += tick) {
    PaintLine(X(date), m_Top, X(date), bottom);
    PaintText(FormatTick(date, tick), X(date), bottom + 28.0 * m_Unit, 0.5, 15.0);
  }
  PaintText(ToUtf8(Localize(HostText::kCurveDate, {})), m_Left + 0.5 * m_Width, bottom + 70.0 * m_Unit, 0.5,
            18.0);
}

void CurvePainter::PaintMagnitudes() {
  const double tick = ChooseTick(m_Curve.faintest - m_Curve.brightest, kMagnitudeTicks);
  // Counted in whole steps, so that zero is written as 0 and not as the remainder of a sum.
  const double first = std::ceil(m_Curve.brightest / tick);
  for (int i = 0; (first + i) * tick <= m_Curve.faintest; ++i) {
    const double magnitude = (first + i) * tick;
    PaintLine(m_Left, Y(magnitude), m_Left + m_Width, Y(magnitude));
    PaintText(FormatTick(magnitude, tick), m_Left - 12.0 * m_Unit, Y(magnitude) + 5.0 * m_Unit, 1.0, 15.0);
  }
  PaintText(ToUtf8(Localize(HostText::kCurveMagnitude, {})), 24.0 * m_Unit, m_Top - 16.0 * m_Unit, 0.0, 18.0);
}

void CurvePainter::PaintCurve() {
  cairo_new_path(m_Context);
  for (const auto& point : m_Curve.points) cairo_line_to(m_Context, X(point.x), Y(point.y));
  SetColour(kCurve, m_Context);
  cairo_set_line_width(m_Context, 2.2 * m_Unit);
  cairo_set_line_join(m_Context, CAIRO_LINE_JOIN_ROUND);
  cairo_stroke(m_Context);
}

}  // namespace

void PaintLightCurve(const LightCurve& curve, int width, int height, cairo_t* context) {
  CurvePainter(curve, width, height, context).Paint();
}

}  // namespace skyview
