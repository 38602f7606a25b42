// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings of a run: read, changed, kept.
#pragma once

#include <optional>
#include <string>

#include "common_interfaces/settings_data.h"
#include "skyview/session/view_state.h"

namespace skyview {

// Loads the defaults of the container's file and, with `file`, the own settings kept there over them,
// favourites included. `file` is a file of the current folder, else a logical name below the roots.
ViewResult LoadSettings(const std::optional<std::string>& file, CommonInterfaces::SettingsData& settings);

// One change, as --set has it (scene/visibility/setting_change.h). A bad option, with a line that names the
// text, when it is not wholly good.
ViewResult ChangeSetting(const std::string& text, CommonInterfaces::SettingsData& settings);

// A bad option, with one line that says why, for a change of a field that no picture follows.
ViewResult CheckActs(const std::string& text);

// Keeps the settings as the container's own block of the file, which is replaced whole; other blocks in it
// stay. False when that fails: `error` is then one line that names the file, and the file is as it was.
bool SaveSettings(CommonInterfaces::SettingsData& settings, const std::string& file, std::string& error);

}  // namespace skyview
