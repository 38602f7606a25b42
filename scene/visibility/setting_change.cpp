// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_change.h"

#include <vector>

#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/settings_field.h"
#include "scene/visibility/object_filter.h"
#include "scene/visibility/setting_text.h"
#include "scene/visibility/shown_kinds.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr char kForm[] =
    "wants SECTION.FIELD=VALUE[,VALUE...], SECTION.FIELD[INDEX]=VALUE, "
    "SECTION.FIELD:on|off or SECTION:on|off";

std::vector<std::string> ListSections(const SettingsData& settings) {
  std::vector<std::string> names;
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    names.push_back(GetCodeText(static_cast<int>(settings.GetSectionAt(i)->id)));
  }
  return names;
}

std::vector<std::string> ListFields(const SettingsData& settings, unsigned section) {
  std::vector<std::string> names;
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const SettingField* field = settings.GetFieldAt(i);
    if (field->GetSection() == section) names.push_back(GetFieldTitle(field->GetNameId()));
  }
  return names;
}

// "one of A, B", or those of them that are nearly `name`.
std::string Propose(const std::string& name, const std::vector<std::string>& all) {
  const std::vector<std::string> near = FindNearNames(name, all);
  return near.empty() ? "one of " + JoinNames(all) : "for example " + JoinNames(near);
}

bool FindSection(const std::string& name, const SettingsData& settings, unsigned& section,
                 std::string& error) {
  const int code = GetFOURCC(name.c_str());
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    section = settings.GetSectionAt(i)->id;
    if (code != -1 && section == static_cast<unsigned>(code)) return true;
  }
  error = "there is no section '" + name + "', wants " + Propose(name, ListSections(settings));
  return false;
}

SettingField* FindField(unsigned section, const SettingText& change, SettingsData& settings,
                        std::string& error) {
  const unsigned before = settings.SetCurSection(section);
  SettingField* const field = settings.GetAtField(section, change.GetNameId(), false);
  settings.SetCurSection(before);
  if (!field) {
    error = "the section " + GetCodeText(static_cast<int>(section)) + " has no field '" + change.field +
            "', wants " + Propose(change.field, ListFields(settings, section));
  }
  return field;
}

// The bytes of the values, or of the one element that the change names.
bool ReadValues(const SettingText& change, const SettingField& field, std::vector<unsigned char>& bytes,
                std::string& error) {
  const unsigned wanted = change.index ? 1 : field.GetSize();
  if (change.index && *change.index >= field.GetSize()) {
    error = "the field has " + std::to_string(field.GetSize()) + " values, counted from 0";
    return false;
  }
  const std::string form = std::to_string(wanted) + (wanted == 1 ? " value, " : " values, each ") +
                           DescribeElementType(field.GetType());
  for (const auto& value : change.values) {
    if (!AppendSettingValue(field.GetType(), value, bytes)) {
      error = "'" + value + "' does not fit, wants " + form;
      return false;
    }
  }
  if (change.values.size() == wanted) return true;
  error = std::to_string(change.values.size()) + " given, wants " + form;
  return false;
}

bool ChangeField(const SettingText& change, unsigned section, SettingsData& settings, std::string& error) {
  SettingField* const field = FindField(section, change, settings, error);
  if (!field) return false;
  const bool canFilter =
      field->GetCondition() != kNoCondition || field->GetType() == CommonInterfaces::kFieldBytes;
  if (change.on && !canFilter) {
    error = "the field is a plain setting, no filter; wants its values, " + change.field + "=VALUE";
    return false;
  }
  std::vector<unsigned char> bytes;
  if (!change.values.empty() && !ReadValues(change, *field, bytes, error)) return false;
  const int nameId = change.GetNameId();
  if (!bytes.empty()) {
    const unsigned before = settings.SetCurSection(section);
    if (change.index) {
      settings.SetFieldElement(section, nameId, bytes.data(), static_cast<int>(*change.index));
    } else {
      settings.SetField(nameId, bytes.data());
    }
    settings.SetCurSection(before);
  }
  if (change.on) settings.SetFieldStatus(section, nameId, *change.on);
  return true;
}

}  // namespace

bool ChangeSetting(const std::string& text, SettingsData& settings, std::string& error) {
  const auto change = ParseSettingText(text);
  if (!change) {
    error = kForm;
    return false;
  }
  unsigned section = 0;
  if (!FindSection(change->section, settings, section, error)) return false;
  if (!change->field.empty()) return ChangeField(*change, section, settings, error);
  settings.SetSectionStatus(section, *change->on);
  return true;
}

const char* FindUndrawnReason(const std::string& text) {
  const auto change = ParseSettingText(text);
  if (!change || change->field.empty()) return nullptr;
  return FindUndrawnReason(static_cast<unsigned>(GetFOURCC(change->section.c_str())), change->GetNameId());
}

}  // namespace scene
