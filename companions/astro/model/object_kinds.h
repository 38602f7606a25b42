// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"

namespace astro_internal {

// What the model does with an object; object_records.h lists the kinds.
enum class ObjectFamily { kUnknown, kPlanet, kStar, kDeepsky, kConstellation, kOrbit };

// kPlanet for the planets, the Sun and the moons that have a theory: of other moons the model knows nothing.
ObjectFamily FamilyOf(const SSO_ID& id);

bool IsComet(int kind);
bool IsAsteroid(int kind);

}  // namespace astro_internal
