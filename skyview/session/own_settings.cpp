// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/own_settings.h"

#include <filesystem>
#include <vector>

#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/settings_field.h"
#include "scene/favourites.h"
#include "scene/object_filter.h"
#include "scene/shown_kinds.h"
#include "skyview/options/setting_text.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/path.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace skyview {
namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

// Stops at the first part of a change that is not good.
struct BadSetting {
  std::string why;
};

ViewResult BadFile(const std::string& message) { return {Failure::kBadData, message}; }

std::vector<std::string> ListSections(const SettingsData& settings) {
  std::vector<std::string> names;
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    names.push_back(scene::GetCodeText(static_cast<int>(settings.GetSectionAt(i)->id)));
  }
  return names;
}

std::vector<std::string> ListFields(const SettingsData& settings, unsigned section) {
  std::vector<std::string> names;
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const SettingField* field = settings.GetFieldAt(i);
    if (field->GetSection() == section) names.push_back(scene::GetFieldTitle(field->GetNameId()));
  }
  return names;
}

unsigned FindSection(const std::string& name, const SettingsData& settings) {
  const int code = GetFOURCC(name.c_str());
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    if (code != -1 && settings.GetSectionAt(i)->id == static_cast<unsigned>(code))
      return static_cast<unsigned>(code);
  }
  const std::vector<std::string> all = ListSections(settings), near = FindNearNames(name, all);
  throw BadSetting{"there is no section '" + name + "', wants " +
                   (near.empty() ? "one of " + JoinNames(all) : "for example " + JoinNames(near))};
}

SettingField& FindField(unsigned section, const std::string& name, int nameId, SettingsData& settings) {
  const unsigned before = settings.SetCurSection(section);
  SettingField* field = settings.GetAtField(section, nameId, false);
  settings.SetCurSection(before);
  if (field) return *field;
  const std::vector<std::string> all = ListFields(settings, section), near = FindNearNames(name, all);
  throw BadSetting{"the section " + scene::GetCodeText(static_cast<int>(section)) + " has no field '" + name +
                   "', wants " +
                   (near.empty() ? "one of " + JoinNames(all) : "for example " + JoinNames(near))};
}

// The bytes of the values, or of the one element that the change names.
std::vector<unsigned char> ReadValues(const SettingText& change, const SettingField& field) {
  const unsigned wanted = change.index ? 1 : field.GetSize();
  if (change.index && *change.index >= field.GetSize()) {
    throw BadSetting{"the field has " + std::to_string(field.GetSize()) + " values, counted from 0"};
  }
  const std::string form = std::to_string(wanted) + (wanted == 1 ? " value, " : " values, each ");
  std::vector<unsigned char> bytes;
  for (const auto& value : change.values) {
    if (!AppendSettingValue(field.GetType(), value, bytes)) {
      throw BadSetting{"'" + value + "' does not fit, wants " + form + DescribeElementType(field.GetType())};
    }
  }
  if (change.values.size() == wanted) return bytes;
  throw BadSetting{std::to_string(change.values.size()) + " given, wants " + form +
                   DescribeElementType(field.GetType())};
}

void ChangeField(const SettingText& change, unsigned section, SettingsData& settings) {
  const int nameId = change.GetNameId();
  SettingField& field = FindField(section, change.field, nameId, settings);
  const bool canFilter =
      field.GetCondition() != scene::kNoCondition || field.GetType() == CommonInterfaces::kFieldBytes;
  if (change.on && !canFilter) {
    throw BadSetting{"the field is a plain setting, no filter; wants its values, " + change.field + "=VALUE"};
  }
  if (!change.values.empty()) {
    const std::vector<unsigned char> bytes = ReadValues(change, field);
    const unsigned before = settings.SetCurSection(section);
    if (change.index) {
      settings.SetFieldElement(section, nameId, bytes.data(), static_cast<int>(*change.index));
    } else {
      settings.SetField(nameId, bytes.data());
    }
    settings.SetCurSection(before);
  }
  if (change.on) settings.SetFieldStatus(section, nameId, *change.on);
}

}  // namespace

ViewResult LoadSettings(const std::optional<std::string>& file, SettingsData& settings) {
  std::string reason;
  const std::string defaults = ZentharPath::GetPath("filters.data");
  if (!defaults.empty() && !IsBoundedFile(defaults.c_str(), reason)) return BadFile(defaults + ": " + reason);
  if (!settings.Read(nullptr)) return BadFile("filters.data: missing from the data root, or damaged");
  if (!file) return {};
  const std::string path = ResolveInput(*file);
  if (path.empty()) return BadFile(*file + ": not found, neither here nor in the data root");
  if (!IsBoundedFile(path.c_str(), reason)) return BadFile(path + ": " + reason);
  if (!SettingsData::HoldsBlock(path.c_str(), settings.GetOwner(), settings.GetID())) {
    return BadFile(path + ": holds no settings");
  }
  if (!settings.Read(path.c_str())) return BadFile(path + ": the settings are damaged");
  scene::TakeFavourites(path, settings);
  return {};
}

ViewResult ChangeSetting(const std::string& text, SettingsData& settings) {
  try {
    const auto change = ParseSettingText(text);
    if (!change) throw BadSetting{std::string("wants ") + kSettingForm};
    const unsigned section = FindSection(change->section, settings);
    if (!change->field.empty()) {
      ChangeField(*change, section, settings);
    } else {
      settings.SetSectionStatus(section, *change->on);
    }
    return {};
  } catch (const BadSetting& bad) {
    return {Failure::kBadOption, "--set '" + text + "': " + bad.why};
  }
}

ViewResult CheckActs(const std::string& text) {
  const auto change = ParseSettingText(text);
  if (!change || change->field.empty()) return {};
  const auto section = static_cast<unsigned>(GetFOURCC(change->section.c_str()));
  const char* const reason = scene::FindUndrawnReason(section, change->GetNameId());
  if (!reason) return {};
  return {Failure::kBadOption, "--set '" + text + "': changes nothing that this program draws: " + reason};
}

bool SaveSettings(SettingsData& settings, const std::string& file, std::string& error) {
  if (settings.Save(std::filesystem::absolute(file).string().c_str())) return true;
  error = file + ": the settings cannot be saved there";
  return false;
}

}  // namespace skyview
