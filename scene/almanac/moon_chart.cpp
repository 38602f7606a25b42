// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/moon_chart.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "scene/chart/chart_frame.h"

namespace scene {
namespace {

// Io to Callisto: apart from each other for every eye, by brightness too.
constexpr Colour kMoons[] = {
    {1.00, 0.80, 0.35, 1.0}, {0.55, 0.80, 1.00, 1.0}, {0.62, 0.93, 0.60, 1.0}, {0.95, 0.58, 0.72, 1.0}};
constexpr Colour kDisc = {0.98, 0.89, 0.74, 0.22}, kDiscEdge = {0.98, 0.89, 0.74, 0.7};

const Colour& GetMoonColour(std::size_t moon) { return kMoons[moon % std::size(kMoons)]; }

double FindReach(const std::vector<MoonPath>& paths) {
  double reach = 1.0;
  for (const auto& path : paths) {
    for (const auto& point : path.points)
      reach = std::max(reach, std::fabs(static_cast<double>(point.offset)));
  }
  return 1.04 * reach;
}

void DrawDisc(const ChartFrame& chart) {
  DisplayList& list = chart.GetList();
  const double left = chart.X(-1.0), right = chart.X(1.0), top = chart.GetTop(), bottom = chart.GetBottom();
  list.AddVertex(left, top);
  list.AddVertex(right, top);
  list.AddVertex(right, bottom);
  list.AddVertex(left, bottom);
  PolygonRecord band = {};
  band.colour = ToRgba(kDisc);
  list.AddArea(Layer::kHaze, band);
  for (const double x : {left, right}) chart.DrawGridLine(x, top, x, bottom, kDiscEdge);
}

void DrawDays(const ChartFrame& chart, double days, const std::vector<std::string>& texts) {
  const double unit = chart.GetUnit();
  for (int day = 0; day <= static_cast<int>(days); ++day) {
    const double y = chart.Y(day);
    chart.DrawGridLine(chart.GetLeft(), y, chart.GetRight(), y);
    if (day < static_cast<int>(texts.size()))
      chart.DrawText(texts[static_cast<std::size_t>(day)], chart.GetLeft() - 12.0 * unit, y + 6.0 * unit, 1.0,
                     16.0);
  }
}

void DrawPath(const ChartFrame& chart, const MoonPath& path, double days, const Colour& colour) {
  const double last = static_cast<double>(path.points.size()) - 1.0;
  bool open = false;
  for (std::size_t i = 0; i < path.points.size(); ++i) {
    const MoonPathPoint& point = path.points[i];
    if (!point.hidden)
      chart.GetList().AddVertex(chart.X(point.offset), chart.Y(days * static_cast<double>(i) / last));
    if (open && point.hidden) chart.DrawCurve(colour, 2.2);
    open = !point.hidden;
  }
  if (open) chart.DrawCurve(colour, 2.2);
}

// A stroke in the colour of the moon before its name, in four columns.
void DrawLegend(const ChartFrame& chart, const std::vector<std::string>& names) {
  const double unit = chart.GetUnit(), y = chart.GetTop() - 52.0 * unit;
  const double column = (chart.GetRight() - chart.GetLeft()) / static_cast<double>(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    const double x = chart.GetLeft() + column * (static_cast<double>(i) + 0.5) - 30.0 * unit;
    chart.GetList().AddVertex(x - 40.0 * unit, y - 6.0 * unit);
    chart.GetList().AddVertex(x - 8.0 * unit, y - 6.0 * unit);
    chart.DrawCurve(GetMoonColour(i), 3.0);
    chart.DrawText(names[i], x, y, 0.0, 20.0);
  }
}

}  // namespace

void DrawMoonChart(const std::vector<MoonPath>& paths, double days, const MoonChartTexts& texts, int width,
                   int height, DisplayList& list) {
  const double reach = FindReach(paths);
  const ChartFrame chart({110.0, 150.0, 60.0, 60.0}, {-reach, reach, 0.0, days}, width, height, list);
  const double unit = chart.GetUnit(), top = chart.GetTop();
  chart.DrawGround();
  DrawDays(chart, days, texts.days);
  DrawDisc(chart);
  for (std::size_t i = 0; i < paths.size(); ++i) DrawPath(chart, paths[i], days, GetMoonColour(i));
  DrawLegend(chart, texts.moons);
  chart.DrawText(texts.title, chart.GetMiddle(), 55.0 * unit, 0.5, 28.0);
  chart.DrawText(texts.east, chart.GetLeft(), top - 14.0 * unit, 0.0, 18.0);
  chart.DrawText(texts.west, chart.GetRight(), top - 14.0 * unit, 1.0, 18.0);
  chart.DrawText(texts.note, chart.GetLeft(), chart.GetBottom() + 36.0 * unit, 0.0, 15.0);
}

}  // namespace scene
