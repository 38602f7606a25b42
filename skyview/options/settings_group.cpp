// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/settings_group.h"

#include "skyview/options/stop.h"

namespace skyview {
namespace {

bool Add(const std::string& text, std::vector<std::string>& texts) {
  texts.push_back(text);
  return true;  // what it names is not known before there are settings and catalogs
}

constexpr OptionRow<SettingsOptions> kRows[] = {
    {{"--settings", "FILE", "own settings kept in this file, over the defaults"},
     Times::kOnce,
     [](const std::string& text, SettingsOptions& own) { return Put(ParseName(text), own.settings); }},
    {{"--set", "SECTION.FIELD=VALUE",
      "change a setting for this run, for example star.VisMagnitude=-2,3:on; may be given again"},
     Times::kAgain,
     [](const std::string& text, SettingsOptions& own) { return Add(text, own.set); }},
    {{"--favourite", "NAME", "show only favourites of the kind of this object; may be given again"},
     Times::kAgain,
     [](const std::string& text, SettingsOptions& own) { return Add(text, own.favourites); }},
    {{"--save-settings", "FILE", "keep the settings of this run in this file, in place of those there"},
     Times::kOnce,
     [](const std::string& text, SettingsOptions& own) { return Put(ParseName(text), own.saveSettings); }}};

}  // namespace

const OptionGroup<SettingsOptions> kSettingsGroup = {"Settings", kRows, nullptr};

void CheckSettings(const SettingsOptions& settings, const ViewOptions& view) {
  if (view.session && settings.settings)
    throw Stop{kBadOption, "--session: holds settings, wants no --settings beside it"};
}

}  // namespace skyview
