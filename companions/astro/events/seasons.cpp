// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/seasons.h"

#include "companions/astro/events/ecliptic_places.h"
#include "companions/astro/events/event_grid.h"
#include "companions/astro/events/quarters.h"

namespace astro {

namespace {

constexpr double kStep = 40.0;  // days; a season lasts 89 at least

}  // namespace

bool FindSeasons(const EventSearch& search, const EventSink& sink) {
  const astro_internal::EventSpan span(search);
  astro_internal::EclipticPlaces places;
  const auto longitude = [&places](double date) { return places.Get(kSun, date).longitude; };
  astro_internal::FindQuarters(longitude, span.from, span.to, kStep, [&](double date, int quarter) {
    SkyEvent event;
    event.kind = static_cast<EventKind>(static_cast<int>(EventKind::kMarchEquinox) + quarter);
    event.moment = MakeMomentTT(date);
    event.body = kSun;
    event.value = quarter * 0.5 * kPi;
    sink(event);
  });
  return span.isWhole;
}

}  // namespace astro
