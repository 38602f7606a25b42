// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// A planet, "plnt" 1 to 9.
bool IsPlanet(const SSO_ID& id);

// A planet as it was when the light left that arrives at the moment: of the whole series twice a moment,
// for itself and for its moons. False where there is none.
bool MakePlanetPath(const Moment& moment, const SSO_ID& planet, StraightPath& path);

}  // namespace astro_internal
