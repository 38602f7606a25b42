// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace host_test {

// An image of the binary catalogs: corners in degrees, right ascension and declination.
struct CornerImage {
  std::string id;  // four characters
  double corners[4][2];
};

inline std::string BinaryImages(const std::vector<CornerImage>& images) {
  std::string bytes;
  bytes.push_back(static_cast<char>(images.size() >> 8));
  bytes.push_back(static_cast<char>(images.size()));
  for (const auto& image : images) {
    bytes += image.id;
    for (const auto& corner : image.corners) {
      for (const double degrees : corner) {
        const auto value = static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(degrees * 1e5)));
        for (int shift = 24; shift >= 0; shift -= 8) bytes.push_back(static_cast<char>(value >> shift));
      }
    }
  }
  return bytes;
}

inline constexpr const char* kConstellationFile = "data/media/skyobjects/constell_images/constell.dat";
inline constexpr const char* kMilkyWayFile = "data/media/skyobjects/mway_images/mway.dat";
inline constexpr const char* kDeepskyFile = "data/media/skyobjects/dso_images/dsoimagestrue.txt";

// Orion, a piece of the Milky Way beside it, and the Great Orion Nebula, 80 minutes of arc wide and 40 high,
// the width along the meridian.
inline void WriteSkyImages(const test_support::TempDir& dir) {
  dir.Write(kConstellationFile, BinaryImages({{"Ori ", {{92, -12}, {75, -12}, {75, 15}, {92, 15}}}}));
  dir.Write(kMilkyWayFile, BinaryImages({{"MW01", {{110, -20}, {95, -20}, {95, 10}, {110, 10}}}}));
  dir.Write(kDeepskyFile, "! the pictures\n42 40 5h35m17s -5g23'28\" 0 0 2 1 0\n");
}

}  // namespace host_test
