// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro_internal {

// The part of a disc's area that another one covers whose centre is `apart` from its own, 0 to 1.
double FindCoveredPart(double radius, double coverRadius, double apart);

}  // namespace astro_internal
