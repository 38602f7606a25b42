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

  std::size_t GetCount() const { return m_Count; }

  // Makes room for that many keys, so that none of them moves the others.
  void Reserve(std::size_t count) {
    std::size_t groups = m_Groups.empty() ? kFewestGroups : m_Groups.size();
    while (groups * kGroupSize < 2 * count) groups *= 2;
    if (groups > m_Groups.size()) Rehash(groups);
  }

  // Value{} when there is none.
  Value Find(std::uint64_t key) const {
    if (m_Groups.empty()) return Value{};
    const Slot& slot = m_Groups[HomeGroup(key)].Guess(key);
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

    // The slot that has the key, if one does: which it is nobody can guess, so nothing jumps on it. Any slot
    // if none does, or if free ones look as if they did.
    const Slot& Guess(std::uint64_t key) const {
      const unsigned at1 = slots[1].key == key, at2 = slots[2].key == key, at3 = slots[3].key == key;
      return slots[(at1 | at3) | (at2 | at3) << 1];
    }
  };

  Slot& At(std::size_t i) { return m_Groups[i / kGroupSize].slots[i % kGroupSize]; }
  const Slot& At(std::size_t i) const { return m_Groups[i / kGroupSize].slots[i % kGroupSize]; }

  // By the upper bits of a product with 2^64 divided by the golden ratio: Knuth, The Art of Computer
  // Programming 3, section 6.4 (1998).
  std::size_t HomeGroup(std::uint64_t key) const {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> m_Shift);
  }
  std::size_t Home(std::uint64_t key) const { return HomeGroup(key) * kGroupSize; }

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
