// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_insertions.h"

#include <algorithm>
#include <cstddef>

#include "settings/field_arena.h"

namespace CommonInterfaces {

namespace {

// Each insertion moves half of those that wait, and each time they are made half of the fields: with this
// many the first costs about as much as the second in the largest container.
constexpr int kMostWaiting = 256;

}  // namespace

void FieldInsertions::Add(std::vector<SettingField*>& fields, int place, SettingField* field) {
  if (GetCount() >= kMostWaiting) MakeIn(fields);
  if (IsEmpty() && place == static_cast<int>(fields.size())) {
    fields.push_back(field);
    return;
  }
  const auto found = std::lower_bound(m_Waiting.begin(), m_Waiting.end(), place,
                                      [](const Insertion& waiting, int at) { return waiting.place < at; });
  auto behind = m_Waiting.insert(found, {place, field});
  while (++behind != m_Waiting.end()) ++behind->place;
}

// From the back, each field straight to its place.
void FieldInsertions::MakeIn(std::vector<SettingField*>& fields) {
  std::size_t from = fields.size();
  std::size_t to = from + m_Waiting.size();
  fields.resize(to);
  for (auto waiting = m_Waiting.rbegin(); waiting != m_Waiting.rend(); ++waiting) {
    const auto place = static_cast<std::size_t>(waiting->place);
    const std::size_t moved = to - (place + 1);
    std::copy_backward(fields.begin() + static_cast<std::ptrdiff_t>(from - moved),
                       fields.begin() + static_cast<std::ptrdiff_t>(from),
                       fields.begin() + static_cast<std::ptrdiff_t>(to));
    from -= moved;
    to = place;
    fields[place] = waiting->field;
  }
  m_Waiting.clear();
}

void FieldInsertions::Release() {
  for (const Insertion& waiting : m_Waiting) ReleaseField(waiting.field);
  m_Waiting.clear();
}

}  // namespace CommonInterfaces
