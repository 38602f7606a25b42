// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_figures.h"

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"
#include "utils/text.h"

namespace scene {
namespace {

ObjectRef FindObject(const SkyCatalogs& catalogs, int constellation) {
  if (constellation < 0) return {};
  return {FourCC("cnst"), GetTraits(catalogs.constellations[static_cast<std::size_t>(constellation)]).number};
}

}  // namespace

void AddFigureStroke(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
                     std::span<const Direction> points, ObjectRef object, std::vector<FigureLine>& lines) {
  constexpr double kGap = 7.0;  // pixels
  SkyPath path(geometry);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Direction apparent = ApparentDirection(points[i], observer);
    DrawnLine line;
    if (!path.GoTo(apparent, line) || !tests.IsAboveHorizon(apparent)) continue;
    const auto [from, to] = line;
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    const double gap = std::min(kGap * geometry.unit, 0.3 * length) / std::max(length, 1e-9);
    if (i == 1) line.from = {from.x + gap * (to.x - from.x), from.y + gap * (to.y - from.y)};
    if (i == points.size() - 1) line.to = {to.x - gap * (to.x - from.x), to.y - gap * (to.y - from.y)};
    if (path.Clip(line)) lines.push_back({line, object});
  }
}

void DrawFigureLines(const std::vector<FigureLine>& lines, const Rgba& colour, double dash,
                     DisplayList& list) {
  PolylineRecord line = {};
  line.width = 1.0f * list.GetUnit();
  line.dash = static_cast<float>(dash) * list.GetUnit();
  line.colour = colour;
  for (const auto& [stretch, object] : lines) {
    line.object = object;
    list.AddVertex(stretch.from.x, list.GetHeight() - stretch.from.y);
    list.AddVertex(stretch.to.x, list.GetHeight() - stretch.to.y);
    list.AddLine(Layer::kFigures, line);
  }
}

SkyFigures::SkyFigures(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {
  m_Lines.reserve(catalogs.figurePoints.size());
  for (const auto& stroke : catalogs.figures)
    m_Caps.push_back(
        MakeCap({catalogs.figurePoints.data() + stroke.first, static_cast<std::size_t>(stroke.count)}));
}

void SkyFigures::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                         const ObjectTests& tests) {
  m_Lines.clear();
  for (std::size_t i = 0; i < m_Catalogs.figures.size(); ++i) {
    const FigureStroke& stroke = m_Catalogs.figures[i];
    if (geometry.MayReach(m_Caps[i]) && tests.IsFigureDrawn(stroke.constellation))
      AddFigureStroke(geometry, observer, tests,
                      {m_Catalogs.figurePoints.data() + stroke.first, static_cast<std::size_t>(stroke.count)},
                      FindObject(m_Catalogs, stroke.constellation), m_Lines);
  }
}

void SkyFigures::PlaceNames(const ViewGeometry& geometry, const ObjectTests& tests, NameForm form,
                            LabelPlacer& labels) {
  constexpr int kRings = 2, kMiddleRings = 8;
  ObjectPlace place;
  const auto name = [&](int i, int rings) {
    if (!tests.IsConstellationNamed(i, place)) return;
    labels.PlaceNear(m_Catalogs.constellations[static_cast<std::size_t>(i)].GetName(form).c_str(),
                     place.pixel, 15.0 * geometry.unit, LabelKind::kConstellation, FindObject(m_Catalogs, i),
                     rings);
  };
  const int middle = FindMiddle(geometry, tests);
  if (middle >= 0) name(middle, kMiddleRings);
  for (int i = 0; i < static_cast<int>(m_Catalogs.constellations.size()); ++i) {
    if (i != middle) name(i, kRings);
  }
}

int SkyFigures::FindMiddle(const ViewGeometry& geometry, const ObjectTests& tests) const {
  int middle = -1;
  double least = 0.0;
  ObjectPlace place;
  for (int i = 0; i < static_cast<int>(m_Catalogs.constellations.size()); ++i) {
    if (!tests.IsConstellationNamed(i, place)) continue;
    const double away =
        std::hypot(place.pixel.x - 0.5 * geometry.width, place.pixel.y - 0.5 * geometry.height);
    if (middle >= 0 && away >= least) continue;
    middle = i;
    least = away;
  }
  return middle;
}

void SkyFigures::Draw(double strength, DisplayList& list) const {
  DrawFigureLines(m_Lines, ToRgba(palette::kFigure, strength), 0.0, list);
}

}  // namespace scene
