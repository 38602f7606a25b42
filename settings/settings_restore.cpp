// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Taking the values of a saved block over into the fields that a container already has.
#include <utility>
#include <vector>

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

  FieldArena arena;
  std::vector<SettingField*> fields;
  const bool result = ReadFieldRecords(file, arena, fields);
  if (!result || file.HasReadFailed()) NoteIncomplete(fileName);
  AssignToCounterparts(fields);
  for (SettingField* saved : fields) ReleaseField(saved);
  for (const SectionRecord& section : sections) SetSectionStatus(section.id, section.status);
  return result;
}

// All memory that this wants it has before the first field changes. A record of the length that is there
// wants none.
void SettingsData::AssignToCounterparts(const std::vector<SettingField*>& fields) {
  const int current = m_CurSection;
  std::vector<SettingField*> counterparts;
  counterparts.reserve(fields.size());
  bool allFit = true;
  for (const SettingField* saved : fields) {
    SettingField* const counterpart = GetAtField(saved->GetSection(), saved->GetNameId(), false);
    counterparts.push_back(counterpart);
    allFit = allFit && (!counterpart || counterpart->m_RecordSize == saved->m_RecordSize);
  }
  const int lastFound = std::exchange(m_CurSection, current);
  std::vector<SettingField> copies;
  copies.reserve(allFit ? 0 : fields.size());
  if (!allFit)
    for (const SettingField* saved : fields) copies.push_back(*saved);
  m_CurSection = lastFound;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!counterparts[i]) continue;
    if (allFit) {
      counterparts[i]->Assign(*fields[i]);
    } else {
      counterparts[i]->TakeRecord(copies[i]);
    }
  }
}

}  // namespace CommonInterfaces
