// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/catalogs/sky_catalogs.h"

namespace skyview {

// The state of a view as the user reads it, in the current language: place, coordinates, height, local and
// Universal Time, date, centred object, direction, refraction, plane, slope, zoom, field of view. One UTF-8
// text each, without line ends, the same for the report and for the picture; what does not apply is left out.
// The camera is prepared (PrepareObserver) and has its window.
std::vector<std::string> MakeStatus(const CommonInterfaces::Camera& camera,
                                    const scene::SkyCatalogs& catalogs);

}  // namespace skyview
