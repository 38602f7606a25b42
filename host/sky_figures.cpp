// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/sky_figures.h"

#include <algorithm>
#include <cmath>

#include "common_interfaces/clipping.h"

namespace skyview {

SkyFigures::SkyFigures(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {
  m_Lines.reserve(catalogs.figurePoints.size());
}

void SkyFigures::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                         const ObjectTests& tests) {
  m_Lines.clear();
  for (const auto& stroke : m_Catalogs.figures) {
    if (tests.IsFigureDrawn(stroke.constellation)) AddStroke(geometry, observer, tests, stroke);
  }
}

// The stroke leaves a gap at its stars. Pieces with an end more than a right angle from the view axis and outside the
// window are left out: their straight picture may have nothing to do with the arc.
void SkyFigures::AddStroke(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const ObjectTests& tests, const FigureStroke& stroke) {
  constexpr double kGap = 7.0;  // pixels
  const tRect<int> window = {0, 0, geometry.width + 1, geometry.height + 1};
  const Direction* points = m_Catalogs.figurePoints.data() + stroke.first;
  tPoint<double> last{};
  bool lastUsable = false;
  for (int i = 0; i < stroke.count; ++i) {
    const Direction apparent = ApparentDirection(points[i], observer);
    const auto p = geometry.Project(apparent, SkyFrameOf::kJ2000);
    const bool usable =
        Dot(apparent, geometry.centreJ2000) > 0.0 || geometry.IsInside(p, geometry.halfDiagonal);
    if (i > 0 && usable && lastUsable && tests.IsAboveHorizon(apparent)) {
      tPoint<double> from = last, to = p;
      const double length = std::hypot(to.x - from.x, to.y - from.y);
      const double gap = std::min(kGap * geometry.unit, 0.3 * length) / std::max(length, 1e-9);
      if (i == 1) from = {last.x + gap * (p.x - last.x), last.y + gap * (p.y - last.y)};
      if (i == stroke.count - 1) to = {p.x - gap * (p.x - last.x), p.y - gap * (p.y - last.y)};
      if (CommonInterfaces::line_in_rectD(&from, &to, window)) m_Lines.push_back({from, to});
    }
    last = p;
    lastUsable = usable;
  }
}

void SkyFigures::PlaceNames(const ViewGeometry& geometry, const ObjectTests& tests, bool english,
                            LabelPlacer& labels) {
  ObjectPlace place;
  for (int i = 0; i < static_cast<int>(m_Catalogs.constellations.size()); ++i) {
    if (!tests.IsConstellationNamed(i, place)) continue;
    labels.PlaceCentred(m_Catalogs.constellations[i].GetShownName(english).c_str(), place.pixel,
                        15.0 * geometry.unit, LabelKind::kConstellation);
  }
}

}  // namespace skyview
