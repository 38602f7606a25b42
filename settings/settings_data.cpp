// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The life of a settings container and its flags. The other operations are in the files
// settings_*.cpp beside this one, by subject.
#include "common_interfaces/settings_data.h"

#include "common_interfaces/queries.h"
#include "common_interfaces/settings_field.h"
#include "settings/settings_block.h"
#include "settings/settings_tables.h"
#include "utils/file.h"
#include "utils/one_thread.h"
#include "utils/path.h"
#include "utils/version.h"

namespace CommonInterfaces {

bool SettingsData::s_ModifyFlag = false;
unsigned SettingsData::s_WorkspaceVersion = 0;

SettingsData::SettingsData(unsigned id, unsigned owner, const char* fileName)
    : m_Owner(owner),
      m_FileName(ZentharPath::GetPath(fileName)),
      m_ID(id),
      m_Tables(std::make_unique<Tables>()) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  s_WorkspaceVersion = GetWorkspaceVersion();
  LoadCorrectionFields();
}

// The correction fields stay, deliberately: whoever took corrections from a container may keep them after it
// is gone. One would trip over it with a leak checker; see tests/support/lsan.supp.
SettingsData::~SettingsData() { DeleteFields(); }

SettingsData& SettingsData::operator=(const SettingsData& other) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  if (this == &other) return *this;
  SetAside earlier(*this);
  m_Sections = other.m_Sections;
  m_Fields.reserve(other.Fields().size());
  for (const SettingField* field : other.Fields()) m_Fields.push_back(new SettingField(*field));
  m_Tables->incomplete = other.m_Tables->incomplete;
  m_FileName = other.m_FileName;
  m_CurSection = other.m_CurSection;
  m_Owner = other.m_Owner;
  m_ID = other.m_ID;
  earlier.Drop();
  return *this;
}

// Everything that depends on the fields goes with them.
void SettingsData::DeleteFields() {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  for (SettingField* field : m_Fields) ReleaseField(field);
  m_Fields.clear();
  m_Tables->waiting.Release();
  m_Tables->arenas.clear();
  m_Tables->index.Forget();
  delete m_pAimQuery;
  m_pAimQuery = nullptr;
  m_Reserved.clear();
  m_Sections.clear();
  m_CurSection = -1;
}

void SettingsData::LoadCorrectionFields() {
  const std::string path = ZentharPath::GetPath("FilterCorrection.data");
  MFile file;
  if (path.empty() || !file.Open(path.c_str(), MFile::kRead)) return;
  const CurrentLayout always;
  static FieldArena& arena = *new FieldArena;  // it stays as its fields do
  std::vector<SectionRecord> skipped;
  if (FindBlock(file, m_Owner, kDefaultsTag) && ReadSectionRecords(file, skipped))
    ReadFieldRecords(file, arena, m_CorrectionFields);
}

void SettingsData::SetID(unsigned id) { m_ID = id; }

unsigned SettingsData::GetID() { return m_ID; }

// Reserved slots of the binary interface.
bool SettingsData::Read2(void* /*reserved*/) { return false; }

bool SettingsData::Write2(void* /*reserved*/) { return false; }

void SettingsData::SetSectionChanged(unsigned section, bool changed) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  if (section != kNoSection) {
    FlatTable<bool*>& flags = m_Tables->changedFlags;
    bool* flag = flags.Find(section);
    if (!flag) {
      flags.Reserve(flags.GetCount() + 1);
      flags.Insert(section, flag = &m_SectionChanged[section]);
    }
    *flag = changed;
  } else {
    for (auto& entry : m_SectionChanged) entry.second = changed;
  }
}

bool SettingsData::IsSectionChanged(unsigned section) const {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const auto found = m_SectionChanged.find(section);
  return found == m_SectionChanged.end() || found->second;
}

bool SettingsData::GetModifyFlag() { return s_ModifyFlag; }

void SettingsData::SetModifyFlag(bool modified) { s_ModifyFlag = modified; }

SettingField* SettingsData::GetFieldAt(int index) const {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  return index < 0 || index >= GetFieldCount() ? nullptr : Fields()[static_cast<std::size_t>(index)];
}

const SectionRecord* SettingsData::GetSectionAt(int index) const {
  return index < 0 || index >= GetSectionCount() ? nullptr : &m_Sections[static_cast<std::size_t>(index)];
}

const SettingField* SettingsData::GetCorrectionAt(int index) const {
  return index < 0 || index >= GetCorrectionCount() ? nullptr
                                                    : m_CorrectionFields[static_cast<std::size_t>(index)];
}

}  // namespace CommonInterfaces
