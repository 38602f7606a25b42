// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/milky_way_picture.h"

#include "scene/display/palette.h"
#include "scene/display/region_drawing.h"

namespace scene {
namespace {

constexpr int kLevels = 5;

// The north galactic pole (J2000; IAU 1958), far from every outline of the Milky Way.
constexpr double kGalacticPoleRA = 192.85948 * kRadiansPerDegree;
constexpr double kGalacticPoleDec = 27.12825 * kRadiansPerDegree;

}  // namespace

MilkyWayPicture::MilkyWayPicture(const SkyCatalogs& catalogs) : m_Catalogs(catalogs), m_Levels(kLevels) {
  for (const auto& ring : catalogs.milkyWay) {
    m_FirstCaps.push_back(m_Caps.size());
    RegionProjector::AppendCaps(GetPoints(ring), m_Caps);
  }
  m_FirstCaps.push_back(m_Caps.size());
  for (int level = 1; level <= kLevels; ++level) {
    std::size_t rings = 0, points = 0;
    for (const auto& ring : m_Catalogs.milkyWay) {
      if (ring.level != level) continue;
      ++rings;
      points += static_cast<std::size_t>(ring.count);
    }
    m_Levels[level - 1].Reserve(rings, points);
  }
}

std::span<const Direction> MilkyWayPicture::GetPoints(const MilkyWayRing& ring) const {
  return {m_Catalogs.milkyWayPoints.data() + ring.first, static_cast<std::size_t>(ring.count)};
}

void MilkyWayPicture::Compute(const ViewGeometry& geometry, bool shown) {
  for (auto& level : m_Levels) level.Clear();
  if (!shown) return;
  const Direction pole = MakeDirection(kGalacticPoleRA, kGalacticPoleDec);
  for (int level = 1; level <= kLevels; ++level) {
    RegionProjector projector(geometry, SkyFrameOf::kJ2000, pole, m_Levels[level - 1]);
    for (std::size_t i = 0; i < m_Catalogs.milkyWay.size(); ++i) {
      const MilkyWayRing& ring = m_Catalogs.milkyWay[i];
      if (ring.level != level) continue;
      projector.AddRing(GetPoints(ring),
                        {m_Caps.data() + m_FirstCaps[i], m_FirstCaps[i + 1] - m_FirstCaps[i]});
    }
  }
}

void MilkyWayPicture::Draw(double strength, DisplayList& list) const {
  if (!(strength > 0.0)) return;
  constexpr double kLeastStep = 2.0;  // pixels; the edge is soft
  for (std::size_t level = 0; level < m_Levels.size(); ++level) {
    const RegionPicture& region = m_Levels[level];
    if (region.points.empty() && !region.holdsOutside) continue;
    Colour edge = palette::kMilkyWay[level];
    edge.opacity *= strength;
    AddRegion(region, kLeastStep, list);
    PolygonRecord area = {};
    SetSoftColour(edge, 2.0f * list.GetUnit(), area);
    list.AddArea(Layer::kMilkyWay, area);
  }
}

}  // namespace scene
