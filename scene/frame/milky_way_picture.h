// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "scene/display_list.h"
#include "scene/sky_catalogs.h"
#include "scene/view/sky_region.h"

namespace scene {

// The Milky Way of one frame. Allocates at its construction only; `catalogs` is kept by reference.
class MilkyWayPicture {
 public:
  explicit MilkyWayPicture(const SkyCatalogs& catalogs);

  // Empties the picture and, where it is shown, fills it in.
  void Compute(const ViewGeometry& geometry, bool shown);

  // `strength`: what the sky leaves of it, 0 to 1.
  void Draw(double strength, DisplayList& list) const;

  const std::vector<RegionPicture>& GetLevels() const { return m_Levels; }  // 1 to 5, faintest first

 private:
  std::span<const Direction> GetPoints(const MilkyWayRing& ring) const;

  const SkyCatalogs& m_Catalogs;
  std::vector<SkyCap> m_Caps;            // of all rings
  std::vector<std::size_t> m_FirstCaps;  // of each ring, and the end of the last one
  std::vector<RegionPicture> m_Levels;
};

}  // namespace scene
