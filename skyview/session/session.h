// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sessions: everything that a picture was drawn from, as one small file (docs/formats/session.md).
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "scene/frame/sky_markers.h"
#include "scene/session/session_state.h"
#include "skyview/options/root_group.h"
#include "skyview/options/sky_group.h"

namespace skyview {

using scene::SessionCapsule;

// Reads the session that the file keeps. False when it cannot be read or is damaged: `capsule` is then
// unchanged and `error` is one line that names the file.
bool LoadSession(const std::string& path, SessionCapsule& capsule, std::string& error);

// What the session says of a group of options where the command line does not; markers, outlines and showers
// are those of both.
void TakeOver(const SessionCapsule& capsule, RootOptions& root);
void TakeOver(const SessionCapsule& capsule, ViewOptions& view);
void TakeOver(const SessionCapsule& capsule, SatelliteOptions& satellites);
void TakeOver(const SessionCapsule& capsule, ExtraOptions& extras);
void TakeOver(const SessionCapsule& capsule, ChartOptions& chart);

// Saves the session that is shown in this language, in place of the file. The roots are those of the run.
// False when that fails: `error` is then one line that names the file, and the file is as it was. `marks`:
// the objects that are marked.
bool SaveSession(const std::string& path, const std::string& language, const SkyOptions& options,
                 CommonInterfaces::SettingsData& settings, const scene::SkyMarkers& markers,
                 const std::vector<SSO_ID>& marks, CommonInterfaces::Camera& camera, std::string& error);

}  // namespace skyview
