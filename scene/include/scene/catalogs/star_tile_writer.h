// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "scene/api.h"

namespace scene {

// A star on its way into a tile catalog: J2000 axes, epoch J2000.0.
struct TileStar {
  static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

  int number;      // star_tile_record.h
  double ra, dec;  // radians
  double magnitude;
  double colour = kUnknown;                              // B-V, magnitudes
  double motionEast = kUnknown, motionNorth = kUnknown;  // milliarcseconds a year, to the east with cos Dec
};

struct StarTileWriterState;

// Writes a tile catalog (docs/formats/star_tiles.md) of any number of stars, which come in any order. It
// holds two million of them in memory, 64 MB, and as many numbers, and writes what is more to two files
// beside the target, 28 bytes each, which are gone at the end. Besides that it needs 8 bytes for each cell
// of a band, which are fewer than its stars, and room for the stars of one cell. The same stars make the
// same file, whatever their order.
//
// After an operation that failed, GetError is one line that names the file, and nothing is open. One thread.
class SCENE_API StarTileWriter {
 public:
  static constexpr std::uint32_t kStarsInMemory = 1u << 21;

  // The second is for tests: how many stars are held in memory.
  StarTileWriter();
  explicit StarTileWriter(std::uint32_t starsInMemory);
  ~StarTileWriter();  // leaves the target as it was, unless it was committed

  // Begins a file that replaces `path` (UTF-8). `origin`: where the stars come from and their licence, UTF-8.
  bool Open(const char* path, const std::string& origin);

  // Why the star cannot stand in a tile catalog, null when it can: a place, a magnitude, a motion beyond all
  // stars, a number that is none. An impossible colour counts as unknown.
  static const char* FindFault(const TileStar& star);

  // A star without a fault. Its number belongs to no other star of the file: that is the caller's care.
  bool Add(const TileStar& star);

  // Sorts, writes, puts the file in place. `progress`, when given, is called now and then with the share that
  // is done, 0 to 1.
  bool Commit(const std::function<void(double share)>& progress = {});

  std::uint64_t GetCount() const;
  const std::string& GetError() const;

 private:
  std::unique_ptr<StarTileWriterState> m_State;
};

}  // namespace scene
