// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A hash table in one block of memory, from 64-bit keys to small values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace CommonInterfaces {

// Any key, and any value but Value{}, which stands for "none" and marks a free slot: a pointer, or an index
// counted from 1. A key belongs into a group of four slots, a cache line of most machines, and what finds it
// full goes to the next free slot behind; at most half of the slots are taken.
template <class Value>
class FlatTable {
 public:
  void Clear() {
    m_Groups.clear();
    m_Count = 0;
  }

  // Makes room for that many keys, so that none of them moves the others.
  void Reserve(std::size_t count) {
    std::size_t groups = m_Groups.empty() ? kFewestGroups : m_Groups.size();
    while (groups * kGroupSize < 2 * count) groups *= 2;
    if (groups > m_Groups.size()) Rehash(groups);
  }

  // Value{} when there is none.
  Value Find(std::uint64_t key) const {
    if (m_Groups.empty()) return Value{};
    const std::size_t home = Home(key);
    // Which of the four it is cannot be guessed, so nothing jumps on it. The sum of several, where free slots
    // have the key too, is any slot, and then the search goes the long way.
    const Slot* const slots = m_Groups[home / kGroupSize].slots;
    const unsigned place = (slots[1].key == key) + 2u * (slots[2].key == key) + 3u * (slots[3].key == key);
    const Slot& slot = slots[place % kGroupSize];
    return slot.key == key && slot.value != Value{} ? slot.value : At(FindPlace(key)).value;
  }

  // The earlier value of the key stays; false when there is one.
  bool Insert(std::uint64_t key, Value value) {
    Reserve(m_Count + 1);
    Slot& slot = At(FindPlace(key));
    if (slot.value != Value{}) return false;
    slot = {key, value};
    ++m_Count;
    return true;
  }

  // For a key that has a value.
  void Replace(std::uint64_t key, Value value) { At(FindPlace(key)).value = value; }

  // Keys that did not find room before the erased one move up: a search ends at the first free slot.
  void Erase(std::uint64_t key) {
    if (m_Groups.empty()) return;
    std::size_t hole = FindPlace(key);
    if (At(hole).value == Value{}) return;
    for (std::size_t i = (hole + 1) & m_Mask; At(i).value != Value{}; i = (i + 1) & m_Mask) {
      const std::size_t home = Home(At(i).key);
      if (((i - home) & m_Mask) < ((i - hole) & m_Mask)) continue;  // its home lies behind the hole
      At(hole) = At(i);
      hole = i;
    }
    At(hole) = {};
    --m_Count;
  }

 private:
  static constexpr std::size_t kFewestGroups = 4;
  static constexpr std::size_t kGroupSize = 4;

  struct Slot {
    std::uint64_t key = 0;
    Value value{};
  };
  struct alignas(64) Group {
    Slot slots[kGroupSize];
  };

  Slot& At(std::size_t i) { return m_Groups[i / kGroupSize].slots[i % kGroupSize]; }
  const Slot& At(std::size_t i) const { return m_Groups[i / kGroupSize].slots[i % kGroupSize]; }

  // The first slot of the key's group, by the upper bits of a product with 2^64 divided by the golden ratio:
  // Knuth, The Art of Computer Programming 3, section 6.4 (1998).
  std::size_t Home(std::uint64_t key) const {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> m_Shift) * kGroupSize;
  }

  // The slot that has the key, or the free one where it would go. There are slots.
  std::size_t FindPlace(std::uint64_t key) const {
    std::size_t i = Home(key);
    while (At(i).value != Value{} && At(i).key != key) i = (i + 1) & m_Mask;
    return i;
  }

  void Rehash(std::size_t groups) {
    std::vector<Group> earlier(groups);
    earlier.swap(m_Groups);
    m_Mask = groups * kGroupSize - 1;
    m_Shift = 64;
    for (std::size_t left = groups; left > 1; left /= 2) --m_Shift;
    for (const Group& group : earlier)
      for (const Slot& slot : group.slots)
        if (slot.value != Value{}) At(FindPlace(slot.key)) = slot;
  }

  std::vector<Group> m_Groups;  // a power of two of them, or none
  std::size_t m_Mask = 0;       // of the slots
  std::size_t m_Count = 0;
  int m_Shift = 0;
};

}  // namespace CommonInterfaces
