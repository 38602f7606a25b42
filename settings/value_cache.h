// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Copies of short values: one access to memory, where slot, field and record of a field are three that wait
// for each other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "settings/short_values.h"

namespace CommonInterfaces {

// A copy is good as long as a count of changes stays what it was when the copy was kept. Whatever the cache
// has lost is asked of the field.
class ValueCache {
 public:
  // Copies a value that was kept under that key of 48 bits at that count; false when it has none.
  bool Load(std::uint64_t key, std::uint64_t changes, void* out) const {
    if (m_Sets.empty()) return false;
    const std::uint64_t stamp = changes - m_Base;
    const Set& set = m_Sets[Home(key)];
    const unsigned place = set.Guess(key << kStampBits | stamp);
    if (stamp > kLastStamp || set.keys[place] >> kSizeBits != (key << kStampBits | stamp)) return false;
    StoreShort(out, set.values[place], 1u << (set.keys[place] & 3));
    return true;
  }

  // `size` as IsShort has it. `fields`: how many there are to be kept at once.
  void Keep(std::uint64_t key, std::uint64_t changes, std::size_t fields, std::uint64_t value, unsigned size);

 private:
  static constexpr int kWays = 4, kStampBits = 14, kSizeBits = 2;
  static constexpr std::uint64_t kLastStamp = (1u << kStampBits) - 1;

  // Four copies, a cache line of most machines.
  struct alignas(64) Set {
    std::uint64_t keys[kWays] = {};  // key, stamp (0: free), logarithm of the size to base 2
    std::uint64_t values[kWays] = {};

    // Which of the four has the key, if one does: nobody can guess it, so nothing jumps on it.
    unsigned Guess(std::uint64_t keyAndStamp) const {
      const unsigned at1 = keys[1] >> kSizeBits == keyAndStamp, at2 = keys[2] >> kSizeBits == keyAndStamp,
                     at3 = keys[3] >> kSizeBits == keyAndStamp;
      return (at1 | at3) | (at2 | at3) << 1;
    }
  };

  // As in FlatTable.
  std::size_t Home(std::uint64_t key) const {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> m_Shift);
  }
  void Clear(std::uint64_t changes, std::size_t fields);

  std::vector<Set> m_Sets;  // a power of two of them, two at least, or none
  int m_Shift = 0;
  std::uint64_t m_Base = 0;  // the count of changes that has stamp 0
};

}  // namespace CommonInterfaces
