// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "settings/settings_bytes.h"

namespace memory_tests {

inline std::string StateOf(const CommonInterfaces::SettingField& field) {
  using Access = CommonInterfaces::SettingFieldTestAccess;
  return Access::RecordBytes(field) + (field.IsOk() ? " modified " : " none ") +
         std::to_string(Access::IsModified(field)) + std::to_string(Access::StoreState(field)) +
         std::to_string(Access::SavedData(field) != nullptr);
}

// Sections and fields as bytes, where every field is found, and the flags.
inline std::string StateOf(CommonInterfaces::SettingsData& settings) {
  std::string state = "current " + std::to_string(settings.GetCurSection()) + " version " +
                      std::to_string(settings.GetVersion()) + " id " + std::to_string(settings.GetID()) +
                      "\n";
  for (const std::string& section : test_support::SectionsOf(settings)) state += section + '\n';
  const unsigned current = settings.GetCurSection();
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const CommonInterfaces::SettingField& field = *settings.GetFieldAt(i);
    const CommonInterfaces::SettingField* const found =
        settings.GetAtField(field.GetSection(), field.GetNameId(), false);
    state += StateOf(field) + " found " + std::to_string(found == &field) +
             (settings.IsSectionChanged(field.GetSection()) ? " changed\n" : "\n");
  }
  settings.SetCurSection(current);
  return state;
}

}  // namespace memory_tests
