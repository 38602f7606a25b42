// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/view/directions.h"

namespace scene {

// How bright the whole sky shines, a byte for each piece of it: the Milky Way. docs/formats/sky_map.md.
//
// The sphere is folded onto an octahedron and that unfolded to a square, whose middle is the celestial north
// pole and whose corners are the south pole: no direction is far from a cell, and finding the cell wants no
// angle. Directions are on J2000 axes. Copyable; may be read by any thread while nobody loads it.
class SCENE_API SkyMap {
 public:
  static constexpr int kLeastSide = 2, kMostSide = 4096;  // cells

  // Reads a file in place of what there was. False when it cannot be read or is not to the letter a map:
  // `error` is then one line that names it, and the map is what it was.
  bool Load(const char* path, std::string& error);
  // The same for the bytes of a file; the reason is a line without a name.
  bool Read(std::string_view bytes, std::string& reason);

  bool IsEmpty() const { return m_Side == 0; }
  int GetSide() const { return m_Side; }  // cells; 0 without a map
  const std::string& GetOrigin() const { return m_Origin; }
  unsigned char GetCell(int column, int row) const { return m_Cells[Index(column, row)]; }

  // 0 to 255: a weighted mean of the nine cells around a direction of any length but 0, which changes
  // smoothly with it (quadratic B-splines). 0 without a map and for what is no direction.
  float Find(const Direction& direction) const;

  // The middle of a cell of a map with that many cells to a side, as a unit vector.
  static Direction GetCellDirection(int side, int column, int row);

 private:
  std::size_t Index(int column, int row) const {
    return static_cast<std::size_t>(row + 1) * static_cast<std::size_t>(m_Side + 2) +
           static_cast<std::size_t>(column + 1);
  }
  void FillBorder();

  int m_Side = 0;
  std::vector<unsigned char> m_Cells;  // row by row, with a border of what lies beyond each edge
  std::string m_Origin;
};

// The bytes of the file of a map: its cells row by row, a byte each, as many to a row as there are rows, and
// where they come from. An odd number of cells or rows, or more than SkyMap takes, makes a file that it
// refuses.
SCENE_API std::string MakeSkyMap(int side, std::string_view cells, std::string_view origin);

}  // namespace scene
