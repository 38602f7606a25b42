// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moon_events.h"

#include <gtest/gtest.h>

#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/tsv.h"

using namespace astro;
using astro_test::Collect;
using astro_test::SearchYears;

namespace {

// Compares the events of every `years`th year from 1900 with a table: dates in TT and what tells the kinds
// apart.
template <class Finder, class Number>
void Compare(Finder find, int years, const char* table, Number number, const char* quantity,
             double tolerance) {
  const auto rows = astro_test::ReadTable(std::string(ASTRO_TEST_DATA) + table);
  std::vector<SkyEvent> events;
  for (int year = 1900; year <= 2100; year += years) {
    // The table's years begin by its own delta T, an hour before which nothing happens.
    for (const SkyEvent& event : Collect(find, SearchYears(year, year + 1))) events.push_back(event);
  }
  ASSERT_GT(rows.size(), 500u);
  ASSERT_EQ(events.size(), rows.size());
  astro_test::Largest difference(quantity, "s");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(number(events[i].kind), rows[i][1]);
    difference.Note((events[i].moment.julianDateTT - rows[i][0]) * kSecondsPerDay, rows[i][0]);
  }
  difference.Expect(tolerance);
}

}  // namespace

TEST(MoonEvents, EveryPhaseOf41YearsIsWhereAnotherLibraryHasIt) {
  const auto quarter = [](EventKind kind) {
    return static_cast<int>(kind) - static_cast<int>(EventKind::kNewMoon);
  };
  Compare(FindMoonPhases, 5, "event_phases.tsv", quarter, "phases against PyEphem", 5.0);
}

TEST(MoonEvents, EveryNodeOf21YearsIsWhereAnotherLibraryHasIt) {
  const auto ascending = [](EventKind kind) { return kind == EventKind::kAscendingNode ? 1 : 0; };
  Compare(FindMoonNodes, 10, "event_nodes.tsv", ascending, "nodes against PyEphem", 30.0);
}

TEST(MoonEvents, EveryApsisOf21YearsIsWhereAnotherLibraryHasIt) {
  const auto perigee = [](EventKind kind) { return kind == EventKind::kPerigee ? 1 : 0; };
  Compare(FindMoonApsides, 10, "event_apsides.tsv", perigee, "perigees and apogees against PyEphem", 120.0);
  astro_test::Largest distance("distances at perigee and apogee against PyEphem", "km");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "event_apsides.tsv")) {
    const auto events = Collect(FindMoonApsides, astro_test::SearchTT(row[0] - 1.0, row[0] + 1.0));
    ASSERT_EQ(events.size(), 1u);
    distance.Note(events[0].value - row[2], row[0]);
  }
  distance.Expect(2.0);
}

// Meeus, Astronomical Algorithms (2nd edition 1998), examples 49.a and 49.b, dynamical time: new moon of 1977
// February 18 at 3:37:42, last quarter of 2044 January 21 at 23:48:17.
TEST(MoonEvents, PhasesAsInTheBook) {
  auto events = Collect(FindMoonPhases, astro_test::SearchTT(2443192.0, 2443194.0));
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, EventKind::kNewMoon);
  EXPECT_NEAR(events[0].moment.julianDateTT, 2443192.65118, 10.0 / kSecondsPerDay);
  events = Collect(FindMoonPhases, astro_test::SearchTT(2467636.0, 2467638.0));
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, EventKind::kLastQuarter);
  EXPECT_NEAR(events[0].moment.julianDateTT, 2467636.49186, 10.0 / kSecondsPerDay);
}

// The same, example 50.a and the table of extremes at the end of chapter 50: apogee of 1988 October 7 at
// 20:30 dynamical time; 356375 km on 1912 January 4, 406712 km on 1984 March 2.
TEST(MoonEvents, ApsidesAsInTheBook) {
  auto events = Collect(FindMoonApsides, astro_test::SearchTT(2447440.0, 2447445.0));
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, EventKind::kApogee);
  EXPECT_NEAR(events[0].moment.julianDateTT, 2447442.3542, 4.0 / kMinutesPerDay);
  double nearest = 1e9, farthest = 0.0;
  for (const SkyEvent& event : Collect(FindMoonApsides, SearchYears(1900, 2000))) {
    nearest = std::min(nearest, event.value);
    farthest = std::max(farthest, event.value);
  }
  EXPECT_NEAR(nearest, 356375.0, 2.0);
  EXPECT_NEAR(farthest, 406712.0, 2.0);
}

// Example 51.a: ascending node of 1987 May 23 at 6h 25.6m dynamical time.
TEST(MoonEvents, NodeAsInTheBook) {
  const auto events = Collect(FindMoonNodes, astro_test::SearchTT(2446937.0, 2446941.0));
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, EventKind::kAscendingNode);
  EXPECT_NEAR(events[0].moment.julianDateTT, 2446938.76803, 1.5 / kMinutesPerDay);
}
