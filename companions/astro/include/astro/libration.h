// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The libration of the Moon. Nothing here keeps state or allocates; every thread may call. Angles are in
// radians, selenographic: longitudes eastwards, towards Mare Crisium, counted from the mean direction to the
// Earth, latitudes from the mean equator. Older tables (Eckhardt 1981, with him Meeus) count latitudes from a
// principal axis of inertia: they are 0.022 degree larger in the middle of the disc.
#pragma once

#include <optional>

#include "astro/api.h"
#include "astro/physical_ephemeris.h"
#include "astro/solar_system.h"

namespace astro {

// How the Moon is turned towards an observer. Angles in radians.
struct Libration {
  // The point of the Moon that the observer has in the middle of the disc: what the observer sees more of,
  // -pi to pi.
  double longitude = 0.0, latitude = 0.0;
  // The part of it that comes from the shape and the tilt of the orbit: what a Moon would show that turns
  // evenly, by Cassini's laws (Meeus 1998, Astronomical Algorithms, chapter 53).
  double opticalLongitude = 0.0, opticalLatitude = 0.0;
  // The rest: how the Moon really swings, up to 0.06 degree.
  double physicalLongitude = 0.0, physicalLatitude = 0.0;
  // Where the Sun rises on the Moon's equator, counted westwards from the middle, [0, 2 pi): 0 at the first
  // quarter, 90 degrees at full moon.
  double colongitude = 0.0;
  double sunLatitude = 0.0;
};

// Of the Moon that is seen so (CQXSolSys::Observe) at a moment (Julian date, TT): from the Earth's centre or
// from a place. Good to 0.005 degree, the accuracy of the rotation that the IAU gives for the Moon. Nothing
// where `seen` has no distance.
ASTRO_API std::optional<Libration> FindLibration(const ObservedBody& seen, double julianDateTT);

}  // namespace astro
