// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/twilight.h"

#include <limits>

#include "companions/astro/events/body_track.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

Twilight FindTwilight(const EarthPlace& place, const SkyMoment& start, double length, double altitude) {
  astro_internal::PlaceTrack sun(kSun, nullptr, place);
  bool isKnown = true;
  const auto height = [&](double date) {
    astro_internal::PlaceState state;
    if (sun.Get(date, state)) return state.altitude - altitude;
    isKnown = false;
    return std::numeric_limits<double>::quiet_NaN();
  };
  Twilight twilight;
  astro_internal::FindZerosAndGrazes(height, start.julianDateTT, Later(start, length).julianDateTT,
                                     astro_internal::kHalfTurnStep, [&twilight](double date, bool rises) {
                                       auto& first = rises ? twilight.dawn : twilight.dusk;
                                       if (!first) first = MakeMomentTT(date);
                                     });
  const bool isUp = height(start.julianDateTT) >= 0.0;
  if (twilight.dawn || twilight.dusk) {
    twilight.course = SunCourse::kCrosses;
  } else if (isKnown) {
    twilight.course = isUp ? SunCourse::kStaysAbove : SunCourse::kStaysBelow;
  }
  return twilight;
}

}  // namespace astro
