// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/curve_chart.h"

#include <cmath>

#include "scene/display/palette.h"
#include "scene/view/view_geometry.h"
#include "utils/messages.h"

namespace scene {
namespace {

constexpr Colour kGround = {0.020, 0.030, 0.066, 1.0}, kGrid = {0.42, 0.53, 0.72, 0.25},
                 kText = {0.80, 0.85, 0.92, 0.95}, kCurve = {1.00, 0.86, 0.55, 1.0};
constexpr int kDateTicks = 8, kMagnitudeTicks = 8;

// As many decimals as the step needs.
std::string FormatTick(double value, double tick) {
  const int decimals = tick >= 1.0 ? 0 : tick >= 0.1 ? 1 : 2;
  return FormatText("%.*f", decimals, value);
}

// From dates and magnitudes to pixels.
class CurvePen {
 public:
  CurvePen(const LightCurve& curve, int width, int height, DisplayList& list)
      : m_Curve(curve),
        m_List(list),
        m_Unit(GetPictureUnit(width, height)),
        m_Left(110.0 * m_Unit),
        m_Top(90.0 * m_Unit),
        m_Width(width - m_Left - 50.0 * m_Unit),
        m_Height(height - m_Top - 100.0 * m_Unit) {}

  void Draw(const CurveChartTexts& texts) {
    DrawGround();
    DrawDates(texts.date);
    DrawMagnitudes(texts.magnitude);
    DrawCurve();
    DrawText(m_Curve.title, m_Left + 0.5 * m_Width, 55.0 * m_Unit, 0.5, 26.0);
  }

 private:
  double X(double date) const {
    return m_Left + m_Width * (date - m_Curve.first) / (m_Curve.last - m_Curve.first);
  }
  double Y(double magnitude) const {
    return m_Top + m_Height * (magnitude - m_Curve.brightest) / (m_Curve.faintest - m_Curve.brightest);
  }
  void DrawText(const std::string& text, double x, double y, double anchor, double size) {
    TextRecord record = {};
    record.x = static_cast<float>(x);
    record.y = static_cast<float>(y);
    record.anchor = static_cast<float>(anchor);
    record.size = static_cast<float>(size * m_Unit);
    record.colour = ToRgba(kText);
    m_List.AddText(Layer::kLabels, record, text);
  }
  void DrawLine(double x0, double y0, double x1, double y1) {
    PolylineRecord line = {};
    line.width = static_cast<float>(m_Unit);
    line.colour = ToRgba(kGrid);
    m_List.AddVertex(x0, y0);
    m_List.AddVertex(x1, y1);
    m_List.AddLine(Layer::kFigures, line);
  }
  void DrawGround();
  void DrawDates(const std::string& caption);
  void DrawMagnitudes(const std::string& caption);
  void DrawCurve();

  const LightCurve& m_Curve;
  DisplayList& m_List;
  double m_Unit, m_Left, m_Top, m_Width, m_Height;
};

void CurvePen::DrawGround() {
  const float right = static_cast<float>(m_List.GetWidth()), bottom = static_cast<float>(m_List.GetHeight());
  const Rgba colour = ToRgba(kGround);
  m_List.Add(Layer::kBackground, GradientRecord{{0.0f, right, right, 0.0f},
                                                {0.0f, 0.0f, bottom, bottom},
                                                0.0f,
                                                0.0f,
                                                0.0f,
                                                bottom,
                                                1.0f,
                                                colour,
                                                colour,
                                                colour,
                                                {}});
}

void CurvePen::DrawDates(const std::string& caption) {
  const double tick = ChooseTick(m_Curve.last - m_Curve.first, kDateTicks), bottom = m_Top + m_Height;
  for (double date = std::ceil(m_Curve.first / tick) * tick; date <= m_Curve.last; date += tick) {
    DrawLine(X(date), m_Top, X(date), bottom);
    DrawText(FormatTick(date, tick), X(date), bottom + 28.0 * m_Unit, 0.5, 15.0);
  }
  DrawText(caption, m_Left + 0.5 * m_Width, bottom + 70.0 * m_Unit, 0.5, 18.0);
}

void CurvePen::DrawMagnitudes(const std::string& caption) {
  const double tick = ChooseTick(m_Curve.faintest - m_Curve.brightest, kMagnitudeTicks);
  // Counted in whole steps, so that zero is written as 0 and not as the remainder of a sum.
  const double first = std::ceil(m_Curve.brightest / tick);
  for (int i = 0; (first + i) * tick <= m_Curve.faintest; ++i) {
    const double magnitude = (first + i) * tick;
    DrawLine(m_Left, Y(magnitude), m_Left + m_Width, Y(magnitude));
    DrawText(FormatTick(magnitude, tick), m_Left - 12.0 * m_Unit, Y(magnitude) + 5.0 * m_Unit, 1.0, 15.0);
  }
  DrawText(caption, 24.0 * m_Unit, m_Top - 16.0 * m_Unit, 0.0, 18.0);
}

void CurvePen::DrawCurve() {
  for (const auto& point : m_Curve.points) m_List.AddVertex(X(point.x), Y(point.y));
  PolylineRecord line = {};
  line.width = static_cast<float>(2.2 * m_Unit);
  line.colour = ToRgba(kCurve);
  line.flags = kRoundJoins;
  m_List.AddLine(Layer::kOrbits, line);
}

}  // namespace

void DrawCurveChart(const LightCurve& curve, const CurveChartTexts& texts, int width, int height,
                    DisplayList& list) {
  list.Begin(width, height, GetPictureUnit(width, height));
  CurvePen(curve, width, height, list).Draw(texts);
}

}  // namespace scene
