// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/event_search.h"

namespace scene {
namespace {

using astro::EventKind;

// Those that need a place do without it.
EventKinds WithoutPlace(EventKinds kinds) {
  for (int kind = 0; kind < astro::kEventKinds; ++kind) {
    const bool needsPlace = IsAboutPlace(static_cast<EventKind>(kind)) &&
                            static_cast<EventKind>(kind) != EventKind::kShowerMaximum;
    if (needsPlace) kinds.reset(static_cast<std::size_t>(kind));
  }
  return kinds;
}

std::vector<astro::SatelliteTarget> ListSatellites(const BodyList& bodies) {
  std::vector<astro::SatelliteTarget> satellites;
  for (const auto& body : bodies) {
    if (body.id.kind == FourCC("scft")) satellites.push_back({body.id, &body.elements});
  }
  return satellites;
}

// A pass by day or in the shadow is of no use to anybody who looks up.
bool IsSeen(const astro::SkyEvent& event) {
  return event.kind != EventKind::kSatellitePass || event.detail == 1;
}

}  // namespace

FoundEvents FindEvents(const EventKinds& kinds, const astro::EventSearch& search, const BodyList& bodies) {
  constexpr double kFarthest = 3.0 * astro::kRadiansPerDegree;
  const auto satellites = ListSatellites(bodies);
  astro::EventChoice choice;
  choice.kinds = search.place ? kinds : WithoutPlace(kinds);
  choice.farthestAppulse = kFarthest;
  choice.satellites = satellites;
  FoundEvents found;
  found.complete = astro::FindEvents(search, choice, [&found](const astro::SkyEvent& event) {
    if (IsSeen(event)) found.events.push_back(event);
  });
  return found;
}

}  // namespace scene
