// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Taking the values of a saved block over into the fields that a container already has.
#include "common_interfaces/settings_data.h"
#include "settings/settings_block.h"
#include "utils/file.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {

bool SettingsData::Restore(const char* fileName) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  MFile file;
  if (!fileName || !OpenForReading(fileName, file)) return false;
  const SettingsHeader header = ReadSettingsHeader(file);
  if (header.present && header.version != m_Version) return false;
  const bool found = FindBlock(file, m_Owner, m_ID);
  std::vector<SectionRecord> sections;
  if (!found || !ReadSectionRecords(file, sections)) {
    if (found || file.HasReadFailed()) NoteIncomplete(fileName);
    return false;
  }
  for (const SectionRecord& section : sections) SetSectionStatus(section.id, section.status);

  FieldArena arena;
  std::vector<SettingField*> fields;
  const bool result = ReadFieldRecords(file, arena, fields);
  if (!result || file.HasReadFailed()) NoteIncomplete(fileName);
  for (SettingField* saved : fields) {
    SettingField* const counterpart = GetAtField(saved->GetSection(), saved->GetNameId(), false);
    if (counterpart) counterpart->Assign(*saved);
    ReleaseField(saved);
  }
  return result;
}

}  // namespace CommonInterfaces
