// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The packed record of one settings field: a 20-byte header and, right behind it, the values. The same bytes
// stand in memory and in settings files, so every number here is frozen. File format:
// docs/formats/field_record.md.
#pragma once

#include <cstddef>

namespace CommonInterfaces {

// Element type codes, kept in files: never renumber. Values are little-endian.
enum FieldType : unsigned char {
  kFieldInt8 = 0,    // 1 byte, signed
  kFieldUInt8 = 1,   // 1 byte, unsigned
  kFieldInt16 = 2,   // 2 bytes, signed
  kFieldUInt16 = 3,  // 2 bytes, unsigned
  kFieldInt32 = 4,   // 4 bytes, signed
  kFieldUInt32 = 5,  // 4 bytes, unsigned
  kFieldFloat = 6,   // 4 bytes, IEEE 754 binary32
  kFieldDouble = 7,  // 8 bytes, IEEE 754 binary64
  kFieldBytes = 8,   // 1 byte that never takes part in queries of its own (favourites)
};

// The condition that marks a field of type code 1 as a label list: element 0 selects one of the elements
// behind it. It is the only condition that the library itself gives a meaning to. Kept in files.
constexpr unsigned kLabelListCondition = 0x4000;

// A query section of this value stands for "the field's own section". Kept in files.
constexpr unsigned kOwnQuerySection = 0xFFFFFFFF;

#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wc99-extensions"
#endif
#pragma pack(push, 1)
// Little-endian, without gaps, at any address. A record of n elements is exactly 20 + n * width bytes long.
struct FieldData {
  unsigned section;             // the section (group of fields) that the field belongs to
  int nameId;                   // GetUniqueID of the field's name
  unsigned char type;           // a FieldType
  unsigned short size;          // number of elements in data
  unsigned condition;           // copied into every query made from the field, for the query's consumer
  unsigned char compareStatus;  // not 0: the field takes part in filtering
  unsigned querySection;        // the section that the field is queried under, or kOwnQuerySection
  // The values. A member of no length is an extension of C++ that every compiler we build with has; it keeps
  // sizeof(FieldData) at the length of the header.
  __extension__ unsigned char data[];
};
#pragma pack(pop)
#if defined(__clang__)
#pragma clang diagnostic pop
#endif

constexpr int kFieldHeaderSize = 20;
// The longest record that can be read: 65535 bytes and the header.
constexpr int kMaxFieldRecordSize = 65535 + kFieldHeaderSize;

static_assert(sizeof(FieldData) == kFieldHeaderSize && alignof(FieldData) == 1);
static_assert(offsetof(FieldData, section) == 0 && offsetof(FieldData, nameId) == 4);
static_assert(offsetof(FieldData, type) == 8 && offsetof(FieldData, size) == 9);
static_assert(offsetof(FieldData, condition) == 11 && offsetof(FieldData, compareStatus) == 15);
static_assert(offsetof(FieldData, querySection) == 16);

// Bytes of one element of that type code, 0 for a code that is none. Cannot fail, prints nothing.
constexpr unsigned char FieldElementWidth(unsigned type) {
  switch (type) {
    case kFieldInt8:
    case kFieldUInt8:
    case kFieldBytes:
      return 1;
    case kFieldInt16:
    case kFieldUInt16:
      return 2;
    case kFieldInt32:
    case kFieldUInt32:
    case kFieldFloat:
      return 4;
    case kFieldDouble:
      return 8;
    default:
      return 0;
  }
}

}  // namespace CommonInterfaces
