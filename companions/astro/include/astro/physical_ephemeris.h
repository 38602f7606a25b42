// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The disc of the Sun, of a planet or a moon as an observer sees it: which way its axis points, which parts
// of it the observer and the Sun see. Nothing here keeps state or allocates; every thread may call. Angles
// are in radians. As the rotations (rotation.h) these are good to some 0.001 degree, to 0.005 for the Moon.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/object_id.h"
#include "astro/solar_system.h"

namespace astro {

// The point of a surface that has another body in its zenith, but for the flattening: where the line between
// the two centres meets the surface.
struct SurfacePoint {
  double eastLongitude = 0.0;  // planetocentric, eastwards, [0, 2 pi)
  // Planetographic, [0, 2 pi): grows with time for an observer afar, so westwards on what turns as the Earth
  // does; but eastwards on the Sun and the Moon.
  double longitude = 0.0;
  double latitude = 0.0;         // planetocentric: the angle at the centre from the equator's plane
  double graphicLatitude = 0.0;  // planetographic: of the normal to the surface there
};

// How a body shows itself to an observer. Angles in radians.
struct PhysicalEphemeris {
  SurfacePoint observer;  // its longitude is the central meridian, its planetocentric latitude the tilt
  SurfacePoint sun;       // of the Sun itself 0
  // Position angles count on the sky from the north of the true equator of date over east, [0, 2 pi).
  double poleAngle = 0.0;         // of the north pole
  double brightLimbAngle = 0.0;   // of the middle of the bright limb; of the Sun itself 0
  double phaseAngle = 0.0;        // Sun - body - observer, 0 to pi; of the Sun itself 0
  double illuminated = 1.0;       // the part of the disc that is lit, 0 to 1
  double equatorialRadius = 0.0;  // angular, of the body as a spheroid
  double polarRadius = 0.0;  // angular, along the axis as it is seen: the short half of the disc's ellipse
  double julianDate = 0.0;   // when the light left, dynamical time
  double toBody[9] = {};     // BodyRotation::toBody then
};

// Of a body that is seen so (CQXSolSys::Observe) at a moment (Julian date, TT). Nothing for bodies that
// ComputeRotation or GetBodyShape does not know, and where `seen` has no distance.
//
// The tilts of Saturn's rings towards the observer and towards the Sun are `observer.latitude` and
// `sun.latitude`: the observer sees the lit side of the rings where both have the same sign.
ASTRO_API std::optional<PhysicalEphemeris> FindPhysicalEphemeris(const SSO_ID& body, const ObservedBody& seen,
                                                                 double julianDateTT);

}  // namespace astro
