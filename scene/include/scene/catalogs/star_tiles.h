// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/star_tile_record.h"
#include "utils/mapped_file.h"

namespace scene {

// The stars of a file between two magnitudes, in cells of the HEALPix grid of one order (astro/healpix.h,
// nested, of the directions that the records hold). The bands of a file are in no order and their magnitudes
// may overlap: stars of fast motion have one of their own, so that the others need no margin.
struct StarTileBand {
  int order;
  float brightest, faintest;  // magnitude codes, of its first and its last star
  double maxMotion;           // no star moves faster: radians per Julian year
  std::uint32_t count;        // stars
};

// A tile catalog: a file of any number of stars (docs/formats/star_tiles.md), of which only what is looked at
// is ever read. A frame looks at bands whose brightest star is not beyond its limit, in them at the cells
// that its window touches, and in a cell at the first stars:
//
//   astro::VisitHealpixCone(band.order, centre.v, radius + years * band.maxMotion,
//                           [&](std::uint32_t first, std::uint32_t last) {
//     for (std::uint32_t cell = first; cell <= last; ++cell) {
//       const StarTileRecords stars = tiles.GetStars(index, cell);
//       for (std::uint32_t i = 0; i < stars.GetCount() && stars[i].GetCode() <= limit; ++i) ...
//
// Not copyable; views of it live as long as it does, unless it is opened again or moved onto. One thread at a
// time: looking marks what was checked.
class SCENE_API StarTiles {
 public:
  // Opens the file (a resolved path), in place of what was open. It reads the header only. False when that
  // cannot be, or is not what it should be: nothing is open then and `error` is one line that names the file.
  bool Open(const char* path, std::string& error);

  bool IsOpen() const { return !m_Path.empty(); }
  const std::string& GetPath() const { return m_Path; }
  // Where the stars come from and their licence: UTF-8, as whoever wrote the file put it.
  const std::string& GetOrigin() const { return m_Origin; }
  std::uint64_t GetCount() const { return m_Count; }
  // Every star has a number between these, and no other star of the file has it; 0 and 0 without stars.
  int GetLowestNumber() const { return m_Lowest; }
  int GetHighestNumber() const { return m_Highest; }

  int GetBandCount() const { return static_cast<int>(m_Bands.size()); }
  const StarTileBand& GetBand(int band) const { return m_Bands[band].band; }

  // The stars of a cell (below GetHealpixCellCount of the band's order). The first time it is checked; a cell
  // that is damaged has no stars, and the first such cell of the file is named in one diagnostic line.
  // Allocates nothing.
  StarTileRecords GetStars(int band, std::uint32_t cell) const;

  // Whether a cell was found damaged up to now.
  bool HasDamage() const { return m_HasDamage; }

  // The star of that number, none or one: by the index of numbers, some 20 looks at the file. A file without
  // one (of the first version), or whose index is damaged, which is one diagnostic line, is looked through
  // from end to end: 15 ms for a million stars that are in memory.
  StarTileRecords FindNumber(int number) const;
  // Whether the file has an index of numbers, and whether all of it is as it should be: in order, every star
  // once. The second looks at the whole file.
  bool HasNumberIndex() const { return m_Numbers != nullptr; }
  bool IsNumberIndexSound() const;

 private:
  struct PlacedBand {
    StarTileBand band;
    int brightest, faintest;  // millimagnitudes
    std::uint32_t maxMotion;  // kMotionUnit
    const unsigned char* records;
    const unsigned char* index;
    std::uint64_t firstCell;  // of all cells of the file
    std::uint64_t firstStar;  // of all stars of the file

    StarTileRecords GetRecords(std::uint32_t first, std::uint32_t end) const {
      return {records + std::size_t{first} * StarTileRecord::kSize, end - first};
    }
  };

  struct FreeBytes {
    void operator()(unsigned char* bytes) const { std::free(bytes); }
  };
  struct Places {
    std::uint64_t at, cells, stars;  // bytes of the file, cells and stars before the next band
  };

  bool ReadHeader(std::string& reason);
  bool PlaceBand(const unsigned char* entry, Places& places, std::string& reason);
  bool KeepsPromises(const PlacedBand& band, const StarTileRecords& stars) const;
  void ReportDamage(int band, std::uint32_t cell) const;
  const PlacedBand* FindBand(std::uint32_t place) const;
  bool IsPlaceOf(std::uint32_t place, std::uint32_t number) const;
  bool FindByIndex(int number, StarTileRecords& found) const;
  StarTileRecords SearchNumber(int number) const;

  MappedFile m_File;
  std::string m_Path, m_Origin;
  std::uint64_t m_Count = 0;
  int m_Lowest = 0, m_Highest = 0;
  std::vector<PlacedBand> m_Bands;
  // Two bits a cell: not looked at yet, whole, damaged. Zeros that the system hands out page by page: a file
  // of a billion stars has 30 MB of them, of which a frame needs few.
  std::unique_ptr<unsigned char[], FreeBytes> m_States;
  const unsigned char* m_Numbers = nullptr;  // the index of numbers, null without one
  mutable bool m_HasDamage = false, m_HasDamagedNumbers = false;
};

}  // namespace scene
