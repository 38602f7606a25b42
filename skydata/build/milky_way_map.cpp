// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/milky_way_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "scene/catalogs/sky_map.h"
#include "skydata/build/galactic_image.h"
#include "skydata/build/source_table.h"

namespace skydata {
namespace {

constexpr int kSide = 512;  // cells of 0.2 to 0.6 degrees
constexpr int kLevels = 5, kMaxRings = 9999;
constexpr char kOrigin[] =
    "The Milky Way and the Magellanic Clouds, from the Milky Way Outline Catalog of Jose R. Vieira in "
    "d3-celestial 0.7.35, BSD-3-Clause, "
    "(c) 2015 Olaf Frohn; licence in milkyway.source.md.";

using Ring = std::vector<scene::Direction>;

std::array<std::vector<Ring>, kLevels> ReadOutlines(const std::filesystem::path& path) {
  const SourceTable table(path, {"Level", "Ring", "RA_deg", "Dec_deg"});
  std::array<std::vector<Ring>, kLevels> levels;
  int lastLevel = 0, lastRing = -1;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int level = table.GetInteger(row, 0, 1, kLevels), ring = table.GetInteger(row, 1, 0, kMaxRings);
    auto& rings = levels[static_cast<std::size_t>(level - 1)];
    if (level != lastLevel || ring != lastRing) rings.emplace_back();
    rings.back().push_back(
        scene::MakeDirection(table.GetNumber(row, 2, 0.0, 360.0) * scene::kRadiansPerDegree,
                             table.GetNumber(row, 3, -90.0, 90.0) * scene::kRadiansPerDegree));
    lastLevel = level;
    lastRing = ring;
  }
  return levels;
}

// A level is seen through two veils at once: a thin one, which leaves rifts and clouds what they are, and a
// thick one, which hides where the level begins. The outer levels are the wider ones.
struct Veils {
  double thin, thick;  // degrees
  float ofThin;        // part of the light
};
constexpr Veils kVeils[kLevels] = {
    {1.4, 5.0, 0.4f}, {0.7, 3.0, 0.5f}, {0.4, 2.0, 0.55f}, {0.35, 1.4, 0.55f}, {0.35, 1.2, 0.55f}};

GalacticImage AddUp(const std::array<std::vector<Ring>, kLevels>& levels) {
  GalacticImage sum;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    GalacticImage thin;
    thin.AddRegion(levels[i]);
    GalacticImage thick = thin;
    thin.Blur(kVeils[i].thin);
    thick.Blur(kVeils[i].thick);
    sum.Add(thin, kVeils[i].ofThin / kLevels);
    sum.Add(thick, (1.0f - kVeils[i].ofThin) / kLevels);
  }
  return sum;
}

// The Magellanic Clouds, which the outlines leave out, as bell curves: centres, axes and position angles of
// the Third Reference Catalogue of Bright Galaxies (de Vaucouleurs et al. 1991), whose axes are about five
// deviations of what the eye sees. The angle of the bar of the Large Cloud, and how many levels they count,
// are by eye.
struct Cloud {
  double ra, dec, positionAngle;  // degrees
  double along, across;           // deviations, degrees
  double levels;
};
constexpr Cloud kClouds[] = {{80.89, -69.76, 170.0, 2.1, 1.8, 1.8},  // the Large Cloud
                             {80.0, -69.5, 115.0, 1.2, 0.45, 1.3},   // its bar
                             {13.19, -72.83, 45.0, 1.05, 0.6, 2.0}};

float FindClouds(const scene::Direction& direction) {
  double light = 0.0;
  for (const Cloud& cloud : kClouds) {
    const double ra = cloud.ra * scene::kRadiansPerDegree, dec = cloud.dec * scene::kRadiansPerDegree,
                 angle = cloud.positionAngle * scene::kRadiansPerDegree;
    const scene::Direction centre = scene::MakeDirection(ra, dec),
                           east = scene::MakeDirection(ra + 0.5 * scene::kPi, 0.0),
                           north = scene::MakeDirection(ra, dec + 0.5 * scene::kPi);
    if (scene::Dot(direction, centre) <= 0.0) continue;
    const double e = scene::Dot(direction, east) / scene::kRadiansPerDegree,
                 n = scene::Dot(direction, north) / scene::kRadiansPerDegree;
    const double along = (e * std::sin(angle) + n * std::cos(angle)) / cloud.along,
                 across = (e * std::cos(angle) - n * std::sin(angle)) / cloud.across;
    light += cloud.levels / kLevels * std::exp(-0.5 * (along * along + across * across));
  }
  return static_cast<float>(light);
}

}  // namespace

std::string MakeMilkyWayMap(const std::filesystem::path& source) {
  const GalacticImage image = AddUp(ReadOutlines(source / "milkyway" / "outlines.tsv"));
  std::string cells;
  cells.reserve(static_cast<std::size_t>(kSide) * kSide);
  for (int row = 0; row < kSide; ++row) {
    for (int column = 0; column < kSide; ++column) {
      const scene::Direction direction = scene::SkyMap::GetCellDirection(kSide, column, row);
      const float light = image.Find(direction) + FindClouds(direction);
      cells.push_back(static_cast<char>(std::lround(255.0f * std::clamp(light, 0.0f, 1.0f))));
    }
  }
  return scene::MakeSkyMap(kSide, cells, kOrigin);
}

}  // namespace skydata
