// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Finding sections and fields, and the current section. Each kind of search stands here once: every other
// operation goes through these.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "settings/field_values.h"
#include "settings/settings_tables.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

void PrintNoCurrentSection() { PrintDebugString("Current section in file filters.dat not define\n"); }

}  // namespace

std::vector<SettingField*>& SettingsData::Fields() const {
  if (!m_Tables->waiting.IsEmpty()) m_Tables->waiting.MakeIn(m_Fields);
  return m_Fields;
}

int SettingsData::GetFieldCount() const {
  return static_cast<int>(m_Fields.size()) + m_Tables->waiting.GetCount();
}

// The index, which knows sections and fields.
inline const FieldIndex& SettingsData::Index() const {
  FieldIndex& index = m_Tables->index;
  if (!index.KnowsSections()) index.GatherSections(m_Sections);
  if (!index.KnowsFields()) index.GatherFields(m_Sections, Fields());
  return index;
}

int SettingsData::FindSection(unsigned id, bool withAlias) const {
  FieldIndex& index = m_Tables->index;
  if (!index.KnowsSections()) index.GatherSections(m_Sections);
  return index.FindSection(id, withAlias);
}

FieldRun SettingsData::GetRunOf(int sectionIndex) const {
  return RunOf(m_Sections[static_cast<std::size_t>(sectionIndex)], GetFieldCount());
}

SettingField* SettingsData::FindInSection(int sectionIndex, int nameId) const {
  return Index().FindInSection(sectionIndex, nameId);
}

SettingField* SettingsData::FindAnywhere(int nameId) const {
  FieldIndex& index = m_Tables->index;
  if (!index.KnowsAllFields()) index.GatherAllFields(Fields());
  return index.FindAnywhere(nameId);
}

// The index of a field that the section has.
int SettingsData::FindPlace(int sectionIndex, const SettingField* field) const {
  const FieldRun run = GetRunOf(sectionIndex);
  const auto fields = Fields().begin();
  return static_cast<int>(std::find(fields + run.begin, fields + run.end, field) - fields);
}

unsigned SettingsData::GetCurSection() const {
  return m_CurSection < 0 ? 0 : m_Sections[static_cast<std::size_t>(m_CurSection)].id;
}

unsigned SettingsData::SetCurSection(unsigned section) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const unsigned previous = GetCurSection();
  m_CurSection = FindSection(section, false);
  return previous;
}

SettingField* SettingsData::GetAtField(const SSO_ID& object, bool verbose) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  if (object.kind != FourCC("plnt") && object.kind != FourCC("moon")) return nullptr;
  const unsigned previous = SetCurSection(static_cast<unsigned>(object.kind));
  if (m_CurSection < 0) {
    // The section that was current is deliberately not made current again here.
    if (verbose) PrintNoCurrentSection();
    return nullptr;
  }
  SettingField* last = nullptr;
  const FieldRun run = GetRunOf(m_CurSection);
  for (int i = run.begin; i < run.end; ++i)
    if (Describes(*GetFieldAt(i), object)) last = GetFieldAt(i);
  if (previous != 0 && previous != kNoSection) SetCurSection(previous);
  return last;
}

// What is asked for all the time: a field that is where it is looked for. The rest stands apart, so that this
// has no need to keep anything across a call.
SettingField* SettingsData::GetAtField(unsigned section, int nameId, bool verbose) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const FieldIndex& index = m_Tables->index;
  if (index.KnowsSections() && index.KnowsFields()) {
    if (section != kNoSection) m_CurSection = index.FindSection(section, false);
    if (m_CurSection >= 0) {
      if (SettingField* const field = index.FindInOrderlySection(m_CurSection, nameId)) return field;
    }
  }
  return GetAtFieldSlowly(section, nameId, verbose);
}

SettingField* SettingsData::GetAtFieldSlowly(unsigned section, int nameId, bool verbose) {
  Index();  // before anything changes: it may want memory
  if (section != kNoSection) SetCurSection(section);
  if (m_CurSection < 0) {
    PrintNoCurrentSection();
    return nullptr;
  }
  if (SettingField* const field = FindInSection(m_CurSection, nameId)) return field;
  if (verbose)
    PrintDebugString("Bad field name id %d (section %x) in SettingsData::GetAtField\n", nameId,
                     GetCurSection());
  return section != kNoSection ? nullptr : FindAnywhere(nameId);
}

SettingField* SettingsData::FindKeepingCurrent(unsigned section, int nameId) {
  const int current = m_CurSection;
  SettingField* const field = SettingsData::GetAtField(section, nameId, true);
  m_CurSection = current;
  return field;
}

}  // namespace CommonInterfaces
