// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_block.h"

#include <algorithm>
#include <cstring>

#include "settings/field_record.h"
#include "utils/bytes.h"
#include "utils/file.h"

namespace CommonInterfaces {

namespace {

// The smallest readable field: its length and the header of its record.
constexpr int kSmallestField = kFieldLengthSize + kFieldHeaderSize;

int RestOfFile(const MFile& file) { return std::max(0, file.GetLength() - file.Tell()); }

}  // namespace

SettingsHeader ReadSettingsHeader(MFile& file) {
  SettingsHeader header;
  unsigned char bytes[4] = {};
  header.present = file.Read(bytes, sizeof bytes) == sizeof bytes &&
                   std::memcmp(bytes, kSettingsFileTag, sizeof kSettingsFileTag) == 0;
  if (header.present && file.Read(bytes, sizeof bytes) == sizeof bytes) header.version = LoadLE32(bytes);
  return header;
}

bool FindBlock(MFile& file, unsigned owner, unsigned id) {
  unsigned char key[kBlockKeySize];
  StoreLE32(key, owner);
  StoreLE32(key + 4, id);
  return file.Search(key, kBlockKeySize);
}

bool ReadSectionRecords(MFile& file, std::vector<SectionRecord>& sections) {
  unsigned char bytes[2];
  if (file.Read(bytes, sizeof bytes) != sizeof bytes) return false;
  const int count = static_cast<short>(LoadLE16(bytes));
  if (count < 0 || count > RestOfFile(file) / kSectionRecordSize) return false;

  std::vector<unsigned char> records(static_cast<std::size_t>(count) * kSectionRecordSize);
  const auto size = static_cast<unsigned>(records.size());
  if (file.Read(records.data(), size) != size) return false;
  sections.reserve(sections.size() + static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i)
    sections.push_back(LoadSectionRecord(records.data() + i * kSectionRecordSize));
  return true;
}

bool ReadFieldRecords(MFile& file, FieldArena& arena, std::vector<SettingField*>& fields) {
  unsigned char bytes[4];
  if (file.Read(bytes, sizeof bytes) != sizeof bytes) return false;
  const int count = static_cast<int>(LoadLE32(bytes));
  if (count < 0) return false;

  // A count that lies is not an error by itself: the fields that are there are read before the end of the
  // file.
  fields.reserve(fields.size() +
                 static_cast<std::size_t>(std::min(count, RestOfFile(file) / kSmallestField)));
  BufferedFile source(file);
  for (int i = 0; i < count; ++i) {
    FieldRecord record;
    if (!ReadFieldRecord(source, SettingField::IsOldSettings(), arena, record) || !record.data) return false;
    fields.push_back(arena.MakeField(record.data, record.size));
  }
  return true;
}

SectionRecord LoadSectionRecord(const unsigned char* from) {
  return {LoadLE32(from), LoadLE32(from + 4), LoadLE16(from + 8), LoadLE16(from + 10), from[12]};
}

void StoreSectionRecord(unsigned char* to, const SectionRecord& section) {
  StoreLE32(to, section.id);
  StoreLE32(to + 4, section.alias);
  StoreLE16(to + 8, section.first);
  StoreLE16(to + 10, section.last);
  to[12] = section.status;
}

}  // namespace CommonInterfaces
