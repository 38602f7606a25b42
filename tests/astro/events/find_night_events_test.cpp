// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// The kinds of FindEvents that belong to a place and to the Moon: all that their finders have, and nothing
// else.
#include <gtest/gtest.h>

#include <set>
#include <tuple>
#include <vector>

#include "astro/find_events.h"
#include "astro/lunar_eclipses.h"
#include "astro/moon_events.h"
#include "astro/occultations.h"
#include "astro/rise_events.h"
#include "astro/seasons.h"
#include "astro/solar_eclipses.h"
#include "astro/sun_events.h"
#include "tests/astro/helpers/event_list.h"

namespace {

using astro::EventKind;
using astro::EventSink;
using astro::SkyEvent;
using astro_test::At;
using astro_test::Midnight;
using astro_test::Planet;

using Name = std::tuple<EventKind, int, int, int, double>;
using Names = std::multiset<Name>;

Name NameOf(const SkyEvent& event) {
  return {event.kind, event.body.kind, event.body.number, event.other.number, event.moment.julianDateTT};
}

astro::EventKinds NightKinds() {
  using enum EventKind;
  return astro::MakeEventKinds({kRise,
                                kTransit,
                                kSet,
                                kAstronomicalDawn,
                                kNauticalDawn,
                                kCivilDawn,
                                kCivilDusk,
                                kNauticalDusk,
                                kAstronomicalDusk,
                                kGoldenHourBegins,
                                kGoldenHourEnds,
                                kMarchEquinox,
                                kJuneSolstice,
                                kSeptemberEquinox,
                                kDecemberSolstice,
                                kNewMoon,
                                kFirstQuarter,
                                kFullMoon,
                                kLastQuarter,
                                kPerigee,
                                kApogee,
                                kAscendingNode,
                                kDescendingNode,
                                kSolarEclipse,
                                kSolarEclipseHere,
                                kLunarEclipse,
                                kOccultationBegins,
                                kOccultationEnds});
}

Names FoundBy(const astro::EventSearch& search, const astro::EventKinds& kinds) {
  astro::EventChoice choice;
  choice.kinds = kinds;
  Names names;
  EXPECT_TRUE(astro::FindEvents(search, choice, [&](const SkyEvent& event) { names.insert(NameOf(event)); }));
  return names;
}

}  // namespace

// March 2026 in Berlin: an equinox, a lunar eclipse, occultations, and what rises and sets each day.
TEST(FindNightEvents, HandsOutWhatEveryFinderHas) {
  const astro::EventSearch search = {Midnight(2026, 3, 1), Midnight(2026, 4, 1), At(52.5, 13.4)};
  const Names found = FoundBy(search, NightKinds());
  Names expected;
  const EventSink expect = [&expected](const SkyEvent& event) { expected.insert(NameOf(event)); };
  std::vector<astro::OccultationTarget> hidden;
  for (const int number : {1, 2, 4, 5, 6, 7, 8}) {
    hidden.push_back({Planet(number), nullptr});
    astro::FindRisings(search, Planet(number), nullptr, astro::RisingPart::kCentre, expect);
  }
  for (const astro::SkyTarget& star : astro::GetEclipticStars()) hidden.push_back({star.id, star.star});
  for (const SSO_ID& body : {astro::kSun, astro::kMoon})
    astro::FindRisings(search, body, nullptr, astro::RisingPart::kUpperLimb, expect);
  astro::FindSunEvents(search, expect);
  astro::FindSeasons(search, expect);
  astro::FindMoonPhases(search, expect);
  astro::FindMoonApsides(search, expect);
  astro::FindMoonNodes(search, expect);
  astro::FindSolarEclipses(search, expect);
  astro::FindLunarEclipses(search, expect);
  astro::FindOccultations(search, hidden, expect);
  // Finders hand out kinds of each other's.
  std::erase_if(expected, [](const Name& name) {
    return !NightKinds().test(static_cast<std::size_t>(std::get<0>(name)));
  });
  EXPECT_EQ(found, expected);
  EXPECT_GT(found.size(), 31u * (9 * 3 + 6));
}

// In 31 days everything rises 31 times, but the Moon, which is later each day by fifty minutes.
TEST(FindNightEvents, EverythingRisesOnceADay) {
  const astro::EventSearch search = {Midnight(2026, 3, 1), Midnight(2026, 4, 1), At(52.5, 13.4)};
  std::multiset<int> rises;
  for (const Name& name : FoundBy(search, astro::MakeEventKinds({EventKind::kRise})))
    rises.insert(std::get<2>(name));
  EXPECT_EQ(rises.count(astro::kSun.number), 31u);
  EXPECT_EQ(rises.count(astro::kMoon.number), 30u);
  for (const int number : {1, 2, 4, 5, 6, 7, 8}) {
    // What rises earlier each day, as all but the quickest do, can rise once more.
    EXPECT_GE(rises.count(number), 31u) << number;
    EXPECT_LE(rises.count(number), 32u) << number;
  }
}

TEST(FindNightEvents, OneKindAloneIsHandedOut) {
  const astro::EventSearch search = {Midnight(2026, 3, 1), Midnight(2026, 4, 1), At(52.5, 13.4)};
  EXPECT_EQ(FoundBy(search, astro::MakeEventKinds({EventKind::kMarchEquinox})).size(), 1u);
  EXPECT_EQ(FoundBy(search, astro::MakeEventKinds({EventKind::kLunarEclipse})).size(), 1u);
  EXPECT_EQ(FoundBy(search, astro::MakeEventKinds({EventKind::kCivilDusk})).size(), 31u);
  EXPECT_TRUE(FoundBy(search, astro::MakeEventKinds({EventKind::kSolarEclipse})).empty());
}
