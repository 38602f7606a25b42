// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// The tile catalog of the stars of stars/hipparcos.tsv that are none of stars/stars.tsv. A pair is known by
// its HIP number, else by place and magnitude (skydata/stars/known_stars.h). Each row of the table is counted
// in one of the three numbers.
struct StarTilesFile {
  std::string bytes;  // docs/formats/star_tiles.md
  int knownByNumber = 0, knownByPlace = 0;
  int stars = 0;  // in the file
};

// Throws SourceError when a source is not as it should be. The writer works on a scratch file in `folder`,
// which must exist.
StarTilesFile MakeStarTiles(const std::filesystem::path& source, const std::filesystem::path& folder);

}  // namespace skydata
