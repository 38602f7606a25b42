// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Finding sections and fields. Each kind of search stands here once: every other operation goes through
// these.
#include <algorithm>

#include "common_interfaces/settings_data.h"
#include "settings/field_values.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

namespace {

void PrintNoCurrentSection() { PrintDebugString("Current section in file filters.dat not define\n"); }

}  // namespace

int SettingsData::FindSection(unsigned id, bool withAlias) const {
  // "No alias" is not an alias that anything could be found by.
  const bool alias = withAlias && id != kNoSection;
  const auto found =
      std::find_if(m_Sections.begin(), m_Sections.end(), [id, alias](const SectionRecord& section) {
        return section.id == id || (alias && section.alias == id);
      });
  return found == m_Sections.end() ? -1 : static_cast<int>(found - m_Sections.begin());
}

// Indices come from files: the run is cut to the fields that exist.
SettingsData::Run SettingsData::GetRun(const SectionRecord& section) const {
  const int count = GetFieldCount();
  const int begin = std::min<int>(section.first, count);
  const int end = section.last == 0xFFFF ? 0 : section.last + 1;
  return {begin, std::max(begin, std::min(end, count))};
}

SettingsData::Run SettingsData::GetRunOf(int sectionIndex) const {
  return GetRun(m_Sections[static_cast<std::size_t>(sectionIndex)]);
}

int SettingsData::FindInRun(Run run, int nameId) const {
  for (int i = run.begin; i < run.end; ++i)
    if (GetFieldAt(i)->GetNameId() == nameId) return i;
  return -1;
}

SettingField* SettingsData::FindAnywhere(int nameId) const {
  return GetFieldAt(FindInRun({0, GetFieldCount()}, nameId));
}

SettingField* SettingsData::GetAtField(const SSO_ID& object, bool verbose) {
  if (object.kind != FourCC("plnt") && object.kind != FourCC("moon")) return nullptr;
  const unsigned previous = SetCurSection(static_cast<unsigned>(object.kind));
  if (m_CurSection < 0) {
    // The section that was current is deliberately not made current again here.
    if (verbose) PrintNoCurrentSection();
    return nullptr;
  }
  SettingField* last = nullptr;
  const Run run = GetRunOf(m_CurSection);
  for (int i = run.begin; i < run.end; ++i)
    if (Describes(*GetFieldAt(i), object)) last = GetFieldAt(i);
  if (previous != 0 && previous != kNoSection) SetCurSection(previous);
  return last;
}

SettingField* SettingsData::GetAtField(unsigned section, int nameId, bool verbose) {
  if (section != kNoSection) SetCurSection(section);
  if (m_CurSection < 0) {
    PrintNoCurrentSection();
    return nullptr;
  }
  const int index = FindInRun(GetRunOf(m_CurSection), nameId);
  if (index >= 0) return GetFieldAt(index);
  if (verbose)
    PrintDebugString("Bad field name id %d (section %x) in SettingsData::GetAtField\n", nameId,
                     GetCurSection());
  return section != kNoSection ? nullptr : FindAnywhere(nameId);
}

SettingField* SettingsData::FindKeepingCurrent(unsigned section, int nameId) {
  const int current = m_CurSection;
  SettingField* const field = GetAtField(section, nameId, true);
  m_CurSection = current;
  return field;
}

}  // namespace CommonInterfaces
