// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings files put together byte by byte, apart from the code under test: docs/formats/settings_file.md.
#pragma once

#include <string>
#include <vector>

namespace skydata_test {

inline std::string Le16(unsigned value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}
inline std::string Le32(unsigned value) { return Le16(value & 0xFFFF) + Le16(value >> 16); }

inline const std::string kHeader1 = std::string("SREV") + Le32(1);
inline const std::string kStarBytes = "rats";          // the code "star" in the file
inline const std::string kKeyOfDefaults = "RTLFTLFD";  // ("FLTR", defaults)
inline const std::string kKeyOne = "RTLF" + Le32(1);   // ("FLTR", 1)
// Name ids by the rule of docs/formats/field_record.md, computed apart from this code.
constexpr unsigned kDraw = 0x7184CD2D;

// A section record of 13 bytes, without alias.
inline std::string Section(const std::string& id, unsigned first, unsigned last, int status = 1) {
  return id + Le32(0xFFFFFFFF) + Le16(first) + Le16(last) + static_cast<char>(status);
}

// A record of the current layout, behind its length. `size` elements are claimed.
inline std::string Record(const std::string& section, unsigned nameId, int type, unsigned size,
                          const std::string& values) {
  const std::string record = section + Le32(nameId) + static_cast<char>(type) + Le16(size) + Le32(0) + '\0' +
                             Le32(0xFFFFFFFF) + values;
  return Le32(static_cast<unsigned>(record.size())) + record;
}

// The same in the old layout.
inline std::string OldRecord(const std::string& section, std::string name, int type, unsigned size,
                             const std::string& values) {
  name.resize(32, '\0');
  const std::string record = section + name + static_cast<char>(type) + Le16(size) + Le32(0x4000) + '\x01' +
                             Le32(0xFFFFFFFF) + values;
  return Le32(static_cast<unsigned>(record.size())) + record;
}

inline std::string Block(const std::string& key, const std::vector<std::string>& sections,
                         const std::vector<std::string>& records) {
  std::string bytes = key + Le16(static_cast<unsigned>(sections.size()));
  for (const std::string& section : sections) bytes += section;
  bytes += Le32(static_cast<unsigned>(records.size()));
  for (const std::string& record : records) bytes += record;
  return bytes;
}

// 52 bytes: the block of one section "star" with the field Draw = u8 1; the section record stands at 10, the
// number of fields at 23, the field at 27 and its record at 31.
inline std::string SmallBlock(const std::string& key = kKeyOfDefaults) {
  return Block(key, {Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 1, 1, "\x01")});
}

}  // namespace skydata_test
