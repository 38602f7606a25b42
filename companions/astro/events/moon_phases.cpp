// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moon_events.h"
#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"
#include "companions/astro/events/quarters.h"

namespace astro {

namespace {

constexpr double kStep = 2.5;  // days, in which the Moon leaves the Sun behind by 37 degrees at most

}  // namespace

bool FindMoonPhases(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  astro_internal::EclipticPlaces places;
  const auto elongation = [&places](double date) { return places.Elongation(date); };
  astro_internal::FindQuarters(elongation, span.from, span.to, kStep, [&](double date, int quarter) {
    SkyEvent event;
    event.kind = static_cast<EventKind>(static_cast<int>(EventKind::kNewMoon) + quarter);
    event.moment = MakeMomentTT(date);
    event.body = kMoon;
    event.value = places.Get(kMoon, date).latitude;
    sink(event);
  });
  return span.isWhole;
}

}  // namespace astro
