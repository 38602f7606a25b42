// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The memory of the fields that are read from one block of a file.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace CommonInterfaces {

class SettingField;
struct FieldData;

// Many small pieces, each field right behind its record, that go all at once. Fields are made, found and
// deleted sooner in it than each in a block of its own. Its fields must be deleted before it goes.
class FieldArena {
 public:
  // An uninitialised record of `size` bytes, with room for its field behind it. To free a record means
  // nothing here: its room stays unused.
  FieldData* Allocate(int size);
  void Free(FieldData* /*record*/) {}

  // The field of the record that was allocated last.
  SettingField* MakeField(FieldData* record, int size);

 private:
  std::vector<std::unique_ptr<unsigned char[]>> m_Chunks;
  unsigned char* m_Next = nullptr;  // in the last one
  std::size_t m_Left = 0;
  std::size_t m_ChunkSize = 0;
};

// Every field of a container goes this way: deletes it, and releases its memory unless that is an arena's.
void ReleaseField(SettingField* field);

struct FieldRelease {
  void operator()(SettingField* field) const { ReleaseField(field); }
};
// A field that has no container yet.
using OwnedField = std::unique_ptr<SettingField, FieldRelease>;

}  // namespace CommonInterfaces
