// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What Read does with a block once it holds the defaults: fields [0, fieldCount) and section records
// [0, sectionCount) are the defaults, those behind them have just been read.
#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

#include "common_interfaces/settings_data.h"
#include "settings/field_values.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

std::uint64_t Key(const SettingField& field) {
  return std::uint64_t{field.GetSection()} << 32 | static_cast<unsigned>(field.GetNameId());
}

// The fields that users add to: favourites, and in the section of moons the fields that describe moons.
bool IsListedObject(const SettingField& field, unsigned code) {
  if (field.GetSection() != code) return false;
  if (code != static_cast<unsigned>(FourCC("moon"))) return IsFavourite(field);
  int kind = 0;
  return LoadInt(field, 0, kind) && kind == FourCC("moon");
}

}  // namespace

void SettingsData::ReplaceDefaults(int fieldCount, int sectionCount) {
  for (int i = 0; i < fieldCount; ++i) delete GetFieldAt(i);
  m_Fields.erase(m_Fields.begin(), m_Fields.begin() + fieldCount);
  m_Sections.erase(m_Sections.begin(), m_Sections.begin() + sectionCount);
}

void SettingsData::Merge(int fieldCount, int sectionCount) {
  const std::unordered_set<const SettingField*> justRead(m_Fields.begin() + fieldCount, m_Fields.end());
  TakeOwnValues(fieldCount);

  int inserted = 0;
  for (const int code : {FourCC("astr"), FourCC("comt"), FourCC("scft"), FourCC("moon")})
    inserted += InsertListedObjects(static_cast<unsigned>(code), fieldCount, inserted, sectionCount);

  // Those very fields: copies may stand between them.
  const auto isCopyOrDefault = [&](const SettingField* field) { return justRead.count(field) == 0; };
  const auto gone = std::stable_partition(m_Fields.begin(), m_Fields.end(), isCopyOrDefault);
  for (auto field = gone; field != m_Fields.end(); ++field) delete *field;
  m_Fields.erase(gone, m_Fields.end());
  KeepOnlyStatuses(sectionCount);
}

// Every default field takes the record of the first just-read field of its section and name, provided that
// type and count are the same; otherwise it keeps its own, even if a later field would fit.
void SettingsData::TakeOwnValues(int fieldCount) {
  std::unordered_map<std::uint64_t, const SettingField*> own;
  own.reserve(m_Fields.size() - static_cast<std::size_t>(fieldCount));
  for (int i = fieldCount; i < GetFieldCount(); ++i) own.try_emplace(Key(*GetFieldAt(i)), GetFieldAt(i));

  for (int i = 0; i < fieldCount; ++i) {
    SettingField& field = *GetFieldAt(i);
    const auto found = own.find(Key(field));
    if (found == own.end()) continue;
    const SettingField& source = *found->second;
    if (source.GetType() == field.GetType() && source.GetSize() == field.GetSize()) field = source;
  }
}

// Copies go to the start of the first section of that code. Those of the defaults are copied as well:
// deliberate, so that a default favourite which the own block has too stands there three times, and twice
// more after each further save. Readers of favourites take the first of equal keys.
int SettingsData::InsertListedObjects(unsigned code, int fieldCount, int inserted, int sectionCount) {
  const int index = FindSection(code, false);
  if (index < 0) return 0;
  std::vector<const SettingField*> sources;
  for (const SettingField* field : m_Fields)
    if (IsListedObject(*field, code)) sources.push_back(field);
  const int count = static_cast<int>(sources.size());
  if (count > kMaxFields - fieldCount - inserted) {
    PrintDebugString("No room for %d fields in section %x\n", count, code);
    return 0;
  }

  // A section that only the own block has counts its fields from the start of that block, behind the defaults
  // and what has been inserted since. Its record goes away with the block and needs no new indices.
  const bool isDefault = index < sectionCount;
  SectionRecord& section = m_Sections[static_cast<std::size_t>(index)];
  const int place = std::min(section.first + (isDefault ? 0 : fieldCount + inserted), GetFieldCount());
  std::vector<SettingField*> copies;
  copies.reserve(sources.size());
  for (const SettingField* source : sources) copies.push_back(new SettingField(*source));
  m_Fields.insert(m_Fields.begin() + place, copies.begin(), copies.end());
  if (isDefault) {
    section.last = static_cast<unsigned short>(section.last + count);
    ShiftSectionsAfter(index, count);
  }
  return count;
}

void SettingsData::KeepOnlyStatuses(int sectionCount) {
  std::unordered_map<unsigned, unsigned char> statuses;
  for (int i = sectionCount; i < GetSectionCount(); ++i) {
    const unsigned id =
        GetSectionAt(i)->id;  // by copy: no reference may be bound to a member of a packed record
    statuses[id] = GetSectionAt(i)->status;
  }
  m_Sections.resize(static_cast<std::size_t>(sectionCount));
  for (SectionRecord& section : m_Sections) {
    const unsigned id = section.id;
    const auto found = statuses.find(id);
    if (found != statuses.end()) section.status = found->second;
  }
}

}  // namespace CommonInterfaces
