// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/solar_system.h"

namespace astro_internal {

// The light at a body that is seen, in the frame that moves with the body: unit vectors, ICRS axes.
struct BodyLight {
  double toObserver[3];  // the way that the light takes which the observer sees
  double toSun[3];       // where the light comes from; of the Sun itself zero
};

BodyLight LightAt(const ObservedBody& seen);

}  // namespace astro_internal
