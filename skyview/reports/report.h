// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the program prints about a view, in the current language, as UTF-8 lines that end in "\n".
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/frame/sky_frame.h"

namespace skyview {

// The status of the view (MakeStatus), the limits of each class, how many objects were drawn, the bodies in
// words (DescribeBodies).
std::string MakeReport(const CommonInterfaces::Camera& camera, const std::vector<std::string>& status,
                       const scene::SkyFrame& frame);

// The limits of each class at a row of zooms, the camera's own among them. The camera's zoom is put back.
std::string MakeLimitsTable(CommonInterfaces::Camera& camera);

}  // namespace skyview
