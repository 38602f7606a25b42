// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// From options to a camera that stands on the Earth and looks somewhere above or below its horizon, or that
// travels where the stars look as they do from the Earth.
#pragma once

#include <optional>
#include <string>

#include "common_interfaces/camera.h"
#include "scene/session/session_file.h"
#include "skyview/options/view_group.h"
#include "skyview/session/clock.h"
#include "skyview/session/diagnostics.h"

namespace skyview {

using scene::SessionCapsule;

// Which exit code a failure asks for.
enum class Failure { kNone, kBadOption, kBadData };

struct ViewResult {
  Failure failure = Failure::kNone;
  std::string message;  // one line, without its end
};

// The path of a file that an option names: in the current folder, else a logical name below the roots; ""
// when there is neither.
std::string ResolveInput(const std::string& name);

// Restores the saved view, or that of the session when there is one, and lays the other options over it.
// What they leave to the clock (here_and_now.h) it tells, when it is asked. Afterwards the camera has its
// window and local offset, and near a surface its angles count from the horizon; it does not look at the
// object of --look yet, which wants the catalogs (AimView in object_finder.h). On a failure the camera is of
// no use.
ViewResult ApplyOptions(const ViewOptions& options, const std::optional<SessionCapsule>& session,
                        const Clock& clock, Diagnostics& diagnostics, CommonInterfaces::Camera& camera);

// Saves the camera as that view of the file, which is replaced whole; other views in it stay. False when that
// fails: `error` is then one line that names the file, and the file is as it was.
bool SaveView(CommonInterfaces::Camera& camera, const ViewFile& view, std::string& error);

}  // namespace skyview
