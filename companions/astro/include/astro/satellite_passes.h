// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Passes of artificial satellites over a place: when they rise, culminate and set, when they go into the
// Earth's shadow and come out of it, how bright they are. Angles are radians, without refraction; satellites,
// the Earth's shadow and its accuracy are those of satellite_pass.h. Moments are found to 0.01 second; the
// elements are good to seconds near their epoch, to minutes some weeks from it. Nothing here keeps state;
// every thread may call.
#pragma once

#include <functional>
#include <optional>
#include <span>

#include "astro/api.h"
#include "astro/constants.h"
#include "astro/object_records.h"
#include "astro/sky_events.h"

namespace astro {

// A satellite whose passes are wanted.
struct SatelliteTarget {
  SSO_ID id;
  const OrbitalElements* elements = nullptr;  // two-line elements, owned by the caller
  // At a distance of 1000 km, half lit; kUnknownStarMagnitude where nobody knows it.
  double standardMagnitude = static_cast<double>(kUnknownStarMagnitude);
};

// What counts as a pass. Radians.
struct PassLimits {
  double altitude = 10.0 * kRadiansPerDegree;     // a pass begins and ends here
  double sunAltitude = -6.0 * kRadiansPerDegree;  // a satellite is seen while the Sun's centre is lower
};

// A satellite at a moment of its pass.
struct PassPoint {
  SkyMoment moment;
  double azimuth = 0.0;  // from north over east, [0, 2 pi)
  double altitude = 0.0;
  double distance = 0.0;  // km
  bool sunlit = false;
  double sunAltitude = 0.0;  // of the Sun's centre at the place
  // In sunlight: standard + 5 log(distance / 1000 km) - 2.5 log(lit part / half), the convention of visual
  // observers for a body that scatters evenly; kUnknownStarMagnitude in the shadow and without a standard.
  double magnitude = static_cast<double>(kUnknownStarMagnitude);
};

// A satellite from its rise to its set over a place.
struct SatellitePass {
  SSO_ID satellite;
  PassPoint rise, culmination, set;
  std::optional<PassPoint> intoShadow, outOfShadow;  // the first of each between rise and set
  // Of the moments at which it is seen, in sunlight before a dark sky, the brightest one, or without a
  // standard magnitude the highest; nothing when it is not seen. To a fiftieth of the pass.
  std::optional<PassPoint> best;
};

// All passes over the place of the search that culminate within its span, called and answering as
// sky_events.h says; false also for elements that SGP4 refuses, and when the satellite falls. What never sets
// within two days has no passes. A satellite that stands twice high between rise and set, as some that fly
// far do, makes one pass.
ASTRO_API bool FindPasses(const EventSearch& search, const SatelliteTarget& satellite,
                          const PassLimits& limits, const std::function<void(const SatellitePass&)>& sink);

// The same of several satellites as kSatellitePass. more: the magnitude of `best`, kUnknownStarMagnitude
// where there is none; detail: 1 when the pass is seen, else 0.
ASTRO_API bool FindSatellitePasses(const EventSearch& search, std::span<const SatelliteTarget> satellites,
                                   const PassLimits& limits, const EventSink& sink);

}  // namespace astro
