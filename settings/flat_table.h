// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A hash table in one block of memory, from 64-bit keys to small values.
#pragma once

#include <cstdint>
#include <vector>

namespace CommonInterfaces {

// Any key, and any value but Value{}, which stands for "none" and marks a free slot: a pointer, or an index
// counted from 1. Collisions go to the next free slot; at most half of the slots are taken.
template <class Value>
class FlatTable {
 public:
  void Clear() {
    m_Slots.clear();
    m_Count = 0;
  }

  // Makes room for that many keys, so that none of them moves the others.
  void Reserve(std::size_t count) {
    std::size_t slots = m_Slots.empty() ? kFewest : m_Slots.size();
    while (slots < 2 * count) slots *= 2;
    if (slots > m_Slots.size()) Rehash(slots);
  }

  // Value{} when there is none.
  Value Find(std::uint64_t key) const {
    if (m_Slots.empty()) return Value{};
    std::size_t i = Home(key);
    while (m_Slots[i].value != Value{} && m_Slots[i].key != key) i = (i + 1) & m_Mask;
    return m_Slots[i].value;
  }

  // The earlier value of the key stays; false when there is one.
  bool Insert(std::uint64_t key, Value value) {
    Reserve(m_Count + 1);
    std::size_t i = Home(key);
    for (; m_Slots[i].value != Value{}; i = (i + 1) & m_Mask)
      if (m_Slots[i].key == key) return false;
    m_Slots[i] = {key, value};
    ++m_Count;
    return true;
  }

  // Keys that collided with the erased one move up: a search ends at the first free slot.
  void Erase(std::uint64_t key) {
    if (m_Slots.empty()) return;
    std::size_t hole = Home(key);
    for (; m_Slots[hole].key != key || m_Slots[hole].value == Value{}; hole = (hole + 1) & m_Mask)
      if (m_Slots[hole].value == Value{}) return;
    for (std::size_t i = (hole + 1) & m_Mask; m_Slots[i].value != Value{}; i = (i + 1) & m_Mask) {
      const std::size_t home = Home(m_Slots[i].key);
      if (((i - home) & m_Mask) < ((i - hole) & m_Mask)) continue;  // its home lies behind the hole
      m_Slots[hole] = m_Slots[i];
      hole = i;
    }
    m_Slots[hole] = {};
    --m_Count;
  }

 private:
  static constexpr std::size_t kFewest = 16;

  struct Slot {
    std::uint64_t key = 0;
    Value value{};
  };

  // The upper bits of a product with 2^64 divided by the golden ratio: Knuth, The Art of Computer Programming
  // 3, section 6.4 (1998).
  std::size_t Home(std::uint64_t key) const {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15u) >> m_Shift);
  }

  void Rehash(std::size_t slots) {
    std::vector<Slot> earlier(slots);
    earlier.swap(m_Slots);
    m_Mask = slots - 1;
    m_Shift = 64;
    for (std::size_t left = slots; left > 1; left /= 2) --m_Shift;
    for (const Slot& slot : earlier) {
      if (slot.value == Value{}) continue;
      std::size_t i = Home(slot.key);
      while (m_Slots[i].value != Value{}) i = (i + 1) & m_Mask;
      m_Slots[i] = slot;
    }
  }

  std::vector<Slot> m_Slots;  // a power of two of them, or none
  std::size_t m_Mask = 0;
  std::size_t m_Count = 0;
  int m_Shift = 0;
};

}  // namespace CommonInterfaces
