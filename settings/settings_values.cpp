// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Values and statuses of fields and sections. A missing field has already been reported by the lookup.
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/settings_tables.h"
#include "utils/contained_call.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {

// The modify flag follows the last setter of all, deliberately: one that changes nothing clears it again.
// The value is set by then, so this must not fail: a section for which there is no memory to mark it counts
// as changed without a mark.
void SettingsData::NoteChange(bool changed, unsigned section) {
  s_ModifyFlag = changed;
  if (changed) static_cast<void>(RunsThrough([&] { SetSectionChanged(section, true); }));
}

bool SettingsData::GetField(int nameId, void* outData) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const FieldIndex& index = m_Tables->index;
  const bool copied = outData && m_CurSection >= 0 && index.KnowsSections() && index.KnowsFields() &&
                      index.CopyValues(m_CurSection, nameId, outData);
  return copied || GetFieldSlowly(nameId, outData);
}

bool SettingsData::GetFieldSlowly(int nameId, void* outData) {
  const SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  if (!field) return false;  // nor is there one without a current section
  m_Tables->index.KeepCopy(m_CurSection, nameId, *field);
  return field->GetData(outData);
}

bool SettingsData::GetField(const char* name, void* outData) {
  return GetField(::GetUniqueID(name), outData);
}

void SettingsData::SetField(int nameId, const void* inData) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  if (field) NoteChange(field->SetData(inData), GetCurSection());
}

void SettingsData::SetField(const char* name, const void* inData) { SetField(::GetUniqueID(name), inData); }

unsigned SettingsData::GetFieldType(int nameId) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  return field ? field->GetType() : 0xFFFFFFFFu;
}

void SettingsData::SetFieldElement(unsigned section, int nameId, const void* inData, int index) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  SettingField* const field = FindKeepingCurrent(section, nameId);
  if (field) NoteChange(field->SetElement(inData, static_cast<unsigned>(index)), section);
}

void SettingsData::SetFieldElement(int nameId, const void* inData, int index) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  if (field) NoteChange(field->SetElement(inData, static_cast<unsigned>(index)), GetCurSection());
}

bool SettingsData::GetFieldElement(int nameId, void* outData, int index) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  return field && field->GetElement(outData, static_cast<unsigned>(index));
}

void SettingsData::SetFieldStatus(unsigned section, int nameId, unsigned char status) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  SettingField* const field = FindKeepingCurrent(section, nameId);
  if (field) NoteChange(field->SetCompareStatus(status), section);
}

void SettingsData::SetFieldStatus(int nameId, unsigned char status) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  if (field) NoteChange(field->SetCompareStatus(status), GetCurSection());
}

unsigned char SettingsData::GetFieldStatus(int nameId) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const SettingField* const field = SettingsData::GetAtField(kNoSection, nameId, true);
  return field ? field->GetCompareStatus() : static_cast<unsigned char>(0);
}

void SettingsData::SetSectionStatus(unsigned section, unsigned char status) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const int index = FindSection(section, false);
  if (index < 0) return;
  SectionRecord& record = m_Sections[static_cast<std::size_t>(index)];
  s_ModifyFlag = record.status != status;
  record.status = status;
}

unsigned char SettingsData::GetSectionStatus(unsigned section, bool withAlias) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const SectionRecord* const record = GetSectionAt(FindSection(section, withAlias));
  if (!record) return 0;
  if (record->status != 0 || !withAlias) return record->status;
  // A section that is switched off still counts as on while it holds the aim object.
  return record->id == static_cast<unsigned>(m_AimObject.kind) ? 1 : 0;
}

bool SettingsData::SetSectionAlias(unsigned section, unsigned alias) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const int index = FindSection(section, false);
  if (index < 0) return false;
  m_Sections[static_cast<std::size_t>(index)].alias = alias;
  m_Tables->index.ForgetSections();
  return true;
}

}  // namespace CommonInterfaces
