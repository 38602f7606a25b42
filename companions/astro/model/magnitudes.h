// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/object_id.h"
#include "astro/object_records.h"

namespace astro_internal {

// What a magnitude depends on. Distances in au, angle in radians.
struct Illumination {
  double sunDistance;
  double distance;
  double phaseAngle;
  double dateTT;
  const double* fromSun;       // vector, J2000 axes, any length
  const double* fromObserver;  // likewise
};

// Visual magnitudes; kUnknownStarMagnitude where no formula covers the case.
double PlanetMagnitude(const SSO_ID& body, const Illumination& light);  // "plnt" 1 to 10, "moon" 301
double AsteroidMagnitude(const OrbitalElements& elements, const Illumination& light);  // H, G
double CometMagnitude(const OrbitalElements& elements, const Illumination& light);     // H, y

}  // namespace astro_internal
