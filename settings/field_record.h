// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Packed records of settings fields: allocating them, and both layouts that files keep them in. File format:
// docs/formats/field_record.md.
#pragma once

#include "common_interfaces/field_data.h"
#include "settings/buffered_file.h"
#include "utils/bytes.h"
#include "utils/file.h"

namespace CommonInterfaces {

class SettingField;

constexpr int kFieldLengthSize = 4;

// What reading a record yields.
struct FieldRecord {
  FieldData* data = nullptr;  // the caller's to release; null when there is none
  int size = -1;              // bytes at data; -1 when reading failed
};

// An uninitialised record of `size` bytes, header included; size >= kFieldHeaderSize. Null stands for none.
FieldData* AllocateFieldData(int size);
void FreeFieldData(FieldData* data);
FieldData* CopyFieldData(const FieldData* data, int size);

// How many elements a record of `recordSize` bytes really holds: `size` of the header, unless that claims
// more. The values of an unknown type code have no length, so any number of them fits.
inline unsigned HeldElements(const FieldData& data, int recordSize) {
  const unsigned width = FieldElementWidth(data.type);
  const unsigned claimed = data.size;
  const auto room = static_cast<unsigned>(recordSize - kFieldHeaderSize);
  return claimed * width <= room ? claimed : room / width;
}

// Reads a length and a record that is at least a whole header and at most kMaxFieldRecordSize long. False
// when that fails: `record` is then {null, -1}. A length of 0 in the current layout is a record of no bytes,
// {null, 0}. The record stands where `memory` says: Allocate(size) gives an uninitialised one, Free takes it
// back. Source: MFile or BufferedFile, which stands behind the bytes that were read, wherever that is.
template <class Source, class Memory>
bool ReadFieldRecord(Source& source, bool oldLayout, Memory& memory, FieldRecord& record);

// For a record that its field releases.
struct OwnMemory {
  FieldData* Allocate(int size) { return AllocateFieldData(size); }
  void Free(FieldData* record) { FreeFieldData(record); }
};

// Writes a length and that many bytes: `write` takes bytes and tells whether it could. False when not all
// could be written.
template <class Write>
bool WriteFieldRecord(const Write& write, const FieldRecord& record) {
  unsigned char length[kFieldLengthSize];
  StoreLE32(length, static_cast<unsigned>(record.size));
  return write(length, sizeof length) &&
         (record.size == 0 || write(record.data, static_cast<unsigned>(record.size)));
}

// A field with a copy of the record, in one block of memory; the caller owns it.
SettingField* MakeFieldOfCopy(const FieldData* data, int size);

}  // namespace CommonInterfaces
