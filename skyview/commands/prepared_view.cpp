// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/prepared_view.h"

#include "skyview/commands/start.h"
#include "skyview/session/defaults.h"
#include "skyview/session/own_settings.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr unsigned kOwner = 1;  // of the camera and of the settings

// What the data of today cannot follow becomes a diagnostic line.
void RestoreSettings(const std::optional<scene::SessionCapsule>& session, Diagnostics& diagnostics,
                     CommonInterfaces::SettingsData& settings) {
  if (!session) return;
  std::vector<std::string> lost;
  scene::RestoreSettings(*session, settings, lost);
  for (const auto& line : lost) diagnostics.lines.push_back(line + "\n");
}

}  // namespace

PreparedView::PreparedView(const ViewOptions& options, const SettingsOptions& changes,
                           const std::optional<scene::SessionCapsule>& session, const Clock& clock,
                           Diagnostics& diagnostics)
    : settings(kOwner, FourCC("FLTR"), "filters.data"), camera(kOwner) {
  TellFaultsOfDefaults(diagnostics);
  Require(LoadSettings(changes.settings, settings));
  RestoreSettings(session, diagnostics, settings);
  for (const auto& change : changes.set) {
    Require(ChangeSetting(change, settings));
    Require(CheckActs(change));
  }
  camera.CreateDefault();
  camera.FillMagCorrectionsVector(&settings);
  Require(ApplyOptions(options, session, clock, diagnostics, camera));
}

void KeepSettings(const SettingsOptions& options, PreparedView& view) {
  std::string error;
  Require(!options.saveSettings || SaveSettings(view.settings, *options.saveSettings, error), error);
}

}  // namespace skyview
