// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/constants.h"
#include "astro/sky_events.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/seen_bodies.h"

namespace astro_internal {

// A planet and the Sun, in this order.
using PlanetAndSun = SeenBodies;
inline constexpr std::size_t kThePlanet = 0, kTheSun = 1;

// A planet that is not the Earth.
inline bool IsOtherPlanet(const SSO_ID& id) {
  return id.kind == astro::kPlanetKind && id.number >= 1 && id.number <= astro::kPlutoNumber &&
         id.number != astro::kEarthNumber;
}

// Mercury and Venus, which come between the Earth and the Sun.
inline bool IsInnerPlanet(const SSO_ID& id) {
  return id.kind == astro::kPlanetKind && (id.number == 1 || id.number == 2);
}

// Days between two looks. Mercury goes back for 20 days and comes round the Sun in 100; the loops of the
// outer planets take 60 days (Mars) and more.
inline double StepFor(const SSO_ID& planet) { return planet.number == 1 ? 2.0 : 4.0; }

// Calls search(pair, from, to) for the pieces of the span for which the planet is known; what a finder
// returns.
template <class Search>
bool SearchPlanet(const astro::EventSearch& search, const SSO_ID& planet, Search searchPiece) {
  if (!IsOtherPlanet(planet)) return false;
  PlanetAndSun pair;
  pair.Add(planet, nullptr);
  pair.Add(astro::kSun, nullptr);
  const DateSpan span = SpanOf(search, planet);
  SearchPieces(span.from, span.to, [&](double from, double to) { searchPiece(pair, from, to); });
  return span.isWhole;
}

inline astro::SkyEvent MakePlanetEvent(astro::EventKind kind, double date, const SSO_ID& planet) {
  astro::SkyEvent event;
  event.kind = kind;
  event.moment = astro::MakeMomentTT(date);
  event.body = planet;
  return event;
}

}  // namespace astro_internal
