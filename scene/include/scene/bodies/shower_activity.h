// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "common_interfaces/camera.h"
#include "common_interfaces/meteor_showers.h"
#include "scene/api.h"

namespace scene {

// The civil day that the camera's clocks show: local time in its zone, as a Julian day number.
SCENE_API int GetCivilDay(const CommonInterfaces::Camera& camera);

// Days from the civil day to the maximum of the shower, negative behind it; nothing while the shower is not
// active. It is from its first day to its last, both included, also where the new year lies between them. A
// shower whose days are none of the calendar is never active. The dates are those of the present: over
// thousands of years they move.
SCENE_API std::optional<int> FindDaysToPeak(const CommonInterfaces::SHOWER& shower, int civilDay);

}  // namespace scene
