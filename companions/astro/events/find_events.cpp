// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/find_events.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "astro/lunar_eclipses.h"
#include "astro/moon_events.h"
#include "astro/moon_phenomena.h"
#include "astro/occultations.h"
#include "astro/planet_transits.h"
#include "astro/rise_events.h"
#include "astro/seasons.h"
#include "astro/solar_eclipses.h"
#include "astro/sun_events.h"
#include "companions/astro/configurations/date_span.h"

namespace astro {

namespace {

constexpr double kPiece = 400.0;  // days
constexpr int kPlanetNumbers[] = {1, 2, 4, 5, 6, 7, 8};

SSO_ID PlanetOf(int number) { return SSO_ID(kPlanetKind, number); }

std::vector<SkyTarget> TargetsOf(const EventChoice& choice) {
  std::vector<SkyTarget> targets;
  for (const int number : kPlanetNumbers) targets.push_back({PlanetOf(number), nullptr});
  targets.insert(targets.end(), choice.stars.begin(), choice.stars.end());
  return targets;
}

bool FindMeetings(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  std::vector<SkyTarget> targets = TargetsOf(choice);
  targets.push_back({kMoon, nullptr});
  return FindConjunctions(search, targets, sink);
}

bool FindClosest(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  return FindAppulses(search, TargetsOf(choice), choice.farthestAppulse, sink);
}

// A finder of single planets for some of them.
template <bool (*Find)(const EventSearch&, const SSO_ID&, const EventSink&), int... Numbers>
bool OfPlanets(const EventSearch& search, const EventChoice&, const EventSink& sink) {
  bool isWhole = true;
  for (const int number : {Numbers...}) isWhole &= Find(search, PlanetOf(number), sink);
  return isWhole;
}

bool FindBrilliancies(const EventSearch& search, const EventChoice&, const EventSink& sink) {
  return FindGreatestBrilliancies(search, sink);
}

bool FindAllPasses(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  return FindSatellitePasses(search, choice.satellites, choice.passLimits, sink);
}

bool FindShowers(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  return FindShowerMaxima(search, choice.showers, sink);
}

// A finder that needs nothing but the span.
template <bool (*Find)(const EventSearch&, const EventSink&)>
bool OfSearch(const EventSearch& search, const EventChoice&, const EventSink& sink) {
  return Find(search, sink);
}

// Sun and Moon with their upper limbs, planets with their centres, as almanacs have it.
bool FindAllRisings(const EventSearch& search, const EventChoice&, const EventSink& sink) {
  const auto find = [&](const SSO_ID& body, RisingPart part) {
    return FindRisings(search, body, nullptr, part, sink);
  };
  bool isWhole = find(kSun, RisingPart::kUpperLimb);
  isWhole &= find(kMoon, RisingPart::kUpperLimb);
  for (const int number : kPlanetNumbers) isWhole &= find(PlanetOf(number), RisingPart::kCentre);
  return isWhole;
}

bool FindHiddenByMoon(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  std::vector<OccultationTarget> targets;
  for (const SkyTarget& target : TargetsOf(choice)) targets.push_back({target.id, target.star});
  return FindOccultations(search, targets, sink);
}

// A finder and the kinds that it hands out.
struct Finder {
  EventKinds kinds;
  bool (*find)(const EventSearch& search, const EventChoice& choice, const EventSink& sink);
};

// All that there are: a new finder is a line here.
std::span<const Finder> GetFinders() {
  using enum EventKind;
  static constexpr Finder kFinders[] = {
      {MakeEventKinds({kRise, kTransit, kSet}), FindAllRisings},
      {MakeEventKinds({kAstronomicalDawn, kNauticalDawn, kCivilDawn, kCivilDusk, kNauticalDusk,
                       kAstronomicalDusk, kGoldenHourBegins, kGoldenHourEnds}),
       OfSearch<FindSunEvents>},
      {MakeEventKinds({kMarchEquinox, kJuneSolstice, kSeptemberEquinox, kDecemberSolstice}),
       OfSearch<FindSeasons>},
      {MakeEventKinds({kNewMoon, kFirstQuarter, kFullMoon, kLastQuarter}), OfSearch<FindMoonPhases>},
      {MakeEventKinds({kPerigee, kApogee}), OfSearch<FindMoonApsides>},
      {MakeEventKinds({kAscendingNode, kDescendingNode}), OfSearch<FindMoonNodes>},
      {MakeEventKinds({kSolarEclipse, kSolarEclipseHere}), OfSearch<FindSolarEclipses>},
      {MakeEventKinds({kLunarEclipse}), OfSearch<FindLunarEclipses>},
      {MakeEventKinds({kOccultationBegins, kOccultationEnds}), FindHiddenByMoon},
      {MakeEventKinds({kConjunction}), FindMeetings},
      {MakeEventKinds({kAppulse}), FindClosest},
      {MakeEventKinds({kInferiorConjunction, kSuperiorConjunction, kOpposition}),
       OfPlanets<FindSunConfigurations, 1, 2, 4, 5, 6, 7, 8>},
      {MakeEventKinds({kGreatestElongationEast, kGreatestElongationWest}),
       OfPlanets<FindGreatestElongations, 1, 2>},
      {MakeEventKinds({kStationRetrograde, kStationDirect}), OfPlanets<FindStations, 1, 2, 4, 5, 6, 7, 8>},
      {MakeEventKinds({kPerihelion, kAphelion}), OfPlanets<FindPlanetApsides, 1, 2, 3, 4, 5, 6, 7, 8>},
      {MakeEventKinds({kGreatestBrilliancy}), FindBrilliancies},
      {MakeEventKinds({kPlanetTransit}), OfPlanets<FindPlanetTransits, 1, 2>},
      {MakeEventKinds({kSatellitePass}), FindAllPasses},
      {MakeEventKinds({kShowerMaximum}), FindShowers},
      {MakeEventKinds({kMoonTransit, kMoonShadowTransit, kMoonOccultation, kMoonEclipse}),
       OfPlanets<FindMoonPhenomena, 5>},
  };
  return kFinders;
}

auto OrderOf(const SkyEvent& event) {
  return std::make_tuple(event.moment.julianDateTT, event.kind, event.body.kind, event.body.number,
                         event.other.kind, event.other.number);
}

bool FindPiece(const EventSearch& search, const EventChoice& choice, std::vector<SkyEvent>& events) {
  bool isWhole = true;
  const EventSink collect = [&](const SkyEvent& event) {
    if (choice.kinds.test(static_cast<std::size_t>(event.kind))) events.push_back(event);
  };
  for (const Finder& finder : GetFinders()) {
    if ((finder.kinds & choice.kinds).any()) isWhole &= finder.find(search, choice, collect);
  }
  std::sort(events.begin(), events.end(),
            [](const SkyEvent& a, const SkyEvent& b) { return OrderOf(a) < OrderOf(b); });
  return isWhole;
}

}  // namespace

EventKinds GetFoundKinds() {
  EventKinds kinds;
  for (const Finder& finder : GetFinders()) kinds |= finder.kinds;
  return kinds;
}

bool FindEvents(const EventSearch& search, const EventChoice& choice, const EventSink& sink) {
  const astro_internal::DateSpan span = astro_internal::SpanOf(search, kSun);
  bool isWhole = span.isWhole && (choice.kinds & ~GetFoundKinds()).none();
  for (double from = span.from; from < span.to; from += kPiece) {
    const double to = std::min(from + kPiece, span.to);
    std::vector<SkyEvent> events;
    const EventSearch piece = {astro::MakeMomentTT(from), astro::MakeMomentTT(to), search.place};
    isWhole &= FindPiece(piece, choice, events);
    for (const SkyEvent& event : events) sink(event);
  }
  return isWhole;
}

}  // namespace astro
