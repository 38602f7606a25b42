// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

namespace skydata {

// What tells a star of stars/stars.tsv from others: J2000, epoch 2000.0.
struct BrightStar {
  double ra, dec;  // radians
  double magnitude;
  double motionEast, motionNorth;  // milliarcseconds a year, 0 when unknown
  int hip;                         // 0: none
};

// Throws SourceError when the table is not as it should be.
std::vector<BrightStar> ReadBrightStars(const std::filesystem::path& source);

}  // namespace skydata
