// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>
#include <vector>

namespace CommonInterfaces {

// Numbers in ascending order, and where each of them stands.
//
// Positions are found through a hash table with open addressing, whose slots hold the keys themselves: nearly
// every question waits for memory once, whether the key is there or not, where a bisection of a million keys
// waits for most of its twenty steps. At least half of the slots are free.
//
// Keys that lie close together, as the numbers of a catalog do, stand as bits in a row instead, and the
// position is how many stand before: a quarter of a byte a number, so that a million of them stay near the
// processor.
//
// Keys that are not in order are searched by the plain bisection of std::lower_bound, whose steps decide what
// is found. So are keys that crowd together in the hash table as no catalog's do, since a file made for that
// purpose is not to make searches long; and more keys than fit reasonable memory. Not changed after the
// constructor: every thread may search.
class KeyPositions {
 public:
  KeyPositions() = default;
  explicit KeyPositions(const std::vector<int>& keys) {
    if (Line(keys)) return;
    const bool isHashed =
        keys.size() <= kMostHashed && std::is_sorted(keys.begin(), keys.end()) && Hash(keys);
    if (isHashed) return;
    m_Slots.clear();
    m_Bisected = keys;
  }

  // The position of the key, the first of several equal ones; -1 when there is none.
  int Find(int wanted) const {
    if (!m_Row.empty()) return FindInRow(wanted);
    if (!m_Bisected.empty()) return Bisect(wanted);
    std::size_t place = Home(wanted);
    // One test for both: whether the key is there is as good as random.
    while (int{m_Slots[place].key != wanted} & int{m_Slots[place].position != kNone}) place = Next(place);
    return m_Slots[place].position;
  }

 private:
  static constexpr int kNone = -1;
  static constexpr std::size_t kMostHashed = 1 << 22;  // 64 megabytes of slots
  static constexpr int kLongestWalk = 256;             // slots; a million random keys walk 70 at most

  struct Slot {
    int key = 0;
    int position = kNone;
  };

  // 64 numbers of the row.
  struct Word {
    std::uint64_t bits = 0;  // those that are there
    int before = 0;          // how many stand in the words before
  };
  static constexpr std::int64_t kWidest = 16;  // numbers in the row for each that is there

  // False for keys that are far apart, equal or out of order.
  bool Line(const std::vector<int>& keys) {
    if (keys.empty()) return false;
    const std::int64_t span = std::int64_t{keys.back()} - keys.front() + 1;
    if (span < 1 || span > kWidest * static_cast<std::int64_t>(keys.size())) return false;
    if (std::adjacent_find(keys.begin(), keys.end(), std::greater_equal<int>()) != keys.end()) return false;
    m_First = static_cast<std::uint32_t>(keys.front());
    m_Row.resize(static_cast<std::size_t>((span + 63) / 64));
    for (const int key : keys) {
      const std::uint32_t place = static_cast<std::uint32_t>(key) - m_First;
      m_Row[place / 64].bits |= std::uint64_t{1} << place % 64;
    }
    for (std::size_t i = 1; i < m_Row.size(); ++i)
      m_Row[i].before = m_Row[i - 1].before + std::popcount(m_Row[i - 1].bits);
    return true;
  }

  int FindInRow(int wanted) const {
    const std::uint32_t place = static_cast<std::uint32_t>(wanted) - m_First;
    if (place / 64 >= m_Row.size()) return kNone;
    const Word& word = m_Row[place / 64];
    const std::uint64_t bit = std::uint64_t{1} << place % 64;
    const int isMissing = (word.bits & bit) == 0;
    return (word.before + CountBits(word.bits & (bit - 1))) |
           -isMissing;  // without a jump: as good as random
  }

  // As std::popcount, which is a call where the processor is not known to have an instruction for it.
  static int CountBits(std::uint64_t bits) {
    bits -= bits >> 1 & 0x5555555555555555u;
    bits = (bits & 0x3333333333333333u) + (bits >> 2 & 0x3333333333333333u);
    return static_cast<int>(((bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0Fu) * 0x0101010101010101u >> 56);
  }

  // The upper bits of a product with the golden ratio: neighbours come far apart (D. E. Knuth, "The art of
  // computer programming", volume 3, section 6.4).
  std::size_t Home(int key) const {
    return static_cast<std::size_t>(std::uint64_t{static_cast<std::uint32_t>(key) * 2654435769u} >> m_Shift);
  }
  std::size_t Next(std::size_t place) const { return (place + 1) & (m_Slots.size() - 1); }

  // False when a key would stand too far from its place.
  bool Hash(const std::vector<int>& keys) {
    m_Slots.assign(std::bit_ceil(2 * keys.size() + 1), {});
    m_Shift = 32 - std::countr_zero(m_Slots.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
      // Of equal keys, which follow each other, the first stays.
      if (i > 0 && keys[i] == keys[i - 1]) continue;
      std::size_t place = Home(keys[i]);
      for (int walked = 0; m_Slots[place].position != kNone; place = Next(place)) {
        if (++walked == kLongestWalk) return false;
      }
      m_Slots[place] = {keys[i], static_cast<int>(i)};
    }
    return true;
  }

  int Bisect(int wanted) const {
    const auto found = std::lower_bound(m_Bisected.begin(), m_Bisected.end(), wanted);
    return found != m_Bisected.end() && *found == wanted ? static_cast<int>(found - m_Bisected.begin())
                                                         : kNone;
  }

  std::vector<Slot> m_Slots = std::vector<Slot>(1);  // a power of two of them, half of them free at least
  int m_Shift = 32;
  std::vector<int> m_Bisected;  // the keys, where they are neither hashed nor in a row
  std::vector<Word> m_Row;      // the keys, where they are close together
  std::uint32_t m_First = 0;    // the number of its first bit
};

}  // namespace CommonInterfaces
