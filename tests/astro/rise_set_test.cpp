// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rise_set.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/constants.h"
#include "astro/solar_system.h"
#include "helpers/midnight.h"

using namespace astro;
using astro_test::At;
using astro_test::DayFraction;
using astro_test::Midnight;

namespace {

constexpr double kMinute = 1.0 / 1440.0;
constexpr double kArcsecondsPerRadian = 3600.0 / kRadiansPerDegree;

}  // namespace

// Meeus, Astronomical Algorithms (2nd edition 1998), example 15.a: Venus at Boston on 1988 March 20,
// fractions of the day in Universal Time: rises 0.51766, transits 0.81980, sets 0.12130.
TEST(RiseSet, VenusAtBostonAsInTheBook) {
  CQXSolSys model;
  const auto find =
      MakeBodyFinder(model, SSO_ID(kPlanetKind, 2), nullptr, At(42.3333, -71.0833), RisingPart::kCentre);
  const RiseTransitSet events = FindRiseTransitSet(find, Midnight(1988, 3, 20), 1.0, 1.0 / 96.0);
  EXPECT_NEAR(DayFraction(events.rise), 0.51766, 0.3 * kMinute);
  EXPECT_NEAR(DayFraction(events.transit), 0.81980, 0.3 * kMinute);
  EXPECT_NEAR(DayFraction(events.set), 0.12130, 0.3 * kMinute);
}

// London (51.5 N, 0.125 W), 2026 June 21, by another library (PyEphem 4.1.4, horizon -34', upper limb): the
// Sun rises 03:43:10, transits 12:02:19, sets 20:21:28; the Moon rises 11:40:29, transits 17:51:07, sets
// 23:45:54.
TEST(RiseSet, SunAndMoonAtLondon) {
  CQXSolSys model;
  const EarthPlace london = At(51.5, -0.125);
  const RiseTransitSet sun =
      FindRiseTransitSet(MakeBodyFinder(model, kSun, nullptr, london, RisingPart::kUpperLimb),
                         Midnight(2026, 6, 21), 1.0, 1.0 / 96.0);
  const double second = kMinute / 60.0;
  EXPECT_NEAR(DayFraction(sun.rise), (3 * 3600 + 43 * 60 + 10) * second, 20.0 * second);
  EXPECT_NEAR(DayFraction(sun.transit), (12 * 3600 + 2 * 60 + 19) * second, 5.0 * second);
  EXPECT_NEAR(DayFraction(sun.set), (20 * 3600 + 21 * 60 + 28) * second, 20.0 * second);
  const RiseTransitSet moon =
      FindRiseTransitSet(MakeBodyFinder(model, kMoon, nullptr, london, RisingPart::kUpperLimb),
                         Midnight(2026, 6, 21), 1.0, 1.0 / 96.0);
  EXPECT_NEAR(DayFraction(moon.rise), (11 * 3600 + 40 * 60 + 29) * second, 20.0 * second);
  EXPECT_NEAR(DayFraction(moon.transit), (17 * 3600 + 51 * 60 + 7) * second, 10.0 * second);
  EXPECT_NEAR(DayFraction(moon.set), (23 * 3600 + 45 * 60 + 54) * second, 20.0 * second);
}

TEST(RiseSet, SunStaysUpInThePolarSummerAndDownInWinter) {
  CQXSolSys model;
  const auto find = MakeBodyFinder(model, kSun, nullptr, At(78.2, 15.6), RisingPart::kUpperLimb);
  const RiseTransitSet summer = FindRiseTransitSet(find, Midnight(2026, 6, 21), 1.0, 1.0 / 96.0);
  EXPECT_TRUE(summer.staysUp);
  EXPECT_FALSE(summer.staysDown || summer.rise || summer.set);
  ASSERT_TRUE(summer.transit);
  EXPECT_NEAR(summer.transitAltitude, (90.0 - 78.2 + 23.43) * kRadiansPerDegree, 0.05 * kRadiansPerDegree);
  const RiseTransitSet winter = FindRiseTransitSet(find, Midnight(2026, 12, 21), 1.0, 1.0 / 96.0);
  EXPECT_TRUE(winter.staysDown);
  EXPECT_FALSE(winter.staysUp || winter.rise || winter.set);
}

TEST(RiseSet, NothingIsFoundOfWhatNobodyCanPlace) {
  const RiseTransitSet events =
      FindRiseTransitSet([](const SkyMoment&) { return std::nullopt; }, Midnight(2026, 1, 1), 1.0, 0.1);
  EXPECT_FALSE(events.rise || events.transit || events.set || events.staysUp || events.staysDown);
}

TEST(RiseSet, SmoothFinderAgreesWithTheLooksItSpares) {
  CQXSolSys model;
  const EarthPlace place = At(52.5, 13.4);
  for (const SSO_ID& id : {kSun, kMoon, SSO_ID(kPlanetKind, 1), SSO_ID(kPlanetKind, 5)}) {
    int looks = 0;
    const auto find = MakeBodyFinder(model, id, nullptr, place, RisingPart::kUpperLimb);
    const SkyMoment start = Midnight(2026, 3, 20);
    const auto smooth = MakeSmoothFinder(
        [&](const SkyMoment& moment) {
          ++looks;
          return find(moment);
        },
        start);
    constexpr int kSteps = 977;
    double farthest = 0.0;
    for (int i = 0; i <= kSteps; ++i) {
      const SkyMoment moment = Later(start, static_cast<double>(i) / kSteps);
      const auto exact = find(moment), near = smooth(moment);
      ASSERT_TRUE(exact && near);
      farthest = std::fmax(farthest, std::fabs(exact->altitude - near->altitude));
      farthest = std::fmax(farthest, std::fabs(exact->eventAltitude - near->eventAltitude));
      farthest = std::fmax(farthest,
                           std::fabs(std::sin(exact->azimuth - near->azimuth)) * std::cos(exact->altitude));
    }
    EXPECT_LT(farthest * kArcsecondsPerRadian, 0.01) << id.number;
    EXPECT_GT(farthest, 0.0) << "it looks seldom";
    EXPECT_EQ(looks, 31) << "hours -3 to 27";
  }
}

TEST(RiseSet, SmoothFinderLeavesToTheFinderWhatHasNoLooks) {
  const SkyMoment start = Midnight(2026, 1, 1);
  const auto morning = [&](const SkyMoment& moment) -> std::optional<HorizonPlace> {
    const double days = moment.day - start.day + moment.fraction - start.fraction;
    if (days > 0.5) return std::nullopt;
    return HorizonPlace{1.0, days, 0.0};
  };
  const auto smooth = MakeSmoothFinder(morning, start);
  const auto near = smooth(Later(start, 0.49)), clear = smooth(Later(start, 0.21));
  ASSERT_TRUE(near && clear);
  EXPECT_NEAR(near->altitude, 0.49, 1e-9);
  EXPECT_NEAR(clear->altitude, 0.21, 1e-7) << "eight looks";
  EXPECT_FALSE(smooth(Later(start, 0.6)));
}

TEST(RiseSet, StandardAltitudes) {
  EXPECT_NEAR(GetRiseAltitude(0.0) / kRadiansPerDegree * 60.0, -34.0, 1e-9);
  EXPECT_NEAR(GetRiseAltitude(16.0 / 60.0 * kRadiansPerDegree) / kRadiansPerDegree * 60.0, -50.0, 1e-9);
}

namespace {

// A body that rises at 6, stands in the south at 12 and sets at 18 o'clock, and nobody can place for a while.
FindHorizonPlace Hidden(const SkyMoment& start, double from, double to) {
  return [=](const SkyMoment& moment) -> std::optional<HorizonPlace> {
    const double days = moment.day - start.day + moment.fraction - start.fraction;
    if (days > from && days < to) return std::nullopt;
    return HorizonPlace{days * kTurn, std::sin((days - 0.25) * kTurn), 0.0};
  };
}

}  // namespace

// The transit is found where the gap begins, within the precision: the finder may know the altitude or not.
TEST(RiseSet, ACrossingWhoseSurroundingsAreKnownIsFoundInAGapToo) {
  const SkyMoment start = Midnight(2026, 1, 1);
  int known = 0, unknown = 0;
  for (double from = 0.47; from < 0.499; from += 0.0007) {
    const auto find = Hidden(start, from, 0.51);
    const RiseTransitSet events = FindRiseTransitSet(find, start, 1.0, 0.11);
    ASSERT_TRUE(events.rise && events.transit && events.set);
    EXPECT_NEAR(DayFraction(*events.rise), 0.25, 1e-5);
    EXPECT_NEAR(DayFraction(*events.transit), from, 1e-5);
    const bool isKnown = find(*events.transit).has_value();
    EXPECT_EQ(events.transitAltitude != 0.0, isKnown) << "it stands near 1";
    ++(isKnown ? known : unknown);
  }
  EXPECT_GT(known, 0);
  EXPECT_GT(unknown, 0);
}

TEST(RiseSet, WhatComesOutOfAGapHasNotRisen) {
  const SkyMoment start = Midnight(2026, 1, 1);
  const RiseTransitSet events = FindRiseTransitSet(Hidden(start, -1.0, 0.4), start, 1.0, 0.11);
  EXPECT_FALSE(events.rise || events.staysUp || events.staysDown);
  ASSERT_TRUE(events.transit && events.set);
  EXPECT_NEAR(DayFraction(*events.set), 0.75, 1e-5);
}

// The looks of a smooth finder count in hours from its start, which soon are too many for a number.
TEST(RiseSet, SmoothFinderAsksTheFinderItselfAboutFarDates) {
  const SkyMoment start = Midnight(2026, 1, 1), far = Later(start, 60000.0);
  int looks = 0;
  const auto smooth = MakeSmoothFinder(
      [&looks](const SkyMoment& moment) {
        ++looks;
        return HorizonPlace{1.0, moment.fraction, 0.0};
      },
      start);
  const auto place = smooth(far);
  ASSERT_TRUE(place);
  EXPECT_EQ(place->altitude, far.fraction);
  EXPECT_EQ(looks, 1);
}
