// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "scene/catalogs/star_tile_record.h"
#include "scene/catalogs/star_tile_writer.h"
#include "scene/view/directions.h"

namespace bench {

// A catalog of stars that nobody has seen, for measurements: 2.67 times as many for each magnitude, 100,000
// of them down to 9.0, as on the sky, so that catalogs of any size agree in how many stars are brighter than
// a magnitude that all of them reach. Six in ten lie in a disc around the galactic equator; two in three
// move, one in a thousand fast.
class StarGenerator {
 public:
  explicit StarGenerator(std::uint64_t count)
      : m_Faintest(9.0 + std::log(static_cast<double>(count) / 1e5) / std::log(kGrowth)) {}

  double GetFaintest() const { return m_Faintest; }

  scene::TileStar Make() {
    constexpr double kDisc = 0.6, kDiscHeight = 0.15;  // sine of the latitude where a third is left
    double sine = 2.0 * Unit() - 1.0;
    if (Unit() < kDisc) sine = std::copysign(std::min(-kDiscHeight * std::log(1.0 - Unit()), 1.0), sine);
    scene::TileStar star{++m_Number, 0.0, 0.0, 0.0};
    PlaceGalactic(2.0 * scene::kPi * Unit(), std::asin(sine), star);
    star.magnitude = std::max(m_Faintest + std::log(1.0 - Unit()) / std::log(kGrowth), -1.0);
    star.colour = -0.2 + 1.8 * Unit();
    if (m_Number % 3 == 0) return star;
    const double fastest = m_Number % 1000 == 1 ? 2000.0 : 40.0;  // milliarcseconds a year
    star.motionEast = fastest * (Unit() - 0.5);
    star.motionNorth = fastest * (Unit() - 0.5);
    return star;
  }

 private:
  static constexpr double kGrowth = 2.67;

  double Unit() { return static_cast<double>(m_Random() >> 11) * 0x1p-53; }

  // The galactic pole and the longitude of the celestial pole are those of the IAU 1958 system on J2000 axes.
  static void PlaceGalactic(double longitude, double latitude, scene::TileStar& star) {
    constexpr double kPoleRA = 192.85948 * scene::kRadiansPerDegree,
                     kPoleDec = 27.12825 * scene::kRadiansPerDegree,
                     kNode = 122.93192 * scene::kRadiansPerDegree;
    const double away = kNode - longitude, cosine = std::cos(latitude);
    const double sineDec =
        std::sin(latitude) * std::sin(kPoleDec) + cosine * std::cos(kPoleDec) * std::cos(away);
    star.dec = std::asin(std::clamp(sineDec, -1.0, 1.0));
    star.ra = kPoleRA + std::atan2(cosine * std::sin(away), std::sin(latitude) * std::cos(kPoleDec) -
                                                                cosine * std::sin(kPoleDec) * std::cos(away));
    if (star.ra < 0.0) star.ra += 2.0 * scene::kPi;
    if (star.ra >= 2.0 * scene::kPi) star.ra -= 2.0 * scene::kPi;
  }

  std::mt19937_64 m_Random{20260115};
  int m_Number = scene::kImportedNumbers;
  double m_Faintest;
};

// Writes a tile catalog of so many of them. False, with one line, when it cannot be written.
inline bool MakeStarCatalog(const std::string& path, std::uint64_t count, std::string& error) {
  scene::StarTileWriter writer;
  StarGenerator generator(count);
  bool written = writer.Open(path.c_str(), "made for measurements");
  for (std::uint64_t i = 0; written && i < count; ++i) written = writer.Add(generator.Make());
  if (written && writer.Commit()) return true;
  error = writer.GetError();
  return false;
}

}  // namespace bench
