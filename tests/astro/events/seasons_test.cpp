// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/seasons.h"

#include <gtest/gtest.h>

#include "astro/planets.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/tsv.h"

using namespace astro;
using astro_test::Collect;
using astro_test::SearchYears;

// All 804 from 1900 to 2100, none more and none less; PyEphem (data/SOURCE.md).
TEST(Seasons, EveryOneOf201YearsIsWhereAnotherLibraryHasIt) {
  const auto rows = astro_test::ReadTable(ASTRO_TEST_DATA "event_seasons.tsv");
  const auto events = Collect(FindSeasons, SearchYears(1900, 2101));
  ASSERT_EQ(rows.size(), 804u);
  ASSERT_EQ(events.size(), rows.size());
  astro_test::Largest difference("seasons against PyEphem", "s");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(static_cast<int>(events[i].kind) - static_cast<int>(EventKind::kMarchEquinox), rows[i][1]);
    difference.Note((events[i].moment.julianDateTT - rows[i][0]) * kSecondsPerDay, rows[i][0]);
  }
  difference.Expect(20.0);
}

// Meeus, Astronomical Algorithms (2nd edition 1998), example 27.a and table 27.E, dynamical time: the June
// solstice of 1962 at June 21 21:24:42; 1996 March 20 08:04:07, June 21 02:24:46, September 22 18:01:08,
// December 21 14:06:56; 2005 March 20 12:34:29, June 21 06:47:12, September 22 22:24:14, December 21
// 18:36:01.
TEST(Seasons, AsInTheBook) {
  const CalendarDate expected[] = {
      {1962, 6, 21, 21, 24, 42}, {1996, 3, 20, 8, 4, 7},    {1996, 6, 21, 2, 24, 46},
      {1996, 9, 22, 18, 1, 8},   {1996, 12, 21, 14, 6, 56}, {2005, 3, 20, 12, 34, 29},
      {2005, 6, 21, 6, 47, 12},  {2005, 9, 22, 22, 24, 14}, {2005, 12, 21, 18, 36, 1}};
  astro_test::Largest difference("seasons against Meeus", "s");
  for (const CalendarDate& date : expected) {
    int day = 0;
    double fraction = 0.0;
    DJ(date, day, fraction);
    const auto events =
        Collect(FindSeasons, astro_test::SearchTT(day + fraction - 1.0, day + fraction + 1.0));
    ASSERT_EQ(events.size(), 1u) << date.year << "-" << date.month;
    difference.Note((events[0].moment.julianDateTT - (day + fraction)) * kSecondsPerDay, date.year);
  }
  difference.Expect(10.0);
}

TEST(Seasons, SpansThatMeetAtAnEquinoxShareNothingAndLoseNothing) {
  const auto whole = Collect(FindSeasons, SearchYears(2020, 2023));
  ASSERT_EQ(whole.size(), 12u);
  const double cut = whole[4].moment.julianDateTT, from = cut - 400.0, to = cut + 400.0;
  std::size_t parts = Collect(FindSeasons, astro_test::SearchTT(from, cut)).size();
  parts += Collect(FindSeasons, astro_test::SearchTT(cut, to)).size();
  EXPECT_EQ(parts, Collect(FindSeasons, astro_test::SearchTT(from, to)).size());
}

TEST(Seasons, OutsideTheRangeOfTheSunNobodyCanTell) {
  const auto none = [](const SkyEvent&) { ADD_FAILURE(); };
  EXPECT_FALSE(FindSeasons(astro_test::SearchTT(kLastPlanetDate, kLastPlanetDate + 1000.0), none));
  EXPECT_TRUE(FindSeasons(SearchYears(2021, 2020), none));
}
