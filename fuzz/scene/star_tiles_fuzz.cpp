// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A tile catalog of any bytes: opened, looked at everywhere. So that mutations reach what stands behind the
// sums, the bytes are read a second time with the sums of the header and of every cell mended.
#include <algorithm>
#include <cstring>
#include <string>

#include "astro/healpix.h"
#include "fuzz/scratch.h"
#include "scene/catalogs/star_tiles.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

namespace {

using fuzz::Require;

void LookEverywhere(const std::string& path, std::uint64_t size) {
  scene::StarTiles tiles;
  std::string error;
  if (!tiles.Open(path.c_str(), error)) {
    Require(!tiles.IsOpen() && error.find(path + ": ") == 0 && error.find('\n') == std::string::npos,
            "a file that is refused is named in one line");
    return;
  }
  Require(tiles.GetCount() * scene::StarTileRecord::kSize <= size, "stars are bytes of the file");
  std::uint64_t count = 0;
  for (int index = 0; index < tiles.GetBandCount(); ++index) {
    const scene::StarTileBand& band = tiles.GetBand(index);
    for (std::uint32_t cell = 0; cell < astro::GetHealpixCellCount(band.order); ++cell) {
      const scene::StarTileRecords stars = tiles.GetStars(index, cell);
      count += stars.GetCount();
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
        const float code = stars[i].GetCode();
        Require(code >= (i == 0 ? band.brightest : stars[i - 1].GetCode()) && code <= band.faintest,
                "magnitudes rise within their band");
        Require(scene::Dot(stars[i].GetDirection(), stars[i].GetDirection()) > 0.999999, "a direction");
      }
    }
  }
  Require(count == tiles.GetCount() || tiles.HasDamage(), "what is missing is damaged");
  for (const int number : {tiles.GetLowestNumber(), tiles.GetHighestNumber()}) {
    const scene::StarTileRecords found = tiles.FindNumber(number);
    Require(found.GetCount() == 0 || found[0].GetNumber() == number, "the star of that number or none");
  }
  tiles.IsNumberIndexSound();
}

std::uint32_t Sum(const std::string& bytes, std::size_t from, std::size_t size, std::uint32_t before = 0) {
  return GetCrc32(std::string_view(bytes).substr(from, size), before);
}

void MendCells(std::string& bytes, std::size_t at, std::uint32_t band, std::uint32_t stars,
               std::uint32_t cells) {
  auto* const begin = reinterpret_cast<unsigned char*>(bytes.data());
  const std::size_t index = at + std::size_t{stars} * 20;
  for (std::uint32_t cell = 0; cell < cells; ++cell) {
    unsigned char* const entry = begin + index + std::size_t{cell} * 8;
    const std::uint32_t first = LoadLE32(entry), end = cell + 1 < cells ? LoadLE32(entry + 8) : stars;
    if (first > end || end > stars) continue;
    unsigned char place[16];
    const std::uint32_t words[] = {band, cell, first, end - first};
    for (int i = 0; i < 4; ++i) StoreLE32(place + 4 * i, words[i]);
    const std::uint32_t before = GetCrc32({reinterpret_cast<const char*>(place), sizeof place});
    StoreLE32(entry + 4, Sum(bytes, at + std::size_t{first} * 20, std::size_t{end - first} * 20, before));
  }
}

void MendNumbers(std::string& bytes, std::size_t at, std::uint64_t stars) {
  if (bytes.size() - at != stars * 8 + (stars + 510) / 511 * 4) return;
  for (std::uint32_t block = 0; at < bytes.size(); ++block) {
    const std::size_t size = std::min<std::size_t>(bytes.size() - at - 4, 511 * 8);
    unsigned char number[4];
    StoreLE32(number, block);
    StoreLE32(bytes.data() + at,
              Sum(bytes, at + 4, size, GetCrc32({reinterpret_cast<const char*>(number), sizeof number})));
    at += 4 + size;
  }
}

// The sums as a writer would have made them, as far as the sizes make sense.
void Mend(std::string& bytes) {
  auto* const begin = reinterpret_cast<unsigned char*>(bytes.data());
  if (bytes.size() < 48) return;
  std::memcpy(begin, "STARTILE", 8);
  StoreLE64(begin + 32, bytes.size());
  const std::uint32_t size = LoadLE32(begin + 12), bands = LoadLE32(begin + 20);
  if (bands > 64 || size < 48 + 16 * bands || size > bytes.size()) return;
  std::uint64_t at = size, count = 0;
  for (std::uint32_t band = 0; band < bands; ++band) {
    const unsigned char* const entry = begin + 48 + 16 * band;
    const std::uint32_t order = LoadLE32(entry), stars = LoadLE32(entry + 8);
    if (order > 13) break;
    const std::uint32_t cells = astro::GetHealpixCellCount(static_cast<int>(order));
    if (at + std::uint64_t{stars} * 20 + std::uint64_t{cells} * 8 > bytes.size()) break;
    MendCells(bytes, static_cast<std::size_t>(at), band, stars, cells);
    at += std::uint64_t{stars} * 20 + std::uint64_t{cells} * 8;
    count += stars;
  }
  StoreLE32(begin + 8, at == bytes.size() ? 1 : 2);
  MendNumbers(bytes, static_cast<std::size_t>(at), count);
  StoreLE64(begin + 24, count);
  StoreLE32(begin + 16, 0);
  StoreLE32(begin + 16, Sum(bytes, 0, size));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Scratch& scratch = fuzz::Scratch::Get();
  LookEverywhere(scratch.Write("data/a.tiles", data, size), size);
  std::string bytes(reinterpret_cast<const char*>(data), size);
  Mend(bytes);
  LookEverywhere(scratch.Write("data/b.tiles", reinterpret_cast<const std::uint8_t*>(bytes.data()), size),
                 size);
  return 0;
}
