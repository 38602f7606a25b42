// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/session/session_file.h"
#include "skyview/options/settings_group.h"
#include "skyview/options/view_group.h"
#include "skyview/session/clock.h"
#include "skyview/session/diagnostics.h"

namespace skyview {

// Settings and camera as the options, the session behind them and the defaults behind that say. The roots
// must be set.
struct PreparedView {
  // Throws Stop. Favourites of the settings are not added: their names want the catalogs (ObjectFinder).
  PreparedView(const ViewOptions& options, const SettingsOptions& changes,
               const std::optional<scene::SessionCapsule>& session, const Clock& clock,
               Diagnostics& diagnostics);

  CommonInterfaces::SettingsData settings;
  CommonInterfaces::Camera camera;
};

// Keeps the settings in the file of --save-settings. Throws Stop.
void KeepSettings(const SettingsOptions& options, PreparedView& view);

}  // namespace skyview
