// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a field holds: its life, its values, its file form. Undo is in field_undo.cpp, queries in
// field_queries.cpp.
#include "common_interfaces/settings_field.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "common_interfaces/string_table.h"
#include "settings/field_record.h"
#include "settings/short_values.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

// Most fields hold one number: the compiler knows how to copy and compare those.
void CopyValues(void* to, const void* from, unsigned size) {
  switch (size) {
    case 1:
      std::memcpy(to, from, 1);
      break;
    case 4:
      std::memcpy(to, from, 4);
      break;
    case 8:
      std::memcpy(to, from, 8);
      break;
    default:
      std::memmove(to, from, size);
  }
}

void CopyOut(void* out, const unsigned char* values, unsigned size) {
  if (IsShort(size)) {
    StoreShort(out, LoadShort(values, size), size);
  } else {
    std::memmove(out, values, size);
  }
}

bool AreEqual(const void* a, const void* b, unsigned size) {
  switch (size) {
    case 1:
      return std::memcmp(a, b, 1) == 0;
    case 4:
      return std::memcmp(a, b, 4) == 0;
    case 8:
      return std::memcmp(a, b, 8) == 0;
    default:
      return std::memcmp(a, b, size) == 0;
  }
}

[[gnu::cold, gnu::noinline]] void PrintUnknownType() {
  QX4Strings strings;
  const char* const message = QX4Strings::GetString(0, false);
  if (message) PrintDebugString("%s", message);
}

unsigned char WidthOf(unsigned type) {
  const unsigned char width = FieldElementWidth(type);
  if (width == 0) PrintUnknownType();
  return width;
}

inline unsigned ValuesSize(const FieldData& data, int recordSize) {
  const unsigned width = WidthOf(data.type);
  const unsigned claimed = data.size * width;
  const auto room = static_cast<unsigned>(recordSize - kFieldHeaderSize);
  return claimed <= room ? claimed : room - room % width;
}

}  // namespace

bool SettingField::m_sOldSettings = false;
unsigned SettingField::m_sNameChanges = 0;
std::uint64_t SettingField::m_sChanges = 0;

SettingField::SettingField(MFile* file, const FieldData* data, unsigned size) {
  if (!data) {
    ReadRecord(file);
  } else if (size >= kFieldHeaderSize && size <= kMaxFieldRecordSize) {
    m_RecordSize = static_cast<int>(size);
    m_pFieldData = CopyFieldData(data, m_RecordSize);
  } else if (size == 0) {
    m_RecordSize = 0;
  } else {
    // A shorter record has no header to work on; a longer one could be written, but no file with it be read
    // again.
    PrintDebugString("Bad parameter 'size = %u' in function SettingField::SettingField\n", size);
  }
}

SettingField::SettingField(const SettingField& other) : m_RecordSize(0) {
  if (!other.m_pFieldData) return;
  m_RecordSize = other.m_RecordSize;
  m_pFieldData = CopyFieldData(other.m_pFieldData, m_RecordSize);
  m_bModified = other.m_bModified;
}

SettingField SettingField::operator=(const SettingField& other) {
  const SettingField result(other);
  Assign(other);
  return result;
}

void SettingField::Assign(const SettingField& other) {
  if (other.m_pFieldData && m_RecordSize != other.m_RecordSize) {
    SettingField copy(other);
    TakeRecord(copy);
    return;
  }
  ++m_sChanges;
  const int earlierName = GetNameId();
  DeleteQuery();
  if (other.m_pFieldData) {
    if (this != &other) {
      std::memcpy(static_cast<void*>(m_pFieldData), other.m_pFieldData,
                  static_cast<std::size_t>(m_RecordSize));
    }
    m_bModified = other.m_bModified;
  } else {
    // The record is deliberately not released: callers may still hold what they got from it, and this path is
    // the rare one. One would trip over it with a leak checker; see tests/support/lsan.supp. A record in the
    // field's own block stays until the field goes.
    m_pFieldData = nullptr;
    m_bRecordBeside = false;
    m_RecordSize = 0;
    m_bModified = false;
  }
  NoteNameChange(earlierName);
}

void SettingField::TakeRecord(SettingField& from) {
  const int earlierName = GetNameId();
  DeleteQuery();
  ReplaceRecord(std::exchange(from.m_pFieldData, nullptr), from.m_RecordSize);
  m_bModified = from.m_bModified;
  NoteNameChange(earlierName);
}

// m_pSavedData is deliberately not released: an undo that nobody asked for outlives its field. Whoever stores
// values restores them before the field dies; see tests/support/lsan.supp for those who do not.
SettingField::~SettingField() {
  if (!m_bRecordBeside) FreeFieldData(m_pFieldData);
  DeleteQuery();
}

void SettingField::SetNameId(int nameId) {
  const int earlier = GetNameId();
  if (m_pFieldData) m_pFieldData->nameId = nameId;
  NoteNameChange(earlier);
}

// Everything that may leave another name ends here.
void SettingField::NoteNameChange(int earlier) {
  if (GetNameId() != earlier) ++m_sNameChanges;
}

unsigned SettingField::GetSize() const {
  return m_pFieldData ? HeldElements(*m_pFieldData, m_RecordSize) : 0;
}

bool SettingField::Read(MFile* file) {
  const int earlierName = GetNameId();
  const bool ok = ReadRecord(file);
  NoteNameChange(earlierName);
  return ok;
}

bool SettingField::ReadRecord(MFile* file) {
  FieldRecord record;
  OwnMemory memory;
  const bool ok = file && ReadFieldRecord(*file, m_sOldSettings, memory, record);
  // The record goes, and a query of it would no longer answer to the modified flag.
  DeleteQuery();
  ReplaceRecord(record.data, record.size);
  return ok;
}

bool SettingField::Write(MFile* file) const {
  const auto write = [file](const void* bytes, unsigned size) { return file->Write(bytes, size) == size; };
  return file && m_RecordSize >= 0 && WriteFieldRecord(write, {m_pFieldData, m_RecordSize});
}

unsigned SettingField::GetDataSize() const {
  return m_pFieldData ? ValuesSize(*m_pFieldData, m_RecordSize) : 0;
}

bool SettingField::GetData(void* out) const {
  if (!out || !m_pFieldData) return true;
  const unsigned size = ValuesSize(*m_pFieldData, m_RecordSize);
  if (size > 0) CopyOut(out, m_pFieldData->data, size);
  return true;
}

bool SettingField::SetData(const void* in, int count) {
  if (!m_pFieldData) return false;
  if (count != -1) return Resize(in, count);
  return ReplaceBytes(m_pFieldData->data, in, GetDataSize());
}

// Deliberately always false, with the modified flag untouched: whoever resizes marks the change.
bool SettingField::Resize(const void* in, int count) {
  const int width = GetTypeSize();
  const long long length = m_RecordSize + (static_cast<long long>(count) - GetSize()) * width;
  if (count < 0 || count > 0xFFFF || length > kMaxFieldRecordSize) {
    PrintDebugString("Bad parameter 'count = %d' in function SettingField::SetData\n", count);
    return false;
  }
  const auto bytes = static_cast<std::size_t>(count) * static_cast<std::size_t>(width);
  if (!in && bytes > 0) return false;

  const int newLength = static_cast<int>(length);
  FieldData* const record = AllocateFieldData(newLength);
  std::memcpy(static_cast<void*>(record), m_pFieldData,
              static_cast<std::size_t>(std::min(m_RecordSize, newLength)));
  if (bytes > 0) std::memcpy(record->data, in, bytes);
  record->size = static_cast<unsigned short>(count);
  ReplaceRecord(record, newLength);
  return false;
}

bool SettingField::SetCompareStatus(unsigned char status) {
  return m_pFieldData && ReplaceBytes(&m_pFieldData->compareStatus, &status, 1);
}

bool SettingField::GetElement(void* outData, unsigned inIndex) const {
  const unsigned offset = GetOffset(inIndex);
  if (offset == kNoOffset) return false;
  const unsigned size = GetTypeSize();
  if (outData && size > 0) CopyValues(outData, m_pFieldData->data + offset, size);
  return true;
}

bool SettingField::SetElement(const void* inData, unsigned inIndex) {
  const unsigned offset = GetOffset(inIndex);
  if (offset == kNoOffset) return false;
  return ReplaceBytes(m_pFieldData->data + offset, inData, GetTypeSize());
}

unsigned char SettingField::GetTypeSize() const { return WidthOf(GetType()); }

unsigned SettingField::GetOffset(unsigned inIndex) const {
  if (inIndex >= GetSize()) {
    PrintDebugString("Bad parameter 'inIndex = %d' in function SettingField::GetOffset\n",
                     static_cast<int>(inIndex));
    return kNoOffset;
  }
  return GetTypeSize() * inIndex;
}

// Every setter ends here: a change is reported only when a byte differs.
bool SettingField::ReplaceBytes(unsigned char* target, const void* in, unsigned size) {
  if (!in || size == 0 || AreEqual(target, in, size)) return false;
  CopyValues(target, in, size);
  m_bModified = true;
  ++m_sChanges;
  return true;
}

void SettingField::ReplaceRecord(FieldData* record, int recordSize) {
  ++m_sChanges;
  if (!m_bRecordBeside) FreeFieldData(m_pFieldData);
  m_bRecordBeside = false;
  m_pFieldData = record;
  m_RecordSize = recordSize;
}

void SettingField::Swap() {
  if (!m_pFieldData) return;
  ++m_sChanges;
  const auto reverse = [](void* bytes, std::size_t size) {
    std::reverse(static_cast<unsigned char*>(bytes), static_cast<unsigned char*>(bytes) + size);
  };
  reverse(&m_pFieldData->section, 4);
  reverse(&m_pFieldData->condition, 4);
  reverse(&m_pFieldData->size, 2);
  // The record's length says how many values there are: `size` is in the wrong order either before or after.
  const unsigned width = GetTypeSize();
  if (width < 2) return;
  unsigned left = static_cast<unsigned>(m_RecordSize - kFieldHeaderSize) / width;
  for (unsigned char* value = m_pFieldData->data; left > 0; --left, value += width) reverse(value, width);
}

}  // namespace CommonInterfaces
