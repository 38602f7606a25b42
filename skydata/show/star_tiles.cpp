// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "astro/healpix.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/show/files.h"

namespace skydata {
namespace {

constexpr double kMasPerRadian = 3600000.0 / scene::kRadiansPerDegree;
constexpr double kDegreesPerHour = 15.0, kUnitsPerDegree = scene::StarTileRecord::kTurnUnits / 360.0;

double GetMagnitude(float code) { return code / 10.0 - 2.0; }

ShownCell ShowMotion(const scene::StarTileRecord& star, int units) {
  return star.HasMotion() ? ShownCell::Real(units * scene::StarTileRecord::kMotionUnit, 1)
                          : ShownCell::Missing();
}

scene::StarTiles Open(const std::string& path) {
  scene::StarTiles tiles;
  std::string error;
  if (!tiles.Open(path.c_str(), error)) throw std::runtime_error(error);
  return tiles;
}

}  // namespace

std::string DescribeStarTiles(const std::string& path) {
  const scene::StarTiles tiles = Open(path);
  return std::to_string(tiles.GetCount()) + " stars, numbers " + std::to_string(tiles.GetLowestNumber()) +
         " to " + std::to_string(tiles.GetHighestNumber()) + "\n" + tiles.GetOrigin() + "\n";
}

ShownTable ShowStarBands(const std::string& path) {
  const scene::StarTiles tiles = Open(path);
  ShownTable table;
  table.columns = {"band", "order", "cells", "stars", "brightest [mag]", "faintest [mag]", "motion [mas/yr]"};
  for (int i = 0; i < tiles.GetBandCount(); ++i) {
    const scene::StarTileBand& band = tiles.GetBand(i);
    table.rows.push_back(
        {i, band.order, ShownCell::Number(std::to_string(astro::GetHealpixCellCount(band.order))),
         ShownCell::Number(std::to_string(band.count)), ShownCell::Real(GetMagnitude(band.brightest), 3),
         ShownCell::Real(GetMagnitude(band.faintest), 3),
         ShownCell::Real(band.maxMotion * kMasPerRadian, 1)});
  }
  return table;
}

ShownTable ShowStarCell(const std::string& path, int band, unsigned cell) {
  const scene::StarTiles tiles = Open(path);
  if (band < 0 || band >= tiles.GetBandCount() ||
      cell >= astro::GetHealpixCellCount(tiles.GetBand(band).order)) {
    throw std::runtime_error(path + ": it has no cell " + std::to_string(cell) + " of a band " +
                             std::to_string(band));
  }
  ShownTable table;
  table.columns = {"number",
                   "RA [h]",
                   "Dec [deg]",
                   "V [mag]",
                   "B-V [mag]",
                   "motion east [mas/yr]",
                   "motion north [mas/yr]"};
  const scene::StarTileRecords stars = tiles.GetStars(band, cell);
  for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
    const scene::StarTileRecord star = stars[i];
    table.rows.push_back(
        {star.GetNumber(), ShownCell::Real(star.GetRAUnits() / kUnitsPerDegree / kDegreesPerHour, 7),
         ShownCell::Real(star.GetDecUnits() / kUnitsPerDegree, 6),
         ShownCell::Real(star.GetMillimagnitudes() / 1000.0, 3),
         star.GetColour() == star.GetColour() ? ShownCell::Real(star.GetColour(), 3) : ShownCell::Missing(),
         ShowMotion(star, star.GetMotionEast()), ShowMotion(star, star.GetMotionNorth())});
  }
  table.unreadable = tiles.HasDamage() ? 1 : 0;
  return table;
}

}  // namespace skydata
