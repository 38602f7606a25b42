// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "scene/catalogs/star_tile_writer.h"

namespace skydata {

// The stars of a file, one after the other, as often as wanted. What is wrong with the file is thrown as a
// SourceError, which names it and the line.
class StarInput {
 public:
  virtual ~StarInput() = default;

  // False at the end. A star that it gives can stand in a tile catalog, and its number is its own.
  virtual bool Take(scene::TileStar& star) = 0;

  // Begins again.
  virtual void Rewind() = 0;

  // How much of the file was taken, 0 to 1.
  virtual double GetShare() const = 0;

  // How many records were passed over since the beginning because they have no place.
  virtual std::uint64_t GetPlaceless() const { return 0; }

  // Where the stars come from: goes into the tile catalog.
  virtual std::string GetOrigin() const = 0;
};

// A FITS index file of stars (star_index_input.h) or a table of text (star_table_input.h), as its first bytes
// say.
std::unique_ptr<StarInput> OpenStarInput(const std::filesystem::path& path);

}  // namespace skydata
