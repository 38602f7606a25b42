// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"

namespace astro_internal {

// The gravitational parameter of a body alone, au^3 / day^2: "plnt" 1 to 10, "moon" 301; 0 for any other.
double BodyGravity(const SSO_ID& body);

// Of a planet with its moons (3: the Earth without the Moon), 1 to 9; of the Sun, 10.
double SystemGravity(int planet);

}  // namespace astro_internal
