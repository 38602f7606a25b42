// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>

#include "astro/constants.h"
#include "astro/planet_events.h"
#include "astro/vectors.h"
#include "companions/astro/configurations/date_search.h"
#include "companions/astro/configurations/date_span.h"
#include "companions/astro/configurations/planet_and_sun.h"

namespace astro {

namespace {

using namespace astro_internal;

double Longitude(PlanetAndSun& pair, double date) {
  return std::remainder(pair.OnEcliptic(kThePlanet, date).lon - pair.OnEcliptic(kTheSun, date).lon, kTurn);
}

// The part of the sky that the lit part of the disc covers, in any unit.
double LitExtent(PlanetAndSun& pair, double date) {
  const ObservedBody seen = pair.See(kThePlanet, date);
  return (1.0 + std::cos(seen.phaseAngle)) / (seen.distance * seen.distance);
}

double LitExtentRate(PlanetAndSun& pair, double date) {
  constexpr double kHalfInterval = 0.25;  // days
  return LitExtent(pair, date + kHalfInterval) - LitExtent(pair, date - kHalfInterval);
}

}  // namespace

bool FindSunConfigurations(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  return SearchPlanet(search, planet, [&](PlanetAndSun& pair, double from, double to) {
    const double step = StepFor(planet);
    const auto apart = [&pair](double date) { return Longitude(pair, date); };
    FindDates(from, to, step, apart, [&](double date, bool) {
      const double distance = pair.See(kThePlanet, date).distance;
      const bool isNearer = distance < pair.See(kTheSun, date).distance;
      SkyEvent event = MakePlanetEvent(
          isNearer ? EventKind::kInferiorConjunction : EventKind::kSuperiorConjunction, date, planet);
      event.other = kSun;
      event.value = pair.OnEcliptic(kThePlanet, date).lat;
      event.more = distance;
      sink(event);
    });
    if (IsInnerPlanet(planet)) return;
    const auto opposite = [&pair](double date) { return std::remainder(Longitude(pair, date) - kPi, kTurn); };
    FindDates(from, to, step, opposite, [&](double date, bool) {
      SkyEvent event = MakePlanetEvent(EventKind::kOpposition, date, planet);
      const ObservedBody seen = pair.See(kThePlanet, date);
      event.other = kSun;
      event.value = seen.distance;
      event.more = seen.magnitude;
      sink(event);
    });
  });
}

bool FindGreatestElongations(const EventSearch& search, const SSO_ID& planet, const EventSink& sink) {
  if (!IsInnerPlanet(planet)) return false;
  return SearchPlanet(search, planet, [&](PlanetAndSun& pair, double from, double to) {
    const auto rate = [&pair](double date) { return pair.SeparationRateOf(kThePlanet, kTheSun, date); };
    FindDates(from, to, StepFor(planet), rate, [&](double date, bool rises) {
      if (rises) return;
      const bool isEast = Longitude(pair, date) > 0.0;
      SkyEvent event = MakePlanetEvent(
          isEast ? EventKind::kGreatestElongationEast : EventKind::kGreatestElongationWest, date, planet);
      const ObservedBody seen = pair.See(kThePlanet, date), sun = pair.See(kTheSun, date);
      event.other = kSun;
      event.value = VectorsAngle(seen.apparent, sun.apparent);
      event.more = seen.magnitude;
      sink(event);
    });
  });
}

bool FindGreatestBrilliancies(const EventSearch& search, const EventSink& sink) {
  const SSO_ID venus(kPlanetKind, 2);
  return SearchPlanet(search, venus, [&](PlanetAndSun& pair, double from, double to) {
    const auto rate = [&pair](double date) { return LitExtentRate(pair, date); };
    FindDates(from, to, StepFor(venus), rate, [&](double date, bool rises) {
      if (rises) return;
      const ObservedBody seen = pair.See(kThePlanet, date);
      SkyEvent event = MakePlanetEvent(EventKind::kGreatestBrilliancy, date, venus);
      event.value = seen.magnitude;
      event.more = seen.elongation;
      sink(event);
    });
  });
}

}  // namespace astro
