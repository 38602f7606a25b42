// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Plays: what moves from frame to frame. The camera describes it, the frame loop moves the camera by nothing
// else.
#pragma once

#include "common_interfaces/camera.h"
#include "skyview/options/motion_values.h"

namespace skyview {

// Describes the plays to the camera. The time play's first value is its step in days; the view plays 1 to 3
// have steps in radians for azimuth (over east; along another plane the longitude), altitude and slope. Plays
// of the time end the mode in which the view follows the system's clock.
void StartPlays(const PlayRequest& request, CommonInterfaces::Camera& camera);

// Moves the camera by one step of each play that runs: a held or stopped one moves nothing, and neither does
// the time while the view follows the system's clock. The latitude stops at the poles. Allocates nothing.
void AdvancePlays(CommonInterfaces::Camera& camera);

}  // namespace skyview
