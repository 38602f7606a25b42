// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How far the Earth's atmosphere lifts what stands above it, from a table over the sine of the true altitude.
// Model and accuracy: docs/refraction.md.
#pragma once

#include "common_interfaces/api.h"

// The sine of the lowest altitude that is corrected, -0.024 (-1.375 degrees). The misleading name (it is no
// cosine) and the global scope are deliberate: callers are compiled against them.
COMMON_INTERFACES_API extern const double g_cosOfLowerAngleForRefraction;

namespace CommonInterfaces {

using ::g_cosOfLowerAngleForRefraction;

// What refraction adds to the sine of the altitude `sinAltitude` (true, without atmosphere), before the sum
// is divided by the unchanged cosine: tan(apparent) = (sin(true) + shift) / cos(true). The table is
// interpolated in straight lines; it falls from 0.01726 at -0.024 to 0 at 1. A sine below the table gives its
// first entry, one above it 0, one that is not a number 0. Any thread.
COMMON_INTERFACES_API double InterpoleEarthRefractionShift(double sinAltitude);

// Turns a true altitude (radians, -pi/2 to pi/2) into the apparent one, in place. An altitude whose sine is
// below g_cosOfLowerAngleForRefraction stays as it is, and so does one that is not finite. Null does nothing.
// Any thread.
//
//   0 degrees -> 0.546 degrees;  -2 degrees -> -2 degrees
COMMON_INTERFACES_API void ShiftAltOnEarthRefraction(double* altitude);

}  // namespace CommonInterfaces
