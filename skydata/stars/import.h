// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>

#include "utils/progress_bar.h"

namespace skydata {

struct StarImport {
  std::uint64_t read = 0;       // stars of the file
  std::uint64_t known = 0;      // of them drawn already, and left out
  std::uint64_t placeless = 0;  // further records that have no place
};

// Makes the tile catalog `output` of the stars of a file (star_input.h) that neither the bright stars nor the
// tiles of the data root have (known_stars.h). The catalog is replaced whole at the end, or, when anything
// fails, not at all; the folder that leads to it is made. Throws what OpenStarInput does, and
// std::runtime_error with one line for what cannot be written and for a data root that cannot be read.
//
// Memory: what the writer needs (scene/catalogs/star_tile_writer.h), 40 bytes for each star of the data
// root, and a bit for each number of a table that gives numbers.
StarImport ImportStars(const std::filesystem::path& file, const std::filesystem::path& dataRoot,
                       const std::filesystem::path& output, ProgressBar& progress);

}  // namespace skydata
