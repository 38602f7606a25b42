// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/object_records.h"
#include "companions/astro/configurations/sky_track.h"

namespace astro_internal {

// Longitude or right ascension, latitude or declination: radians.
struct SeenPlace {
  double lon, lat;
};

// An apparent direction, unit vector on ICRS axes, and what it changes in a day.
struct SeenMotion {
  double direction[3], rate[3];
};

// Half of what the square of the distance between the tips of two directions changes in a day: zero where
// the angle between them is smallest or largest, and smooth also where it is zero.
double SeparationRate(const SeenMotion& a, const SeenMotion& b);

// Bodies that are looked at from the Earth's centre, by the order in which they were added. Dates are Julian
// dates (TT); where a body is not seen all numbers are not a number. Not for several threads at once.
class SeenBodies {
 public:
  // A planet but the Earth, the Sun, a moon (`star` null), or a star. False for what the model does not know,
  // which is never seen.
  bool Add(const SSO_ID& id, const StarRecord* star);

  ObservedBody See(std::size_t body, double date);
  // On the true equator, or the true ecliptic, and the true equinox of date.
  SeenPlace OnEquator(std::size_t body, double date);
  SeenPlace OnEcliptic(std::size_t body, double date);
  SeenMotion MotionOf(std::size_t body, double date);
  double SeparationRateOf(std::size_t a, std::size_t b, double date);

 private:
  SkyTrack m_Track;
  std::vector<ModelObject> m_Bodies;
};

}  // namespace astro_internal
