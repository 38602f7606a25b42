// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planet_events.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>

#include "astro/planets.h"
#include "tests/astro/helpers/event_list.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/tsv.h"
#include "utils/text.h"

namespace {

using astro::EventKind;
using astro::EventSearch;
using astro::EventSink;
using astro::SkyEvent;
using astro_test::Collect;
using astro_test::Largest;
using astro_test::Midnight;
using astro_test::Planet;
using astro_test::Years;

constexpr double kMinutesPerDay = 1440.0;
constexpr double kFiveDegrees = 5.0 * astro::kRadiansPerDegree;

bool FindAll(const EventSearch& search, const EventSink& sink) {
  bool isWhole = astro::FindConjunctions(search, astro_test::PlanetTargets(true), sink);
  isWhole = astro::FindAppulses(search, astro_test::PlanetTargets(false), kFiveDegrees, sink) && isWhole;
  for (const SSO_ID& planet : astro_test::OtherPlanets()) {
    isWhole = astro::FindSunConfigurations(search, planet, sink) && isWhole;
    isWhole = astro::FindStations(search, planet, sink) && isWhole;
    if (planet.number <= 2) isWhole = astro::FindGreatestElongations(search, planet, sink) && isWhole;
  }
  return isWhole;
}

const std::map<std::string, EventKind>& Kinds() {
  static const std::map<std::string, EventKind> kinds = {
      {"conjunction", EventKind::kConjunction},
      {"appulse", EventKind::kAppulse},
      {"inferior", EventKind::kInferiorConjunction},
      {"superior", EventKind::kSuperiorConjunction},
      {"opposition", EventKind::kOpposition},
      {"elongation_east", EventKind::kGreatestElongationEast},
      {"elongation_west", EventKind::kGreatestElongationWest},
      {"retrograde", EventKind::kStationRetrograde},
      {"direct", EventKind::kStationDirect}};
  return kinds;
}

double ValueOf(const SkyEvent& event) {
  const bool withSun =
      event.kind == EventKind::kInferiorConjunction || event.kind == EventKind::kSuperiorConjunction;
  return withSun ? event.more : event.value;
}

// Two planets that hardly move against one another meet when they like.
bool IsSlow(const SkyEvent& event) {
  const bool isPair = event.kind == EventKind::kConjunction || event.kind == EventKind::kAppulse;
  return isPair && event.body.number >= 4 && event.other.number <= 8;
}

}  // namespace

// data/planet_events.tsv: all events of six years, found by another search in another library. What remains
// is the difference of the places.
TEST(PlanetEvents, AgreeWithAnotherLibraryOneByOne) {
  std::map<EventKind, Largest> minutes;
  for (const auto& [name, kind] : Kinds())
    minutes.emplace(kind, Largest(("time of " + name).c_str(), "minute"));
  Largest slow("time of pairs of outer planets", "minute"), values("values of events", "");
  const auto rows = astro_test::ReadCells(ASTRO_TEST_DATA "planet_events.tsv");
  std::size_t compared = 0;
  for (const int year : {1905, 1938, 1971, 2004, 2037, 2070}) {
    const EventSearch search = {Midnight(year, 1, 1), astro::Later(Midnight(year, 1, 1), 365.0), {}};
    std::vector<SkyEvent> events = Collect(search, FindAll);
    for (const auto& row : rows) {
      const double date = std::strtod(row[0].c_str(), nullptr);
      if (date < search.from.julianDateTT || date >= search.to.julianDateTT) continue;
      const auto found = std::find_if(events.begin(), events.end(), [&](const SkyEvent& event) {
        return event.kind == Kinds().at(row[1]) && event.body.number == std::atoi(row[2].c_str()) &&
               (event.other.number == std::atoi(row[3].c_str())) &&
               std::fabs(event.moment.julianDateTT - date) < 0.5;
      });
      ASSERT_NE(found, events.end()) << row[0] << " " << row[1] << " " << row[2] << " " << row[3];
      const double apart = (found->moment.julianDateTT - date) * kMinutesPerDay;
      (IsSlow(*found) ? slow : minutes.at(found->kind)).Note(apart, date);
      values.Note(ValueOf(*found) - std::strtod(row[4].c_str(), nullptr), date);
      events.erase(found);
      ++compared;
    }
    EXPECT_TRUE(events.empty()) << events.size() << " more in " << year;
  }
  EXPECT_EQ(compared, rows.size());
  // What stands still moves least: a few arc seconds of a slow planet's place are minutes of its station.
  for (const auto& [kind, largest] : minutes) {
    const bool isStation = kind == EventKind::kStationRetrograde || kind == EventKind::kStationDirect;
    largest.Expect(isStation ? 12.0 : 1.5);
  }
  slow.Expect(3.0);
  values.Expect(1e-4);
}

// Earth, US Naval Observatory, to the hour or better; the Moon moves the moment by up to a day and a half.
TEST(PlanetEvents, ApsidesOfTheEarth) {
  const struct {
    int year, month, day, hour, minute;
    EventKind kind;
  } published[] = {{2001, 1, 4, 9, 0, EventKind::kPerihelion},   {2002, 1, 2, 14, 0, EventKind::kPerihelion},
                   {2002, 7, 6, 4, 0, EventKind::kAphelion},     {2005, 1, 2, 1, 0, EventKind::kPerihelion},
                   {2006, 1, 4, 15, 30, EventKind::kPerihelion}, {2007, 7, 7, 0, 0, EventKind::kAphelion},
                   {2010, 1, 3, 0, 0, EventKind::kPerihelion},   {2012, 1, 5, 0, 0, EventKind::kPerihelion},
                   {2020, 1, 5, 7, 48, EventKind::kPerihelion}};
  Largest difference("apsides of the Earth", "hour");
  for (const auto& row : published) {
    const auto events =
        Collect(Years(row.year, row.year), [](const EventSearch& search, const EventSink& sink) {
          return astro::FindPlanetApsides(search, Planet(3), sink);
        });
    ASSERT_EQ(events.size(), 2u) << row.year;
    const SkyEvent& event = events[row.kind == EventKind::kPerihelion ? 0 : 1];
    EXPECT_EQ(event.kind, row.kind);
    const double date =
        astro_test::MomentOf({row.year, row.month, row.day, row.hour, row.minute, 0.0}).julianDateTT;
    difference.Note((event.moment.julianDateTT - date) * 24.0, row.year);
  }
  difference.Expect(0.75);
}

// J. Meeus, Astronomical Algorithms, chapter 38: Mars, example 38.b, 2032 October 24.956 (TT); days and
// distances of Saturn and days of Uranus from his tables. A day of Uranus changes the last digit of its
// distance by a hundredth only.
TEST(PlanetEvents, ApsidesOfMarsSaturnAndUranus) {
  const struct {
    int planet, year, month;
    double day, distance, tolerance;
  } published[] = {{4, 2032, 10, 24.956, 1.66598, 0.01}, {6, 1944, 9, 8.5, 9.0288, 0.6},
                   {6, 1974, 1, 8.5, 9.0153, 0.6},       {6, 2003, 7, 26.5, 9.0309, 0.6},
                   {6, 1959, 5, 29.5, 10.0664, 0.6},     {6, 1988, 9, 11.5, 10.0444, 0.6},
                   {7, 1925, 4, 1.5, 20.0973, 1.5},      {7, 1966, 5, 20.5, 18.2848, 1.5},
                   {7, 2009, 2, 27.5, 20.0989, 1.5}};
  for (const auto& row : published) {
    const double date = Midnight(row.year, row.month, 1).julianDateTT + row.day - 1.0;
    int found = 0;
    for (const SkyEvent& event :
         Collect(Years(row.year, row.year), [&row](const EventSearch&search, const EventSink&sink) {
           return astro::FindPlanetApsides(search, Planet(row.planet), sink);
         })) {
      if (std::fabs(event.moment.julianDateTT - date) > 30.0) continue;
      EXPECT_NEAR(event.moment.julianDateTT, date, row.tolerance) << row.planet << " " << row.year;
      EXPECT_NEAR(event.value, row.distance, 1e-4);
      ++found;
    }
    EXPECT_EQ(found, 1) << row.planet << " " << row.year;
  }
}

// Meeus, examples 36.a and 36.c: Mercury stands before the Sun on 1993 November 6 at 3 h, and on November 22
// 19.7506 degrees west of it (low-precision formulas, an hour).
TEST(PlanetEvents, MercuryOf1993) {
  const auto conjunctions = Collect(Years(1993, 1993), [](const EventSearch& search, const EventSink& sink) {
    return astro::FindSunConfigurations(search, Planet(1), sink);
  });
  EXPECT_EQ(std::count_if(conjunctions.begin(), conjunctions.end(),
                          [](const SkyEvent& event) {
                            return event.kind == EventKind::kInferiorConjunction &&
                                   std::fabs(event.moment.julianDateTT - 2449297.645) < 0.01;
                          }),
            1);
  const auto elongations = Collect(Years(1993, 1993), [](const EventSearch& search, const EventSink& sink) {
    return astro::FindGreatestElongations(search, Planet(1), sink);
  });
  EXPECT_EQ(elongations.back().kind, EventKind::kGreatestElongationWest);
  EXPECT_NEAR(elongations.back().moment.julianDateTT, 2449314.14, 0.02);
  astro_test::ExpectDegrees(elongations.back().value, 19.7506, 0.002);
}

// The greatest illuminated extent of Venus in the Astronomical Almanac, to the day: 2020 April 28 and July
// 10, 2023 July 7.
TEST(PlanetEvents, VenusIsBrightestTwiceInNineteenMonths) {
  const auto events = Collect(Years(2020, 2023), astro::FindGreatestBrilliancies);
  ASSERT_EQ(events.size(), 6u);
  EXPECT_NEAR(events[0].moment.julianDateTT, Midnight(2020, 4, 28).julianDateTT + 0.5, 1.0);
  EXPECT_NEAR(events[1].moment.julianDateTT, Midnight(2020, 7, 10).julianDateTT + 0.5, 1.0);
  EXPECT_NEAR(events[4].moment.julianDateTT, Midnight(2023, 7, 7).julianDateTT + 0.5, 1.0);
  for (const SkyEvent& event : events) EXPECT_NEAR(event.value, -4.8, 0.15);
}

// Jupiter and Saturn of 2020, December 21: 6.1 minutes of arc apart at 18:21 UT (many almanacs). In 1981 they
// met three times in right ascension, on January 14, February 19 and July 30, with Jupiter in the south; in
// longitude for the first time on December 31.
TEST(PlanetEvents, GreatConjunctions) {
  const std::vector<astro::SkyTarget> targets = {{Planet(5), nullptr}, {Planet(6), nullptr}};
  const auto closest = Collect(Years(2020, 2020), [&](const EventSearch& search, const EventSink& sink) {
    return astro::FindAppulses(search, targets, astro::kRadiansPerDegree, sink);
  });
  ASSERT_EQ(closest.size(), 1u);
  EXPECT_NEAR(closest[0].moment.julianDateTT, astro_test::MomentOf({2020, 12, 21, 18, 21, 0.0}).julianDateTT,
              10.0 / kMinutesPerDay);
  EXPECT_NEAR(closest[0].value / astro::kRadiansPerDegree * 60.0, 6.1, 0.05);
  EXPECT_NEAR(closest[0].more / astro::kRadiansPerDegree, 30.2, 0.3);
  const auto meetings = Collect(Years(1980, 1981), [&](const EventSearch& search, const EventSink& sink) {
    return astro::FindConjunctions(search, targets, sink);
  });
  ASSERT_EQ(meetings.size(), 3u);
  const double days[] = {Midnight(1981, 1, 14).julianDateTT, Midnight(1981, 2, 19).julianDateTT,
                         Midnight(1981, 7, 30).julianDateTT};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(meetings[i].moment.julianDateTT, days[i] + 0.5, 0.5);
  for (const SkyEvent& event : meetings) EXPECT_LT(event.value, 0.0);
}

// The Moon passes each star once a month of 27.3 days, and a planet a star once a revolution at least. Places
// of the stars against the data of the Bright Star Catalogue.
TEST(PlanetEvents, StarsOfTheEcliptic) {
  std::vector<astro::SkyTarget> targets(astro::GetEclipticStars().begin(), astro::GetEclipticStars().end());
  targets.push_back({astro::kMoon, nullptr});
  const auto events = Collect(Years(2024, 2024), [&](const EventSearch& search, const EventSink& sink) {
    return astro::FindConjunctions(search, targets, sink);
  });
  std::map<int, int> counts;
  for (const SkyEvent& event : events) ++counts[event.body.number];
  EXPECT_EQ(counts.size(), 6u) << "no star meets another one";
  for (const auto& [star, count] : counts) EXPECT_TRUE(count == 13 || count == 14) << star << " " << count;
  const double degrees[6][2] = {{56.87125, 24.105},    {68.98, 16.50917},      {116.32875, 28.02611},
                                {152.09292, 11.96722}, {201.29833, -11.16139}, {247.35167, -26.43194}};
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_NEAR(targets[i].star->ra / astro::kRadiansPerDegree, degrees[i][0], 0.0005) << i;
    EXPECT_NEAR(targets[i].star->dec / astro::kRadiansPerDegree, degrees[i][1], 0.0005) << i;
  }
}

// Spans that meet share out what the whole has, to the last digit, also where an event is the border.
TEST(PlanetEvents, SpansThatMeetShareOutTheWhole) {
  const EventSearch whole = Years(2004, 2004);
  const std::vector<SkyEvent> events = Collect(whole, FindAll);
  std::vector<astro::SkyMoment> borders = {whole.from, Midnight(2004, 3, 3), events[events.size() / 2].moment,
                                           astro::Later(events[events.size() / 2].moment, 0.3), whole.to};
  std::size_t next = 0;
  for (std::size_t i = 1; i < borders.size(); ++i) {
    for (const SkyEvent& event : Collect({borders[i - 1], borders[i], {}}, FindAll)) {
      ASSERT_LT(next, events.size());
      EXPECT_EQ(event.moment.julianDateTT, events[next].moment.julianDateTT);
      EXPECT_EQ(event.kind, events[next].kind);
      ++next;
    }
  }
  EXPECT_EQ(next, events.size());
}

TEST(PlanetEvents, NothingWhereThereIsNothing) {
  const EventSink none = [](const SkyEvent&) { ADD_FAILURE(); };
  const EventSearch empty = {Midnight(2020, 1, 2), Midnight(2020, 1, 1), {}};
  EXPECT_TRUE(FindAll(empty, none));
  EventSearch endless = Years(2020, 2020);
  endless.to.julianDateTT = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(FindAll(endless, none));
  const EventSearch before = {astro::MakeMoment(100000, 0.0), astro::MakeMoment(100100, 0.0), {}};
  EXPECT_FALSE(FindAll(before, none)) << "before the range of the series";
  for (const int number : {0, 3, 10, 11, 301}) {
    EXPECT_FALSE(astro::FindSunConfigurations(Years(2020, 2020), Planet(number), none));
    EXPECT_FALSE(astro::FindStations(Years(2020, 2020), Planet(number), none));
  }
  EXPECT_FALSE(astro::FindGreatestElongations(Years(2020, 2020), Planet(4), none));
  EXPECT_FALSE(astro::FindPlanetApsides(Years(2020, 2020), astro::kMoon, none));
  const StarRecord* star = astro::GetEclipticStars()[0].star;
  for (const astro::SkyTarget& unknown :
       {astro::SkyTarget{SSO_ID(FourCC("comt"), 1), nullptr},
        astro::SkyTarget{SSO_ID(FourCC("comt"), 1), star}, astro::SkyTarget{Planet(5), star},
        astro::SkyTarget{SSO_ID(FourCC("star"), 1), nullptr}, astro::SkyTarget{astro::kEarth, nullptr}}) {
    const std::vector<astro::SkyTarget> targets = {unknown, {Planet(4), nullptr}};
    EXPECT_FALSE(astro::FindConjunctions(Years(2020, 2020), targets, none));
    EXPECT_FALSE(astro::FindAppulses(Years(2020, 2020), targets, kFiveDegrees, none));
  }
}

// Pluto is known from 1600 to 2200: its perihelion was on 1989 September 5.
TEST(PlanetEvents, PlutoHasAShorterRange) {
  const auto find = [](const EventSearch& search, const EventSink& sink) {
    return astro::FindPlanetApsides(search, Planet(9), sink);
  };
  const auto events = Collect(Years(1980, 2000), find);
  ASSERT_EQ(events.size(), 1u);
  EXPECT_NEAR(events[0].moment.julianDateTT, Midnight(1989, 9, 5).julianDateTT, 5.0);
  EXPECT_FALSE(find(Years(2199, 2205), [](const SkyEvent&) {}));
}

// A star whose record is no place is never seen; the others are.
TEST(PlanetEvents, ATargetThatIsNowhereIsSaid) {
  StarRecord nowhere;
  nowhere.ra = std::nan("");
  const std::vector<astro::SkyTarget> targets = {
      {Planet(2), nullptr}, {Planet(5), nullptr}, {SSO_ID(FourCC("star"), 1), &nowhere}};
  int events = 0;
  EXPECT_FALSE(astro::FindConjunctions(Years(2023, 2023), targets, [&](const SkyEvent& event) {
    ++events;
    EXPECT_TRUE(event.other == Planet(5));
  }));
  EXPECT_GT(events, 0) << "Venus passed Jupiter on 2023 March 2";
}

TEST(PlanetEvents, SpansWithoutDatesAreEmpty) {
  const double bad[] = {std::nan(""), -HUGE_VAL, HUGE_VAL};
  for (const double date : bad) {
    EventSearch from = Years(2023, 2023), to = Years(2023, 2023);
    from.from.julianDateTT = date;
    to.to.julianDateTT = date;
    const auto none = [](const SkyEvent&) { ADD_FAILURE(); };
    EXPECT_TRUE(astro::FindPlanetApsides(from, Planet(3), none)) << date;
    EXPECT_TRUE(astro::FindPlanetApsides(to, Planet(3), none)) << date;
  }
}

TEST(PlanetEvents, OnlyPlanetsHaveElongations) {
  const auto none = [](const SkyEvent&) { ADD_FAILURE(); };
  EXPECT_FALSE(astro::FindGreatestElongations(Years(2023, 2023), SSO_ID(FourCC("star"), 2), none));
}
