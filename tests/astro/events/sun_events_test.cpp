// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/sun_events.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::Collect;
using astro_test::OfKind;

// The altitudes at the moments found, by the model itself and not by what the finder keeps of it.
TEST(SunEvents, TheSunStandsAtTheAltitudeOfItsKind) {
  const EarthPlace place = At(52.52, 13.41);
  CQXSolSys model;
  const auto find = MakeBodyFinder(model, kSun, nullptr, place, RisingPart::kCentre);
  astro_test::Largest difference("altitude of the Sun at its events against the model", "arc seconds");
  for (const SkyEvent& event : Collect(FindSunEvents, astro_test::SearchYears(2026, 2027, place))) {
    const auto stands = find(event.moment);
    ASSERT_TRUE(stands);
    const bool isMorning = stands->azimuth < kPi;
    double altitude = 0.0;
    switch (event.kind) {
      case EventKind::kAstronomicalDawn:
      case EventKind::kAstronomicalDusk:
        altitude = -18.0;
        break;
      case EventKind::kNauticalDawn:
      case EventKind::kNauticalDusk:
        altitude = -12.0;
        break;
      case EventKind::kCivilDawn:
      case EventKind::kCivilDusk:
        altitude = -6.0;
        break;
      case EventKind::kGoldenHourBegins:
        altitude = isMorning ? -4.0 : 6.0;
        break;
      case EventKind::kGoldenHourEnds:
        altitude = isMorning ? 6.0 : -4.0;
        break;
      default:
        ADD_FAILURE();
    }
    difference.Note((stands->altitude - altitude * kRadiansPerDegree) / astro_test::kArcSecond,
                    event.moment.julianDateTT);
    EXPECT_NEAR(std::remainder(event.value - stands->azimuth, kTurn), 0.0, 1e-5);
  }
  difference.Expect(0.15);
}

// In Berlin the Sun stays above -18 degrees from May 18 to July 26: 70 nights without an end of the twilight.
TEST(SunEvents, NightsOfSummerHaveTwilightAllNight) {
  const auto events = Collect(FindSunEvents, astro_test::SearchYears(2026, 2027, At(52.52, 13.41)));
  EXPECT_EQ(OfKind(events, EventKind::kCivilDawn).size(), 365u);
  EXPECT_EQ(OfKind(events, EventKind::kCivilDusk).size(), 365u);
  EXPECT_EQ(OfKind(events, EventKind::kGoldenHourBegins).size(), 730u);
  EXPECT_EQ(OfKind(events, EventKind::kGoldenHourEnds).size(), 730u);
  const auto dawns = OfKind(events, EventKind::kAstronomicalDawn);
  double longest = 0.0;
  for (std::size_t i = 1; i < dawns.size(); ++i) {
    longest = std::max(longest, dawns[i].moment.julianDateTT - dawns[i - 1].moment.julianDateTT);
  }
  EXPECT_EQ(dawns.size(), OfKind(events, EventKind::kAstronomicalDusk).size());
  EXPECT_NEAR(longest, 70.0, 2.0);
}

// At the pole a twilight begins and ends once a year.
TEST(SunEvents, AtThePoleEachComesOnceAYear) {
  const auto events = Collect(FindSunEvents, astro_test::SearchYears(2026, 2027, At(90.0, 0.0)));
  EXPECT_EQ(events.size(), 10u);
  for (const EventKind kind :
       {EventKind::kAstronomicalDawn, EventKind::kNauticalDawn, EventKind::kCivilDawn, EventKind::kCivilDusk,
        EventKind::kNauticalDusk, EventKind::kAstronomicalDusk}) {
    EXPECT_EQ(OfKind(events, kind).size(), 1u);
  }
}

TEST(SunEvents, WithoutAPlaceNobodyCanTell) {
  EXPECT_FALSE(FindSunEvents(astro_test::SearchYears(2026, 2027), [](const SkyEvent&) { ADD_FAILURE(); }));
}
