// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moon_events.h"
#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

constexpr double kStep = 4.0;  // days; from node to node are 12 at least

}  // namespace

bool FindMoonNodes(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  astro_internal::EclipticPlaces places;
  const auto latitude = [&places](double date) { return places.Get(kMoon, date).latitude; };
  astro_internal::FindZeros(latitude, span.from, span.to, kStep, [&](double date, bool northwards) {
    const double longitude = places.Get(kMoon, date).longitude;
    SkyEvent event;
    event.kind = northwards ? EventKind::kAscendingNode : EventKind::kDescendingNode;
    event.moment = MakeMomentTT(date);
    event.body = kMoon;
    event.value = longitude < 0.0 ? longitude + kTurn : longitude;
    sink(event);
  });
  return span.isWhole;
}

}  // namespace astro
