// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/camera.h"

namespace scene {

// Whether the observer shares the motion of the Earth, and so its aberration.
bool MovesWithEarth(const CommonInterfaces::Camera& camera);

}  // namespace scene
