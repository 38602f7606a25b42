// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_record.h"

#include <algorithm>
#include <cstring>

#include "common_interfaces/settings_field.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

constexpr int kOldNameSize = 32;
constexpr int kTypeOffset = 8;  // where section and name end and both layouts are alike
// An old record holds 32 bytes of name where a current one holds 4 bytes of name id.
constexpr int kOldLayoutExcess = kOldNameSize - 4;

FieldData* Allocate(RecordPlace place, int size) {
  if (place == RecordPlace::kAlone) return AllocateFieldData(size);
  void* const block = ::operator new(sizeof(SettingField) + static_cast<std::size_t>(size));
  return reinterpret_cast<FieldData*>(static_cast<unsigned char*>(block) + sizeof(SettingField));
}

void Free(RecordPlace place, FieldData* data) {
  if (place == RecordPlace::kAlone) {
    FreeFieldData(data);
  } else {
    ::operator delete(reinterpret_cast<unsigned char*>(data) - sizeof(SettingField));
  }
}

template <class Source>
bool ReadLength(Source& file, int& length) {
  unsigned char bytes[kFieldLengthSize];
  if (file.Read(bytes, kFieldLengthSize) < kFieldLengthSize) return false;
  length = static_cast<int>(LoadLE32(bytes));
  return length >= 0 && length <= kMaxFieldRecordSize;
}

// Makes a record and reads its bytes from `offset` to its end, or releases it.
template <class Source>
bool ReadRest(Source& file, RecordPlace place, int size, int offset, FieldRecord& record) {
  FieldData* const data = Allocate(place, size);
  const auto count = static_cast<unsigned>(size - offset);
  if (file.Read(reinterpret_cast<unsigned char*>(data) + offset, count) < count) {
    Free(place, data);
    return false;
  }
  record = {data, size};
  return true;
}

template <class Source>
bool ReadCurrentLayout(Source& file, RecordPlace place, int length, FieldRecord& record) {
  if (length == 0) {
    record = {nullptr, 0};
    return true;
  }
  if (length < kFieldHeaderSize) return false;
  return ReadRest(file, place, length, 0, record);
}

template <class Source>
bool ReadOldLayout(Source& file, RecordPlace place, int length, FieldRecord& record) {
  const int size = length - kOldLayoutExcess;
  if (size < kFieldHeaderSize) return false;
  // A short read of these two needs no test of its own: the rest of the record is then short as well.
  unsigned char section[4] = {};
  char name[kOldNameSize + 1] = {};  // the name may fill its 32 bytes without a terminator
  file.Read(section, sizeof section);
  file.Read(name, kOldNameSize);
  if (!ReadRest(file, place, size, kTypeOffset, record)) return false;
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

template <class Source>
bool ReadFieldRecord(Source& source, bool oldLayout, RecordPlace place, FieldRecord& record) {
  record = {};
  int length = 0;
  if (!ReadLength(source, length)) return false;
  return oldLayout ? ReadOldLayout(source, place, length, record)
                   : ReadCurrentLayout(source, place, length, record);
}

template bool ReadFieldRecord(MFile& source, bool oldLayout, RecordPlace place, FieldRecord& record);
template bool ReadFieldRecord(BufferedFile& source, bool oldLayout, RecordPlace place, FieldRecord& record);

SettingField* MakeField(FieldData* record, int size) {
  return ::new (reinterpret_cast<unsigned char*>(record) - sizeof(SettingField)) SettingField(record, size);
}

SettingField* MakeFieldOfCopy(const FieldData* data, int size) {
  FieldData* const copy = Allocate(RecordPlace::kBehindField, size);
  std::memcpy(static_cast<void*>(copy), data, static_cast<std::size_t>(size));
  return MakeField(copy, size);
}

}  // namespace CommonInterfaces
