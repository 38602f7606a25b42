// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pluto and Charon turn as they go around each other and always show each other the same side: Pluto's prime
// meridian is the one that has Charon above it (Archinal et al. 2018).
#include "astro/constants.h"
#include "astro/rotation.h"
#include "companions/astro/moons/moon_theories.h"

namespace astro_internal {

void CharonState(double date, double position[3], double velocity[3]) {
  constexpr double kDistance = 19596.0 / astro::kKilometresPerAu;
  const astro::BodyRotation pluto =
      *astro::ComputeRotation(SSO_ID(astro::kPlanetKind, astro::kPlutoNumber), date);
  for (int i = 0; i < 3; ++i) {
    position[i] = kDistance * pluto.toBody[i];
    if (velocity != nullptr) velocity[i] = kDistance * pluto.turning * pluto.toBody[3 + i];
  }
}

}  // namespace astro_internal
