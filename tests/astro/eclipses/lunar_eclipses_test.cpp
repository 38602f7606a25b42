// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/lunar_eclipses.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"

using namespace astro;
using astro_test::Collect;
using astro_test::SearchYears;

namespace {

double DynamicalDate(const CalendarDate& date) {
  int day = 0;
  double fraction = 0.0;
  DJ(date, day, fraction);
  return day + fraction;
}

}  // namespace

// Espenak & Meeus, Five Millennium Catalog of Lunar Eclipses (NASA): dynamical time of the greatest eclipse.
TEST(LunarEclipses, AsInTheCanon) {
  const struct {
    CalendarDate greatest;
    LunarEclipse kind;
    double penumbral, umbral, gamma;
  } expected[] = {
      {{2000, 7, 16, 13, 56, 39}, LunarEclipse::kTotal, 2.8375, 1.7684, 0.0302},
      {{2011, 6, 15, 20, 13, 43}, LunarEclipse::kTotal, 2.6868, 1.6999, 0.0897},
      {{2015, 4, 4, 12, 1, 24}, LunarEclipse::kTotal, 2.0792, 1.0008, 0.4460},
      {{2016, 3, 23, 11, 48, 21}, LunarEclipse::kPenumbral, 0.7747, -0.3118, 1.1592},
      {{2018, 7, 27, 20, 22, 54}, LunarEclipse::kTotal, 2.6792, 1.6087, 0.1168},
      {{2022, 11, 8, 11, 0, 22}, LunarEclipse::kTotal, 2.4143, 1.3589, 0.2570},
      {{2025, 3, 14, 6, 59, 56}, LunarEclipse::kTotal, 2.2595, 1.1784, 0.3485},
  };
  astro_test::Largest time("greatest lunar eclipse against the canon", "s"),
      magnitude("magnitudes of lunar eclipses against the canon", ""), gamma("gamma of lunar eclipses", "");
  for (const auto& row : expected) {
    const double date = DynamicalDate(row.greatest);
    const auto eclipse = ComputeLunarEclipse(MakeMomentTT(date));
    ASSERT_TRUE(eclipse) << row.greatest.year;
    EXPECT_EQ(eclipse->kind, row.kind) << row.greatest.year;
    time.Note((eclipse->greatest.julianDateTT - date) * kSecondsPerDay, row.greatest.year);
    magnitude.Note(eclipse->umbralMagnitude - row.umbral, row.greatest.year);
    magnitude.Note(eclipse->penumbralMagnitude - row.penumbral, row.greatest.year);
    gamma.Note(eclipse->gamma - row.gamma, row.greatest.year);
  }
  time.Expect(4.0);
  magnitude.Expect(0.0008);
  gamma.Expect(0.0003);
}

// The same canon counts 83 penumbral, 65 partial and 81 total eclipses from 1901 to 2000, and 86, 57 and 85
// from 2001 to 2100.
TEST(LunarEclipses, AsManyOfEachKindAsTheCanonCounts) {
  const std::map<int, int> expected[] = {{{1, 83}, {2, 65}, {3, 81}}, {{1, 86}, {2, 57}, {3, 85}}};
  for (int century = 0; century < 2; ++century) {
    std::map<int, int> counts;
    const int year = 1901 + 100 * century;
    for (const SkyEvent& event : Collect(FindLunarEclipses, SearchYears(year, year + 100)))
      ++counts[event.detail];
    EXPECT_EQ(counts, expected[century]) << year;
  }
}

// 2026 March 3 (Espenak, eclipsewise.com): the contacts in Universal Time with a delta T of 75 s (greatest
// eclipse 11:34:52 dynamical time, 11:33:37 Universal Time), here from the greatest eclipse.
TEST(LunarEclipses, ContactsOf20260303) {
  const auto eclipse = ComputeLunarEclipse(astro_test::Midnight(2026, 3, 3));
  ASSERT_TRUE(eclipse && eclipse->umbraBegin && eclipse->totalityBegin && eclipse->totalityEnd &&
              eclipse->umbraEnd);
  const CalendarDate greatest = {2026, 3, 3, 11, 33, 37};
  const struct {
    SkyMoment found;
    int hour, minute, second;
  } contacts[] = {{eclipse->penumbraBegin, 8, 44, 22},
                  {*eclipse->umbraBegin, 9, 50, 0},
                  {*eclipse->totalityBegin, 11, 4, 26},
                  {*eclipse->totalityEnd, 12, 2, 45},
                  {*eclipse->umbraEnd, 13, 17, 10}};
  astro_test::Largest difference("contacts of the lunar eclipse of 2026 March 3 against Espenak", "s");
  for (const auto& contact : contacts) {
    const CalendarDate date = {2026, 3, 3, contact.hour, contact.minute, static_cast<double>(contact.second)};
    difference.Note((contact.found.julianDateTT - eclipse->greatest.julianDateTT -
                     (DynamicalDate(date) - DynamicalDate(greatest))) *
                        kSecondsPerDay,
                    contact.hour);
  }
  difference.Expect(5.0);
}

// The full moon of 2026 January 3 passes the shadow by.
TEST(LunarEclipses, AFullMoonAsideHasNone) {
  EXPECT_FALSE(ComputeLunarEclipse(astro_test::Midnight(2026, 1, 3)));
  const EventSearch months = {astro_test::Midnight(2026, 1, 1), astro_test::Midnight(2026, 3, 1),
                              std::nullopt};
  EXPECT_TRUE(Collect(FindLunarEclipses, months).empty());
}

// Of an eclipse the greatest moment decides to which span it belongs.
TEST(LunarEclipses, SpansThatMeetAtOneShareItOut) {
  const SkyMoment greatest = ComputeLunarEclipse(astro_test::Midnight(2026, 3, 3)).value().greatest;
  const auto count = [](const SkyMoment& from, const SkyMoment& to) {
    return Collect(FindLunarEclipses, EventSearch{from, to, std::nullopt}).size();
  };
  EXPECT_EQ(count(Later(greatest, -2.0), greatest), 0u);
  EXPECT_EQ(count(Later(greatest, -2.0), Later(greatest, 0.01)), 1u);
  EXPECT_EQ(count(Later(greatest, -0.01), Later(greatest, 2.0)), 1u);
  EXPECT_EQ(count(Later(greatest, 0.01), Later(greatest, 2.0)), 0u);
}
