// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/constellation_bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "astro/vectors.h"
#include "common_interfaces/field_names.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/view/b1875.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

const int kOtherLabel = GetUniqueID("OtherLabel"), kEndRA = GetUniqueID("EndRA"),
          kEndDec = GetUniqueID("EndDec");  // columns of this table alone

int FindName(std::string_view abbreviation, const std::vector<ConstellationName>& names) {
  const auto found = std::find_if(names.begin(), names.end(), [abbreviation](const ConstellationName& name) {
    return name.abbreviation == abbreviation;
  });
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

// The middle of the straight way between two points of a parallel lies turn^2 / 8 sin(dec) cos(dec) off it.
int CountPieces(double turn, double dec, double length) {
  constexpr double kMostOff = 0.9 / 3600.0 * kRadiansPerDegree, kMostLength = 1.0 * kRadiansPerDegree;
  const double bend = std::fabs(std::sin(dec) * std::cos(dec)) / 8.0;
  return std::max(
      1, static_cast<int>(std::ceil(std::max(turn * std::sqrt(bend / kMostOff), length / kMostLength))));
}

}  // namespace

void ConstellationBounds::AddEdge(const BoundaryEdge& sides, double ra, double dec, double endRA,
                                  double endDec) {
  const double turn = std::fabs(endRA - ra);
  const int pieces = CountPieces(turn, dec, turn * std::cos(dec) + std::fabs(endDec - dec));
  const std::size_t first = m_Points.size();
  for (int i = 0; i <= pieces; ++i) {
    const double part = static_cast<double>(i) / pieces;
    m_Points.push_back(FromB1875(MakeDirection(ra + part * (endRA - ra), dec + part * (endDec - dec))));
  }
  BoundaryEdge edge = sides;
  edge.first = static_cast<int>(first);
  edge.count = pieces + 1;
  const Direction& middle = m_Points[first + static_cast<std::size_t>(edge.count / 2)];
  for (std::size_t i = first; i < m_Points.size(); ++i)
    edge.radius = std::max(edge.radius, VectorsAngle(middle.v, m_Points[i].v));
  m_Edges.push_back(edge);
}

void ConstellationBounds::Fill(CatalogTable& table, const std::vector<ConstellationName>& constellations) {
  constexpr double kMissing = std::numeric_limits<double>::infinity();
  *this = ConstellationBounds();
  int left = 0;
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const double ra = FieldNumber(table, FieldIds::RA, kMissing),
                 dec = FieldNumber(table, FieldIds::Dec, kMissing),
                 endRA = FieldNumber(table, kEndRA, kMissing), endDec = FieldNumber(table, kEndDec, kMissing);
    const bool isParallel = dec == endDec && ra < endRA, isMeridian = ra == endRA;
    const auto isAngle = [](double angle) { return std::fabs(angle) <= 2.0 * kPi; };
    if (!isAngle(ra) || !isAngle(dec) || !isAngle(endRA) || !isAngle(endDec) ||
        (!isParallel && !isMeridian)) {
      ++left;
      continue;
    }
    const BoundaryEdge sides = {0, 0, 0.0, FindName(FieldText(table, FieldIds::Label), constellations),
                                FindName(FieldText(table, kOtherLabel), constellations)};
    AddEdge(sides, ra, dec, endRA, endDec);
    if (isParallel) m_Parallels.push_back({dec, ra, endRA, sides.northOrEast, sides.southOrWest});
  }
  // Those of one declination stay in the order of the table: files keep it, whatever library sorts.
  std::stable_sort(m_Parallels.begin(), m_Parallels.end(),
                   [](const Parallel& a, const Parallel& b) { return a.dec < b.dec; });
  if (left > 0) PrintDebugString("Boundaries of constellations: %d records are no edges, left out\n", left);
}

// The next parallel to the south has the constellation on its northern side; around the south pole there is
// none, and the next one to the north has it on its southern side.
int ConstellationBounds::Find(const Direction& direction) const {
  const Direction there = ToB1875(direction);
  double ra = std::atan2(there.v[1], there.v[0]);
  if (ra < 0.0) ra += 2.0 * kPi;
  const double dec = std::atan2(there.v[2], std::hypot(there.v[0], there.v[1]));
  int found = -1;
  for (const Parallel& edge : m_Parallels) {
    if (ra < edge.ra || ra >= edge.endRA) continue;
    if (edge.dec > dec) return found < 0 ? edge.south : found;
    found = edge.north;
  }
  return found;
}

}  // namespace scene
