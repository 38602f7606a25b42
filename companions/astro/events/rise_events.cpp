// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rise_events.h"

#include <cmath>
#include <limits>

#include "astro/planets.h"
#include "companions/astro/events/body_track.h"
#include "companions/astro/events/event_grid.h"
#include "utils/text.h"

namespace astro {

namespace {

bool IsSpacecraft(int kind) {
  return kind == FourCC("scft") || kind == FourCC("fSCO") || kind == FourCC("uSCO");
}

}  // namespace

bool FindRisings(const EventSearch& search, const SSO_ID& body, const void* data, RisingPart part,
                 const EventSink& sink) {
  using astro_internal::PlaceState;
  if (!search.place || IsSpacecraft(body.kind)) return false;
  const astro_internal::EventSpan span(search);
  const double radius = part == RisingPart::kUpperLimb ? GetBodyRadius(body) / kKilometresPerAu : 0.0;
  astro_internal::PlaceTrack track(body, data, *search.place);
  bool isKnown = span.isWhole;
  const auto look = [&](double date, auto quantity) {
    PlaceState state;
    if (track.Get(date, state)) return quantity(state);
    isKnown = false;
    return std::numeric_limits<double>::quiet_NaN();
  };
  const auto height = [&](double date) {
    return look(date, [radius](const PlaceState& state) {
      return state.altitude - GetRiseAltitude(std::asin(radius / state.distance));
    });
  };
  const auto hourAngle = [&](double date) { return look(date, astro_internal::HourAngleOf); };
  const auto report = [&](double date, EventKind kind) {
    PlaceState state = {};
    track.Get(date, state);
    SkyEvent event;
    event.kind = kind;
    event.moment = MakeMomentTT(date);
    event.body = body;
    event.value = kind == EventKind::kTransit ? state.altitude : AzimuthOf(state, search.place->lat);
    sink(event);
  };
  astro_internal::FindZerosAndGrazes(
      height, span.from, span.to, astro_internal::kHalfTurnStep,
      [&](double date, bool rises) { report(date, rises ? EventKind::kRise : EventKind::kSet); });
  astro_internal::FindZeros(hourAngle, span.from, span.to, astro_internal::kHalfTurnStep,
                            [&](double date, bool westward) {
                              if (westward) report(date, EventKind::kTransit);
                            });
  return isKnown;
}

}  // namespace astro
