// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a container keeps beside its sections and fields: so that using them stays quick, and so that saving
// them loses nothing.
#pragma once

#include <utility>
#include <vector>

#include "settings/field_arena.h"
#include "settings/field_index.h"
#include "settings/field_insertions.h"
#include "utils/incomplete_files.h"

namespace CommonInterfaces {

struct SettingsData::Tables {
  std::vector<FieldArena> arenas;  // of the blocks that were read
  FieldIndex index;
  FlatTable<bool*> changedFlags;  // into m_SectionChanged, which never loses an entry
  FieldInsertions waiting;        // fields that m_Fields does not hold yet: Fields() puts them there
  IncompleteFiles incomplete;     // since the last Read
};

// What a container holds, kept aside while another content is made in it: what cannot be finished for lack
// of memory comes to nothing, and what there was is back. Takes no memory itself.
class SettingsData::SetAside {
 public:
  // The container is empty then.
  explicit SetAside(SettingsData& settings)
      : m_Settings(settings),
        m_Version(settings.m_Version),
        m_WasUnmarked(settings.m_SectionChanged.empty()) {
    Exchange();
  }
  ~SetAside() {
    if (m_IsDropped) Exchange();
    m_Settings.DeleteFields();
    Exchange();
    if (m_IsDropped) return;
    m_Settings.m_Version = m_Version;
    m_Settings.m_bLoadingDefaults = false;
    if (m_WasUnmarked) m_Settings.m_SectionChanged.clear();
  }
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;

  // The new content is whole: what was kept goes.
  void Drop() { m_IsDropped = true; }

 private:
  void Exchange() {
    Tables& tables = *m_Settings.m_Tables;
    m_Sections.swap(m_Settings.m_Sections);
    m_Fields.swap(m_Settings.m_Fields);
    m_Arenas.swap(tables.arenas);
    std::swap(m_Waiting, tables.waiting);
    std::swap(m_Incomplete, tables.incomplete);
    std::swap(m_AimQuery, m_Settings.m_pAimQuery);
    std::swap(m_CurSection, m_Settings.m_CurSection);
    tables.index.Forget();
  }

  SettingsData& m_Settings;
  const unsigned m_Version;
  const bool m_WasUnmarked;
  bool m_IsDropped = false;
  std::vector<SectionRecord> m_Sections;
  std::vector<SettingField*> m_Fields;
  std::vector<FieldArena> m_Arenas;
  FieldInsertions m_Waiting;
  IncompleteFiles m_Incomplete;
  BaseQuery* m_AimQuery = nullptr;
  int m_CurSection = -1;
};

}  // namespace CommonInterfaces
