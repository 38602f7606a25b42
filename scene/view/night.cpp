// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/night.h"

#include "astro/rise_set.h"

namespace scene {
namespace {

using astro::RiseTransitSet;

// The Sun's next sunrise and noon. From noon to noon it is never longer than a day and half a minute.
RiseTransitSet FindSunsDay(const SkyMoment& now, const EarthPlace& place) {
  constexpr double kDay = 1.001, kStep = 10.0 / 1440.0;  // days
  CQXSolSys model;
  const auto sun = astro::MakeBodyFinder(model, astro::kSun, nullptr, place, astro::RisingPart::kUpperLimb);
  return astro::FindRiseTransitSet(sun, now, kDay, kStep);
}

double DaysBetween(const SkyMoment& from, const SkyMoment& to) {
  return to.day - from.day + (to.fraction - from.fraction);
}

}  // namespace

// The Sun is lowest half a day from its noon, to a quarter of a minute.
std::optional<SkyMoment> FindTonight(const SkyMoment& now, const EarthPlace& place) {
  constexpr double kHalf = 0.5;
  const RiseTransitSet sun = FindSunsDay(now, place);
  if (!sun.transit) return std::nullopt;
  const double toNoon = DaysBetween(now, *sun.transit);
  const bool before = sun.rise ? DaysBetween(now, *sun.rise) < toNoon : toNoon >= kHalf;
  return Later(*sun.transit, before ? -kHalf : kHalf);
}

}  // namespace scene
