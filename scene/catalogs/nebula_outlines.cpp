// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/nebula_outlines.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>

#include "astro/vectors.h"
#include "common_interfaces/field_names.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

constexpr int kLevels = 3;

const int kObject = GetUniqueID("Object"), kLevel = GetUniqueID("Level");  // columns of this table alone

// The middle of the outline and how far it reaches, once it has all its points.
void Measure(const NebulaOutlines& all, NebulaOutline& outline) {
  const NebulaArea &first = all.areas[static_cast<std::size_t>(outline.firstArea)],
                   &last = all.areas[static_cast<std::size_t>(outline.firstArea + outline.areaCount - 1)];
  const int begin = all.rings[static_cast<std::size_t>(first.firstRing)].first;
  const NebulaRing& end = all.rings[static_cast<std::size_t>(last.firstRing + last.ringCount - 1)];
  Direction sum = {};
  for (int i = begin; i < end.first + end.count; ++i) {
    for (int k = 0; k < 3; ++k) sum.v[k] += all.points[static_cast<std::size_t>(i)].v[k];
  }
  outline.centre = Normalised(sum);
  const Direction* farthest = &outline.centre;
  for (int i = begin; i < end.first + end.count; ++i) {
    const Direction& point = all.points[static_cast<std::size_t>(i)];
    if (Dot(outline.centre, point) < Dot(outline.centre, *farthest)) farthest = &point;
  }
  outline.radius = VectorsAngle(outline.centre.v, farthest->v);
}

// Takes the vertices one after the other; a vertex with a level begins a ring.
class OutlineReader {
 public:
  explicit OutlineReader(NebulaOutlines& all) : m_All(all) {}

  // False for one that has no place in an outline.
  bool Add(const CatalogTable& table) {
    constexpr double kMissing = std::numeric_limits<double>::infinity();
    const double ra = FieldNumber(table, FieldIds::RA, kMissing),
                 dec = FieldNumber(table, FieldIds::Dec, kMissing), level = FieldNumber(table, kLevel, 0.0);
    const bool isPlaced = ra + dec < kMissing;
    if (level != 0.0) m_InRing = level >= 1.0 && level <= kLevels && isPlaced;
    if (!m_InRing || !isPlaced) return false;
    if (level != 0.0) BeginRing(table, static_cast<int>(level));
    m_All.points.push_back(MakeDirection(ra, dec));
    ++m_All.rings.back().count;
    return true;
  }

  void FindObjects(const DeepskyCatalog& objects) {
    for (std::size_t i = 0; i < objects.size(); ++i) {
      const auto named = m_Named.find({objects[i].kind, objects[i].number});
      if (named == m_Named.end()) continue;
      for (const std::size_t outline : named->second) m_All.outlines[outline].object = static_cast<int>(i);
    }
  }

 private:
  void BeginRing(const CatalogTable& table, int level) {
    const std::string name = FieldText(table, kObject);
    if (m_All.outlines.empty() || name != m_Name) {
      m_Named[{GetFOURCC(FieldText(table, FieldIds::Type)), FieldInteger(table, FieldIds::Number, -1)}]
          .push_back(m_All.outlines.size());
      m_All.outlines.push_back({-1, {}, 0.0, static_cast<int>(m_All.areas.size()), 0});
      m_Name = name;
      m_Level = 0;
    }
    if (level != m_Level) {
      m_All.areas.push_back({level, static_cast<int>(m_All.rings.size()), 0});
      ++m_All.outlines.back().areaCount;
      m_Level = level;
    }
    m_All.rings.push_back({static_cast<int>(m_All.points.size()), 0});
    ++m_All.areas.back().ringCount;
  }

  NebulaOutlines& m_All;
  std::map<std::pair<int, int>, std::vector<std::size_t>> m_Named;  // outlines by kind and number
  std::string m_Name;
  int m_Level = 0;
  bool m_InRing = false;
};

}  // namespace

void NebulaOutlines::Fill(CatalogTable& table, const DeepskyCatalog& objects) {
  *this = NebulaOutlines();
  if (table.GetCount() == 0) return;
  OutlineReader reader(*this);
  int left = 0;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    left += !reader.Add(table);
  }
  reader.FindObjects(objects);
  for (auto& outline : outlines) Measure(*this, outline);
  if (left > 0) PrintDebugString("Outlines of nebulae: %d vertices left out\n", left);
}

}  // namespace scene
