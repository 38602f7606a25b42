// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_arena.h"

#include <algorithm>
#include <new>
#include <utility>

#include "common_interfaces/settings_field.h"

namespace CommonInterfaces {

namespace {

// A small block takes little, a large one few pieces: the next chunk is as large as all before it.
constexpr std::size_t kFirstChunk = 2048, kLargestChunk = 1 << 18;

// Where the field of a record of that size begins.
std::size_t FieldOffset(int size) {
  return (static_cast<std::size_t>(size) + alignof(SettingField) - 1) & ~(alignof(SettingField) - 1);
}

}  // namespace

FieldData* FieldArena::Allocate(int size) {
  const std::size_t room = FieldOffset(size) + sizeof(SettingField);
  if (room > m_Left) {
    const std::size_t chunkSize = std::clamp(2 * m_ChunkSize, kFirstChunk, kLargestChunk);
    std::unique_ptr<unsigned char[]> chunk(new unsigned char[std::max(chunkSize, room)]);
    m_Next = m_Chunks.emplace_back(std::move(chunk)).get();
    m_Left = std::max(chunkSize, room);
    m_ChunkSize = chunkSize;
  }
  auto* const record = reinterpret_cast<FieldData*>(m_Next);
  m_Next += room;
  m_Left -= room;
  return record;
}

SettingField* FieldArena::MakeField(FieldData* record, int size) {
  return ::new (reinterpret_cast<unsigned char*>(record) + FieldOffset(size))
      SettingField(record, size, true);
}

void ReleaseField(SettingField* field) {
  if (field->m_bInArena) {
    field->~SettingField();
  } else {
    delete field;
  }
}

}  // namespace CommonInterfaces
