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

// One change, as --set has it:
//
//   SECTION:on  SECTION:off             the whole section
//   SECTION.FIELD=VALUE[,VALUE...]      all values of a field, as many as it has
//   SECTION.FIELD[INDEX]=VALUE          one of them, counted from 0
//   SECTION.FIELD:on  SECTION.FIELD:off whether the field takes part as a filter; may stand behind values
//
// A value is a number that the field's element type holds, for real numbers with "deg" behind it for degrees
// that are kept in radians. FIELD is a name, or "@" and the hexadecimal name id. Nothing is changed when the
// text is not wholly good: the result is then a bad option whose line names the text and what is accepted.
ViewResult ChangeSetting(const std::string& text, CommonInterfaces::SettingsData& settings);

// A bad option, with one line that says why, for a change of a field that no picture follows.
ViewResult CheckActs(const std::string& text);

// Keeps the settings as the container's own block of the file, which is replaced whole; other blocks in it
// stay. False when that fails: `error` is then one line that names the file, and the file is as it was.
bool SaveSettings(CommonInterfaces::SettingsData& settings, const std::string& file, std::string& error);

}  // namespace skyview
