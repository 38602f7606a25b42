// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The pieces that settings files are made of: header, block key, section records, fields. File format:
// docs/formats/settings_file.md. Every count is held against what the file still holds before room is made.
#pragma once

#include <vector>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/field_arena.h"
#include "settings/field_record.h"

namespace CommonInterfaces {

constexpr unsigned char kSettingsFileTag[4] = {'S', 'R', 'E', 'V'};
constexpr int kSettingsHeaderSize = 8;
constexpr int kBlockKeySize = 8;
constexpr int kSectionRecordSize = 13;
constexpr int kMaxFileSections = 32767;  // the count of sections is a signed 16-bit number

struct SettingsHeader {
  bool present = false;
  unsigned version = 0;
};

// Reads the tag and, behind it, the version; without the tag only the four bytes in its place.
SettingsHeader ReadSettingsHeader(MFile& file);

// Looks for the key from the position on and leaves the position behind it, else where it was.
bool FindBlock(MFile& file, unsigned owner, unsigned id);

// Reads the section records of a block and appends them. False, with none appended, for a count that is
// missing, negative or larger than the rest of the file allows.
bool ReadSectionRecords(MFile& file, std::vector<SectionRecord>& sections);

// Reads the fields of a block into the arena and appends them; the caller owns them. False for a count that
// is missing or negative and at the first field that cannot be read; the fields before it are appended. The
// file then stands somewhere behind what was read.
bool ReadFieldRecords(MFile& file, FieldArena& arena, std::vector<SettingField*>& fields);

SectionRecord LoadSectionRecord(const unsigned char* from);
void StoreSectionRecord(unsigned char* to, const SectionRecord& section);

// Reads fields in the current layout while it lives, whatever the application has set.
class CurrentLayout {
 public:
  CurrentLayout() { SettingField::SetOldSettings(false); }
  ~CurrentLayout() { SettingField::SetOldSettings(m_WasOld); }
  CurrentLayout(const CurrentLayout&) = delete;
  CurrentLayout& operator=(const CurrentLayout&) = delete;

 private:
  const bool m_WasOld = SettingField::IsOldSettings();
};

}  // namespace CommonInterfaces
