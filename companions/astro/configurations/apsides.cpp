// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planet_events.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/planet_and_sun.h"

namespace astro {

namespace {

using namespace astro_internal;

// Days between two looks: a fortieth of the revolution, and for the Earth a seventh of the Moon's, which
// pulls it to and fro.
double StepOf(int planet) { return planet == 1 ? 2.0 : planet <= 4 ? 4.0 : 32.0; }

// How the distance from the Sun changes, times the distance.
double DistanceRate(const SSO_ID& planet, double date) {
  double position[3] = {}, velocity[3] = {};
  ComputePlanetState(planet, date, position, velocity);
  return Dot(position, velocity);
}

}  // namespace

bool FindPlanetApsides(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  if (!IsOtherPlanet(planet) && planet != kEarth) return false;
  const DateSpan span = SpanOf(search, planet);
  const auto rate = [&planet](double date) { return DistanceRate(planet, date); };
  SearchPieces(span.from, span.to, [&](double from, double to) {
    FindDates(from, to, StepOf(planet.number), rate, [&](double date, bool rises) {
      SkyEvent event = MakePlanetEvent(rises ? EventKind::kPerihelion : EventKind::kAphelion, date, planet);
      double position[3] = {};
      ComputePlanetState(planet, date, position, nullptr);
      event.other = kSun;
      event.value = Vmod(position, 3);
      sink(event);
    });
  });
  return span.isWhole;
}

}  // namespace astro
