// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The texts about a view: what the program prints and what stands in the picture.
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "host/sky_frame.h"

namespace skyview {

// The lines printed for a view: place, time, direction, zoom, field of view, the limits of each class, how many
// objects were drawn. Each ends in "\n". The camera has its window.
std::string MakeReport(const CommonInterfaces::Camera& camera, const SkyFrame& frame);

// The limits of each class at a row of zooms, the camera's own among them. The camera's zoom is put back.
std::string MakeLimitsTable(CommonInterfaces::Camera& camera);

// The two lines of the caption: where and when; direction, zoom and field of view.
Caption MakeCaption(const CommonInterfaces::Camera& camera);

}  // namespace skyview
