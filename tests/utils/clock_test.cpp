// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/clock.h"

#include <chrono>

#include <gtest/gtest.h>

namespace {

TEST(PreciseTime, CountsSecondsAndNeverGoesBack) {
  const double start = getPreciseTime();
  const auto later = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
  while (std::chrono::steady_clock::now() < later) continue;  // not every system sleeps
  const double end = getPreciseTime();
  EXPECT_GE(end - start, 0.020);
  EXPECT_LT(end - start, 20.0);  // a busy machine may sleep long, but the unit is the second
  double last = end;
  for (int i = 0; i < 1000; ++i) {
    const double now = getPreciseTime();
    ASSERT_GE(now, last);
    last = now;
  }
}

TEST(AnimationInterval, KeepsWhatTheHostStores) {
  EXPECT_EQ(AnimationInterval::m_CurrentTime, 0.0);
  AnimationInterval::m_CurrentTime = 12.5;
  EXPECT_EQ(AnimationInterval::m_CurrentTime, 12.5);
  AnimationInterval::m_CurrentTime = 0.0;
}

}  // namespace
