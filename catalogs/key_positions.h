// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

namespace CommonInterfaces {

// Numbers in ascending order, and where each of them stands.
//
// Positions are found through a hash table with open addressing, whose slots hold the keys themselves: nearly
// every question waits for memory once, whether the key is there or not, where a bisection of a million keys
// waits for most of its twenty steps. At least half of the slots are free.
//
// Keys that are not in order are searched by the plain bisection of std::lower_bound, whose steps decide what
// is found. So are keys that crowd together in the hash table as no catalog's do, since a file made for that
// purpose is not to make searches long; and more keys than fit reasonable memory. Not changed after the
// constructor: every thread may search.
class KeyPositions {
 public:
  KeyPositions() = default;
  explicit KeyPositions(const std::vector<int>& keys) {
    const bool isHashed =
        keys.size() <= kMostHashed && std::is_sorted(keys.begin(), keys.end()) && Hash(keys);
    if (isHashed) return;
    m_Slots.clear();
    m_Bisected = keys;
  }

  // The position of the key, the first of several equal ones; -1 when there is none.
  int Find(int wanted) const {
    if (!m_Bisected.empty()) return Bisect(wanted);
    std::size_t place = Home(wanted);
    // One test for both: whether the key is there is as good as random.
    while ((m_Slots[place].key != wanted) & (m_Slots[place].position != kNone)) place = Next(place);
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
  std::vector<int> m_Bisected;  // the keys, where they are not hashed
};

}  // namespace CommonInterfaces
