// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/configurations/date_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

using astro_internal::FindDates;

namespace {

struct Zero {
  double date;
  bool rises;
};

std::vector<Zero> ZerosOf(double from, double to, double step,
                          const std::function<double(double)>& function) {
  std::vector<Zero> zeros;
  FindDates(from, to, step, function, [&zeros](double date, bool rises) { zeros.push_back({date, rises}); });
  return zeros;
}

TEST(DateSearch, ZerosWithTheirSense) {
  const auto zeros = ZerosOf(0.5, 7.0, 0.4, [](double t) { return std::cos(t); });
  ASSERT_EQ(zeros.size(), 2u);
  EXPECT_NEAR(zeros[0].date, 0.5 * astro::kPi, 1e-7);
  EXPECT_FALSE(zeros[0].rises);
  EXPECT_NEAR(zeros[1].date, 1.5 * astro::kPi, 1e-7);
  EXPECT_TRUE(zeros[1].rises);
}

// A parabola that dips below zero for 0.002 days between looks that are two days apart, wherever in the step,
// and one that does not reach it.
TEST(DateSearch, TwoZerosWithinOneStep) {
  for (double lowest = 10.0; lowest < 14.0; lowest += 0.173) {
    const auto dip = [lowest](double t) { return 0.1 * ((t - lowest) * (t - lowest) - 1e-6); };
    const auto zeros = ZerosOf(0.0, 20.0, 2.0, dip);
    ASSERT_EQ(zeros.size(), 2u) << lowest;
    EXPECT_NEAR(zeros[0].date, lowest - 0.001, 1e-6);
    EXPECT_NEAR(zeros[1].date, lowest + 0.001, 1e-6);
    EXPECT_FALSE(zeros[0].rises);
    EXPECT_TRUE(zeros[1].rises);
    EXPECT_EQ(ZerosOf(0.0, 20.0, 2.0, [dip](double t) { return -dip(t); }).size(), 2u) << lowest;
    EXPECT_TRUE(ZerosOf(0.0, 20.0, 2.0, [dip](double t) { return dip(t) + 2e-7; }).empty()) << lowest;
  }
}

// An angle that runs round once in 10 days is zero once in 10 days; where it leaps from pi to -pi it is not.
TEST(DateSearch, TurnsOfAnglesAreNoZeros) {
  const auto angle = [](double t) { return std::remainder(0.2 * astro::kPi * (t - 3.0), astro::kTurn); };
  const auto zeros = ZerosOf(0.0, 40.0, 1.5, angle);
  ASSERT_EQ(zeros.size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(zeros[i].date, 3.0 + 10.0 * static_cast<double>(i), 1e-7);
}

// The beginning belongs to a span, its end to the next one; a zero is the same number in both.
TEST(DateSearch, SpansShareOutTheirZeros) {
  const auto wave = [](double t) { return std::sin(t); };
  const double zero = ZerosOf(2.0, 5.0, 0.7, wave).at(0).date;
  EXPECT_TRUE(ZerosOf(1.0, zero, 0.7, wave).empty());
  const auto behind = ZerosOf(zero, 4.0, 0.7, wave);
  ASSERT_EQ(behind.size(), 1u);
  EXPECT_EQ(behind[0].date, zero);
}

TEST(DateSearch, NothingWhereNothingIsKnown) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(ZerosOf(0.0, 10.0, 0.5, [nan](double) { return nan; }).empty());
  const auto later = [nan](double t) { return t < 4.0 ? nan : std::cos(t); };
  EXPECT_EQ(ZerosOf(0.0, 10.0, 0.5, later).size(), 2u);
  const auto until = [nan](double t) { return t > 8.0 ? nan : std::cos(t); };
  EXPECT_EQ(ZerosOf(0.0, 12.0, 0.5, until).size(), 3u) << "pi/2, 3pi/2, 5pi/2";
}

TEST(DateSearch, PiecesCoverTheSpan) {
  double covered = 0.0, last = 100.0;
  astro_internal::SearchPieces(100.0, 9300.0, [&](double from, double to) {
    EXPECT_EQ(from, last);
    covered += to - from;
    last = to;
  });
  EXPECT_EQ(last, 9300.0);
  EXPECT_EQ(covered, 9200.0);
  astro_internal::SearchPieces(5.0, 5.0, [](double, double) { ADD_FAILURE(); });
}

}  // namespace
