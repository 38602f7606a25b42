// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/record_reader.h"

#include <algorithm>

#include "utils/bytes.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::FieldElementWidth;
using CommonInterfaces::kFieldHeaderSize;

constexpr std::size_t kNameEnd = 8;  // where both layouts are alike again, in the current one

// The record from its type code on: type 0, size 1, condition 3, compare status 7, query section 8, values
// 12.
std::string_view BehindName(std::string_view record, RecordLayout layout) {
  return record.substr(kNameEnd + (layout == RecordLayout::kOld ? kOldLayoutExcess : 0));
}

bool IsText(std::string_view name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) >= ' '; });
}

}  // namespace

std::size_t GetRecordHeaderSize(RecordLayout layout) {
  return kFieldHeaderSize + (layout == RecordLayout::kOld ? kOldLayoutExcess : 0);
}

bool FitsLayout(std::string_view record, RecordLayout layout) {
  const std::size_t header = GetRecordHeaderSize(layout);
  if (record.size() < header) return false;
  const std::string_view rest = BehindName(record, layout);
  const std::size_t width = FieldElementWidth(static_cast<unsigned char>(rest[0]));
  if (width == 0 || header + width * LoadLE16(rest.data() + 1) != record.size()) return false;
  return layout == RecordLayout::kCurrent || IsText(GetOldName(record));
}

std::string_view GetOldName(std::string_view record) {
  const std::string_view name = record.substr(kOldNameOffset, kOldNameSize);
  return name.substr(0, name.find('\0'));
}

FieldText DecodeRecord(std::string_view record, RecordLayout layout, const FieldNames& names,
                       unsigned& section) {
  FieldText field;
  section = LoadLE32(record.data());
  if (layout == RecordLayout::kOld) {
    field.name = GetOldName(record);
    field.nameId = GetUniqueID(field.name.c_str());
  } else {
    field.nameId = static_cast<int>(LoadLE32(record.data() + kOldNameOffset));
    field.name = names.NameOf(field.nameId);
  }
  const std::string_view rest = BehindName(record, layout);
  field.type = static_cast<unsigned char>(rest[0]);
  field.size = LoadLE16(rest.data() + 1);
  field.condition = LoadLE32(rest.data() + 3);
  field.compareStatus = static_cast<unsigned char>(rest[7]);
  field.querySection = LoadLE32(rest.data() + 8);
  field.values = rest.substr(12);
  return field;
}

}  // namespace skydata
