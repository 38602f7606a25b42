// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/api.h"
#include "scene/view/directions.h"
#include "scene/view/observer_frame.h"

namespace scene {

// Where an object stands, degrees: azimuth from north over east, without a horizon the longitude along the
// plane.
struct Standing {
  double azimuth, altitude;  // 0 to 360, -90 to 90
};

// Of an apparent direction on J2000 axes.
SCENE_API Standing FindStanding(const Direction& apparent, const ObserverFrame& observer);

}  // namespace scene
