// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/fading_value.h"

#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

using CommonInterfaces::FadingValue;
using CommonInterfaces::OrbitFade;

namespace {

static_assert(std::is_trivially_copyable_v<OrbitFade>);
static_assert(std::is_same_v<OrbitFade, FadingValue<float>>);

TEST(FadingValueTest, ANewOneStandsAtZero) {
  EXPECT_EQ(FadingValue<float>().GetCurrent(0.0), 0.0f);
  EXPECT_EQ(FadingValue<double>().GetCurrent(-5.0), 0.0);
}

TEST(FadingValueTest, FollowsTheStraightLineBetweenItsEnds) {
  const FadingValue<float> fade{10.0, 12.0, 0.5f, 1.0f};
  EXPECT_EQ(fade.GetCurrent(10.0), 0.5f);
  EXPECT_EQ(fade.GetCurrent(10.5), 0.625f);
  EXPECT_EQ(fade.GetCurrent(11.0), 0.75f);
  EXPECT_EQ(fade.GetCurrent(11.5), 0.875f);
}

TEST(FadingValueTest, IsTheEndValueFromTheEndTimeOn) {
  const FadingValue<double> fade{1.0, 2.0, 8.0, 4.0};
  EXPECT_EQ(fade.GetCurrent(2.0), 4.0);
  EXPECT_EQ(fade.GetCurrent(1000.0), 4.0);
}

// Where the straight line would miss it: 1 - 1e16 is -1e16 to a double.
TEST(FadingValueTest, IsExactlyTheEndValueAtTheEndTime) {
  const FadingValue<double> fade = {0.0, 1.0, 1e16, 1.0};
  EXPECT_EQ(fade.GetCurrent(1.0), 1.0);
}

TEST(FadingValueTest, BeforeItsStartItIsDeliberatelyNotClamped) {
  const FadingValue<float> fade{10.0, 12.0, 0.5f, 1.0f};
  EXPECT_EQ(fade.GetCurrent(9.0), 0.25f);
  EXPECT_EQ(fade.GetCurrent(8.0), 0.0f);
  EXPECT_EQ(fade.GetCurrent(6.0), -0.5f);
}

TEST(FadingValueTest, WithoutLengthOrHeightItIsTheEndValue) {
  const FadingValue<float> noLength{10.0, 10.0, 0.5f, 1.0f};
  EXPECT_EQ(noLength.GetCurrent(9.0), 1.0f);
  EXPECT_EQ(noLength.GetCurrent(10.0), 1.0f);
  const FadingValue<float> noHeight{10.0, 12.0, 0.5f, 0.5f};
  EXPECT_EQ(noHeight.GetCurrent(9.0), 0.5f);
  EXPECT_EQ(noHeight.GetCurrent(11.0), 0.5f);
}

TEST(FadingValueTest, AnEndBeforeTheStartIsPastOrFollowsTheSameLine) {
  // The end lies before the start: from the end on the value stands, before it the line through both ends
  // counts.
  const FadingValue<float> fade{12.0, 10.0, 0.0f, 1.0f};
  EXPECT_EQ(fade.GetCurrent(11.0), 1.0f);
  EXPECT_EQ(fade.GetCurrent(9.0), 1.5f);
}

TEST(FadingValueTest, FadeToStartsFromWhereTheValueStands) {
  FadingValue<float> fade{0.0, 4.0, 0.0f, 1.0f};
  fade.FadeTo(0.0f, 1.0, 2.0);
  EXPECT_EQ(fade.m_StartTime, 1.0);
  EXPECT_EQ(fade.m_EndTime, 3.0);
  EXPECT_EQ(fade.m_StartValue, 0.25f);
  EXPECT_EQ(fade.m_EndValue, 0.0f);
  EXPECT_EQ(fade.GetCurrent(2.0), 0.125f);
  EXPECT_EQ(fade.GetCurrent(3.0), 0.0f);
}

TEST(FadingValueTest, FadeToOverNoTimeIsAtOnce) {
  FadingValue<double> fade{0.0, 4.0, 0.0, 1.0};
  fade.FadeTo(0.0, 2.0, 0.0);
  EXPECT_EQ(fade.m_StartTime, 2.0);
  EXPECT_EQ(fade.m_EndTime, 2.0);
  EXPECT_EQ(fade.m_StartValue, 0.5);
  EXPECT_EQ(fade.GetCurrent(2.0), 0.0);
}

TEST(FadingValueTest, ATimeThatIsNotANumberGivesTheEndValue) {
  const FadingValue<float> fade{0.0, 4.0, 0.0f, 1.0f};
  EXPECT_EQ(fade.GetCurrent(std::numeric_limits<double>::quiet_NaN()), 1.0f);
}

}  // namespace
