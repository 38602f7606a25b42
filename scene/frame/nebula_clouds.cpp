// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/nebula_clouds.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "scene/display/palette.h"
#include "scene/display/region_drawing.h"
#include "scene/visibility/obstacles.h"

namespace scene {
namespace {

// The diameter in the picture, pixels, from which a nebula has a form, and from which it has its full colour.
constexpr double kLeastSize = 16.0, kFullSize = 60.0;
// Of an edge: a part of that diameter, so that a nebula that fills the picture has no hard ones.
constexpr double kSoftPart = 0.002, kLeastSoftness = 0.4, kMostSoftness = 2.0;

// A ring whose edges are longer than that, pixels, is drawn smooth: at most so many times each corner is cut.
constexpr double kLongEdge = 6.0;
constexpr int kMostRounds = 3;

double FindMeanEdge(const std::vector<Direction>& ring) {
  double sum = 0.0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Direction &a = ring[i], &b = ring[i + 1 < ring.size() ? i + 1 : 0];
    sum += std::sqrt(2.0 * std::max(0.0, 1.0 - Dot(a, b)));
  }
  return sum / static_cast<double>(ring.size());
}

// Of an edge what lies from a quarter to three quarters of the way stays (G. M. Chaikin 1974, Computer
// Graphics and Image Processing 3, 346).
void CutCorners(const std::vector<Direction>& ring, std::vector<Direction>& cut) {
  cut.clear();
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Direction &a = ring[i], &b = ring[i + 1 < ring.size() ? i + 1 : 0];
    for (const double part : {0.25, 0.75}) {
      Direction& point = cut.emplace_back();
      for (int k = 0; k < 3; ++k) point.v[k] = a.v[k] + part * (b.v[k] - a.v[k]);
      point = Normalised(point);
    }
  }
}

}  // namespace

NebulaClouds::NebulaClouds(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {
  const NebulaOutlines& all = catalogs.nebulaOutlines;
  m_Picture.Reserve(all.rings.size(), all.points.size());
  m_Clouds.reserve(all.areas.size());
  std::size_t longest = 0;
  for (const NebulaRing& ring : all.rings) longest = std::max(longest, static_cast<std::size_t>(ring.count));
  m_Apparent.reserve(longest << kMostRounds);
  m_Cut.reserve(longest << kMostRounds);
}

bool NebulaClouds::IsShown(const NebulaOutline& outline, const ObjectTests& tests,
                           const ShownKinds& shown) const {
  if (outline.object < 0) return shown.nebulae;
  ObjectPlace place;
  // Whether the outline reaches the window is another question than where the middle of its object lies.
  return (tests.FindDeepskyObstacles(outline.object, place) & ~static_cast<unsigned>(kOutside)) == 0;
}

void NebulaClouds::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const ObjectTests& tests, const ShownKinds& shown) {
  m_Picture.Clear();
  m_Clouds.clear();
  const auto& outlines = m_Catalogs.nebulaOutlines.outlines;
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    const NebulaOutline& outline = outlines[i];
    const double size = 2.0 * geometry.camera.VisRad2PixD(outline.radius) / geometry.unit;
    if (size < kLeastSize) continue;
    const double reach = std::min(geometry.cornerAngle + outline.radius, kPi);
    if (Dot(outline.centre, geometry.centreJ2000) < std::cos(reach)) continue;
    if (!IsShown(outline, tests, shown)) continue;
    AddOutline(geometry, observer, static_cast<int>(i), size);
  }
}

void NebulaClouds::AddOutline(const ViewGeometry& geometry, const ObserverFrame& observer, int outline,
                              double size) {
  const auto opacity = static_cast<float>(std::min((size - kLeastSize) / (kFullSize - kLeastSize), 1.0));
  const auto softness = static_cast<float>(std::clamp(size * kSoftPart, kLeastSoftness, kMostSoftness));
  const NebulaOutlines& all = m_Catalogs.nebulaOutlines;
  const NebulaOutline& entry = all.outlines[static_cast<std::size_t>(outline)];
  for (int i = entry.firstArea; i < entry.firstArea + entry.areaCount; ++i) {
    const NebulaArea& area = all.areas[static_cast<std::size_t>(i)];
    const int first = static_cast<int>(m_Picture.ringEnds.size());
    AddArea(geometry, observer, area);
    m_Clouds.push_back({outline, area.level, first, area.ringCount, opacity, softness});
  }
}

// Wherever so many are in the picture that there is no room for more points, they are small.
void NebulaClouds::Smooth(const ViewGeometry& geometry) {
  double edge = geometry.camera.VisRad2PixD(FindMeanEdge(m_Apparent)) / geometry.unit;
  const std::size_t most = m_Catalogs.nebulaOutlines.points.size();
  for (int round = 0; round < kMostRounds && edge > kLongEdge; ++round) {
    if (m_Picture.points.size() + 2 * m_Apparent.size() > most) return;
    CutCorners(m_Apparent, m_Cut);
    std::swap(m_Apparent, m_Cut);
    edge *= 0.5;
  }
}

// A nebula spans some degrees: the point opposite to any of its own is outside.
void NebulaClouds::AddArea(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const NebulaArea& area) {
  const NebulaOutlines& all = m_Catalogs.nebulaOutlines;
  for (int i = area.firstRing; i < area.firstRing + area.ringCount; ++i) {
    const NebulaRing& ring = all.rings[static_cast<std::size_t>(i)];
    m_Apparent.clear();
    for (int k = ring.first; k < ring.first + ring.count; ++k)
      m_Apparent.push_back(ApparentDirection(all.points[static_cast<std::size_t>(k)], observer));
    Smooth(geometry);
    const double* v = m_Apparent.front().v;
    RegionProjector(geometry, SkyFrameOf::kJ2000, {{-v[0], -v[1], -v[2]}}, m_Picture).AddRing(m_Apparent);
  }
}

bool NebulaClouds::IsFormed(int object) const {
  return std::any_of(m_Clouds.begin(), m_Clouds.end(), [&](const Cloud& cloud) {
    return cloud.opacity == 1.0f &&
           m_Catalogs.nebulaOutlines.outlines[static_cast<std::size_t>(cloud.outline)].object == object;
  });
}

void NebulaClouds::Draw(double strength, DisplayList& list) const {
  if (!(strength > 0.0)) return;
  const double leastStep = 2.0 * static_cast<double>(list.GetUnit());  // the edge is soft
  for (const Cloud& cloud : m_Clouds) {
    const int object = m_Catalogs.nebulaOutlines.outlines[static_cast<std::size_t>(cloud.outline)].object;
    PolygonRecord area = {};
    if (object >= 0) {
      const DeepskyObject& entry = m_Catalogs.deepsky[static_cast<std::size_t>(object)];
      area.object = {entry.kind, entry.number};
    }
    Colour colour = palette::kNebulaLevels[cloud.level - 1];
    colour.opacity *= strength * static_cast<double>(cloud.opacity);
    SetSoftColour(colour, cloud.softness * list.GetUnit(), area);
    AddRings(m_Picture, cloud.firstRing, cloud.ringCount, leastStep, list);
    list.AddArea(Layer::kDeepsky, area);
  }
}

}  // namespace scene
