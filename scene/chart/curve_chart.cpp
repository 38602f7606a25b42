// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/curve_chart.h"

#include <cmath>

#include "scene/chart/chart_frame.h"
#include "utils/messages.h"

namespace scene {
namespace {

constexpr Colour kCurve = {1.00, 0.86, 0.55, 1.0};
constexpr int kDateTicks = 8, kMagnitudeTicks = 8;

// As many decimals as the step needs.
std::string FormatTick(double value, double tick) {
  const int decimals = tick >= 1.0 ? 0 : tick >= 0.1 ? 1 : 2;
  return FormatText("%.*f", decimals, value);
}

void DrawDates(const ChartFrame& chart, const LightCurve& curve, const std::string& caption) {
  const double tick = ChooseTick(curve.last - curve.first, kDateTicks), bottom = chart.GetBottom();
  for (double date = std::ceil(curve.first / tick) * tick; date <= curve.last; date += tick) {
    chart.DrawGridLine(chart.X(date), chart.GetTop(), chart.X(date), bottom);
    chart.DrawText(FormatTick(date, tick), chart.X(date), bottom + 28.0 * chart.GetUnit(), 0.5, 15.0);
  }
  chart.DrawText(caption, chart.GetMiddle(), bottom + 70.0 * chart.GetUnit(), 0.5, 18.0);
}

void DrawMagnitudes(const ChartFrame& chart, const LightCurve& curve, const std::string& caption) {
  const double tick = ChooseTick(curve.faintest - curve.brightest, kMagnitudeTicks), unit = chart.GetUnit();
  // Counted in whole steps, so that zero is written as 0 and not as the remainder of a sum.
  const double first = std::ceil(curve.brightest / tick);
  for (int i = 0; (first + i) * tick <= curve.faintest; ++i) {
    const double magnitude = (first + i) * tick, y = chart.Y(magnitude);
    chart.DrawGridLine(chart.GetLeft(), y, chart.GetRight(), y);
    chart.DrawText(FormatTick(magnitude, tick), chart.GetLeft() - 12.0 * unit, y + 5.0 * unit, 1.0, 15.0);
  }
  chart.DrawText(caption, 24.0 * unit, chart.GetTop() - 16.0 * unit, 0.0, 18.0);
}

void DrawCurve(const ChartFrame& chart, const LightCurve& curve) {
  for (const auto& point : curve.points) chart.GetList().AddVertex(chart.X(point.x), chart.Y(point.y));
  chart.DrawCurve(kCurve, 2.2);
}

}  // namespace

void DrawCurveChart(const LightCurve& curve, const CurveChartTexts& texts, int width, int height,
                    DisplayList& list) {
  const ChartFrame chart({110.0, 90.0, 50.0, 100.0},
                         {curve.first, curve.last, curve.brightest, curve.faintest}, width, height, list);
  chart.DrawGround();
  DrawDates(chart, curve, texts.date);
  DrawMagnitudes(chart, curve, texts.magnitude);
  DrawCurve(chart, curve);
  chart.DrawText(curve.title, chart.GetMiddle(), 55.0 * chart.GetUnit(), 0.5, 26.0);
}

}  // namespace scene
