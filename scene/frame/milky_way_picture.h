// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/catalogs/sky_map.h"
#include "scene/display/display_list.h"
#include "scene/view/view_geometry.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// The Milky Way of one frame: a mesh of light over the part of the window where it shines. Allocates at its
// construction only; `map` is kept by reference.
class MilkyWayPicture {
 public:
  // The most nodes of a mesh, whatever the window.
  static constexpr int kMostNodes = 24000;

  explicit MilkyWayPicture(const SkyMap& map);

  // Empties the picture and, where it is shown, fills it in.
  void Compute(const ViewGeometry& geometry, const SkyLight& light, bool shown);

  void Draw(DisplayList& list) const;

 private:
  void FindNodes(const ViewGeometry& geometry, const SkyLight& light);

  const SkyMap& m_Map;
  int m_Columns = 0, m_Rows = 0;  // of nodes all over the window; 0: nothing is shown
  std::vector<float> m_Nodes;     // how bright, 0 to 1, from the upper left one on
};

}  // namespace scene
