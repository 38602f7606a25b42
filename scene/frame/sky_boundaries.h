// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/display_list.h"
#include "scene/view/observer_frame.h"
#include "scene/view/sky_path.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// The boundaries of the constellations of one frame: a fine dashed line, each edge once. Allocates at its
// construction only; `catalogs` is kept by reference.
class SkyBoundaries {
 public:
  explicit SkyBoundaries(const SkyCatalogs& catalogs);

  // An edge is drawn when one of its constellations passes the filters.
  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               bool shown);

  // `strength`: what the sky leaves of lines, 0 to 1.
  void Draw(double strength, DisplayList& list) const;

  // A line in the window, pixels, y up: `count` points from `first` on.
  struct Line {
    int first, count;
  };
  const std::vector<Line>& GetLines() const { return m_Lines; }
  const std::vector<tPoint<double>>& GetPoints() const { return m_Points; }

 private:
  void AddEdge(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               const BoundaryEdge& edge);
  void AddStretch(const DrawnLine& stretch, bool goesOn);

  const SkyCatalogs& m_Catalogs;
  std::vector<tPoint<double>> m_Points;
  std::vector<Line> m_Lines;
};

}  // namespace scene
