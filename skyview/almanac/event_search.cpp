// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/event_search.h"

#include <algorithm>
#include <initializer_list>

#include "astro/lunar_eclipses.h"
#include "astro/meteor_showers.h"
#include "astro/moon_events.h"
#include "astro/moon_phenomena.h"
#include "astro/occultations.h"
#include "astro/planet_events.h"
#include "astro/planet_transits.h"
#include "astro/rise_events.h"
#include "astro/satellite_passes.h"
#include "astro/seasons.h"
#include "astro/solar_eclipses.h"
#include "astro/sun_events.h"

namespace skyview {
namespace {

using astro::EventKind;
using astro::EventSink;

// What is searched, and whose satellites.
struct EventSearch : astro::EventSearch {
  const scene::BodyList& bodies;
};

constexpr int kPlanets[] = {1, 2, 4, 5, 6, 7, 8};
constexpr int kJupiter = 5;

SSO_ID MakePlanet(int number) { return SSO_ID(astro::kPlanetKind, number); }

template <class Find>
bool ForPlanets(Find find) {
  bool complete = true;
  for (const int planet : kPlanets) complete = find(MakePlanet(planet)) && complete;
  return complete;
}

bool FindAllRisings(const EventSearch& search, const EventSink& sink) {
  if (!search.place) return true;
  const auto find = [&](const SSO_ID& id, astro::RisingPart part) {
    return astro::FindRisings(search, id, nullptr, part, sink);
  };
  const bool sun = find(astro::kSun, astro::RisingPart::kUpperLimb),
             moon = find(astro::kMoon, astro::RisingPart::kUpperLimb);
  return ForPlanets([&](const SSO_ID& id) { return find(id, astro::RisingPart::kCentre); }) && sun && moon;
}

bool FindTwilights(const EventSearch& search, const EventSink& sink) {
  return !search.place || astro::FindSunEvents(search, sink);
}

std::vector<astro::SkyTarget> MakeTargets(bool withMoon) {
  std::vector<astro::SkyTarget> targets;
  if (withMoon) targets.push_back({astro::kMoon, nullptr});
  for (const int planet : kPlanets) targets.push_back({MakePlanet(planet), nullptr});
  for (const auto& star : astro::GetEclipticStars()) targets.push_back(star);
  return targets;
}

bool FindAllConjunctions(const EventSearch& search, const EventSink& sink) {
  return astro::FindConjunctions(search, MakeTargets(true), sink);
}

// Of the planets alone: the Moon comes near everything every month.
bool FindAllAppulses(const EventSearch& search, const EventSink& sink) {
  constexpr double kFarthest = 3.0 * astro::kRadiansPerDegree;
  return astro::FindAppulses(search, MakeTargets(false), kFarthest, sink);
}

bool FindConfigurations(const EventSearch& search, const EventSink& sink) {
  return ForPlanets([&](const SSO_ID& id) { return astro::FindSunConfigurations(search, id, sink); });
}

bool FindElongations(const EventSearch& search, const EventSink& sink) {
  const bool mercury = astro::FindGreatestElongations(search, MakePlanet(1), sink);
  return astro::FindGreatestElongations(search, MakePlanet(2), sink) && mercury;
}

bool FindAllStations(const EventSearch& search, const EventSink& sink) {
  return ForPlanets([&](const SSO_ID& id) { return astro::FindStations(search, id, sink); });
}

bool FindApsides(const EventSearch& search, const EventSink& sink) {
  const bool earth = astro::FindPlanetApsides(search, astro::kEarth, sink);
  return ForPlanets([&](const SSO_ID& id) { return astro::FindPlanetApsides(search, id, sink); }) && earth;
}

// In the order of astro::MoonPhenomenon.
constexpr EventKind kPhenomena[] = {EventKind::kMoonTransit, EventKind::kMoonShadowTransit,
                                    EventKind::kMoonOccultation, EventKind::kMoonEclipse};

bool FindJupiterMoons(const EventSearch& search, const EventSink& sink) {
  const double from = search.from.julianDateTT, to = search.to.julianDateTT;
  for (const auto& found : astro::FindMoonEvents(kJupiter, from, to)) {
    const double middle = 0.5 * (found.begin + found.end);
    if (middle < from || middle >= to) continue;
    astro::SkyEvent event;
    event.kind = kPhenomena[static_cast<int>(found.kind)];
    event.moment = astro::Later(search.from, middle - from);
    event.sinceBegin = middle - found.begin;
    event.untilEnd = found.end - middle;
    event.body = found.moon;
    event.other = MakePlanet(kJupiter);
    sink(event);
  }
  return true;
}

bool FindAllOccultations(const EventSearch& search, const EventSink& sink) {
  if (!search.place) return true;
  std::vector<astro::OccultationTarget> targets;
  for (const auto& target : MakeTargets(false)) targets.push_back({target.id, target.star});
  return astro::FindOccultations(search, targets, sink);
}

bool FindAllPlanetTransits(const EventSearch& search, const EventSink& sink) {
  const bool mercury = astro::FindPlanetTransits(search, MakePlanet(1), sink);
  return astro::FindPlanetTransits(search, MakePlanet(2), sink) && mercury;
}

bool FindShowers(const EventSearch& search, const EventSink& sink) {
  return astro::FindShowerMaxima(search, astro::GetVisualShowers(), sink);
}

// A pass that is not seen, by day or in the shadow, is of no use to anybody who looks up.
bool FindSeenPasses(const EventSearch& search, const EventSink& sink) {
  if (!search.place) return true;
  std::vector<astro::SatelliteTarget> targets;
  for (const auto& body : search.bodies) {
    if (body.id.kind == FourCC("scft")) targets.push_back({body.id, &body.elements});
  }
  return astro::FindSatellitePasses(search, targets, {}, [&sink](const astro::SkyEvent& event) {
    if (event.detail == 1) sink(event);
  });
}

// A finder of `astro` as it is.
template <bool (*kFind)(const astro::EventSearch&, const EventSink&)>
bool Find(const EventSearch& search, const EventSink& sink) {
  return kFind(search, sink);
}

struct Finder {
  std::initializer_list<EventKind> kinds;  // what it finds
  bool (*find)(const EventSearch& search, const EventSink& sink);
};

// Whoever adds a finder adds a row.
const Finder kFinders[] = {
    {{EventKind::kRise, EventKind::kTransit, EventKind::kSet}, FindAllRisings},
    {{EventKind::kAstronomicalDawn, EventKind::kNauticalDawn, EventKind::kCivilDawn, EventKind::kCivilDusk,
      EventKind::kNauticalDusk, EventKind::kAstronomicalDusk, EventKind::kGoldenHourBegins,
      EventKind::kGoldenHourEnds},
     FindTwilights},
    {{EventKind::kMarchEquinox, EventKind::kJuneSolstice, EventKind::kSeptemberEquinox,
      EventKind::kDecemberSolstice},
     Find<astro::FindSeasons>},
    {{EventKind::kNewMoon, EventKind::kFirstQuarter, EventKind::kFullMoon, EventKind::kLastQuarter},
     Find<astro::FindMoonPhases>},
    {{EventKind::kPerigee, EventKind::kApogee}, Find<astro::FindMoonApsides>},
    {{EventKind::kAscendingNode, EventKind::kDescendingNode}, Find<astro::FindMoonNodes>},
    {{EventKind::kSolarEclipse, EventKind::kSolarEclipseHere}, Find<astro::FindSolarEclipses>},
    {{EventKind::kLunarEclipse}, Find<astro::FindLunarEclipses>},
    {{EventKind::kOccultationBegins, EventKind::kOccultationEnds}, FindAllOccultations},
    {{EventKind::kConjunction}, FindAllConjunctions},
    {{EventKind::kAppulse}, FindAllAppulses},
    {{EventKind::kInferiorConjunction, EventKind::kSuperiorConjunction, EventKind::kOpposition},
     FindConfigurations},
    {{EventKind::kGreatestElongationEast, EventKind::kGreatestElongationWest}, FindElongations},
    {{EventKind::kStationRetrograde, EventKind::kStationDirect}, FindAllStations},
    {{EventKind::kPerihelion, EventKind::kAphelion}, FindApsides},
    {{EventKind::kPlanetTransit}, FindAllPlanetTransits},
    {{EventKind::kSatellitePass}, FindSeenPasses},
    {{EventKind::kShowerMaximum}, FindShowers},
    {{EventKind::kMoonTransit, EventKind::kMoonShadowTransit, EventKind::kMoonOccultation,
      EventKind::kMoonEclipse},
     FindJupiterMoons}};

double SortKey(const astro::SkyEvent& event) { return event.moment.day + event.moment.fraction; }

}  // namespace

FoundEvents FindEvents(const EventKinds& kinds, const astro::EventSearch& asked,
                       const scene::BodyList& bodies) {
  const EventSearch search = {asked, bodies};
  FoundEvents found;
  const EventSink sink = [&](const astro::SkyEvent& event) {
    if (kinds.contains(event.kind)) found.events.push_back(event);
  };
  for (const auto& finder : kFinders) {
    const bool wanted = std::any_of(finder.kinds.begin(), finder.kinds.end(),
                                    [&kinds](EventKind kind) { return kinds.contains(kind); });
    if (wanted) found.complete = finder.find(search, sink) && found.complete;
  }
  std::stable_sort(found.events.begin(), found.events.end(),
                   [](const auto& a, const auto& b) { return SortKey(a) < SortKey(b); });
  return found;
}

}  // namespace skyview
