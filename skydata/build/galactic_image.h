// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/view/directions.h"

namespace skydata {

// Values all over the sky: cells of a quarter of a degree in galactic longitude, which goes round, and
// latitude. Near the galactic poles cells are narrow, and wide again where values are taken from the image.
class GalacticImage {
 public:
  static constexpr int kColumns = 1440, kRows = 720;

  GalacticImage() : m_Values(static_cast<std::size_t>(kColumns) * kRows) {}

  // Adds 1 within closed rings by the even-odd rule, along each column from the north pole on, which must lie
  // outside. J2000; the neighbours of a ring are near each other and not at the poles.
  void AddRegion(const std::vector<std::vector<scene::Direction>>& rings);

  // Spreads each value about its place, with a standard deviation of so many degrees in any direction; the
  // sum stays, but for what falls off at the poles.
  void Blur(double degrees);

  void Add(const GalacticImage& image, float factor);

  // Between the four values around a direction.
  float Find(const scene::Direction& j2000) const;

 private:
  float& At(int column, int row) { return m_Values[static_cast<std::size_t>(row) * kColumns + column]; }
  float At(int column, int row) const { return m_Values[static_cast<std::size_t>(row) * kColumns + column]; }

  std::vector<float> m_Values;  // row by row from the north pole on
};

}  // namespace skydata
