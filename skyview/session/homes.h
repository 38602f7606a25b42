// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The homes of the camera: shown, stored and gone to.
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "skyview/session/diagnostics.h"
#include "skyview/session/view_state.h"

namespace skyview {

// Every home with its parts, one line a part, in the order of the observers; one line when there is none.
// UTF-8.
std::string FormatHomes(const CommonInterfaces::Camera& camera);

// Makes place, view and time of the camera the home of its observer and saves all homes. False when that
// cannot be done: `error` is then one line, and the file is as it was. The libraries' line about the file is
// taken out of `diagnostics`.
bool StoreHome(CommonInterfaces::Camera& camera, Diagnostics& diagnostics, std::string& error);

// Back to the Earth's home. Homes of skyview count their direction from the horizon.
ViewResult GoHome(CommonInterfaces::Camera& camera);

}  // namespace skyview
