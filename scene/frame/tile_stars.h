// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "scene/catalogs/sky_catalogs.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// A star of a tile catalog that is drawn, and where.
struct PlacedTileStar {
  StarTileRecord star;
  tPoint<double> pixel;  // y up
  double radius;         // of its disc, pixels
  float dim;             // codes by which the sky makes it look fainter
};

// The stars of the tile catalogs in one frame. It looks at the bands that the limit of stars reaches, that of
// the zoom and of the sky, in them at the cells that the window touches, and there at the stars down to the
// limit, so that a frame costs what it shows, whatever the catalogs hold.
//
// Allocates at its construction only: room for all stars of the catalogs, or for kMostTileStars. Room that no
// frame has used yet is address space and no memory. `catalogs` is kept by reference.
class TileStars {
 public:
  // No frame shows more: one that would have more shows those brighter than a magnitude, the same all over
  // the window.
  static constexpr std::size_t kMostTileStars = 1u << 18;

  explicit TileStars(const SkyCatalogs& catalogs);

  void Find(const ViewGeometry& geometry, const ObjectTests& tests);

  // What Find has found, brightest first.
  std::size_t GetCount() const { return m_Order.size(); }
  const PlacedTileStar& Get(std::size_t index) const { return m_Placed[m_Order[index]]; }
  bool AreSomeLeftOut() const { return m_TooFaint <= INT16_MAX; }
  std::size_t GetCapacity() const { return m_Placed.capacity(); }

 private:
  void AddBand(const StarTiles& tiles, int band, const ViewGeometry& geometry, const ObjectTests& tests);
  void AddCell(const StarTileRecords& stars, const StarReach& reach, const ObjectTests& tests);
  void LeaveOutFaintest();
  void CountMagnitudes();
  void Sort();

  const SkyCatalogs& m_Catalogs;
  std::vector<PlacedTileStar> m_Placed;  // as they were found
  std::vector<std::uint32_t> m_Order;    // indices of m_Placed, brightest first
  std::vector<std::uint32_t> m_Counts;   // of m_Placed, by millimagnitudes above those of the brightest
  int m_Brightest = 0, m_TooFaint = INT16_MAX + 1;  // millimagnitudes
};

}  // namespace scene
