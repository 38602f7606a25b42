// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "scene/catalogs/star_tile_writer.h"
#include "scene/catalogs/star_tiles.h"
#include "scene/view/directions.h"

namespace host_test {

// Stars all over the sphere, `growth` times as many a magnitude, numbered upwards from `first`; every third
// moves, some of them fast. The first stand at the poles and on the edges of the base cells of the grid.
inline std::vector<scene::TileStar> MakeTileStars(int count, int first, double brightest, double faintest,
                                                  double growth = 3.0) {
  std::mt19937_64 random(20260115);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const double ratio = std::pow(growth, faintest - brightest);
  std::vector<scene::TileStar> stars;
  for (int i = 0; i < count; ++i) {
    scene::TileStar star{first + i, unit(random) * 2.0 * scene::kPi, std::asin(2.0 * unit(random) - 1.0),
                         brightest + std::log(1.0 + unit(random) * (ratio - 1.0)) / std::log(growth)};
    if (i < 2) star.dec = i == 0 ? 0.5 * scene::kPi : -0.5 * scene::kPi;
    if (i >= 2 && i < 10) star.ra = 0.25 * scene::kPi * i, star.dec = i % 2 == 0 ? 0.0 : std::asin(2.0 / 3.0);
    if (i % 4 != 0) star.colour = -0.4 + 2.4 * unit(random);
    if (i % 3 == 0) {
      const double speed = i % 30 == 0 ? 5000.0 : 100.0;
      star.motionEast = speed * (2.0 * unit(random) - 1.0);
      star.motionNorth = speed * (2.0 * unit(random) - 1.0);
    }
    stars.push_back(star);
  }
  return stars;
}

// False when the file cannot be written.
inline bool WriteTiles(const std::string& path, const std::vector<scene::TileStar>& stars) {
  scene::StarTileWriter writer;
  if (!writer.Open(path.c_str(), "a test")) return false;
  for (const auto& star : stars) {
    if (!writer.Add(star)) return false;
  }
  return writer.Commit();
}

}  // namespace host_test
