// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What Read does with a block once it holds the defaults: fields [0, fieldCount) and section records
// [0, sectionCount) are the defaults, those behind them have just been read.
#include <algorithm>
#include <array>
#include <cstdint>

#include "common_interfaces/settings_data.h"
#include "settings/field_arena.h"
#include "settings/field_values.h"
#include "text/flat_table.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

std::uint64_t Key(const SettingField& field) {
  return std::uint64_t{field.GetSection()} << 32 | static_cast<unsigned>(field.GetNameId());
}

// The fields that users add to, of one section code.
struct ListedObjects {
  unsigned code;
  std::vector<const SettingField*> fields;
};

bool IsMoon(const SettingField& field) {
  int kind = 0;
  return LoadInt(field, 0, kind) && kind == FourCC("moon");
}

// In the order in which they are inserted: favourites, and in the section of moons the fields that describe
// moons. None is a copy of another code's.
std::array<ListedObjects, 4> CollectListedObjects(const std::vector<SettingField*>& fields) {
  const auto moons = static_cast<unsigned>(FourCC("moon"));
  std::array<ListedObjects, 4> listed{ListedObjects{static_cast<unsigned>(FourCC("astr")), {}},
                                      {static_cast<unsigned>(FourCC("comt")), {}},
                                      {static_cast<unsigned>(FourCC("scft")), {}},
                                      {moons, {}}};
  for (const SettingField* field : fields)
    for (ListedObjects& objects : listed)
      if (field->GetSection() == objects.code &&
          (objects.code == moons ? IsMoon(*field) : IsFavourite(*field)))
        objects.fields.push_back(field);
  return listed;
}

}  // namespace

void SettingsData::ReplaceDefaults(int fieldCount, int sectionCount) {
  for (int i = 0; i < fieldCount; ++i) ReleaseField(GetFieldAt(i));
  m_Fields.erase(m_Fields.begin(), m_Fields.begin() + fieldCount);
  m_Sections.erase(m_Sections.begin(), m_Sections.begin() + sectionCount);
}

void SettingsData::Merge(int fieldCount, int sectionCount) {
  const std::vector<SettingField*> justRead(m_Fields.begin() + fieldCount, m_Fields.end());
  TakeOwnValues(fieldCount);

  int inserted = 0;
  for (const ListedObjects& listed : CollectListedObjects(m_Fields))
    inserted += InsertCopies(listed.code, listed.fields, fieldCount, inserted, sectionCount);

  // Those very fields, which still stand in their order: copies may stand between them.
  auto gone = justRead.begin();
  auto kept = m_Fields.begin();
  for (SettingField* field : m_Fields) {
    if (gone != justRead.end() && field == *gone) {
      ++gone;
    } else {
      *kept++ = field;
    }
  }
  m_Fields.erase(kept, m_Fields.end());
  for (SettingField* field : justRead) ReleaseField(field);
  KeepOnlyStatuses(sectionCount);
}

// Every default field takes the record of the first just-read field of its section and name, provided that
// type and count are the same; otherwise it keeps its own, even if a later field would fit.
void SettingsData::TakeOwnValues(int fieldCount) {
  FlatTable<const SettingField*> own;
  own.Reserve(m_Fields.size() - static_cast<std::size_t>(fieldCount));
  for (int i = fieldCount; i < GetFieldCount(); ++i) own.Insert(Key(*GetFieldAt(i)), GetFieldAt(i));

  for (int i = 0; i < fieldCount; ++i) {
    SettingField& field = *GetFieldAt(i);
    const SettingField* const source = own.Find(Key(field));
    if (source && source->GetType() == field.GetType() && source->GetSize() == field.GetSize())
      field.Assign(*source);
  }
}

// Copies go to the start of the first section of that code. Those of the defaults are copied as well:
// deliberate, so that a default favourite which the own block has too stands there three times, and twice
// more after each further save. Readers of favourites take the first of equal keys.
int SettingsData::InsertCopies(unsigned code, const std::vector<const SettingField*>& sources, int fieldCount,
                               int inserted, int sectionCount) {
  const int index = FindSection(code, false);
  if (index < 0) return 0;
  const int count = static_cast<int>(sources.size());
  if (count > kMaxFields - fieldCount - inserted) {
    PrintDebugString("No room for %d fields in section %x\n", count, code);
    return 0;
  }

  // A section that only the own block has counts its fields from the start of that block, behind the
  // defaults.
  SectionRecord& section = m_Sections[static_cast<std::size_t>(index)];
  const int place = std::min(section.first + (index < sectionCount ? 0 : fieldCount), GetFieldCount());
  std::vector<OwnedField> copies;
  copies.reserve(sources.size());
  for (const SettingField* source : sources) copies.emplace_back(new SettingField(*source));
  auto to = m_Fields.insert(m_Fields.begin() + place, copies.size(), nullptr);
  for (OwnedField& copy : copies) *to++ = copy.release();
  section.last = static_cast<unsigned short>(section.last + count);
  ShiftSectionsAfter(index, count);
  return count;
}

void SettingsData::KeepOnlyStatuses(int sectionCount) {
  // The last record of an id counts.
  FlatTable<int> own;  // index + 1
  for (int i = GetSectionCount() - 1; i >= sectionCount; --i) own.Insert(GetSectionAt(i)->id, i + 1);
  for (int i = 0; i < sectionCount; ++i) {
    SectionRecord& section = m_Sections[static_cast<std::size_t>(i)];
    if (const int place = own.Find(section.id)) section.status = GetSectionAt(place - 1)->status;
  }
  m_Sections.resize(static_cast<std::size_t>(sectionCount));
}

}  // namespace CommonInterfaces
