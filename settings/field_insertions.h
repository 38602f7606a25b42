// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Insertions into the fields of a container that wait until somebody looks, so that many of them move the
// fields behind them once.
#pragma once

#include <vector>

namespace CommonInterfaces {

class SettingField;

class FieldInsertions {
 public:
  bool IsEmpty() const { return m_Waiting.empty(); }
  int GetCount() const { return static_cast<int>(m_Waiting.size()); }

  // `field` belongs at index `place` of the fields as they are with everything that waits; whoever is
  // there, and behind, moves by one. At the end it is appended at once, and when many wait they are all
  // inserted first. Without memory (std::bad_alloc, here and below) fields and what waits are as they were.
  void Add(std::vector<SettingField*>& fields, int place, SettingField* field);

  // Inserts what waits.
  void MakeIn(std::vector<SettingField*>& fields);

  // Deletes the fields that wait. Takes no memory.
  void Release();

 private:
  struct Insertion {
    int place;  // in the fields as they are with everything that waits
    SettingField* field;
  };
  std::vector<Insertion> m_Waiting;  // by place
};

}  // namespace CommonInterfaces
