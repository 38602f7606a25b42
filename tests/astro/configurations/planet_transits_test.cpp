// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planet_transits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "astro/planets.h"
#include "tests/astro/helpers/event_list.h"
#include "tests/astro/helpers/measure.h"
#include "utils/text.h"

namespace {

using astro::EventSearch;
using astro::EventSink;
using astro::FindPlanetTransit;
using astro::FindPlanetTransits;
using astro::PlanetTransit;
using astro::SkyEvent;
using astro::SkyMoment;
using astro_test::At;
using astro_test::Collect;
using astro_test::Largest;
using astro_test::Midnight;
using astro_test::MomentOf;
using astro_test::Planet;
using astro_test::Years;

std::vector<SkyEvent> TransitsOf(int planet, const EventSearch& search) {
  return Collect(search, [planet](const EventSearch& span, const EventSink& sink) {
    return FindPlanetTransits(span, Planet(planet), sink);
  });
}

std::string DayOf(const SkyMoment& moment) {
  CalendarDate date;
  JD(moment.day, moment.fraction, date);
  return std::to_string(date.year) + "-" + std::to_string(date.month) + "-" + std::to_string(date.day);
}

// Hours, minutes and seconds of a transit; a time before noon that follows one of the evening is of the next
// day.
struct Clock {
  int hour, minute, second;
};
struct Published {
  int planet, year, month, day;
  Clock contacts[5];  // I, II, closest, III, IV
  double separation;  // arc seconds
};

void NoteContacts(const PlanetTransit& transit, const Published& published, Largest& contacts) {
  const astro::TransitContact* found[5] = {&transit.ingress, &transit.inside, &transit.greatest,
                                           &transit.leaving, &transit.egress};
  int day = published.day;
  for (int i = 0; i < 5; ++i) {
    const Clock& clock = published.contacts[i];
    if (i > 0 && clock.hour < published.contacts[i - 1].hour) ++day;
    const SkyMoment moment =
        MomentOf({published.year, published.month, day, clock.hour, clock.minute, double(clock.second)});
    contacts.Note((found[i]->moment.julianDateTT - moment.julianDateTT) * astro::kSecondsPerDay,
                  moment.julianDateTT);
  }
}

}  // namespace

// Espenak's catalogs of transits (NASA, Six Millennium Catalog of Venus Transits, Seven Century Catalog of
// Mercury Transits): the dates of the closest moment in Universal Time.
TEST(PlanetTransits, AllOfTwoCenturiesAreFound) {
  const std::vector<std::string> mercury = {
      "1907-11-14", "1914-11-7", "1924-5-8",   "1927-11-10", "1937-5-11",  "1940-11-11", "1953-11-14",
      "1957-5-6",   "1960-11-7", "1970-5-9",   "1973-11-10", "1986-11-13", "1993-11-6",  "1999-11-15",
      "2003-5-7",   "2006-11-8", "2016-5-9",   "2019-11-11", "2032-11-13", "2039-11-7",  "2049-5-7",
      "2052-11-9",  "2062-5-10", "2065-11-11", "2078-11-14", "2085-11-7",  "2095-5-8",   "2098-11-10"};
  std::vector<std::string> found;
  for (const SkyEvent& event : TransitsOf(1, Years(1900, 2100))) found.push_back(DayOf(event.moment));
  EXPECT_EQ(found, mercury);
  found.clear();
  for (const SkyEvent& event : TransitsOf(2, Years(1870, 2130))) found.push_back(DayOf(event.moment));
  const std::vector<std::string> venus = {"1874-12-9", "1882-12-6",  "2004-6-8",
                                          "2012-6-6",  "2117-12-11", "2125-12-8"};
  EXPECT_EQ(found, venus);
}

// The same author's predictions for the Earth's centre, rounded to seconds and tenths of an arc second. Venus
// moves half an arc second, what its series is worth, in 8 seconds.
TEST(PlanetTransits, ContactsMeetThePublishedOnes) {
  const Published published[] = {
      {2, 2004, 6, 8, {{5, 13, 29}, {5, 32, 55}, {8, 19, 44}, {11, 6, 33}, {11, 25, 59}}, 626.9},
      {2, 2012, 6, 5, {{22, 9, 38}, {22, 27, 34}, {1, 29, 36}, {4, 31, 39}, {4, 49, 35}}, 554.4},
      {1, 2006, 11, 8, {{19, 12, 4}, {19, 13, 57}, {21, 41, 4}, {0, 8, 16}, {0, 10, 8}}, 422.9},
      {1, 2016, 5, 9, {{11, 12, 19}, {11, 15, 31}, {14, 57, 26}, {18, 39, 14}, {18, 42, 26}}, 318.5},
      {1, 2019, 11, 11, {{12, 35, 27}, {12, 37, 8}, {15, 19, 48}, {18, 2, 33}, {18, 4, 14}}, 75.9}};
  Largest mercury("contacts of transits of Mercury", "second"),
      venus("contacts of transits of Venus", "second");
  Largest separation("separation in transits", "arc second");
  for (const Published& one : published) {
    const auto transit = FindPlanetTransit(Planet(one.planet), Midnight(one.year, one.month, one.day), {});
    ASSERT_TRUE(transit);
    EXPECT_TRUE(transit->isWhole && transit->isSeen);
    NoteContacts(*transit, one, one.planet == 1 ? mercury : venus);
    separation.Note(transit->separation / astro::kRadiansPerArcsecond - one.separation, one.year);
  }
  mercury.Expect(5.0);
  venus.Expect(10.0);
  separation.Expect(0.5);
}

// Position angles of 2004 from the same page: I 116, closest 166, IV 216 degrees. In 1937 only a part of
// Mercury came before the Sun, seen from the Earth's centre.
TEST(PlanetTransits, AnglesAndGrazes) {
  const auto venus = FindPlanetTransit(Planet(2), Midnight(2004, 6, 9), {});
  ASSERT_TRUE(venus);
  astro_test::ExpectDegrees(venus->ingress.positionAngle, 116.0, 0.6);
  astro_test::ExpectDegrees(venus->greatest.positionAngle, 166.0, 0.6);
  astro_test::ExpectDegrees(venus->egress.positionAngle, 216.0, 0.6);
  const auto graze = FindPlanetTransit(Planet(1), Midnight(1937, 5, 11), {});
  ASSERT_TRUE(graze);
  EXPECT_FALSE(graze->isWhole);
  EXPECT_LT(graze->egress.moment.julianDateTT - graze->ingress.moment.julianDateTT, 0.05);
}

// PyEphem 4.1.4 with the same radii, topocentric: Honolulu 2012, Berlin 2016, where the Sun sets at the end.
// Its delta T is 66.73 and 68.28 s.
TEST(PlanetTransits, ContactsAtAPlace) {
  Largest contacts("contacts of transits at a place", "second");
  const Published honolulu = {
      2, 2012, 6, 5, {{22, 10, 5}, {22, 27, 36}, {1, 26, 12}, {4, 26, 32}, {4, 44, 23}}, 556.6};
  const auto first = FindPlanetTransit(Planet(2), Midnight(2012, 6, 6), At(21.3069, -157.8583));
  ASSERT_TRUE(first);
  NoteContacts(*first, honolulu, contacts);
  EXPECT_NEAR(first->separation / astro::kRadiansPerArcsecond, 556.56, 0.3);
  EXPECT_NEAR(first->ingress.sunAltitude / astro::kRadiansPerDegree, 85.2, 0.1);
  EXPECT_NEAR(first->egress.sunAltitude / astro::kRadiansPerDegree, 5.0, 0.1);
  const Published berlin = {
      1, 2016, 5, 9, {{11, 12, 5}, {11, 15, 16}, {14, 56, 2}, {18, 37, 18}, {18, 40, 30}}, 321.2};
  const auto second = FindPlanetTransit(Planet(1), Midnight(2016, 5, 9), At(52.5, 13.4));
  ASSERT_TRUE(second);
  NoteContacts(*second, berlin, contacts);
  EXPECT_TRUE(second->isSeen);
  contacts.Expect(10.0);
}

// In 2012 it was night in Buenos Aires from before the first to behind the last contact; in 2016 in Sydney.
TEST(PlanetTransits, NightHidesThem) {
  const auto south = FindPlanetTransit(Planet(2), Midnight(2012, 6, 6), At(-34.6, -58.4));
  ASSERT_TRUE(south);
  EXPECT_FALSE(south->isSeen);
  const auto east = FindPlanetTransit(Planet(1), Midnight(2016, 5, 9), At(-33.9, 151.2));
  ASSERT_TRUE(east);
  EXPECT_FALSE(east->isSeen);
}

TEST(PlanetTransits, NothingWhereThereIsNothing) {
  EXPECT_FALSE(FindPlanetTransit(Planet(2), Midnight(2012, 6, 15), {}));
  EXPECT_FALSE(FindPlanetTransit(Planet(1), Midnight(2017, 12, 13), {})) << "it passes the Sun far off";
  EXPECT_FALSE(FindPlanetTransit(Planet(4), Midnight(2016, 5, 9), {}));
  EXPECT_FALSE(FindPlanetTransits(Years(2000, 2001), Planet(5), [](const SkyEvent&) { ADD_FAILURE(); }));
  const SkyMoment far = astro::MakeMoment(9999999, 0.0);
  EXPECT_FALSE(FindPlanetTransit(Planet(2), far, {}));
}

// The closest moment counts, whatever end of the span the conjunction lies beyond.
TEST(PlanetTransits, SpansThatMeetShareThem) {
  const SkyMoment closest = TransitsOf(1, Years(2016, 2016)).at(0).moment;
  for (const double offset : {-0.2, -0.01, 0.0, 0.01, 0.2}) {
    const SkyMoment border = astro::Later(closest, offset);
    const auto before = TransitsOf(1, {Midnight(2016, 1, 1), border, {}});
    const auto behind = TransitsOf(1, {border, Midnight(2017, 1, 1), {}});
    EXPECT_EQ(before.size() + behind.size(), 1u) << offset;
  }
}

// Venus stood behind the Sun on 2021 March 26 (Astronomical Almanac).
TEST(PlanetTransits, APlanetBehindTheSunDoesNotCrossIt) {
  EXPECT_FALSE(FindPlanetTransit(Planet(2), Midnight(2021, 3, 26), {}));
}

TEST(PlanetTransits, NoneOfOtherBodiesNorAtNoTime) {
  const auto none = [](const SkyEvent&) { ADD_FAILURE(); };
  for (const SSO_ID& body : {SSO_ID(FourCC("star"), 2), astro::kMoon, Planet(4)}) {
    EXPECT_FALSE(FindPlanetTransit(body, Midnight(2012, 6, 6), {})) << body.number;
    EXPECT_FALSE(FindPlanetTransits(Years(2012, 2012), body, none)) << body.number;
  }
  for (const double date : {std::nan(""), -1e9, 1e9}) {
    SkyMoment moment = Midnight(2012, 6, 6);
    moment.julianDateTT = date;
    EXPECT_FALSE(FindPlanetTransit(Planet(2), moment, {})) << date;
  }
  const SkyMoment day = Midnight(2012, 6, 6);
  EXPECT_TRUE(FindPlanetTransits({day, day, {}}, Planet(2), none)) << "an empty span";
  const EventSearch early = {astro::MakeMoment(100000, 0.0), astro::MakeMoment(100100, 0.0), {}};
  EXPECT_FALSE(FindPlanetTransits(early, Planet(2), none));
}
