// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/solar_system.h"
#include "scene/view/directions.h"

namespace scene {

// The direction (J2000, apparent) of a point of a body that is seen so. `point`: km on the body's axes,
// `toBody`: from J2000 axes to these (PhysicalEphemeris::toBody).
Direction FindSurfaceDirection(const double point[3], const double toBody[9], const ObservedBody& body);

}  // namespace scene
