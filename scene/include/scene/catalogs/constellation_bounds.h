// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/api.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/view/directions.h"

namespace scene {

struct ConstellationName;

// A boundary between two constellations: `count` points from `first` on, so near that the straight way
// between two is the boundary within a second of arc.
struct BoundaryEdge {
  int first, count;
  double radius;                 // radians from point count / 2 to the farthest one
  int northOrEast, southOrWest;  // indices in the catalogs' list of constellations; -1: one that is not in it
};

// The boundaries of the constellations, each once, as the IAU has them since 1930: along parallels and
// meridians of B1875. Any thread may ask.
class SCENE_API ConstellationBounds {
 public:
  // Takes the edges of the table, docs/formats/catalog_tables.md. Records without a position, or that follow
  // neither parallel nor meridian, are left out with one diagnostic line that has their number.
  void Fill(CatalogTable& table, const std::vector<ConstellationName>& constellations);

  const std::vector<BoundaryEdge>& GetEdges() const { return m_Edges; }
  const Direction* GetPoints(const BoundaryEdge& edge) const { return m_Points.data() + edge.first; }
  std::size_t GetPointCount() const { return m_Points.size(); }

  // The constellation in which a direction lies (J2000), an index in the catalogs' list: of Serpens, which is
  // there in two halves, the first. -1 without boundaries. On an edge: the northern or eastern one.
  int Find(const Direction& direction) const;

 private:
  friend struct PreparedParts;
  // An edge along a parallel of B1875, radians, ra < endRA.
  struct Parallel {
    double dec, ra, endRA;
    int north, south;
  };
  void AddEdge(const BoundaryEdge& sides, double ra, double dec, double endRA, double endDec);

  std::vector<Direction> m_Points;  // J2000
  std::vector<BoundaryEdge> m_Edges;
  std::vector<Parallel> m_Parallels;
};

}  // namespace scene
