// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/event_grid.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <vector>

using namespace astro_internal;
using namespace astro;

namespace {

double Wave(double date) { return std::sin(date / 3.0); }

std::vector<double> ZerosOfWave(double from, double to) {
  std::vector<double> dates;
  FindZeros(Wave, from, to, 2.5, [&](double date, bool) { dates.push_back(date); });
  return dates;
}

struct Zero {
  double date;
  bool rises;
};

std::vector<Zero> ZerosAndGrazes(const std::function<double(double)>& function, double from, double to,
                                 double step) {
  std::vector<Zero> zeros;
  FindZerosAndGrazes(function, from, to, step, [&](double date, bool up) { zeros.push_back({date, up}); });
  return zeros;
}

EventSearch SearchOf(double from, double to) { return {MakeMomentTT(from), MakeMomentTT(to), std::nullopt}; }

}  // namespace

TEST(EventGrid, FindsTheZerosOfASineAndTheirDirection) {
  std::vector<bool> rises;
  std::vector<double> dates;
  FindZeros(Wave, 1.0, 30.0, 2.5, [&](double date, bool up) {
    dates.push_back(date);
    rises.push_back(up);
  });
  ASSERT_EQ(dates.size(), 3u);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(dates[i], 3.0 * kPi * (i + 1), kEventPrecision);
  EXPECT_EQ(rises, (std::vector<bool>{false, true, false}));
}

// Cut at a zero itself, just before and just after it, and at a point of the grid.
TEST(EventGrid, SpansThatAdjoinGiveTheWholeWhereverTheyMeet) {
  const std::vector<double> whole = ZerosOfWave(1.0, 30.0);
  const double zero = whole[1];
  for (const double cut : {zero, std::nextafter(zero, 0.0), std::nextafter(zero, 100.0), 20.0, 17.3}) {
    std::vector<double> parts = ZerosOfWave(1.0, cut);
    for (const double date : ZerosOfWave(cut, 30.0)) parts.push_back(date);
    EXPECT_EQ(parts, whole) << cut;
  }
}

// A wave whose top stands a billionth above zero: its two zeros are 0.0004 apart, in a step of 2.
TEST(EventGrid, ZerosOnBothSidesOfATurningPointAreFoundHoweverClose) {
  for (const double above : {1e-9, 1e-4, 0.5}) {
    const auto wave = [above](double date) { return std::sin(date / 3.0) - 1.0 + above; };
    const std::vector<Zero> zeros = ZerosAndGrazes(wave, 1.0, 35.0, 2.0);
    ASSERT_EQ(zeros.size(), 4u) << above;
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(zeros[i].rises, i % 2 == 0) << above;
    const double half = 3.0 * std::acos(1.0 - above), top = 1.5 * kPi;
    EXPECT_NEAR(zeros[0].date, top - half, 2e-6);
    EXPECT_NEAR(zeros[1].date, top + half, 2e-6);
    EXPECT_NEAR(zeros[2].date, top + 6.0 * kPi - half, 2e-6);
    // A span that ends between the two, and one that begins there.
    EXPECT_EQ(ZerosAndGrazes(wave, 1.0, zeros[1].date, 2.0).size(), 1u);
    EXPECT_EQ(ZerosAndGrazes(wave, zeros[1].date, 20.0, 2.0).size(), 1u);
    EXPECT_TRUE(ZerosAndGrazes(wave, 35.0, 1.0, 2.0).empty());
  }
  const auto below = [](double date) { return std::sin(date / 3.0) - 1.0 - 1e-9; };
  EXPECT_TRUE(ZerosAndGrazes(below, 1.0, 40.0, 2.0).empty());
}

TEST(EventGrid, TheLowestPointIsThatOfTheDeepestDip) {
  const auto dips = [](double date) { return std::cos(date) - 0.1 * date; };
  const double lowest = FindLowest(dips, 0.0, 15.0, 0.5);
  EXPECT_NEAR(lowest, 3.0 * kPi + std::asin(0.1), kEventPrecision);
}

TEST(EventGrid, AJumpOfAnAngleAndWhatIsNotFiniteAreNoZeros) {
  int zeros = 0;
  FindZeros([](double date) { return Wrap(date); }, 1.0, 11.0, 0.5,
            [&](double date, bool) {
              ++zeros;
              EXPECT_NEAR(date, kTurn, kEventPrecision);
            });
  EXPECT_EQ(zeros, 1);
  const double nothing = std::numeric_limits<double>::quiet_NaN();
  FindZeros([=](double date) { return date < 5.0 ? -1.0 : nothing; }, 0.0, 10.0, 1.0,
            [](double, bool) { ADD_FAILURE(); });
  for (const double sign : {-1.0, 1.0}) {
    const auto known = [=](double date) { return sign * date < sign * 5.0 ? -1.0 : nothing; };
    EXPECT_TRUE(ZerosAndGrazes(known, 0.0, 10.0, 1.0).empty());
  }
  FindZeros(Wave, 30.0, 1.0, 1.0, [](double, bool) { ADD_FAILURE(); });
  FindZeros(Wave, nothing, 1.0, 1.0, [](double, bool) { ADD_FAILURE(); });
}

TEST(EventGrid, ASpanOutsideTheSeriesIsCutAndSaysSo) {
  const EventSpan inside(SearchOf(kJ2000, kJ2000 + 10.0));
  EXPECT_TRUE(inside.isWhole);
  EXPECT_TRUE(inside.Has(kJ2000));
  EXPECT_FALSE(inside.Has(kJ2000 + 10.0));
  const EventSpan late(SearchOf(kLastPlanetDate - 1000.0, kLastPlanetDate));
  EXPECT_FALSE(late.isWhole);
  EXPECT_LT(late.to, kLastPlanetDate);
  const EventSpan early(SearchOf(kFirstPlanetDate, kFirstPlanetDate + 1000.0));
  EXPECT_FALSE(early.isWhole);
  EXPECT_FALSE(early.Has(kFirstPlanetDate));
  const EventSpan after(SearchOf(kLastPlanetDate + 1.0, kLastPlanetDate + 10.0));
  EXPECT_FALSE(after.isWhole);
  EXPECT_GE(after.from, after.to);
}
