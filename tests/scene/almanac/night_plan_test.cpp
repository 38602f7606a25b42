// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_plan.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"

using namespace scene;

namespace {

const EarthPlace kBerlin = {13.4 * kRadiansPerDegree, 52.5 * kRadiansPerDegree, 0.0},
                 kTromso = {18.95 * kRadiansPerDegree, 69.65 * kRadiansPerDegree, 0.0},
                 kSydney = {151.21 * kRadiansPerDegree, -33.87 * kRadiansPerDegree, 0.0};

SkyMoment At(int year, int month, int day, int hour) {
  int number = 0;
  double fraction = 0.0;
  DJ({year, month, day, hour, 0, 0.0}, number, fraction);
  return MakeMoment(number, fraction);
}

double Hours(const SkyMoment& from, const SkyMoment& to) { return 24.0 * NightSpan{from, to}.GetLength(); }

NightPlan Plan(const SkyMoment& now, const EarthPlace& place) {
  const auto plan = MakeNightPlan(now, place);
  EXPECT_TRUE(plan);
  return plan.value_or(NightPlan());
}

bool IsMoonUp(const SkyMoment& moment, const EarthPlace& place) {
  CQXSolSys model;
  const auto there =
      astro::MakeBodyFinder(model, astro::kMoon, nullptr, place, astro::RisingPart::kUpperLimb)(moment);
  return there && there->altitude > there->eventAltitude;
}

bool IsWithin(const SkyMoment& moment, const std::vector<NightSpan>& spans) {
  for (const auto& span : spans) {
    if (Hours(span.begin, moment) >= 0.0 && Hours(moment, span.end) >= 0.0) return true;
  }
  return false;
}

}  // namespace

TEST(NightPlan, TwilightsFollowEachOther) {
  for (const EarthPlace& place : {kBerlin, kSydney}) {
    const NightPlan plan = Plan(At(2026, 3, 15, 12), place);
    ASSERT_TRUE(plan.sun.set && plan.sun.rise);
    const SkyMoment order[] = {plan.whole.begin,        *plan.sun.set,           *plan.civil.dusk,
                               *plan.nautical.dusk,     *plan.astronomical.dusk, plan.middle,
                               *plan.astronomical.dawn, *plan.nautical.dawn,     *plan.civil.dawn,
                               *plan.sun.rise,          plan.whole.end};
    for (std::size_t i = 1; i < std::size(order); ++i) EXPECT_GT(Hours(order[i - 1], order[i]), 0.0) << i;
    EXPECT_EQ(plan.darkness, Darkness::kAstronomical);
    EXPECT_NEAR(Hours(plan.whole.begin, plan.whole.end), 24.0, 1e-6);
    EXPECT_EQ(Hours(plan.dark.begin, *plan.astronomical.dusk), 0.0);
    EXPECT_EQ(plan.planets.size(), 7u);
  }
}

// In Berlin the Sun is 14.1 degrees below the horizon at the June solstice's midnight; in Tromso it does
// not set then, and does not rise in December.
TEST(NightPlan, IsAsDarkAsTheSunGoesDown) {
  EXPECT_EQ(Plan(At(2026, 6, 21, 12), kBerlin).darkness, Darkness::kNautical);
  EXPECT_EQ(Plan(At(2026, 6, 21, 12), kTromso).darkness, Darkness::kNone);
  EXPECT_TRUE(Plan(At(2026, 6, 21, 12), kTromso).moonless.empty());
  const NightPlan winter = Plan(At(2026, 12, 21, 12), kTromso);
  EXPECT_TRUE(winter.sun.staysDown);
  EXPECT_EQ(winter.darkness, Darkness::kAstronomical);
  EXPECT_GT(winter.dark.GetLength(), 0.4);
}

TEST(NightPlan, MoonlessHoursAreThoseWithoutTheMoon) {
  int both = 0;
  for (int day = 1; day <= 28; day += 7) {
    for (const EarthPlace& place : {kBerlin, kTromso, kSydney}) {
      const NightPlan plan = Plan(At(2026, 1, day, 12), place);
      for (int i = 0; i <= 60; ++i) {
        const SkyMoment moment = Later(plan.dark.begin, plan.dark.GetLength() * (i + 0.5) / 61.0);
        EXPECT_NE(IsWithin(moment, plan.moonless), IsMoonUp(moment, place)) << day << " " << i;
      }
      both += !plan.moonless.empty() && Hours(plan.moonless[0].begin, plan.moonless[0].end) <
                                            Hours(plan.dark.begin, plan.dark.end) - 0.1;
    }
  }
  EXPECT_GT(both, 2);  // nights with and without
}

// Jupiter at opposition on 10 January 2026 culminates about midnight.
TEST(NightPlan, PlanetAtOppositionIsBestAtMidnight) {
  const NightPlan plan = Plan(At(2026, 1, 10, 12), kBerlin);
  const NightBody& jupiter = plan.planets[3];
  ASSERT_EQ(jupiter.id.number, 5);
  ASSERT_TRUE(jupiter.best && jupiter.events.transit);
  EXPECT_NEAR(Hours(plan.middle, jupiter.best->moment), 0.0, 0.2);
  EXPECT_NEAR(Hours(*jupiter.events.transit, jupiter.best->moment), 0.0, 0.05);
  EXPECT_NEAR(jupiter.best->altitude, jupiter.events.transitAltitude, 1e-4);
}

// Mars stood in conjunction with the Sun on 9 January 2026.
TEST(NightPlan, PlanetBehindTheSunHasNoBestMoment) {
  EXPECT_FALSE(Plan(At(2026, 1, 9, 12), kBerlin).planets[2].best);
}

TEST(NightPlan, HighestPointIsFoundToAMinute) {
  const SkyMoment begin = At(2026, 1, 1, 18);
  const NightSpan span = {begin, Later(begin, 0.5)};
  const auto hill = [&begin](double top) {
    return [&begin, top](const SkyMoment& moment) -> std::optional<astro::HorizonPlace> {
      const double days = NightSpan{begin, moment}.GetLength() - top;
      return astro::HorizonPlace{1.0, 0.5 - days * days, 0.0};
    };
  };
  for (const double top : {0.0, 0.123, 0.37, 0.5}) {
    const auto best = FindHighest(hill(top), span);
    ASSERT_TRUE(best);
    EXPECT_NEAR(Hours(begin, best->moment) * 60.0, top * 1440.0, 1.0);
  }
  const auto below = [](const SkyMoment&) { return std::optional(astro::HorizonPlace{0.0, -0.1, 0.0}); };
  EXPECT_FALSE(FindHighest(below, span));
  const auto unknown = [](const SkyMoment&) { return std::optional<astro::HorizonPlace>(); };
  EXPECT_FALSE(FindHighest(unknown, span));
}

TEST(NightPlan, PlanetsCanBeLeftOut) {
  const SkyMoment evening = At(2026, 1, 15, 18);
  const auto without = MakeNightPlan(evening, kBerlin, false);
  ASSERT_TRUE(without);
  EXPECT_TRUE(without->planets.empty());
  const NightPlan whole = Plan(evening, kBerlin);
  EXPECT_EQ(whole.planets.size(), 7u);
  EXPECT_EQ(Hours(*without->sun.set, *whole.sun.set), 0.0);
  EXPECT_EQ(Hours(*without->moon.events.rise, *whole.moon.events.rise), 0.0);
}
