// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rise_events.h"

#include <gtest/gtest.h>

#include <map>

#include "astro/object_records.h"
#include "tests/astro/helpers/events.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/midnight.h"
#include "tests/astro/helpers/tsv.h"
#include "utils/text.h"

using namespace astro;
using astro_test::At;
using astro_test::Collect;
using astro_test::DaysFromUT;
using astro_test::OfKind;
using astro_test::SearchYears;

namespace {

std::vector<SkyEvent> Risings(const EventSearch& search, const SSO_ID& body, const void* data = nullptr) {
  const bool isDisc = body == kSun || body == kMoon;
  return Collect(FindRisings, search, body, data, isDisc ? RisingPart::kUpperLimb : RisingPart::kCentre);
}

SSO_ID BodyNamed(const std::string& name) {
  if (name == "Sun") return kSun;
  if (name == "Moon") return kMoon;
  return SSO_ID(kPlanetKind, name == "Venus" ? 2 : 5);
}

}  // namespace

// Six places from 64 north to 55 south, Sun, Moon, Venus and Jupiter; PyEphem (data/SOURCE.md).
TEST(RiseEvents, AreWhereAnotherLibraryHasThem) {
  const std::map<std::string, EventKind> kinds = {
      {"rise", EventKind::kRise}, {"transit", EventKind::kTransit}, {"set", EventKind::kSet}};
  const auto rows = astro_test::ReadCells(ASTRO_TEST_DATA "event_risings.tsv");
  ASSERT_GT(rows.size(), 700u);
  astro_test::Largest difference("risings, transits, settings against PyEphem", "s");
  for (const auto& row : rows) {
    const EarthPlace place = At(std::stod(row[1]), std::stod(row[2]));
    const double from = std::stod(row[5]), expected = std::stod(row[6]);
    const EventSearch search = {MakeMoment(0, from), MakeMoment(0, expected + 0.01), place};
    const auto events = OfKind(Risings(search, BodyNamed(row[3])), kinds.at(row[4]));
    ASSERT_EQ(events.size(), 1u) << row[0] << " " << row[3] << " " << row[4] << " " << row[5];
    difference.Note(DaysFromUT(events[0], expected) * kSecondsPerDay, from);
  }
  difference.Expect(10.0);
}

// In a year of 365 days a star goes round 366 times, and transits twice on one day; the Moon once less often
// than there are days for each of its months.
TEST(RiseEvents, OfAYearAreAsManyAsTheyMustBe) {
  const EarthPlace greenwich = At(51.4779, 0.0);
  StarRecord star;
  star.ra = 1.0;
  const auto events = Risings(SearchYears(2027, 2028, greenwich), SSO_ID(FourCC("star"), 1), &star);
  for (const EventKind kind : {EventKind::kRise, EventKind::kTransit, EventKind::kSet}) {
    EXPECT_EQ(OfKind(events, kind).size(), 366u);
  }
  const auto moon = Risings(SearchYears(2027, 2028, greenwich), kMoon);
  EXPECT_EQ(OfKind(moon, EventKind::kRise).size(), 353u);
  EXPECT_EQ(OfKind(moon, EventKind::kSet).size(), 353u);
  for (const SkyEvent& event : Risings(SearchYears(2027, 2028, greenwich), kSun)) EXPECT_EQ(event.body, kSun);
}

// A year cut at its own events and at odd moments: the same to the last digit, nothing twice, nothing lost.
TEST(RiseEvents, SpansThatAdjoinGiveTheWhole) {
  const EarthPlace place = At(66.4, 25.7);
  const EventSearch year = SearchYears(2027, 2028, place);
  const auto whole = Risings(year, kMoon);
  ASSERT_GT(whole.size(), 800u);
  std::vector<SkyMoment> cuts = {year.from};
  for (std::size_t i = 100; i < whole.size(); i += 100) {
    cuts.push_back(whole[i].moment);
    cuts.push_back(Later(whole[i].moment, 0.37));
  }
  cuts.push_back(year.to);
  std::vector<SkyEvent> parts;
  for (std::size_t i = 1; i < cuts.size(); ++i) {
    for (const SkyEvent& event : Risings({cuts[i - 1], cuts[i], place}, kMoon)) parts.push_back(event);
  }
  ASSERT_EQ(parts.size(), whole.size());
  for (std::size_t i = 0; i < parts.size(); ++i) {
    EXPECT_EQ(parts[i].kind, whole[i].kind);
    EXPECT_EQ(parts[i].moment.julianDateTT, whole[i].moment.julianDateTT);
  }
}

// At 78.2 north the Sun's limb stays up at midnight while its declination is above 11.8 - 0.83 degrees, from
// April 18.9 to August 24.2, 127.3 days; it last rises and first sets at the midnights before and after.
TEST(RiseEvents, PolarDayAndNightHaveNone) {
  const auto events = Risings(SearchYears(2026, 2027, At(78.2, 15.6)), kSun);
  double longestDay = 0.0, longestNight = 0.0, last = 0.0;
  bool isUp = false;
  for (const SkyEvent& event : events) {
    if (event.kind == EventKind::kTransit) continue;
    EXPECT_NE(event.kind == EventKind::kRise, isUp) << "rise and set take turns";
    isUp = event.kind == EventKind::kRise;
    if (last > 0.0) {
      double& longest = isUp ? longestNight : longestDay;
      longest = std::max(longest, event.moment.julianDateTT - last);
    }
    last = event.moment.julianDateTT;
  }
  EXPECT_GT(longestDay, 127.3);
  EXPECT_LT(longestDay, 129.3);
  EXPECT_LT(longestNight, 1.0);  // the long one goes over the end of the year
  EXPECT_FALSE(isUp);
}

// Where the Sun's upper limb comes 0.2 arc second above the horizon at noon there is a day of a minute, and
// none where it stays as much below.
TEST(RiseEvents, ADayOfAMinuteIsFoundAndOneOfNothingIsNot) {
  const SkyMoment noon = Later(astro_test::Midnight(2026, 12, 21), 0.25), midnight = Later(noon, 0.5);
  double low = 66.0 * kRadiansPerDegree, high = 68.0 * kRadiansPerDegree;
  const auto risings = [&](double latitude) {
    return OfKind(Risings({noon, midnight, EarthPlace{0.0, latitude, 0.0}}, kSun), EventKind::kRise).size();
  };
  ASSERT_EQ(risings(low), 1u);
  ASSERT_EQ(risings(high), 0u);
  while (high - low > 1e-6) {
    const double middle = 0.5 * (low + high);
    (risings(middle) == 1 ? low : high) = middle;
  }
  const auto events = Risings({noon, midnight, EarthPlace{0.0, low, 0.0}}, kSun);
  const auto rises = OfKind(events, EventKind::kRise), sets = OfKind(events, EventKind::kSet);
  ASSERT_EQ(rises.size(), 1u);
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_LT(sets[0].moment.julianDateTT - rises[0].moment.julianDateTT, 3.0 / kMinutesPerDay);
}

TEST(RiseEvents, WithoutAPlaceOrOfASatelliteNobodyCanTell) {
  const auto none = [](const SkyEvent&) { ADD_FAILURE(); };
  EXPECT_FALSE(FindRisings(SearchYears(2026, 2027), kSun, nullptr, RisingPart::kUpperLimb, none));
  const EventSearch search = SearchYears(2026, 2027, At(50.0, 0.0));
  EXPECT_FALSE(FindRisings(search, SSO_ID(FourCC("scft"), 1), nullptr, RisingPart::kCentre, none));
  EXPECT_FALSE(FindRisings(search, SSO_ID(FourCC("astr"), 1), nullptr, RisingPart::kCentre, none));
}

TEST(RiseEvents, NoKindOfSpacecraftIsSearched) {
  const EventSearch search = {astro_test::Midnight(2026, 1, 1), astro_test::Midnight(2026, 1, 2),
                              At(50.0, 0.0)};
  // A record that would be searched: Ceres' orbit, roughly.
  OrbitalElements elements;
  elements.epoch = 2459800.5;
  elements.a = 2.77;
  elements.e = 0.08;
  elements.n = 0.2138 * kRadiansPerDegree;
  for (const int kind : {FourCC("scft"), FourCC("fSCO"), FourCC("uSCO")}) {
    EXPECT_FALSE(FindRisings(search, SSO_ID(kind, 1), &elements, RisingPart::kCentre, [](const SkyEvent&) {
      ADD_FAILURE() << "searched";
    })) << kind;
  }
  EXPECT_EQ(Risings(search, SSO_ID(FourCC("astr"), 1), &elements).size(), 3u);
}
