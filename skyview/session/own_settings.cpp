// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/own_settings.h"

#include <filesystem>

#include "scene/visibility/favourites.h"
#include "scene/visibility/setting_change.h"
#include "utils/path.h"
#include "utils/whole_file.h"

namespace skyview {
namespace {

using CommonInterfaces::SettingsData;

ViewResult BadFile(const std::string& message) { return {Failure::kBadData, message}; }
ViewResult BadChange(const std::string& text, const std::string& why) {
  return {Failure::kBadOption, "--set '" + text + "': " + why};
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
  std::string error;
  if (scene::ChangeSetting(text, settings, error)) return {};
  return BadChange(text, error);
}

ViewResult CheckActs(const std::string& text) {
  const char* const reason = scene::FindUndrawnReason(text);
  if (!reason) return {};
  return BadChange(text, std::string("changes nothing that this program draws: ") + reason);
}

bool SaveSettings(SettingsData& settings, const std::string& file, std::string& error) {
  if (settings.Save(std::filesystem::absolute(file).string().c_str())) return true;
  error = file + ": the settings cannot be saved there";
  return false;
}

}  // namespace skyview
