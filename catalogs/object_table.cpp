// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/object_table.h"

namespace CommonInterfaces {

ObjectTable::ObjectTable(const std::vector<KindAndNumber>& objects) {
  std::vector<int> kinds, numbers;
  for (std::size_t first = 0, end; first < objects.size(); first = end) {
    const int kind = objects[first].first;
    numbers.clear();
    for (end = first; end < objects.size() && objects[end].first == kind; ++end) {
      numbers.push_back(objects[end].second);
    }
    kinds.push_back(kind);
    m_Groups.push_back({static_cast<int>(first), KeyPositions(numbers)});
  }
  m_Kinds = KeyPositions(kinds);
}

}  // namespace CommonInterfaces
