// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "common_interfaces/settings_field.h"
#include "scene/api.h"

namespace scene {

// How a field of the settings is shown to people. The C interface hands out the numbers: frozen.
enum class SettingKind : int {
  kSwitch = 0,  // each value 0 or 1
  kSum = 1,     // of the powers of two among the choices
  kWhole = 2,
  kReal = 3,
  kChoice = 4,  // one of the choices
  kRange = 5,   // what a filter lets pass: from and to
  kOther = 6    // favourites, lists of classes
};

// How a panel shows a setting.
struct SettingForm {
  SettingKind kind;
  const char* choices = "";                      // "0,1,2"; static text
  std::optional<unsigned> title = std::nullopt;  // its name in the string table
};

// What the names of the fields mean stands with ShownKinds (shown_kinds.h) and ObjectFilter.
SCENE_API SettingForm FindSettingForm(const CommonInterfaces::SettingField& field);

}  // namespace scene
