// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>
#include <vector>

#include "catalogs/key_positions.h"

namespace CommonInterfaces {

using KindAndNumber = std::pair<int, int>;  // in the order of signed kinds, then signed numbers

// Objects to be looked up by kind and number. Each kind has its numbers for itself: they take half of the
// memory that pairs would, and there are few kinds. Every thread may search.
class ObjectTable {
 public:
  ObjectTable() = default;
  // The objects must be in their order.
  explicit ObjectTable(const std::vector<KindAndNumber>& objects);

  // The position of the object, the first of several equal ones; -1 when there is none.
  int Find(int kind, int number) const {
    const int place = m_Kinds.Find(kind);
    if (place < 0) return -1;
    const Group& group = m_Groups[static_cast<std::size_t>(place)];
    const int position = group.numbers.Find(number);
    return position + (group.first & ~(position >> 31));  // without a jump: half of the questions are in vain
  }

 private:
  struct Group {
    int first;  // the position of its first object
    KeyPositions numbers;
  };

  KeyPositions m_Kinds;
  std::vector<Group> m_Groups;  // one for each kind
};

}  // namespace CommonInterfaces
