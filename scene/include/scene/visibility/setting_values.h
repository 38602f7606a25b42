// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of settings as text that ChangeSetting reads back to the same bits, whatever the locale.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "scene/api.h"

namespace scene {

// The shortest text that reads back to the same bits; always with a point, never with a thousands separator.
SCENE_API std::string FormatExact(double value);

// "VALUE,VALUE": all values of the field. "" for a type that is none and for no values.
SCENE_API std::string FormatValues(const CommonInterfaces::SettingField& field);

// The changes that make `defaults` the same as `settings`: sections switched on or off, values, filters
// switched on or off. Fields that the defaults lack are left out.
SCENE_API std::vector<std::string> FindChanges(CommonInterfaces::SettingsData& settings,
                                               CommonInterfaces::SettingsData& defaults);

}  // namespace scene
