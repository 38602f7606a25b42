// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_boundaries.h"

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"

namespace scene {

// Clipping can cut a line at every other point at most.
SkyBoundaries::SkyBoundaries(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {
  m_Points.reserve(2 * catalogs.bounds.GetPointCount());
  m_Lines.reserve(catalogs.bounds.GetPointCount());
}

void SkyBoundaries::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                            const ObjectTests& tests, bool shown) {
  m_Points.clear();
  m_Lines.clear();
  if (!shown) return;
  constexpr double kMargin = 0.001;  // radians, aberration and more
  for (const BoundaryEdge& edge : m_Catalogs.bounds.GetEdges()) {
    if (!tests.PassesConstellationFilter(edge.northOrEast) &&
        !tests.PassesConstellationFilter(edge.southOrWest))
      continue;
    const Direction& middle = m_Catalogs.bounds.GetPoints(edge)[edge.count / 2];
    const double reach = std::min(geometry.cornerAngle + edge.radius + kMargin, kPi);
    if (Dot(middle, geometry.centreJ2000) >= std::cos(reach)) AddEdge(geometry, observer, tests, edge);
  }
}

void SkyBoundaries::AddEdge(const ViewGeometry& geometry, const ObserverFrame& observer,
                            const ObjectTests& tests, const BoundaryEdge& edge) {
  const Direction* const points = m_Catalogs.bounds.GetPoints(edge);
  SkyPath path(geometry);
  bool goesOn = false;
  for (int i = 0; i < edge.count; ++i) {
    const Direction apparent = ApparentDirection(points[i], observer);
    DrawnLine stretch;
    const bool drawn = path.GoTo(apparent, stretch) && tests.IsAboveHorizon(apparent) && path.Clip(stretch);
    if (drawn) AddStretch(stretch, goesOn);
    goesOn = drawn;
  }
}

// A line goes on where the stretch begins at its end: clipping moves ends.
void SkyBoundaries::AddStretch(const DrawnLine& stretch, bool goesOn) {
  const bool joins = goesOn && m_Points.back().x == stretch.from.x && m_Points.back().y == stretch.from.y;
  if (!joins) {
    m_Lines.push_back({static_cast<int>(m_Points.size()), 1});
    m_Points.push_back(stretch.from);
  }
  m_Points.push_back(stretch.to);
  ++m_Lines.back().count;
}

void SkyBoundaries::Draw(double strength, DisplayList& list) const {
  if (!(strength > 0.0)) return;
  PolylineRecord style = {};
  style.width = 0.8f * list.GetUnit();
  style.dash = 4.0f * list.GetUnit();
  style.colour = ToRgba(palette::kBoundary, strength);
  for (const Line& line : m_Lines) {
    for (int i = line.first; i < line.first + line.count; ++i) {
      const auto& p = m_Points[static_cast<std::size_t>(i)];
      list.AddVertex(p.x, list.GetHeight() - p.y);
    }
    list.AddLine(Layer::kFigures, style);
  }
}

}  // namespace scene
