// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Field records for tests, put together byte by byte without the library's own record type.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "common_interfaces/settings_field.h"

namespace test_support {

inline std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (int value : values) bytes += static_cast<char>(value);
  return bytes;
}

inline std::string LittleEndian(unsigned long long value, int width) {
  std::string bytes;
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(value >> (8 * i));
  return bytes;
}

inline std::string Int32s(std::initializer_list<int> values) {
  std::string bytes;
  for (int value : values) bytes += LittleEndian(static_cast<unsigned>(value), 4);
  return bytes;
}

// What a record is made of. `size` is written as it stands, whatever the values hold.
struct RecordParts {
  unsigned section = 0x706C6E74;  // "plnt"
  int nameId = 77;
  unsigned char type = 1;
  unsigned size = 0;
  unsigned condition = 5;
  unsigned char compareStatus = 1;
  unsigned querySection = 0xFFFFFFFF;
  std::string values;

  std::string Tail() const {
    return LittleEndian(type, 1) + LittleEndian(size, 2) + LittleEndian(condition, 4) +
           LittleEndian(compareStatus, 1) + LittleEndian(querySection, 4) + values;
  }
  std::string Current() const {
    return LittleEndian(section, 4) + LittleEndian(static_cast<unsigned>(nameId), 4) + Tail();
  }
  std::string Old(std::string name) const {
    name.resize(32);
    return LittleEndian(section, 4) + name + Tail();
  }
};

inline std::string WithLength(std::string_view record) {
  return LittleEndian(record.size(), 4).append(record);
}

inline CommonInterfaces::SettingField FieldOf(std::string_view record) {
  // One byte off, so that no value of the record stands at an aligned address before it is copied.
  const std::string shifted = std::string("#").append(record);
  return {nullptr, reinterpret_cast<const CommonInterfaces::FieldData*>(shifted.data() + 1),
          static_cast<unsigned>(record.size())};
}

inline CommonInterfaces::SettingField FieldOf(const RecordParts& parts) { return FieldOf(parts.Current()); }

// A field of 32-bit signed elements, section "plnt", name id 77, condition 5, switched on.
inline RecordParts IntParts(std::initializer_list<int> values) {
  RecordParts parts;
  parts.type = 4;
  parts.size = static_cast<unsigned>(values.size());
  parts.values = Int32s(values);
  return parts;
}

// A field of 8-bit unsigned elements, otherwise alike.
inline RecordParts ByteParts(std::initializer_list<int> values) {
  RecordParts parts;
  parts.size = static_cast<unsigned>(values.size());
  parts.values = Bytes(values);
  return parts;
}

// All values of a field, by GetData.
inline std::string DataOf(const CommonInterfaces::SettingField& field) {
  std::string data(std::size_t{field.GetSize()} * CommonInterfaces::FieldElementWidth(field.GetType()), '#');
  EXPECT_TRUE(field.GetData(data.data()));
  return data;
}

}  // namespace test_support

namespace CommonInterfaces {

// The doors that SettingField opens to tests.
struct SettingFieldTestAccess {
  static bool IsModified(const SettingField& field) { return field.m_bModified; }
  static void ClearModified(SettingField& field) { field.m_bModified = false; }
  static int RecordSize(const SettingField& field) { return field.m_RecordSize; }
  static FieldData* Record(const SettingField& field) { return field.m_pFieldData; }
  static const unsigned char* SavedData(const SettingField& field) { return field.m_pSavedData; }
  static int StoreState(const SettingField& field) { return field.m_StoreState; }
  static BaseQuery* Query(const SettingField& field) { return field.m_pQuery; }
  static unsigned char TypeSize(const SettingField& field) { return field.GetTypeSize(); }
  static unsigned Offset(const SettingField& field, unsigned index) { return field.GetOffset(index); }
  static void Swap(SettingField& field) { field.Swap(); }
  // The whole record as it lies in memory.
  static std::string RecordBytes(const SettingField& field) {
    if (!field.m_pFieldData) return {};
    return {reinterpret_cast<const char*>(field.m_pFieldData), static_cast<std::size_t>(field.m_RecordSize)};
  }
};

}  // namespace CommonInterfaces
