// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sun_events.h"

#include "companions/astro/events/body_track.h"
#include "companions/astro/events/event_grid.h"

namespace astro {

namespace {

struct Level {
  double altitude;
  EventKind rising, sinking;
};
constexpr Level kLevels[] = {
    {kAstronomicalTwilight, EventKind::kAstronomicalDawn, EventKind::kAstronomicalDusk},
    {kNauticalTwilight, EventKind::kNauticalDawn, EventKind::kNauticalDusk},
    {kCivilTwilight, EventKind::kCivilDawn, EventKind::kCivilDusk},
    {kGoldenHourBottom, EventKind::kGoldenHourBegins, EventKind::kGoldenHourEnds},
    {kGoldenHourTop, EventKind::kGoldenHourEnds, EventKind::kGoldenHourBegins},
};

}  // namespace

bool FindSunEvents(const EventSearch& search, const EventSink& sink) {
  if (!search.place) return false;
  const astro_internal::EventSpan span(search);
  astro_internal::PlaceTrack track(kSun, nullptr, *search.place);
  for (const Level& level : kLevels) {
    const auto height = [&](double date) {
      astro_internal::PlaceState state = {};
      track.Get(date, state);
      return state.altitude - level.altitude;
    };
    astro_internal::FindZerosAndGrazes(height, span.from, span.to, astro_internal::kHalfTurnStep,
                                       [&](double date, bool rises) {
                                         astro_internal::PlaceState state = {};
                                         track.Get(date, state);
                                         SkyEvent event;
                                         event.kind = rises ? level.rising : level.sinking;
                                         event.moment = MakeMomentTT(date);
                                         event.body = kSun;
                                         event.value = AzimuthOf(state, search.place->lat);
                                         sink(event);
                                       });
  }
  return span.isWhole;
}

}  // namespace astro
