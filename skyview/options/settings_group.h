// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/option_group.h"
#include "skyview/options/view_group.h"

namespace skyview {

struct SettingsOptions {
  std::optional<std::string> settings;      // file with own settings
  std::vector<std::string> set;             // changes of settings, in their order
  std::vector<std::string> favourites;      // names of objects that the filters let pass
  std::optional<std::string> saveSettings;  // file to keep them in
};

extern const OptionGroup<SettingsOptions> kSettingsGroup;

// Throws Stop when the view restores a session, which has settings of its own.
void CheckSettings(const SettingsOptions& settings, const ViewOptions& view);

}  // namespace skyview
