// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/favourite_marks.h"

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"
#include "scene/frame/sky_objects.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kGap = 2.5;  // pixels between an object and its mark

void AddPoints(double x, double y, double radius, DisplayList& list) {
  constexpr int kPoints = 5;
  constexpr double kInner = 0.45;  // a little fuller than a pentagram, whose inner points lie at 0.38
  for (int i = 0; i < 2 * kPoints; ++i) {
    const double angle = kPi * i / kPoints, r = i % 2 == 0 ? radius : kInner * radius;
    list.AddVertex(x + r * std::sin(angle), y - r * std::cos(angle));
  }
}

}  // namespace

double FavouriteMarks::GetRadius(double unit) { return std::max(5.5 * unit, 4.0); }

void FavouriteMarks::SetObjects(const std::vector<SSO_ID>& objects) {
  std::vector<SSO_ID> sorted = objects;
  std::sort(sorted.begin(), sorted.end());
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  const auto holds = [&sorted](int kind, int number) {
    return std::binary_search(sorted.begin(), sorted.end(), SSO_ID(kind, number));
  };
  m_Stars.clear();
  m_TileStars.clear();
  m_Deepsky.clear();
  m_Constellations.clear();
  for (int i = 0; i < m_Catalogs.stars.GetCount(); ++i) {
    if (holds(FourCC("star"), m_Catalogs.stars.GetNumber(i))) m_Stars.push_back(i);
  }
  for (const SSO_ID& object : sorted) {
    if (object.kind != FourCC("star")) continue;
    if (const auto star = FindTileStar(m_Catalogs, object.number)) m_TileStars.push_back(*star);
  }
  for (int i = 0; i < static_cast<int>(m_Catalogs.deepsky.size()); ++i) {
    if (holds(m_Catalogs.deepsky[i].kind, m_Catalogs.deepsky[i].number)) m_Deepsky.push_back(i);
  }
  for (int i = 0; i < static_cast<int>(m_Catalogs.constellations.size()); ++i) {
    if (holds(FourCC("cnst"), GetTraits(m_Catalogs.constellations[i]).number)) m_Constellations.push_back(i);
  }
  m_Marks.reserve(m_Stars.size() + m_TileStars.size() + m_Deepsky.size() + m_Constellations.size());
}

void FavouriteMarks::Compute(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels) {
  constexpr double kNameHeight = 12.0;  // pixels from the place of a constellation's name to above it
  m_Marks.clear();
  ObjectPlace place;
  for (const int star : m_Stars) {
    if (tests.IsStarDrawn(star, place)) {
      AddBeside(geometry, place.pixel, place.radius, {FourCC("star"), m_Catalogs.stars.GetNumber(star)},
                labels);
    }
  }
  for (const StarTileRecord& star : m_TileStars) {
    if (tests.IsStarDrawn(star, ObjectTests::kNoReachLimit, place))
      AddBeside(geometry, place.pixel, place.radius, {FourCC("star"), star.GetNumber()}, labels);
  }
  for (const int object : m_Deepsky) {
    if (!tests.IsDeepskyDrawn(object, place)) continue;
    const DeepskyObject& entry = m_Catalogs.deepsky[static_cast<std::size_t>(object)];
    AddBeside(geometry, place.pixel, GetSymbolRadius(entry, geometry), {entry.kind, entry.number}, labels);
  }
  for (const int constellation : m_Constellations) {
    if (!tests.IsConstellationShown(constellation, place)) continue;
    const double away = kNameHeight * geometry.unit + GetRadius(geometry.unit);
    const auto& entry = m_Catalogs.constellations[static_cast<std::size_t>(constellation)];
    const ObjectRef ref = {FourCC("cnst"), GetTraits(entry).number};
    if (!Add(geometry, {place.pixel.x, place.pixel.y + away}, ref, labels)) {
      Add(geometry, {place.pixel.x, place.pixel.y - away}, ref, labels);
    }
  }
}

// On the first of the four sides where the mark lies wholly in the window. An object that fills the picture
// has it inside.
void FavouriteMarks::AddBeside(const ViewGeometry& geometry, const tPoint<double>& p, double radius,
                               ObjectRef object, LabelPlacer& labels) {
  constexpr double kSides[][2] = {{-1.0, 1.0}, {1.0, 1.0}, {1.0, -1.0}, {-1.0, -1.0}};
  constexpr double kDiagonal = 0.70710678118654752;
  const double own = GetRadius(geometry.unit);
  const double most = 0.2 * std::min(geometry.width, geometry.height);
  const double away = (std::min(radius, most) + kGap * geometry.unit + own) * kDiagonal;
  for (const auto& side : kSides) {
    if (Add(geometry, {p.x + side[0] * away, p.y + side[1] * away}, object, labels)) return;
  }
}

bool FavouriteMarks::Add(const ViewGeometry& geometry, const tPoint<double>& place, ObjectRef object,
                         LabelPlacer& labels) {
  const double radius = GetRadius(geometry.unit);
  if (!geometry.IsInside(place, -radius)) return false;
  m_Marks.push_back({place, object});
  labels.Reserve(place, radius, radius);
  return true;
}

void FavouriteMarks::Draw(DisplayList& list) const {
  const double radius = GetRadius(list.GetUnit());
  for (const auto& mark : m_Marks) {
    const double y = list.GetHeight() - mark.place.y;
    PolylineRecord edge = {};
    edge.width = static_cast<float>(0.35 * radius);
    edge.colour = ToRgba(palette::kFavouriteEdge);
    edge.flags = kClosedLine;
    edge.object = mark.object;
    AddPoints(mark.place.x, y, radius, list);
    list.AddLine(Layer::kFavourites, edge);
    PolygonRecord area = {};
    area.colour = ToRgba(palette::kFavourite);
    area.object = mark.object;
    AddPoints(mark.place.x, y, radius, list);
    list.AddArea(Layer::kFavourites, area);
  }
}

}  // namespace scene
