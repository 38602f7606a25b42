// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tiles.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "astro/constants.h"
#include "astro/healpix.h"
#include "scene/catalogs/star_number_index.h"
#include "scene/catalogs/star_tile_layout.h"
#include "utils/debug.h"

namespace scene {
namespace {

namespace layout = star_tile_layout;

enum CellState : unsigned { kNew = 0, kWhole = 1, kDamaged = 2 };

constexpr double kRadiansPerMotion = StarTileRecord::kMotionUnit * astro::kRadiansPerArcsecond / 1000.0;

int LoadInt16(const unsigned char* from) { return static_cast<std::int16_t>(LoadLE16(from)); }
float GetCode(int millimagnitudes) { return static_cast<float>((millimagnitudes + 2000) / 100.0); }

bool Fail(std::string& reason, const char* text) {
  reason = text;
  return false;
}

// Motions up to the largest of the band, in its units.
bool IsWithin(const StarTileRecord& star, std::uint32_t maxMotion) {
  if (!star.HasMotion()) return true;
  const double east = star.GetMotionEast(), north = star.GetMotionNorth(), most = maxMotion;
  return east * east + north * north <= most * most;
}

}  // namespace

bool StarTiles::Open(const char* path, std::string& error) {
  StarTiles opened;
  std::string reason;
  *this = StarTiles();
  if (!opened.m_File.Open(path, reason) || !opened.ReadHeader(reason)) {
    error = std::string(path) + ": " + reason;
    return false;
  }
  opened.m_Path = path;
  *this = std::move(opened);
  return true;
}

bool StarTiles::ReadHeader(std::string& reason) {
  const unsigned char* const header = m_File.GetBytes();
  const std::size_t fileSize = m_File.GetSize();
  if (fileSize < layout::kBandsAt || std::memcmp(header, layout::kMagic, layout::kVersionAt) != 0)
    return Fail(reason, "it is no star tile catalog");
  const std::uint32_t version = LoadLE32(header + layout::kVersionAt);
  if (version != layout::kVersion && version != layout::kVersionWithoutNumbers)
    return Fail(reason, "it is a star tile catalog of another version");
  const std::uint32_t size = LoadLE32(header + layout::kHeaderSizeAt);
  const std::uint32_t bands = LoadLE32(header + layout::kBandCountAt);
  constexpr char kBadHeader[] = "the header of the star tile catalog is damaged";
  if (bands > layout::kMostBands) return Fail(reason, kBadHeader);
  const std::size_t originAt = layout::kBandsAt + bands * layout::kBandSize;
  if (size < originAt || size > fileSize || size - originAt > layout::kMostOrigin ||
      layout::GetHeaderCheck(header, size) != LoadLE32(header + layout::kCheckAt)) {
    return Fail(reason, kBadHeader);
  }
  if (LoadLE64(header + layout::kFileSizeAt) != fileSize)
    return Fail(reason, "the star tile catalog is not as long as it says");
  const std::uint32_t lowest = LoadLE32(header + layout::kLowestAt);
  const std::uint32_t highest = LoadLE32(header + layout::kHighestAt);
  if (highest > 0x7FFFFFFFu || lowest > highest) return Fail(reason, kBadHeader);
  Places places = {size, 0, 0};
  for (std::uint32_t i = 0; i < bands; ++i) {
    if (!PlaceBand(header + layout::kBandsAt + i * layout::kBandSize, places, reason)) return false;
    m_Count += m_Bands.back().band.count;
  }
  const std::uint64_t numbers = version == layout::kVersion ? star_number_index::GetSize(m_Count) : 0;
  if (places.at != fileSize - std::min<std::uint64_t>(numbers, fileSize) ||
      m_Count != LoadLE64(header + layout::kStarCountAt)) {
    return Fail(reason, kBadHeader);
  }
  if (version == layout::kVersion) m_Numbers = header + static_cast<std::size_t>(places.at);
  m_Lowest = static_cast<int>(lowest);
  m_Highest = static_cast<int>(highest);
  m_Origin.assign(reinterpret_cast<const char*>(header) + originAt, size - originAt);
  const auto stateBytes = static_cast<std::size_t>(places.cells / 4 + 1);
  m_States.reset(static_cast<unsigned char*>(std::calloc(stateBytes, 1)));
  if (!m_States) return Fail(reason, "there is no memory for it");
  return true;
}

// Sizes stay far below 2^64: 2^32 records a band.
bool StarTiles::PlaceBand(const unsigned char* entry, Places& places, std::string& reason) {
  constexpr char kBadBand[] = "a band of the star tile catalog is damaged";
  const std::uint32_t order = LoadLE32(entry + layout::kOrderAt);
  const std::uint32_t count = LoadLE32(entry + layout::kCountAt);
  if (order > astro::kMaxHealpixOrder || count == 0) return Fail(reason, kBadBand);
  PlacedBand band;
  band.brightest = LoadInt16(entry + layout::kBrightestAt);
  band.faintest = LoadInt16(entry + layout::kFaintestAt);
  band.maxMotion = LoadLE32(entry + layout::kMotionAt);
  const std::uint64_t bandCells = astro::GetHealpixCellCount(static_cast<int>(order));
  const std::uint64_t records = std::uint64_t{count} * StarTileRecord::kSize;
  const std::uint64_t size = records + bandCells * layout::kEntrySize;
  if (!layout::IsOrderAllowed(bandCells, count) || band.brightest > band.faintest ||
      size > m_File.GetSize() - places.at) {
    return Fail(reason, kBadBand);
  }
  band.band = {static_cast<int>(order), GetCode(band.brightest), GetCode(band.faintest),
               band.maxMotion * kRadiansPerMotion, count};
  band.records = m_File.GetBytes() + places.at;
  band.index = band.records + records;
  band.firstCell = places.cells;
  band.firstStar = places.stars;
  m_Bands.push_back(band);
  places.at += size;
  places.cells += bandCells;
  places.stars += count;
  return true;
}

StarTileRecords StarTiles::GetStars(int band, std::uint32_t cell) const {
  const PlacedBand& placed = m_Bands[band];
  const std::uint64_t number = placed.firstCell + cell;
  unsigned char& states = m_States[static_cast<std::size_t>(number / 4)];
  const auto shift = static_cast<unsigned>(number % 4 * 2);
  const unsigned state = states >> shift & 3u;
  if (state == kDamaged) return {};
  const unsigned char* const entry = placed.index + std::size_t{cell} * layout::kEntrySize;
  const bool isLast = cell + 1 == astro::GetHealpixCellCount(placed.band.order);
  const std::uint32_t first = LoadLE32(entry);
  const std::uint32_t end = isLast ? placed.band.count : LoadLE32(entry + layout::kEntrySize);
  const bool isPlaced = first <= end && end <= placed.band.count && (cell > 0 || first == 0);
  const StarTileRecords stars = isPlaced ? placed.GetRecords(first, end) : StarTileRecords();
  if (state == kWhole) return stars;
  const std::uint32_t check =
      layout::GetCellCheck(static_cast<std::uint32_t>(band), cell, first, stars.GetCount(), stars.GetBytes());
  const bool isWhole = isPlaced && check == LoadLE32(entry + 4) && KeepsPromises(placed, stars);
  states = static_cast<unsigned char>(states | (isWhole ? kWhole : kDamaged) << shift);
  if (isWhole) return stars;
  ReportDamage(band, cell);
  return {};
}

// What frames rely on: the order of magnitudes, the limits of the band, places and numbers that are some.
bool StarTiles::KeepsPromises(const PlacedBand& band, const StarTileRecords& stars) const {
  constexpr int kQuarterTurn = 1 << 30;
  int before = band.brightest;
  for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
    const StarTileRecord star = stars[i];
    const std::uint32_t number = LoadLE32(star.GetBytes() + 16);
    if (star.GetMillimagnitudes() < before || star.GetMillimagnitudes() > band.faintest ||
        star.GetDecUnits() < -kQuarterTurn || star.GetDecUnits() > kQuarterTurn ||
        number < static_cast<std::uint32_t>(m_Lowest) || number > static_cast<std::uint32_t>(m_Highest) ||
        !IsWithin(star, band.maxMotion)) {
      return false;
    }
    before = star.GetMillimagnitudes();
  }
  return true;
}

const StarTiles::PlacedBand* StarTiles::FindBand(std::uint32_t place) const {
  for (const PlacedBand& band : m_Bands) {
    if (place - band.firstStar < band.band.count) return &band;
  }
  return nullptr;
}

bool StarTiles::IsPlaceOf(std::uint32_t place, std::uint32_t number) const {
  const PlacedBand* const band = FindBand(place);
  if (!band) return false;
  const auto star = static_cast<std::uint32_t>(place - band->firstStar);
  return LoadLE32(band->GetRecords(star, star + 1)[0].GetBytes() + 16) == number;
}

StarTileRecords StarTiles::FindNumber(int number) const {
  if (number < m_Lowest || number > m_Highest) return {};
  StarTileRecords found;
  if (m_Numbers && !m_HasDamagedNumbers) {
    if (FindByIndex(number, found)) return found;
    PrintDebugString("%s: the index of numbers is damaged: stars are looked for one by one\n",
                     m_Path.c_str());
    m_HasDamagedNumbers = true;
  }
  return SearchNumber(number);
}

// False when the index is damaged. A star counts only as one of its cell, which was checked.
bool StarTiles::FindByIndex(int number, StarTileRecords& found) const {
  std::uint32_t place = 0;
  const auto answer =
      star_number_index::Find({m_Numbers, m_Count}, static_cast<std::uint32_t>(number), place);
  if (answer != star_number_index::Answer::kFound) return answer == star_number_index::Answer::kNone;
  const PlacedBand* const band = FindBand(place);
  if (!band) return false;
  const auto star = static_cast<std::uint32_t>(place - band->firstStar);
  const StarTileRecords record = band->GetRecords(star, star + 1);
  const std::uint32_t cell = astro::GetHealpixCell(band->band.order, record[0].GetDirection().v);
  const StarTileRecords stars = GetStars(static_cast<int>(band - m_Bands.data()), cell);
  const std::size_t offset = static_cast<std::size_t>(record.GetBytes() - band->records);
  const std::size_t first =
      stars.GetCount() == 0 ? 0 : static_cast<std::size_t>(stars.GetBytes() - band->records);
  const bool isInCell = stars.GetCount() > 0 && offset >= first &&
                        offset - first < std::size_t{stars.GetCount()} * StarTileRecord::kSize;
  if (isInCell && record[0].GetNumber() != number) return false;
  if (isInCell) {
    found = record;
  } else {
    found = SearchNumber(number);  // astray, or in a damaged cell
  }
  return true;
}

StarTileRecords StarTiles::SearchNumber(int number) const {
  for (int band = 0; band < GetBandCount(); ++band) {
    const std::uint32_t cells = astro::GetHealpixCellCount(GetBand(band).order);
    for (std::uint32_t cell = 0; cell < cells; ++cell) {
      const StarTileRecords stars = GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i) {
        if (stars[i].GetNumber() == number) return {stars[i].GetBytes(), 1};
      }
    }
  }
  return {};
}

bool StarTiles::IsNumberIndexSound() const {
  const star_number_index::Index index = {m_Numbers, m_Count};
  const std::uint64_t blocks = m_Numbers ? star_number_index::CountBlocks(m_Count) : 0;
  star_number_index::Entries entries{};
  std::uint32_t before = 0;
  for (std::uint64_t block = 0; block < blocks; ++block) {
    if (!star_number_index::TakeBlock(index, block, entries)) return false;
    for (std::size_t i = 0; i < entries.count; ++i) {
      const std::uint32_t number = entries.GetNumber(i);
      if (number < before || !IsPlaceOf(entries.GetPlace(i), number)) return false;
      before = number;
    }
  }
  return true;
}

void StarTiles::ReportDamage(int band, std::uint32_t cell) const {
  if (!m_HasDamage) {
    PrintDebugString("%s: cell %lu of band %d is damaged and left out\n", m_Path.c_str(),
                     static_cast<unsigned long>(cell), band);
  }
  m_HasDamage = true;
}

}  // namespace scene
