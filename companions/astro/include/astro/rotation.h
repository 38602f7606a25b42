// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How the Sun, the planets and their moons turn, and their figures: report of the IAU Working Group on
// Cartographic Coordinates and Rotational Elements 2015 (Archinal et al. 2018, Celestial Mechanics and
// Dynamical Astronomy 130, 22). Directions are on ICRS axes. Nothing here keeps state or allocates; every
// thread may call. docs/solar_system.md has the accuracy.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/object_id.h"

namespace astro {

// The body's own axes at a moment.
struct BodyRotation {
  double poleRA = 0.0, poleDec = 0.0;  // radians: the north pole, the one north of the ecliptic
  // W, radians, [0, 2 pi): along the equator, eastwards, from its ascending node on the equator of the ICRS
  // (at poleRA + 90 degrees) to the prime meridian.
  double primeMeridian = 0.0;
  double turning = 0.0;  // radians a day, the mean rate of W; negative: the body turns backwards
  // From ICRS axes to the body's: x to the prime meridian on the equator, z to the north pole.
  double toBody[9] = {};
};

// "plnt" 1 to 10 but the Earth (PrecessionNutationMatrix, ApparentSiderealTime), and the moons that the
// report has: of them those of moons.h, but Hyperion, which tumbles. `julianDate`: dynamical time (TDB; TT
// does). Nothing for other bodies, and for a date that is not finite. Jupiter to Neptune turn with their
// magnetic fields (System III).
ASTRO_API std::optional<BodyRotation> ComputeRotation(const SSO_ID& body, double julianDate);

// How the clouds turn: System I near the equator, System II elsewhere. Jupiter (IAU 1970s, kept by the report
// as of historical use: Davies et al. 1992) has both, Saturn System I; of others nothing.
enum class CloudSystem { kFirst, kSecond };
// What a longitude in the clouds' system (planetographic, radians) is larger than in that of ComputeRotation.
ASTRO_API std::optional<double> CloudLongitudeShift(const SSO_ID& planet, CloudSystem system,
                                                    double julianDate);

// Half axes in km: towards the prime meridian, across it, to the pole.
struct BodyShape {
  double a = 0.0, b = 0.0, c = 0.0;
};

// "plnt" 1 to 10 and the moons that the report has; nothing for others.
ASTRO_API std::optional<BodyShape> GetBodyShape(const SSO_ID& body);

}  // namespace astro
