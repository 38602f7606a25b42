// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "scene/catalogs/star_tile_layout.h"
#include "utils/bytes.h"

namespace scene::star_number_index {

// Where stars stand by their numbers, the last part of a tile catalog (docs/formats/star_tiles.md): entries
// of number and place among all stars of the file, in the order of the numbers, in blocks with a sum each,
// so that a look-up checks no more than the blocks that it looks at.
inline constexpr std::size_t kEntrySize = 8, kEntries = 511, kCheckSize = 4;
inline constexpr std::size_t kBlockSize = kCheckSize + kEntries * kEntrySize;

constexpr std::uint64_t CountBlocks(std::uint64_t stars) { return (stars + kEntries - 1) / kEntries; }
constexpr std::uint64_t GetSize(std::uint64_t stars) {
  return stars * kEntrySize + CountBlocks(stars) * kCheckSize;
}

// A block of these entries, as it stands in the file.
std::string MakeBlock(std::uint32_t block, const std::string& entries);
void AppendEntry(std::uint32_t number, std::uint32_t place, std::string& entries);

// The index of so many stars at `bytes`.
struct Index {
  const unsigned char* bytes;
  std::uint64_t stars;
};

enum class Answer { kFound, kNone, kDamaged };

// The place of the star of that number, as the file says; kDamaged when a block on the way is.
Answer Find(const Index& index, std::uint32_t number, std::uint32_t& place);

struct Entries {
  const unsigned char* bytes;
  std::size_t count;
  std::uint32_t GetNumber(std::size_t entry) const { return LoadLE32(bytes + entry * kEntrySize); }
  std::uint32_t GetPlace(std::size_t entry) const { return LoadLE32(bytes + entry * kEntrySize + 4); }
};
// False when the block is damaged.
bool TakeBlock(const Index& index, std::uint64_t block, Entries& entries);

}  // namespace scene::star_number_index
