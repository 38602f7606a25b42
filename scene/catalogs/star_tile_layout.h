// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The layout of a tile catalog, docs/formats/star_tiles.md: frozen where files keep it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "scene/catalogs/star_tile_record.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

namespace scene::star_tile_layout {

inline constexpr char kMagic[] = "STARTILE";
inline constexpr std::uint32_t kVersion = 2, kVersionWithoutNumbers = 1;

// The header: offsets of its numbers, then the bands, then the origin up to its end.
inline constexpr std::size_t kVersionAt = 8, kHeaderSizeAt = 12, kCheckAt = 16, kBandCountAt = 20;
inline constexpr std::size_t kStarCountAt = 24, kFileSizeAt = 32, kLowestAt = 40, kHighestAt = 44;
inline constexpr std::size_t kBandsAt = 48;
inline constexpr std::size_t kMostOrigin = 65536;

// A band: its order, brightest and faintest magnitude, stars, largest motion.
inline constexpr std::size_t kBandSize = 16;
inline constexpr std::size_t kOrderAt = 0, kBrightestAt = 4, kFaintestAt = 6, kCountAt = 8, kMotionAt = 12;
inline constexpr std::uint32_t kMostBands = 64;

// An entry of the index of a band: the number of its first star within the band, and the check of the cell.
inline constexpr std::size_t kEntrySize = 8;

// An index is never larger than this, which keeps a file small and what is remembered of its cells.
constexpr bool IsOrderAllowed(std::uint64_t cells, std::uint64_t stars) {
  return cells <= 12 || cells <= stars;
}

inline std::string_view ToText(const unsigned char* bytes, std::size_t size) {
  return {reinterpret_cast<const char*>(bytes), size};
}

// The sum over a cell: what it is, and its records.
inline std::uint32_t GetCellCheck(std::uint32_t band, std::uint32_t cell, std::uint32_t first,
                                  std::uint32_t count, const unsigned char* records) {
  unsigned char place[16];
  StoreLE32(place, band);
  StoreLE32(place + 4, cell);
  StoreLE32(place + 8, first);
  StoreLE32(place + 12, count);
  const std::size_t size = std::size_t{count} * StarTileRecord::kSize;
  return GetCrc32(ToText(records, size), GetCrc32(ToText(place, sizeof place)));
}

// The sum over a header, whose own place counts as zeros.
inline std::uint32_t GetHeaderCheck(const unsigned char* header, std::size_t size) {
  const std::uint32_t before = GetCrc32({"\0\0\0\0", 4}, GetCrc32(ToText(header, kCheckAt)));
  return GetCrc32(ToText(header + kCheckAt + 4, size - kCheckAt - 4), before);
}

}  // namespace scene::star_tile_layout
