// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Adding and deleting fields. The fields of a section lie in one run, so both move the runs of later
// sections.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/field_arena.h"
#include "settings/field_record.h"
#include "settings/settings_block.h"
#include "settings/settings_tables.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

void SettingsData::Reserve(int count) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const int room = std::min(count, kMaxFields - GetFieldCount());
  if (room > 0) m_Fields.reserve(static_cast<std::size_t>(GetFieldCount() + room));
}

int SettingsData::CreateField(const FieldData* data, int size, bool allowExisting) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  if (!data || size < kFieldHeaderSize || size > kMaxFieldRecordSize) {
    PrintDebugString("Bad parameter 'size = %d' in function SettingsData::CreateField\n", data ? size : 0);
    return -1;
  }
  const int sectionIndex = FindSection(data->section, false);
  if (const SettingField* existing = sectionIndex < 0 ? nullptr : FindInSection(sectionIndex, data->nameId)) {
    // Minus zero is zero: the field at index 0 looks like a new one, deliberately. Callers take 0 as success.
    if (allowExisting) return -FindPlace(sectionIndex, existing);
    PrintDebugString("Field %d in section %x already exist\n", data->nameId, data->section);
    return -1;
  }
  if (GetFieldCount() >= kMaxFields || (sectionIndex < 0 && GetSectionCount() >= kMaxFileSections)) {
    PrintDebugString("No room for field %d in section %x\n", data->nameId, data->section);
    return -1;
  }
  OwnedField field(MakeFieldOfCopy(data, size));
  const int place =
      sectionIndex < 0 ? AppendSection(field.get()) : InsertIntoSection(sectionIndex, field.get());
  static_cast<void>(field.release());
  return place;
}

int SettingsData::AppendSection(SettingField* field) {
  const int place = GetFieldCount();
  const auto index = static_cast<unsigned short>(place);
  // Room first: with the field in its place nothing may fail any more.
  if (m_Sections.size() == m_Sections.capacity()) m_Sections.reserve(2 * m_Sections.size() + 1);
  m_Tables->waiting.Add(m_Fields, place, field);
  m_Sections.push_back({field->GetSection(), kNoSection, index, index, 0});
  m_Tables->index.NoteNewSection(field->GetSection(), GetSectionCount() - 1);
  m_Tables->index.NoteNewField(GetSectionCount() - 1, field);
  return place;
}

int SettingsData::InsertIntoSection(int sectionIndex, SettingField* field) {
  const FieldRun run = GetRunOf(sectionIndex);
  m_Tables->waiting.Add(m_Fields, run.end, field);
  // Setting both ends changes a whole run by one at its end, and mends one that a file gave wrong.
  SectionRecord& section = m_Sections[static_cast<std::size_t>(sectionIndex)];
  section.first = static_cast<unsigned short>(run.begin);
  section.last = static_cast<unsigned short>(run.end);
  ShiftSectionsAfter(sectionIndex, 1);
  m_Tables->index.NoteNewField(sectionIndex, field);
  return run.end;
}

bool SettingsData::DeleteField(const char* name, int section) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const int sectionIndex = FindSection(static_cast<unsigned>(section), false);
  SettingField* const field = sectionIndex < 0 ? nullptr : FindInSection(sectionIndex, ::GetUniqueID(name));
  if (!field) return false;
  const int place = FindPlace(sectionIndex, field);
  m_Tables->index.NoteDeletedField(sectionIndex, field->GetNameId(), FindNextOfName(sectionIndex, place));
  ReleaseField(field);
  Fields().erase(Fields().begin() + place);
  SectionRecord& record = m_Sections[static_cast<std::size_t>(sectionIndex)];
  record.last = static_cast<unsigned short>(record.last - 1);
  ShiftSectionsAfter(sectionIndex, -1);
  return true;
}

// The next field of the section that has the name of the field at `place`: a file may hold several.
SettingField* SettingsData::FindNextOfName(int sectionIndex, int place) const {
  const int nameId = GetFieldAt(place)->GetNameId();
  const FieldRun run = GetRunOf(sectionIndex);
  for (int i = place + 1; i < run.end; ++i)
    if (GetFieldAt(i)->GetNameId() == nameId) return GetFieldAt(i);
  return nullptr;
}

// Modulo 2^16, so that an index that a file gave wrong comes back to itself.
void SettingsData::ShiftSectionsAfter(int sectionIndex, int count) {
  for (auto i = static_cast<std::size_t>(sectionIndex) + 1; i < m_Sections.size(); ++i) {
    SectionRecord& section = m_Sections[i];
    section.first = static_cast<unsigned short>(section.first + count);
    section.last = static_cast<unsigned short>(section.last + count);
  }
}

}  // namespace CommonInterfaces
