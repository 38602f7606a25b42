// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sessions: everything that a picture was drawn from, as one small file (docs/formats/session.md).
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "skyview/options/options.h"
#include "scene/sky_markers.h"

namespace skyview {

// Reads the session that the options name into them: language, size, markers, outlines and showers where no option says
// otherwise, the rest as `capsule`. False when the file cannot be read or is damaged: `options` are then unchanged and `error` is one
// line that names the file.
bool LoadSession(Options& options, std::string& error);

// Lays the capsule's settings and favourites over the defaults. Appends a line to `lost` for each that no longer fits.
void RestoreSettings(const SessionCapsule& capsule, CommonInterfaces::SettingsData& settings,
                     std::vector<std::string>& lost);

// Restores the camera from the capsule: record, zone and name of the place. Values that no longer fit go to `lost`.
// False, with one line in `error`, when the defaults of the record are missing or no temporary file can be written.
bool RestoreCamera(const SessionCapsule& capsule, CommonInterfaces::Camera& camera,
                   std::vector<std::string>& lost, std::string& error);

// A line, without its end, for each data file that is not what it was when the session was saved. The string table is
// left out when the session is shown in another language than its own.
std::vector<std::string> FindChangedData(const SessionCapsule& capsule, const std::string& language);

// Saves the session that is shown, in place of the file. The roots and language are those of the run. False when that
// fails: `error` is then one line that names the file, and the file is as it was. `marks`: the objects that are marked.
bool SaveSession(const std::string& path, const Options& options, CommonInterfaces::SettingsData& settings,
                 const scene::SkyMarkers& markers, const std::vector<SSO_ID>& marks,
                 CommonInterfaces::Camera& camera, std::string& error);

}  // namespace skyview
