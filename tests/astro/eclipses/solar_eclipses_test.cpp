// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_eclipses.h"

#include <gtest/gtest.h>

#include <map>

#include "astro/rise_events.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::Collect;
using astro_test::Midnight;
using astro_test::OfKind;
using astro_test::SearchYears;

namespace {

// Another way over the ground from one place to another, for short ways.
EarthPlace Between(const EarthPlace& a, const EarthPlace& b, double part) {
  return {a.lon + part * (b.lon - a.lon), a.lat + part * (b.lat - a.lat), 0.0};
}

double Kilometres(const EarthPlace& a, const EarthPlace& b) {
  const double north = b.lat - a.lat, east = (b.lon - a.lon) * std::cos(0.5 * (a.lat + b.lat));
  return std::hypot(north, east) * 6371.0;
}

}  // namespace

// Espenak & Meeus, Five Millennium Catalog of Solar Eclipses (NASA): dynamical time of the greatest eclipse;
// places to a degree's tenth, as its delta T moves them. Without a central line no duration and width.
TEST(SolarEclipses, AsInTheCanon) {
  const struct {
    CalendarDate greatest;
    SolarEclipseType type;
    double gamma, magnitude, latitude, longitude, duration, width;
  } expected[] = {
      {{1991, 7, 11, 19, 7, 1}, SolarEclipseType::kTotal, -0.0041, 1.0800, 22.0, -105.2, 413, 258},
      {{1999, 8, 11, 11, 4, 9}, SolarEclipseType::kTotal, 0.5062, 1.0286, 45.1, 24.3, 143, 112},
      {{2005, 4, 8, 20, 36, 51}, SolarEclipseType::kHybrid, -0.3473, 1.0074, -10.6, -119.0, 42, 27},
      {{2006, 3, 29, 10, 12, 23}, SolarEclipseType::kTotal, 0.3843, 1.0515, 23.2, 16.7, 247, 184},
      {{2009, 7, 22, 2, 36, 25}, SolarEclipseType::kTotal, 0.0698, 1.0799, 24.2, 144.1, 399, 258},
      {{2011, 1, 4, 8, 51, 42}, SolarEclipseType::kPartial, 1.0627, 0.8576, 64.7, 20.8, 0, 0},
      {{2014, 4, 29, 6, 4, 33}, SolarEclipseType::kAnnular, -1.0000, 0.9868, -70.6, 131.3, 0, 0},
      {{2017, 8, 21, 18, 26, 40}, SolarEclipseType::kTotal, 0.4367, 1.0306, 37.0, -87.7, 160, 115},
      {{2018, 2, 15, 20, 52, 33}, SolarEclipseType::kPartial, -1.2116, 0.5991, -71.0, 0.6, 0, 0},
      {{2023, 4, 20, 4, 17, 56}, SolarEclipseType::kHybrid, -0.3952, 1.0132, -9.6, 125.8, 76, 49},
      {{2023, 10, 14, 18, 0, 41}, SolarEclipseType::kAnnular, 0.3753, 0.9520, 11.4, -83.1, 317, 187},
      {{2024, 4, 8, 18, 18, 29}, SolarEclipseType::kTotal, 0.3431, 1.0566, 25.3, -104.1, 268, 198},
  };
  astro_test::Largest time("greatest solar eclipse against the canon", "s"),
      gamma("gamma of solar eclipses against the canon", ""),
      magnitude("magnitudes of solar eclipses against the canon", ""),
      duration("durations of solar eclipses against the canon", "s"),
      width("widths of the path against the canon", "km");
  for (const auto& row : expected) {
    int day = 0;
    double fraction = 0.0;
    DJ(row.greatest, day, fraction);
    const double date = day + fraction;
    const auto eclipse = ComputeSolarEclipse(MakeMomentTT(date));
    ASSERT_TRUE(eclipse) << row.greatest.year;
    EXPECT_EQ(eclipse->type, row.type) << row.greatest.year;
    time.Note((eclipse->greatest.julianDateTT - date) * kSecondsPerDay, row.greatest.year);
    gamma.Note(eclipse->gamma - row.gamma, row.greatest.year);
    magnitude.Note(eclipse->magnitude - row.magnitude, row.greatest.year);
    astro_test::ExpectDegrees(eclipse->place.lat, row.latitude, 0.15);
    astro_test::ExpectDegrees(eclipse->place.lon, row.longitude, 0.3);
    EXPECT_EQ(eclipse->centralBegin.has_value(), row.width > 0.0);
    const auto path = ComputeEclipsePath(*eclipse, 60.0);
    EXPECT_EQ(path.empty(), row.width == 0.0);
    for (const EclipsePathPoint& point : path) {
      if (std::fabs(point.moment.julianDateTT - eclipse->greatest.julianDateTT) > 1e-6) continue;
      duration.Note(point.duration - row.duration, row.greatest.year);
      width.Note(point.width - row.width, row.greatest.year);
      EXPECT_NEAR(point.centre.lat, eclipse->place.lat, 1e-6);
    }
  }
  time.Expect(2.5);
  gamma.Expect(0.00015);
  magnitude.Expect(0.00015);
  duration.Expect(1.0);
  width.Expect(1.5);
}

// The same canon counts 78 partial, 73 annular, 71 total and 6 hybrid eclipses from 1901 to 2000, and 77, 72,
// 68 and 7 from 2001 to 2100.
TEST(SolarEclipses, AsManyOfEachTypeAsTheCanonCounts) {
  const std::map<int, int> expected[] = {{{0, 78}, {1, 73}, {2, 71}, {3, 6}},
                                         {{0, 77}, {1, 72}, {2, 68}, {3, 7}}};
  for (int century = 0; century < 2; ++century) {
    std::map<int, int> counts;
    const int year = 1901 + 100 * century;
    for (const SkyEvent& event : Collect(FindSolarEclipses, SearchYears(year, year + 100)))
      ++counts[event.detail];
    EXPECT_EQ(counts, expected[century]) << year;
  }
}

// At the limits of the path the umbra is touched and no more: a kilometre inside the eclipse is total, one
// outside partial. Across the path they are as far apart as its width.
TEST(SolarEclipses, LimitsOfThePathAreWhereTotalityEnds) {
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse && eclipse->centralBegin);
  const auto path = ComputeEclipsePath(*eclipse, 1200.0);
  ASSERT_GT(path.size(), 8u);
  int compared = 0;
  for (const EclipsePathPoint& point : path) {
    if (point.sunAltitude < 15.0 * kRadiansPerDegree) continue;
    for (const auto& limit : {point.northernLimit, point.southernLimit}) {
      ASSERT_TRUE(limit);
      const double part = 1.0 / Kilometres(*limit, point.centre);
      const auto inside = ComputeLocalSolarEclipse(*eclipse, Between(*limit, point.centre, part));
      const auto outside = ComputeLocalSolarEclipse(*eclipse, Between(*limit, point.centre, -part));
      ASSERT_TRUE(inside && outside);
      EXPECT_EQ(inside->kind, SolarEclipse::kTotal);
      EXPECT_EQ(outside->kind, SolarEclipse::kPartial);
      ++compared;
    }
    const auto centre = ComputeLocalSolarEclipse(*eclipse, point.centre);
    ASSERT_TRUE(centre && centre->second && centre->third);
    EXPECT_NEAR((centre->third->moment.julianDateTT - centre->second->moment.julianDateTT) * kSecondsPerDay,
                point.duration, 1.0);
    EXPECT_NEAR((centre->maximum.moment.julianDateTT - point.moment.julianDateTT) * kSecondsPerDay, 0.0, 1.0);
    EXPECT_NEAR(centre->obscuration, 1.0, 1e-12);
  }
  EXPECT_GE(compared, 10);
}

// In Dublin the Sun of 2024 April 8 sets soon after the beginning: the best that is seen is at its set.
TEST(SolarEclipses, WhatIsSeenEndsWithTheSunsSet) {
  const EarthPlace dublin = At(53.35, -6.26);
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  const auto local = ComputeLocalSolarEclipse(*eclipse, dublin);
  ASSERT_TRUE(local && local->bestSeen);
  EXPECT_TRUE(local->first.isVisible);
  EXPECT_FALSE(local->maximum.isVisible);
  EXPECT_FALSE(local->last.isVisible);
  EXPECT_LT(local->magnitudeSeen, local->magnitude);
  const EventSearch day = {Midnight(2024, 4, 8), Midnight(2024, 4, 9), dublin};
  const auto sets = OfKind(Collect(FindRisings, day, kSun, nullptr, RisingPart::kUpperLimb), EventKind::kSet);
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_NEAR(local->bestSeen->julianDateTT, sets[0].moment.julianDateTT, 1.0 / kSecondsPerDay);
  const auto events = OfKind(Collect(FindSolarEclipses, day), EventKind::kSolarEclipseHere);
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].value, local->magnitudeSeen);
}

TEST(SolarEclipses, EventsLastFromTheFirstContactToTheLast) {
  const EarthPlace dallas = At(32.78, -96.8);
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  const auto local = ComputeLocalSolarEclipse(*eclipse, dallas);
  ASSERT_TRUE(local && local->bestSeen);
  const auto events = Collect(FindSolarEclipses, {Midnight(2024, 4, 8), Midnight(2024, 4, 9), dallas});
  ASSERT_EQ(events.size(), 2u);
  for (const SkyEvent& event : events) {
    const bool isHere = event.kind == EventKind::kSolarEclipseHere;
    const double best = event.moment.julianDateTT;
    EXPECT_EQ(event.sinceBegin, best - (isHere ? local->first.moment : eclipse->begin).julianDateTT);
    EXPECT_EQ(event.untilEnd, (isHere ? local->last.moment : eclipse->end).julianDateTT - best);
    EXPECT_NEAR(event.sinceBegin + event.untilEnd, isHere ? 2.66 / 24.0 : 5.17 / 24.0, 0.01 / 24.0);
  }
}

TEST(SolarEclipses, NoneWhereAndWhenThereIsNone) {
  EXPECT_FALSE(ComputeSolarEclipse(Midnight(2024, 5, 8)));
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  // The cone goes on through the Earth, but in Sydney it is night.
  const auto local = ComputeLocalSolarEclipse(*eclipse, At(-33.9, 151.2));
  EXPECT_FALSE(local && local->bestSeen);
  EXPECT_FALSE(ComputeLocalSolarEclipse(*eclipse, At(-54.8, -68.3)));
  const EventSearch sydney = {Midnight(2024, 4, 1), Midnight(2024, 4, 20), At(-33.9, 151.2)};
  const auto events = Collect(FindSolarEclipses, sydney);
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, EventKind::kSolarEclipse);
}

TEST(SolarEclipses, SpansThatMeetAtOneShareItOut) {
  const SkyMoment greatest = ComputeSolarEclipse(Midnight(2024, 4, 8)).value().greatest;
  const auto count = [](const SkyMoment& from, const SkyMoment& to) {
    return Collect(FindSolarEclipses, EventSearch{from, to, std::nullopt}).size();
  };
  EXPECT_EQ(count(Later(greatest, -2.0), greatest), 0u);
  EXPECT_EQ(count(Later(greatest, -2.0), Later(greatest, 0.01)), 1u);
  EXPECT_EQ(count(Later(greatest, -0.01), Later(greatest, 2.0)), 1u);
  EXPECT_EQ(count(Later(greatest, 0.01), Later(greatest, 2.0)), 0u);
}

TEST(SolarEclipses, AtADateBeyondTheSeriesNoPlaceSeesOne) {
  auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  eclipse->greatest.julianDateTT = 1e7;
  EXPECT_FALSE(ComputeLocalSolarEclipse(*eclipse, At(32.78, -96.8)));
}

TEST(SolarEclipses, APathNeedsBothItsEndsAndAStep) {
  const auto eclipse = ComputeSolarEclipse(Midnight(2024, 4, 8));
  ASSERT_TRUE(eclipse);
  EXPECT_FALSE(ComputeEclipsePath(*eclipse, 3600.0).empty());
  for (const double step : {0.0, -60.0, std::nan("")})
    EXPECT_TRUE(ComputeEclipsePath(*eclipse, step).empty());
  GlobalSolarEclipse half = *eclipse;
  half.centralEnd.reset();
  EXPECT_TRUE(ComputeEclipsePath(half, 3600.0).empty());
}

// Albuquerque, 35.08 north, 106.65 west, 2023 October 14 (NASA's table of cities, whole minutes of mountain
// daylight time): partial from 9:13, annular from 10:34 to 10:39, over at 12:09.
TEST(SolarEclipses, AnnularInAlbuquerque) {
  const auto eclipse = ComputeSolarEclipse(Midnight(2023, 10, 14));
  ASSERT_TRUE(eclipse);
  const auto local = ComputeLocalSolarEclipse(*eclipse, At(35.08, -106.65, 1600.0));
  ASSERT_TRUE(local && local->second && local->third);
  EXPECT_EQ(local->kind, SolarEclipse::kAnnular);
  const auto minutes = [](const EclipseContact& contact) {
    return astro_test::DayFraction(contact.moment) * kMinutesPerDay - 6.0 * 60.0;
  };
  EXPECT_NEAR(minutes(local->first), 9.0 * 60.0 + 13.0, 1.0);
  EXPECT_NEAR(minutes(*local->second), 10.0 * 60.0 + 34.0, 1.0);
  EXPECT_NEAR(minutes(*local->third), 10.0 * 60.0 + 39.0, 1.0);
  EXPECT_NEAR(minutes(local->last), 12.0 * 60.0 + 9.0, 1.0);
  // The Moon comes from the west: its following edge passes the Sun's there, its leading one in the east.
  EXPECT_GT(local->second->positionAngle, kPi);
  EXPECT_LT(local->third->positionAngle, kPi);
}

// Beside Bering Strait the Sun of 2021 June 10 is down for an hour about midnight, and its greatest part is
// covered meanwhile: on one side sooner after the set, on the other sooner before the rise.
TEST(SolarEclipses, OfASetAndARiseTheOneNearerToTheMaximumCounts) {
  const auto eclipse = ComputeSolarEclipse(Midnight(2021, 6, 10));
  ASSERT_TRUE(eclipse);
  for (const double longitude : {-168.0, -164.0}) {
    const EarthPlace place = At(66.0, longitude);
    const auto local = ComputeLocalSolarEclipse(*eclipse, place);
    ASSERT_TRUE(local && local->bestSeen && local->first.isVisible && local->last.isVisible);
    EXPECT_FALSE(local->maximum.isVisible);
    const EventSearch day = {local->first.moment, local->last.moment, place};
    const auto events = Collect(FindRisings, day, kSun, nullptr, RisingPart::kUpperLimb);
    const auto sets = OfKind(events, EventKind::kSet), rises = OfKind(events, EventKind::kRise);
    ASSERT_TRUE(sets.size() == 1u && rises.size() == 1u);
    const double maximum = local->maximum.moment.julianDateTT, set = sets[0].moment.julianDateTT,
                 rise = rises[0].moment.julianDateTT;
    EXPECT_EQ(maximum - set < rise - maximum, longitude < -166.0);
    EXPECT_NEAR(local->bestSeen->julianDateTT, longitude < -166.0 ? set : rise, 1.0 / kSecondsPerDay);
  }
}
