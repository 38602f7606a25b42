// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Finding sections and fields of a container without walking them: hash tables that are gathered by the first
// question after a change. Creating and deleting a field are changes that the tables follow by themselves.
#pragma once

#include <vector>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/value_cache.h"
#include "text/flat_table.h"

namespace CommonInterfaces {

// Fields [begin, end) of a container.
struct FieldRun {
  int begin, end;
};

// The run of a section in a container of `count` fields. Indices come from files: the run is cut to the
// fields that exist.
FieldRun RunOf(const SectionRecord& section, int count);

// The answers are those of a walk, whatever the section records say: the first section record with that id
// (or alias), the first field with that name id in the run of a section, the first one of all.
//
// Runs are orderly when each is a whole one, empties included, and begins where the ones before it have
// ended. Every container that operations made is orderly, and so is every file that a container wrote. Then a
// field belongs to one section for good, and the tables know fields by section and name. In a damaged file
// runs may overlap: there the fields stand sorted by name and place, and each change means gathering again.
class FieldIndex {
 public:
  // What is known is forgotten: the caller has changed section ids or aliases, fields or their order.
  void Forget();
  void ForgetSections() { m_SectionsKnown = false; }

  // Questions about what is not known are not allowed; gather first. Gathering takes time in proportion to
  // what is gathered (with a logarithm where runs are not orderly).
  bool KnowsSections() const { return m_SectionsKnown; }
  bool KnowsFields() const { return m_FieldsKnown && !IsStale(); }
  bool KnowsAllFields() const { return m_AllKnown && !IsStale(); }
  void GatherSections(const std::vector<SectionRecord>& sections);
  void GatherFields(const std::vector<SectionRecord>& sections, const std::vector<SettingField*>& fields);
  void GatherAllFields(const std::vector<SettingField*>& fields);

  // Index of a section record; -1 when there is none.
  int FindSection(unsigned id, bool withAlias) const {
    // "No alias" is not an alias that anything could be found by.
    const bool alias = withAlias && id != SettingsData::kNoSection;
    return (alias ? m_ByIdOrAlias : m_ById).Find(id) - 1;
  }

  // Null when there is none.
  SettingField* FindInSection(int section, int nameId) const {
    return m_Orderly ? FindInOrderlySection(section, nameId) : FindInRun(section, nameId);
  }
  // The same, and null wherever runs are not orderly: nothing is called.
  SettingField* FindInOrderlySection(int section, int nameId) const {
    return m_InSections.Find(Key(section, nameId));
  }
  SettingField* FindAnywhere(int nameId) const { return m_All.Find(static_cast<unsigned>(nameId)); }

  // Copies the values of the field, when a copy of them has been kept and nothing has changed since. False
  // when it does nothing.
  bool CopyValues(int section, int nameId, void* out) const {
    return m_Copies.Load(Key(section, nameId), SettingField::m_sChanges, out);
  }
  // Keeps a copy of the values of that field, if they are short and it is the one of the section.
  void KeepCopy(int section, int nameId, const SettingField& field);

  // A section record was appended, while the sections are known; its id is that of no other.
  void NoteNewSection(unsigned id, int section);
  // The section, which had no field with that name, got one at its end.
  void NoteNewField(int section, SettingField* field);
  // The section lost the first field with that name; `next` is then the first, null when it was the only one.
  void NoteDeletedField(int section, int nameId, SettingField* next);

 private:
  struct Place {
    int nameId, index;
    SettingField* field;
  };

  // Other fields are found now.
  static void ForgetCopies() { ++SettingField::m_sChanges; }

  static std::uint64_t Key(int section, int nameId) {
    return static_cast<std::uint64_t>(section) << 32 | static_cast<unsigned>(nameId);
  }
  // Callers hold fields and may give them other names. They do so rarely enough to gather again.
  bool IsStale() const { return m_NameChanges != SettingField::m_sNameChanges; }
  void ForgetWhatIsStale();
  SettingField* FindInRun(int section, int nameId) const;

  bool m_SectionsKnown = false, m_FieldsKnown = false, m_AllKnown = false;
  unsigned m_NameChanges = 0;            // the process-wide count that the fields were gathered at
  FlatTable<int> m_ById, m_ByIdOrAlias;  // index + 1
  FlatTable<SettingField*> m_All;

  bool m_Orderly = true;
  FlatTable<SettingField*> m_InSections;  // orderly, else empty
  ValueCache m_Copies;                    // of values of fields in sections
  std::vector<FieldRun> m_Runs;           // not orderly: of each section,
  std::vector<Place> m_Places;            // and the fields by name id, then index
};

}  // namespace CommonInterfaces
