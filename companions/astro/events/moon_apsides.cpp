// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moon_events.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

constexpr double kStep = 4.0;  // days; from perigee to apogee are 12 at least

// Above 0 while the Moon moves away.
double MovesAway(double date) {
  double position[3] = {}, velocity[3] = {};
  ComputeMoonState(date, position, velocity);
  return Dot(position, velocity);
}

}  // namespace

bool FindMoonApsides(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  astro_internal::FindZeros(MovesAway, span.from, span.to, kStep, [&](double date, bool movesAway) {
    double position[3] = {};
    ComputeMoonState(date, position, nullptr);
    SkyEvent event;
    event.kind = movesAway ? EventKind::kPerigee : EventKind::kApogee;
    event.moment = MakeMomentTT(date);
    event.body = kMoon;
    event.value = Vmod(position, 3) * kKilometresPerAu;
    sink(event);
  });
  return span.isWhole;
}

}  // namespace astro
