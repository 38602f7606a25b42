// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_record.h"

#include <algorithm>
#include <cstring>

#include "common_interfaces/settings_field.h"
#include "settings/field_arena.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

constexpr int kOldNameSize = 32;
constexpr int kTypeOffset = 8;  // where section and name end and both layouts are alike
// An old record holds 32 bytes of name where a current one holds 4 bytes of name id.
constexpr int kOldLayoutExcess = kOldNameSize - 4;

template <class Source>
bool ReadLength(Source& file, int& length) {
  unsigned char bytes[kFieldLengthSize];
  if (file.Read(bytes, kFieldLengthSize) < kFieldLengthSize) return false;
  length = static_cast<int>(LoadLE32(bytes));
  return length >= 0 && length <= kMaxFieldRecordSize;
}

// Makes a record and reads its bytes from `offset` to its end, or releases it.
template <class Source, class Memory>
bool ReadRest(Source& file, Memory& memory, int size, int offset, FieldRecord& record) {
  FieldData* const data = memory.Allocate(size);
  const auto count = static_cast<unsigned>(size - offset);
  if (file.Read(reinterpret_cast<unsigned char*>(data) + offset, count) < count) {
    memory.Free(data);
    return false;
  }
  record = {data, size};
  return true;
}

template <class Source, class Memory>
bool ReadCurrentLayout(Source& file, Memory& memory, int length, FieldRecord& record) {
  if (length == 0) {
    record = {nullptr, 0};
    return true;
  }
  if (length < kFieldHeaderSize) return false;
  return ReadRest(file, memory, length, 0, record);
}

template <class Source, class Memory>
bool ReadOldLayout(Source& file, Memory& memory, int length, FieldRecord& record) {
  const int size = length - kOldLayoutExcess;
  if (size < kFieldHeaderSize) return false;
  // A short read of these two needs no test of its own: the rest of the record is then short as well.
  unsigned char section[4] = {};
  char name[kOldNameSize + 1] = {};  // the name may fill its 32 bytes without a terminator
  file.Read(section, sizeof section);
  file.Read(name, kOldNameSize);
  if (!ReadRest(file, memory, size, kTypeOffset, record)) return false;
  record.data->section = LoadLE32(section);
  record.data->nameId = ::GetUniqueID(name);
  return true;
}

}  // namespace

FieldData* AllocateFieldData(int size) {
  return reinterpret_cast<FieldData*>(new unsigned char[static_cast<std::size_t>(size)]);
}

void FreeFieldData(FieldData* data) { delete[] reinterpret_cast<unsigned char*>(data); }

FieldData* CopyFieldData(const FieldData* data, int size) {
  FieldData* const copy = AllocateFieldData(size);
  std::memcpy(static_cast<void*>(copy), data, static_cast<std::size_t>(size));
  return copy;
}

template <class Source, class Memory>
bool ReadFieldRecord(Source& source, bool oldLayout, Memory& memory, FieldRecord& record) {
  record = {};
  int length = 0;
  if (!ReadLength(source, length)) return false;
  return oldLayout ? ReadOldLayout(source, memory, length, record)
                   : ReadCurrentLayout(source, memory, length, record);
}

template bool ReadFieldRecord(MFile& source, bool oldLayout, OwnMemory& memory, FieldRecord& record);
template bool ReadFieldRecord(BufferedFile& source, bool oldLayout, FieldArena& memory, FieldRecord& record);

SettingField* MakeFieldOfCopy(const FieldData* data, int size) {
  auto* const block =
      static_cast<unsigned char*>(::operator new(sizeof(SettingField) + static_cast<std::size_t>(size)));
  auto* const record = reinterpret_cast<FieldData*>(block + sizeof(SettingField));
  std::memcpy(static_cast<void*>(record), data, static_cast<std::size_t>(size));
  return ::new (block) SettingField(record, size, false);
}

}  // namespace CommonInterfaces
