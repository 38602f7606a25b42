// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "scene/catalogs/star_tile_record.h"
#include "utils/mapped_file.h"
#include "utils/replace_file.h"

namespace scene {

// Sorts any number of records by a key, in runs: as many as fit are sorted in memory, further ones on the
// disk, in a file that goes with the object. Records of one key come in any order.
class StarTileRuns {
 public:
  struct Entry {
    std::uint64_t key;
    std::array<unsigned char, StarTileRecord::kSize> record;
  };

  // `target` names the file that others are made of: the one on the disk stands beside it.
  StarTileRuns(const std::string& target, std::size_t entriesInMemory);

  // False when the disk refuses: GetReason is one line.
  bool Add(const Entry& entry);

  // After the last Add, once.
  bool Sort();

  // The next one in order, until false.
  bool Take(Entry& entry);

  const std::string& GetReason() const { return m_Reason; }

 private:
  // A sorted run on the disk, from its next entry on.
  struct Run {
    std::uint64_t key;
    const unsigned char *next, *end;
  };

  bool Spill();

  std::string m_Path, m_Reason;
  std::size_t m_Most;
  std::vector<Entry> m_Entries;
  std::size_t m_Next = 0;
  FileReplacement m_Spill;
  std::vector<std::uint64_t> m_RunEnds;  // entries, of all runs up to each
  std::uint64_t m_Spilt = 0;
  MappedFile m_Spilled;     // the same file, to read
  std::vector<Run> m_Runs;  // a heap, the lowest key on top
};

}  // namespace scene
