// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_index.h"

#include <algorithm>
#include <tuple>

#include "utils/contained_call.h"

namespace CommonInterfaces {

namespace {

// Whether the record says exactly what its run is. One that was cut would grow by itself with the container.
bool IsWhole(const SectionRecord& section, FieldRun run) {
  return section.first == run.begin && static_cast<unsigned short>(section.last + 1) == run.end;
}

bool AreOrderly(const std::vector<SectionRecord>& sections, int count) {
  int end = 0;
  for (const SectionRecord& section : sections) {
    const FieldRun run = RunOf(section, count);
    if (!IsWhole(section, run) || run.begin < end) return false;
    end = run.end;
  }
  return true;
}

}  // namespace

FieldRun RunOf(const SectionRecord& section, int count) {
  const int begin = std::min<int>(section.first, count);
  const int end = section.last == 0xFFFF ? 0 : section.last + 1;
  return {begin, std::max(begin, std::min(end, count))};
}

void FieldIndex::ForgetWhatIsStale() {
  if (!IsStale()) return;
  m_FieldsKnown = m_AllKnown = false;
  m_NameChanges = SettingField::m_sNameChanges;
}

void FieldIndex::Forget() { m_SectionsKnown = m_FieldsKnown = m_AllKnown = false; }

void FieldIndex::GatherSections(const std::vector<SectionRecord>& sections) {
  m_ById.Clear();
  m_ByIdOrAlias.Clear();
  for (std::size_t i = 0; i < sections.size(); ++i) {
    const auto place = static_cast<int>(i) + 1;
    m_ById.Insert(sections[i].id, place);
    m_ByIdOrAlias.Insert(sections[i].id, place);
    m_ByIdOrAlias.Insert(sections[i].alias, place);
  }
  m_SectionsKnown = true;
}

void FieldIndex::GatherFields(const std::vector<SectionRecord>& sections,
                              const std::vector<SettingField*>& fields) {
  ForgetWhatIsStale();
  const int count = static_cast<int>(fields.size());
  m_InSections.Clear();
  ForgetCopies();
  m_Runs.clear();
  m_Places.clear();
  m_Orderly = AreOrderly(sections, count);
  if (m_Orderly) {
    m_InSections.Reserve(fields.size());
    for (int section = 0; section < static_cast<int>(sections.size()); ++section) {
      const FieldRun run = RunOf(sections[static_cast<std::size_t>(section)], count);
      for (int i = run.begin; i < run.end; ++i) {
        SettingField* const field = fields[static_cast<std::size_t>(i)];
        m_InSections.Insert(Key(section, field->GetNameId()), field);
      }
    }
  } else {
    for (const SectionRecord& section : sections) m_Runs.push_back(RunOf(section, count));
    for (int i = 0; i < count; ++i) {
      SettingField* const field = fields[static_cast<std::size_t>(i)];
      m_Places.push_back({field->GetNameId(), i, field});
    }
    std::sort(m_Places.begin(), m_Places.end(), [](const Place& a, const Place& b) {
      return std::tie(a.nameId, a.index) < std::tie(b.nameId, b.index);
    });
  }
  m_FieldsKnown = true;
}

void FieldIndex::GatherAllFields(const std::vector<SettingField*>& fields) {
  ForgetWhatIsStale();
  m_All.Clear();
  m_All.Reserve(fields.size());
  for (SettingField* field : fields) m_All.Insert(static_cast<unsigned>(field->GetNameId()), field);
  m_AllKnown = true;
}

SettingField* FieldIndex::FindInRun(int section, int nameId) const {
  const FieldRun run = m_Runs[static_cast<std::size_t>(section)];
  const auto found = std::lower_bound(m_Places.begin(), m_Places.end(), std::tuple(nameId, run.begin),
                                      [](const Place& place, const std::tuple<int, int>& wanted) {
                                        return std::tie(place.nameId, place.index) < wanted;
                                      });
  return found != m_Places.end() && found->nameId == nameId && found->index < run.end ? found->field
                                                                                      : nullptr;
}

void FieldIndex::KeepCopy(int section, int nameId, const SettingField& field) {
  const unsigned size = field.GetDataSize();
  if (!IsShort(size) || FindInSection(section, nameId) != &field) return;
  m_Copies.Keep(Key(section, nameId), SettingField::m_sChanges, m_InSections.GetCount(),
                LoadShort(field.m_pFieldData->data, size), size);
}

void FieldIndex::NoteNewSection(unsigned id, int section) {
  m_SectionsKnown = RunsThrough([&] {
    m_ById.Insert(id, section + 1);
    m_ByIdOrAlias.Insert(id, section + 1);  // an earlier section with that alias stays the first
  });
}

void FieldIndex::NoteNewField(int section, SettingField* field) {
  if (m_Orderly) {
    ForgetCopies();
    const auto insert = [&] { m_InSections.Insert(Key(section, field->GetNameId()), field); };
    if (!RunsThrough(insert)) m_FieldsKnown = false;
  } else {
    m_FieldsKnown = false;
  }
  // Which of two fields comes first is asked for more rarely than fields are made.
  bool isInserted = false;
  const auto insert = [&] { isInserted = m_All.Insert(static_cast<unsigned>(field->GetNameId()), field); };
  if (m_AllKnown) m_AllKnown = RunsThrough(insert) && isInserted;
}

void FieldIndex::NoteDeletedField(int section, int nameId, SettingField* next) {
  if (m_Orderly) {
    ForgetCopies();
    m_InSections.Erase(Key(section, nameId));
    if (next) m_InSections.Insert(Key(section, nameId), next);
  } else {
    m_FieldsKnown = false;
  }
  m_AllKnown = false;
}

}  // namespace CommonInterfaces
