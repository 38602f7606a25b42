// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/api.h"
#include "scene/catalogs/catalog_table.h"
#include "scene/catalogs/deepsky_catalog.h"
#include "scene/view/directions.h"

namespace scene {

// What a nebula looks like: areas of one level of brightness, the next brighter one within.
struct NebulaOutline {
  int object;        // index among the deep-sky objects, -1: a region that is no object
  Direction centre;  // J2000, within the outline or near it
  double radius;     // radians from the centre to the farthest point
  int firstArea, areaCount;
};

// Bounded by closed rings, to be filled by the even-odd rule.
struct NebulaArea {
  int level;  // 1 faint glow to 3 bright core
  int firstRing, ringCount;
};

// `count` points from `first` on, the last one joined to the first.
struct NebulaRing {
  int first, count;
};

// Any thread may read.
struct SCENE_API NebulaOutlines {
  std::vector<NebulaOutline> outlines;
  std::vector<NebulaArea> areas;
  std::vector<NebulaRing> rings;
  std::vector<Direction> points;  // J2000

  // Takes the rings of the table, docs/formats/catalog_tables.md. Vertices without a position, before the
  // first level or of a level that is not from 1 to 3 are left out with one diagnostic line that has their
  // number. An outline whose object is not among `objects` is that of a region.
  void Fill(CatalogTable& table, const DeepskyCatalog& objects);
};

}  // namespace scene
