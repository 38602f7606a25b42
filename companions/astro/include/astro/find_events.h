// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// All finders of events in one call.
#pragma once

#include <bitset>
#include <initializer_list>
#include <span>

#include "astro/api.h"
#include "astro/meteor_showers.h"
#include "astro/planet_events.h"
#include "astro/satellite_passes.h"
#include "astro/sky_events.h"

namespace astro {

// A set of kinds, by their numbers.
using EventKinds = std::bitset<kEventKinds>;

// The set of those in the list.
constexpr EventKinds MakeEventKinds(std::initializer_list<EventKind> list) {
  static_assert(kEventKinds <= 64);
  unsigned long long kinds = 0;
  for (const EventKind kind : list) kinds |= 1ULL << static_cast<unsigned>(kind);
  return EventKinds(kinds);
}

// What is looked for. What the spans refer to is the caller's.
struct EventChoice {
  EventKinds kinds;
  // kConjunction and kAppulse, in which Mercury to Neptune take part as well, in conjunctions the Moon too;
  // and what the Moon may hide, besides these planets.
  std::span<const SkyTarget> stars = GetEclipticStars();
  double farthestAppulse = 5.0 * kRadiansPerDegree;
  std::span<const MeteorShower> showers = GetVisualShowers();  // kShowerMaximum
  std::span<const SatelliteTarget> satellites;                 // kSatellitePass
  PassLimits passLimits;
};

// The kinds that FindEvents knows a finder for.
ASTRO_API EventKinds GetFoundKinds();

// Hands every event of the kinds that were chosen to the sink, in the order of their moments, at the same
// moment in that of the kinds; none is handed out twice. Called and answering as sky_events.h says; false
// also when a kind was chosen that no finder has. Planets are Mercury to Neptune, with the Earth for
// apsides; what rises and sets are the Sun, the Moon and these planets; phenomena are those of Jupiter's
// moons. The events of some 400 days are collected before the first of them is handed out.
ASTRO_API bool FindEvents(const EventSearch& search, const EventChoice& choice, const EventSink& sink);

}  // namespace astro
