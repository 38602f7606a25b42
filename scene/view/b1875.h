// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/view/directions.h"

namespace scene {

// Directions at the mean equator and equinox B1875, along which the boundaries of the constellations run, and
// back to J2000: precession IAU 1976 (Lieske et al. 1977). The axes of the FK4, in which the boundaries were
// drawn, differ from these by less than a second of arc.
Direction ToB1875(const Direction& j2000);
Direction FromB1875(const Direction& b1875);

}  // namespace scene
