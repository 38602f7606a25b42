// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/finder_marks.h"

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"

namespace scene {

void FinderMarks::Compute(const ViewGeometry& geometry, LabelPlacer& labels) {
  constexpr double kFont = 12.0;  // pixels of the standard picture
  m_Scale = geometry.scale;
  m_Font = kFont * geometry.unit;
  m_Middle = {0.5 * geometry.width, 0.5 * geometry.height};
  if (m_Finders.empty()) return;
  m_Axes = FindPictureAxes(geometry);
  for (std::size_t i = 0; i < m_Finders.size(); ++i) {
    PlaceLabel(i);
    const double halfWidth = 0.5 * labels.GetWidth(m_Finders[i].label.c_str(), m_Font);
    if (!std::isnan(m_Labels[i]))
      labels.Reserve({m_Middle.x, geometry.height - m_Labels[i] + 0.35 * m_Font}, halfWidth, 0.6 * m_Font);
  }
}

double FinderMarks::FindEnd(const Finder& finder, bool upper) const {
  const double sign = upper ? -1.0 : 1.0;
  if (finder.diameter > 0.0) return m_Middle.y + sign * GetRadius(0.5 * finder.diameter);
  double end = 0.0;
  for (const auto& [across, up] : {std::pair(-1.0, -1.0), {1.0, -1.0}, {1.0, 1.0}, {-1.0, 1.0}})
    end = std::max(end, sign * (FindSensorPoint(finder, across, up).y - m_Middle.y));
  return m_Middle.y + sign * end;
}

// Outside the upper end, else the lower one, wherever the labels before leave room.
void FinderMarks::PlaceLabel(std::size_t index) {
  for (const bool upper : {true, false}) {
    const double baseline = FindEnd(m_Finders[index], upper) + (upper ? -0.35 : 1.05) * m_Font;
    bool free = true;
    for (std::size_t i = 0; i < index; ++i) free &= !(std::fabs(m_Labels[i] - baseline) < 1.2 * m_Font);
    m_Labels[index] = baseline;
    if (free) return;
  }
  m_Labels[index] = std::nan("");
}

// `across`, `up`: -1 to 1 from edge to edge. With the upper edge towards north the sensor's right is west.
tPoint<double> FinderMarks::FindSensorPoint(const Finder& finder, double across, double up) const {
  const double right = 0.5 * finder.width * across, above = 0.5 * finder.height * up;
  const double c = std::cos(finder.angle), s = std::sin(finder.angle);
  const double north = above * c + right * s, east = above * s - right * c, far = std::hypot(north, east);
  if (!(far > 0.0)) return m_Middle;
  const double pixels = GetRadius(std::atan(far)) / far;
  return {m_Middle.x + pixels * (north * m_Axes.north.x + east * m_Axes.east.x),
          m_Middle.y + pixels * (north * m_Axes.north.y + east * m_Axes.east.y)};
}

void FinderMarks::DrawSensor(const Finder& finder, DisplayList& list) const {
  constexpr int kSteps = 8;  // a side
  constexpr double kCorners[][2] = {{-1.0, -1.0}, {1.0, -1.0}, {1.0, 1.0}, {-1.0, 1.0}};
  for (int side = 0; side < 4; ++side) {
    const double* const from = kCorners[side];
    const double* const to = kCorners[(side + 1) % 4];
    for (int i = 0; i < kSteps; ++i) {
      const double part = static_cast<double>(i) / kSteps;
      const auto point =
          FindSensorPoint(finder, from[0] + (to[0] - from[0]) * part, from[1] + (to[1] - from[1]) * part);
      list.AddVertex(point.x, point.y);
    }
  }
  PolylineRecord line = {};
  line.width = 1.2f * list.GetUnit();
  line.colour = ToRgba(palette::kFinder);
  line.flags = kClosedLine | kRoundJoins;
  list.AddLine(Layer::kChart, line);
}

void FinderMarks::Draw(DisplayList& list) const {
  for (std::size_t i = 0; i < m_Finders.size(); ++i) {
    const Finder& finder = m_Finders[i];
    if (finder.diameter > 0.0) {
      const auto radius = static_cast<float>(GetRadius(0.5 * finder.diameter));
      list.Add(Layer::kChart, EllipseRecord{static_cast<float>(m_Middle.x),
                                            static_cast<float>(m_Middle.y),
                                            radius,
                                            radius,
                                            0.0f,
                                            1.2f * list.GetUnit(),
                                            0.0f,
                                            ToRgba(palette::kFinder),
                                            {}});
    } else {
      DrawSensor(finder, list);
    }
    if (std::isnan(m_Labels[i])) continue;
    TextRecord text = {};
    text.x = static_cast<float>(m_Middle.x);
    text.y = static_cast<float>(m_Labels[i]);
    text.anchor = 0.5f;
    text.size = static_cast<float>(m_Font);
    text.colour = ToRgba(palette::kFinder);
    list.AddText(Layer::kChart, text, finder.label);
  }
}

}  // namespace scene
