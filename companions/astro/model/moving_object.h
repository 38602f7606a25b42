// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "astro/object_records.h"
#include "astro/satellite.h"
#include "astro/two_body.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// A body of the solar system and how its motion is computed: by exactly one of
// the three. A view: owns nothing.
struct MovingObject {
  SSO_ID id;                                  // a planet, the Sun, a moon, where both pointers are null
  const OrbitalElements* elements = nullptr;  // of a two-body orbit, or of the satellite
  OrbitPlane plane = {};                      // of the two-body orbit
  const SatelliteModel* satellite = nullptr;
};

// Position (au) and velocity (au/day; may be null) about the Sun, J2000 axes, `before` days (light time)
// before the moment. False where there is none; the results are then undefined.
bool StateOf(const MovingObject& object, const Moment& moment, double before, double position[3],
             double velocity[3]);

}  // namespace astro_internal
