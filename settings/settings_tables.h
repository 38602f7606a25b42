// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a container keeps beside its sections and fields: so that using them stays quick, and so that saving
// them loses nothing.
#pragma once

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

}  // namespace CommonInterfaces
