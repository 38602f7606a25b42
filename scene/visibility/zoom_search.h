// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "common_interfaces/camera.h"
#include "scene/visibility/class_limits.h"

namespace scene {

enum class LimitOf { kDrawing, kLabel };

// The least zoom, of three digits and within the program's range, at which the limit of the class reaches the
// code; nothing when it never does. Every zoom it answers was tried on the camera itself, so that corrections
// and the ends of the range of codes count, which Camera::CalcZoomForShowObject leaves aside. The camera's
// zoom is put back.
std::optional<double> FindLeastZoom(CommonInterfaces::Camera& camera, int cls, float code, LimitOf limit);

}  // namespace scene
