// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sessions and what they keep: everything that a picture was drawn from (docs/formats/session.md).
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/api.h"
#include "scene/frame/sky_markers.h"
#include "scene/session/session_file.h"

namespace scene {

// Puts the state into the capsule: view, zone, place, settings, favourites, markers, the objects that are
// marked, and the checksums of the data files, of which one is the capsule's file of elements. False when the
// defaults cannot be read or a data file that is there cannot: `error` is then one line that names the file.
SCENE_API bool DescribeState(CommonInterfaces::SettingsData& settings, const SkyMarkers& markers,
                             const std::vector<SSO_ID>& marks, CommonInterfaces::Camera& camera,
                             SessionCapsule& capsule, std::string& error);

// Lays the capsule's settings and favourites over the defaults. Appends a line to `lost` for each that no
// longer fits.
SCENE_API void RestoreSettings(const SessionCapsule& capsule, CommonInterfaces::SettingsData& settings,
                               std::vector<std::string>& lost);

// Restores the camera from the capsule: record, zone and name of the place. Values that no longer fit go to
// `lost`. False, with one line in `error`, when the defaults of the record are missing or no temporary file
// can be written.
SCENE_API bool RestoreCamera(const SessionCapsule& capsule, CommonInterfaces::Camera& camera,
                             std::vector<std::string>& lost, std::string& error);

// A line, without its end, for each data file that is not what it was when the session was saved. The string
// table is left out when the session is shown in another language than its own.
SCENE_API std::vector<std::string> FindChangedData(const SessionCapsule& capsule,
                                                   const std::string& language);

}  // namespace scene
