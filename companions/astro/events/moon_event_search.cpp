// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/constants.h"
#include "astro/moon_phenomena.h"
#include "astro/moons.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"

namespace astro {

namespace {

using namespace astro_internal;

EventKind KindOf(MoonPhenomenon phenomenon) {
  switch (phenomenon) {
    case MoonPhenomenon::kTransit:
      return EventKind::kMoonTransit;
    case MoonPhenomenon::kShadowTransit:
      return EventKind::kMoonShadowTransit;
    case MoonPhenomenon::kOccultation:
      return EventKind::kMoonOccultation;
    default:
      return EventKind::kMoonEclipse;
  }
}

SkyEvent MakeEvent(const MoonEvent& phenomenon, const SSO_ID& planet) {
  const double half = 0.5 * (phenomenon.end - phenomenon.begin);
  SkyEvent event;
  event.kind = KindOf(phenomenon.kind);
  event.moment = astro::MakeMomentTT(phenomenon.begin + half);
  event.sinceBegin = event.untilEnd = half;
  event.body = phenomenon.moon;
  event.other = planet;
  event.detail = (phenomenon.beginIsHidden ? 1 : 0) + (phenomenon.endIsHidden ? 2 : 0);
  return event;
}

// A theory may end before those of the planets do.
bool IsKnown(const SSO_ID& planet, double date) {
  double position[3];
  for (const int number : GetMoonsOfPlanet(planet.number)) {
    if (!ComputeMoonOfPlanet(SSO_ID(kMoonKind, number), date, position, nullptr)) return false;
  }
  return true;
}

}  // namespace

bool FindMoonPhenomena(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  const bool hasMoons =
      planet.kind == kPlanetKind && planet.number > kEarthNumber && !GetMoonsOfPlanet(planet.number).empty();
  if (!hasMoons) return false;
  const DateSpan span = SpanOf(search, planet);
  if (!(span.from < span.to)) return span.isWhole;
  SearchPieces(span.from, span.to, [&](double from, double to) {
    for (const MoonEvent& phenomenon : FindMoonEvents(planet.number, from, to)) {
      const SkyEvent event = MakeEvent(phenomenon, planet);
      const double date = event.moment.julianDateTT;
      if (date >= from && date < to) sink(event);
    }
  });
  return span.isWhole && IsKnown(planet, span.from) && IsKnown(planet, span.to);
}

}  // namespace astro
