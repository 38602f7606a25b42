// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/twilight.h"

#include "astro/rise_set.h"
#include "astro/solar_system.h"

namespace astro {
namespace {

constexpr double kStep = 10.0 / kMinutesPerDay;  // days between two looks at the Sun

SunCourse CourseOf(const RiseTransitSet& events) {
  if (events.rise || events.set) return SunCourse::kCrosses;
  if (events.staysUp) return SunCourse::kStaysAbove;
  return events.staysDown ? SunCourse::kStaysBelow : SunCourse::kUnknown;
}

}  // namespace

Twilight FindTwilight(const EarthPlace& place, const SkyMoment& start, double length, double altitude) {
  CQXSolSys model;
  const auto sun = MakeBodyFinder(model, kSun, nullptr, place, RisingPart::kCentre);
  const auto aboutAltitude = [&sun, altitude](const SkyMoment& moment) {
    auto stands = sun(moment);
    if (stands) stands->eventAltitude = altitude;
    return stands;
  };
  const RiseTransitSet events = FindRiseTransitSet(aboutAltitude, start, length, kStep);
  return {CourseOf(events), events.rise, events.set};
}

}  // namespace astro
