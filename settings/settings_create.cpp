// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Adding and deleting fields. The fields of a section lie in one run, so both move the runs of later
// sections.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/settings_block.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

void SettingsData::Reserve(int count) {
  const int room = std::min(count, kMaxFields - GetFieldCount());
  if (room > 0) m_Fields.reserve(m_Fields.size() + static_cast<std::size_t>(room));
}

int SettingsData::CreateField(const FieldData* data, int size, bool allowExisting) {
  if (!data || size < kFieldHeaderSize || size > kMaxFieldRecordSize) {
    PrintDebugString("Bad parameter 'size = %d' in function SettingsData::CreateField\n", data ? size : 0);
    return -1;
  }
  const int sectionIndex = FindSection(data->section, false);
  const int existing = sectionIndex < 0 ? -1 : FindInRun(GetRunOf(sectionIndex), data->nameId);
  if (existing >= 0) {
    // Minus zero is zero: the field at index 0 looks like a new one, deliberately. Callers take 0 as success.
    if (allowExisting) return -existing;
    PrintDebugString("Field %d in section %x already exist\n", data->nameId, data->section);
    return -1;
  }
  if (GetFieldCount() >= kMaxFields || (sectionIndex < 0 && GetSectionCount() >= kMaxFileSections)) {
    PrintDebugString("No room for field %d in section %x\n", data->nameId, data->section);
    return -1;
  }
  return sectionIndex < 0 ? AppendSection(data, size) : InsertIntoSection(sectionIndex, data, size);
}

int SettingsData::AppendSection(const FieldData* data, int size) {
  const auto index = static_cast<unsigned short>(GetFieldCount());
  m_Fields.push_back(new SettingField(nullptr, data, static_cast<unsigned>(size)));
  m_Sections.push_back({data->section, kNoSection, index, index, 0});
  return index;
}

int SettingsData::InsertIntoSection(int sectionIndex, const FieldData* data, int size) {
  if (m_Fields.size() == m_Fields.capacity()) m_Fields.reserve(m_Fields.size() + 100);
  const Run run = GetRunOf(sectionIndex);
  m_Fields.insert(m_Fields.begin() + run.end, new SettingField(nullptr, data, static_cast<unsigned>(size)));
  // Setting both ends changes a whole run by one at its end, and mends one that a file gave wrong.
  SectionRecord& section = m_Sections[static_cast<std::size_t>(sectionIndex)];
  section.first = static_cast<unsigned short>(run.begin);
  section.last = static_cast<unsigned short>(run.end);
  ShiftSectionsAfter(sectionIndex, 1);
  return run.end;
}

bool SettingsData::DeleteField(const char* name, int section) {
  const int sectionIndex = FindSection(static_cast<unsigned>(section), false);
  const int index = sectionIndex < 0 ? -1 : FindInRun(GetRunOf(sectionIndex), ::GetUniqueID(name));
  if (index < 0) return false;
  delete GetFieldAt(index);
  m_Fields.erase(m_Fields.begin() + index);
  SectionRecord& record = m_Sections[static_cast<std::size_t>(sectionIndex)];
  record.last = static_cast<unsigned short>(record.last - 1);
  ShiftSectionsAfter(sectionIndex, -1);
  return true;
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
