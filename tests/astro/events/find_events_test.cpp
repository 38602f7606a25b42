// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/find_events.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <tuple>
#include <vector>

#include "astro/moon_phenomena.h"
#include "astro/planet_transits.h"
#include "tests/astro/helpers/event_list.h"
#include "tests/astro/helpers/known_orbits.h"

namespace {

using astro::EventChoice;
using astro::EventKind;
using astro::EventKinds;
using astro::EventSearch;
using astro::EventSink;
using astro::FindEvents;
using astro::MakeEventKinds;
using astro::SkyEvent;
using astro_test::Midnight;
using astro_test::Planet;
using astro_test::Years;

// The kinds that these tests know; others have tests of their own.
EventKinds PlanetKinds() {
  using enum EventKind;
  return MakeEventKinds({kConjunction, kAppulse, kInferiorConjunction, kSuperiorConjunction, kOpposition,
                         kGreatestElongationEast, kGreatestElongationWest, kStationRetrograde, kStationDirect,
                         kPerihelion, kAphelion, kGreatestBrilliancy, kPlanetTransit, kShowerMaximum,
                         kMoonTransit, kMoonShadowTransit, kMoonOccultation, kMoonEclipse});
}

EventChoice ChoiceOf(const EventKinds& kinds) {
  EventChoice choice;
  choice.kinds = kinds;
  return choice;
}

std::vector<SkyEvent> EventsOf(const EventSearch& search, const EventChoice& choice) {
  std::vector<SkyEvent> events;
  EXPECT_TRUE(FindEvents(search, choice, [&events](const SkyEvent& event) { events.push_back(event); }));
  return events;
}

auto NameOf(const SkyEvent& event) {
  return std::make_tuple(event.kind, event.body.kind, event.body.number, event.other.number,
                         event.moment.julianDateTT);
}

}  // namespace

// Fourteen months, so that the search goes through two pieces; with a transit of Mercury.
TEST(FindEvents, HandsOutWhatEveryFinderHasInTheOrderOfTime) {
  const EventSearch search = {Midnight(2019, 11, 1), Midnight(2021, 1, 1), {}};
  const std::vector<SkyEvent> events = EventsOf(search, ChoiceOf(PlanetKinds()));
  std::multiset<decltype(NameOf(events[0]))> found, expected;
  for (std::size_t i = 0; i < events.size(); ++i) {
    if (i > 0) {
      EXPECT_LE(events[i - 1].moment.julianDateTT, events[i].moment.julianDateTT);
    }
    found.insert(NameOf(events[i]));
  }
  const EventSink expect = [&expected](const SkyEvent& event) { expected.insert(NameOf(event)); };
  std::vector<astro::SkyTarget> targets = astro_test::PlanetTargets(false);
  targets.insert(targets.end(), astro::GetEclipticStars().begin(), astro::GetEclipticStars().end());
  astro::FindAppulses(search, targets, 5.0 * astro::kRadiansPerDegree, expect);
  targets.push_back({astro::kMoon, nullptr});
  astro::FindConjunctions(search, targets, expect);
  for (int number = 1; number <= 8; ++number) {
    astro::FindPlanetApsides(search, Planet(number), expect);
    if (number == 3) continue;
    astro::FindSunConfigurations(search, Planet(number), expect);
    astro::FindStations(search, Planet(number), expect);
    if (number > 2) continue;
    astro::FindGreatestElongations(search, Planet(number), expect);
    astro::FindPlanetTransits(search, Planet(number), expect);
  }
  astro::FindGreatestBrilliancies(search, expect);
  astro::FindShowerMaxima(search, astro::GetVisualShowers(), expect);
  astro::FindMoonPhenomena(search, Planet(5), expect);
  EXPECT_GT(found.size(), 1500u);
  EXPECT_EQ(found, expected);
  EXPECT_EQ(std::set(found.begin(), found.end()).size(), found.size()) << "something twice";
}

TEST(FindEvents, SpansThatMeetShareOutTheWhole) {
  const EventSearch whole = {Midnight(2023, 1, 1), Midnight(2024, 3, 1), {}};
  const EventChoice choice = ChoiceOf(PlanetKinds());
  const std::vector<SkyEvent> events = EventsOf(whole, choice);
  std::size_t next = 0;
  const astro::SkyMoment borders[] = {whole.from, Midnight(2023, 2, 3), events[700].moment,
                                      Midnight(2024, 2, 1), whole.to};
  for (std::size_t i = 1; i < std::size(borders); ++i) {
    for (const SkyEvent& event : EventsOf({borders[i - 1], borders[i], {}}, choice)) {
      ASSERT_LT(next, events.size());
      ASSERT_EQ(NameOf(event), NameOf(events[next])) << next;
      ++next;
    }
  }
  EXPECT_EQ(next, events.size());
}

TEST(FindEvents, HandsOutTheKindsThatWereChosen) {
  const auto oppositions = EventsOf(Years(2020, 2020), ChoiceOf(MakeEventKinds({EventKind::kOpposition})));
  EXPECT_EQ(oppositions.size(), 5u) << "Mars to Neptune, all in one year";
  for (const SkyEvent& event : oppositions) EXPECT_EQ(event.kind, EventKind::kOpposition);
  EXPECT_TRUE(EventsOf(Years(2020, 2020), EventChoice()).empty());
}

TEST(FindEvents, TakesStarsShowersAndSatellites) {
  const OrbitalElements elements =
      astro_test::Satellite("1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082",
                            "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473");
  const astro::SatelliteTarget satellites[] = {{SSO_ID(FourCC("scft"), 25544), &elements, -1.8}};
  EventChoice choice = ChoiceOf(
      MakeEventKinds({EventKind::kSatellitePass, EventKind::kShowerMaximum, EventKind::kConjunction}));
  choice.satellites = satellites;
  choice.showers = {};
  choice.stars = {};
  const astro::SkyMoment from = Midnight(2014, 1, 21);
  const EventSearch search = {from, astro::Later(from, 3.0), astro_test::At(52.5, 13.4)};
  std::map<EventKind, int> counts;
  for (const SkyEvent& event : EventsOf(search, choice)) ++counts[event.kind];
  EXPECT_EQ(counts[EventKind::kSatellitePass], 13);
  EXPECT_EQ(counts[EventKind::kShowerMaximum], 0);
  for (const SkyEvent& event : EventsOf(search, choice)) EXPECT_NE(event.body.kind, FourCC("star"));
}

// A place that is missing, a kind that nobody finds, a span beyond the series.
TEST(FindEvents, SaysWhenItCannotTell) {
  const EventSink any = [](const SkyEvent&) {};
  const OrbitalElements elements;
  const astro::SatelliteTarget satellites[] = {{SSO_ID(FourCC("scft"), 1), &elements}};
  EventChoice passes = ChoiceOf(MakeEventKinds({EventKind::kSatellitePass}));
  passes.satellites = satellites;
  EXPECT_FALSE(FindEvents(Years(2020, 2020), passes, any));
  for (int kind = 0; kind < astro::kEventKinds; ++kind) {
    if (astro::GetFoundKinds().test(static_cast<std::size_t>(kind))) continue;
    EXPECT_FALSE(FindEvents(Years(2020, 2020), ChoiceOf(MakeEventKinds({EventKind(kind)})), any)) << kind;
  }
  EXPECT_EQ(PlanetKinds() & ~astro::GetFoundKinds(), EventKinds());
  EXPECT_TRUE(astro::GetFoundKinds().all()) << "each kind has a finder";
  const EventSearch moonless = {astro::MakeMoment(2000000, 0.0), astro::MakeMoment(2000001, 0.0), {}};
  EXPECT_FALSE(FindEvents(moonless, ChoiceOf(MakeEventKinds({EventKind::kMoonTransit})), any))
      << "before the theory of Jupiter's moons";
  const EventSearch before = {astro::MakeMoment(100000, 0.0), astro::MakeMoment(100100, 0.0), {}};
  EXPECT_FALSE(FindEvents(before, ChoiceOf(PlanetKinds()), any));
  const EventSearch empty = {Midnight(2020, 1, 1), Midnight(2020, 1, 1), {}};
  EXPECT_TRUE(FindEvents(empty, ChoiceOf(PlanetKinds()), [](const SkyEvent&) { ADD_FAILURE(); }));
}
