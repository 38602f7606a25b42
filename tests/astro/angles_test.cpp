// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "astro/coordinates.h"
#include "helpers/measure.h"

using astro_test::FromDms;
using astro_test::FromHms;
using astro_test::kDegree;
using astro_test::kTurn;

namespace {

void ExpectFields(const M_DMSTag& fields, int degrees, int minutes, float seconds) {
  EXPECT_EQ(fields.degrees, degrees);
  EXPECT_EQ(fields.minutes, minutes);
  EXPECT_FLOAT_EQ(fields.seconds, seconds);
}

M_DMSTag Fields(int degrees, int minutes, float seconds) {
  M_DMSTag fields;
  fields.degrees = static_cast<short>(degrees);
  fields.minutes = static_cast<short>(minutes);
  fields.seconds = seconds;
  return fields;
}

struct Shown {
  M_DMSTag lon, lat;
  char lonLetter = '?', latLetter = '?';
};

Shown Show(double lonDegrees, double latDegrees) {
  Shown shown;
  LonLatForObjects(lonDegrees * kDegree, latDegrees * kDegree, shown.lon, shown.lonLetter, shown.lat,
                   shown.latLetter);
  return shown;
}

}  // namespace

TEST(Angles, DegreesModeReducesToOneTurn) {
  ExpectFields(Rad2GMS(FromDms(123, 45, 6.78), 0), 123, 45, 6.78f);
  ExpectFields(Rad2GMS(FromDms(360 + 10, 0, 0), 0), 10, 0, 0.0f);
  ExpectFields(Rad2GMS(FromDms(-720 + 10, 20, 30), 0), 10, 20, 30.0f);
  ExpectFields(Rad2GMS(-0.5 * kDegree, 0), 359, 30, 0.0f);
}

TEST(Angles, HoursModeReducesToOneTurn) {
  ExpectFields(Rad2GMS(FromHms(13, 10, 46.37), 3), 13, 10, 46.37f);
  ExpectFields(Rad2GMS(-0.5 * kDegree, 3), 23, 58, 0.0f);
  ExpectFields(Rad2GMS(FromHms(25, 0, 0), 3), 1, 0, 0.0f);
}

TEST(Angles, SignedModeKeepsTheSign) {
  ExpectFields(Rad2GMS(FromDms(89, 59, 59.99), 2), 89, 59, 59.99f);
  ExpectFields(Rad2GMS(-FromDms(11, 9, 41.04), 2), -11, 9, 41.04f);
  ExpectFields(Rad2GMS(FromDms(400, 1, 2), 2), 400, 1, 2.0f);
}

TEST(Angles, SignStandsOnTheFirstFieldThatIsNotZero) {
  ExpectFields(Rad2GMS(-FromDms(0, 30, 0), 2), 0, -30, 0.0f);
  ExpectFields(Rad2GMS(-FromDms(0, 1, 5.5), 2), 0, -1, 5.5f);
  ExpectFields(Rad2GMS(-FromDms(0, 0, 5.5), 2), 0, 0, -5.5f);
}

TEST(Angles, AnyOtherModeIsSignedDegrees) {
  ExpectFields(Rad2GMS(-FromDms(0, 30, 0), 1), 0, -30, 0.0f);
  ExpectFields(Rad2GMS(-FromDms(12, 30, 0), 7), -12, 30, 0.0f);
}

TEST(Angles, RoundingNeverShowsSixty) {
  ExpectFields(Rad2GMS(FromDms(12, 59, 59.996), 0), 13, 0, 0.0f);
  ExpectFields(Rad2GMS(FromDms(12, 34, 59.996), 0), 12, 35, 0.0f);
  ExpectFields(Rad2GMS(FromDms(12, 34, 59.994), 0), 12, 34, 59.99f);
  ExpectFields(Rad2GMS(-FromDms(0, 59, 59.996), 2), -1, 0, 0.0f);
}

TEST(Angles, WrapsAtTheWholeTurnAfterRounding) {
  ExpectFields(Rad2GMS(FromDms(359, 59, 59.999), 0), 0, 0, 0.0f);
  ExpectFields(Rad2GMS(FromHms(23, 59, 59.999), 3), 0, 0, 0.0f);
  ExpectFields(Rad2GMS(FromDms(359, 59, 59.99), 0), 359, 59, 59.99f);
  ExpectFields(Rad2GMS(-1e-12, 0), 0, 0, 0.0f);
}

TEST(Angles, AnAngleThatRoundsToZeroHasNoSign) {
  const M_DMSTag fields = Rad2GMS(-FromDms(0, 0, 0.004), 2);
  ExpectFields(fields, 0, 0, 0.0f);
  EXPECT_FALSE(std::signbit(fields.seconds));
}

TEST(Angles, NotFiniteGivesZero) {
  for (const int mode : {0, 2, 3}) {
    ExpectFields(Rad2GMS(std::numeric_limits<double>::quiet_NaN(), mode), 0, 0, 0.0f);
    ExpectFields(Rad2GMS(std::numeric_limits<double>::infinity(), mode), 0, 0, 0.0f);
  }
}

TEST(Angles, DegreesSaturateAtTheRangeOfShort) {
  ExpectFields(Rad2GMS(40000 * kDegree, 2), 32767, 59, 59.99f);
  ExpectFields(Rad2GMS(-1e300, 2), -32767, 59, 59.99f);
  ExpectFields(Rad2GMS(FromDms(32767, 59, 59), 2), 32767, 59, 59.0f);
}

TEST(Angles, NoFieldLeavesItsRangeOverTheWholeTurn) {
  int outside = 0;
  for (int second = 0; second < 360 * 3600; second += 7) {
    for (const double nudge : {-0.0051, -0.0049, 0.0, 0.0049, 0.0051, 59.9951}) {
      const M_DMSTag fields = Rad2GMS((second + nudge) / 3600.0 * kDegree, 0);
      const bool good = fields.degrees >= 0 && fields.degrees < 360 && fields.minutes >= 0 &&
                        fields.minutes < 60 && fields.seconds >= 0.0f && fields.seconds < 59.995f;
      outside += good ? 0 : 1;
    }
  }
  EXPECT_EQ(outside, 0);
}

TEST(Angles, EveryFieldsSignMakesTheAngleNegative) {
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(-1, 30, 36.0f), 2), -1.51 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(0, -30, 36.0f), 2), -0.51 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(0, 0, -36.0f), 2), -0.01 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(1, 30, -36.0f), 0), -1.51 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(-1, -30, -36.0f), 0), -1.51 * kDegree);
}

TEST(Angles, HoursAreFifteenDegrees) {
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(6, 0, 0.0f), 3), kTurn / 4.0);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(0, 4, 0.0f), 3), kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(0, 0, 1.0f), 3), FromDms(0, 0, 15));
}

TEST(Angles, JoiningTakesFieldsPastSixtyAndWholeTurns) {
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(0, 90, 0.0f), 0), 1.5 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(400, 0, 0.0f), 0), 400.0 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(-32768, 0, 0.0f), 2), -32768.0 * kDegree);
}

TEST(Angles, SecondsThatAreNotFiniteCountAsNone) {
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(-5, 0, std::numeric_limits<float>::quiet_NaN()), 2), -5.0 * kDegree);
  EXPECT_DOUBLE_EQ(GMS2Rad(Fields(5, 0, -std::numeric_limits<float>::infinity()), 2), 5.0 * kDegree);
}

TEST(Angles, SplittingAndJoiningAgreeWithinHalfAHundredth) {
  std::mt19937 random(20240301);
  std::uniform_real_distribution<double> angles(-kTurn, kTurn);
  astro_test::Largest difference("round trip of an angle", "second");
  for (int i = 0; i < 100000; ++i) {
    const double angle = angles(random);
    const double degrees = GMS2Rad(Rad2GMS(angle, 0), 0);
    const double latitude = GMS2Rad(Rad2GMS(angle, 2), 2);
    const double hours = GMS2Rad(Rad2GMS(angle, 3), 3);
    difference.Note(std::remainder(degrees - angle, kTurn) / kDegree * 3600.0, angle);
    difference.Note((latitude - angle) / kDegree * 3600.0, angle);
    difference.Note(std::remainder(hours - angle, kTurn) / kDegree * 240.0, angle);
  }
  difference.Expect(0.005003);  // half of the last shown digit, and what a float adds to 59.99
}

TEST(Angles, LongitudesAreReducedAndLettered) {
  Shown shown = Show(283.5, -33.25);
  ExpectFields(shown.lon, 76, 30, 0.0f);
  EXPECT_EQ(shown.lonLetter, 'W');
  ExpectFields(shown.lat, 33, 15, 0.0f);
  EXPECT_EQ(shown.latLetter, 'S');
  shown = Show(37.5 - 720.0, 55.75);
  ExpectFields(shown.lon, 37, 30, 0.0f);
  EXPECT_EQ(shown.lonLetter, 'E');
  EXPECT_EQ(shown.latLetter, 'N');
}

TEST(Angles, ZeroIsEastAndNorth) {
  for (const double tiny : {0.0, -0.0, -1e-9, 1e-9}) {
    const Shown shown = Show(tiny, tiny);
    ExpectFields(shown.lon, 0, 0, 0.0f);
    ExpectFields(shown.lat, 0, 0, 0.0f);
    EXPECT_EQ(shown.lonLetter, 'E');
    EXPECT_EQ(shown.latLetter, 'N');
  }
}

TEST(Angles, BothSidesOfTheDateLineAre180East) {
  for (const double lon : {180.0, -180.0, 180.0 + 1e-9, 540.0}) {
    const Shown shown = Show(lon, 0.0);
    ExpectFields(shown.lon, 180, 0, 0.0f);
    EXPECT_EQ(shown.lonLetter, 'E') << lon;
  }
  EXPECT_EQ(Show(-179.9, 0.0).lonLetter, 'W');
}

TEST(Angles, SmallWesternLongitudeKeepsItsLetter) {
  const Shown shown = Show(-0.25, -0.01);
  ExpectFields(shown.lon, 0, 15, 0.0f);
  EXPECT_EQ(shown.lonLetter, 'W');
  ExpectFields(shown.lat, 0, 0, 36.0f);
  EXPECT_EQ(shown.latLetter, 'S');
}

TEST(Angles, PlaceThatIsNotFiniteShowsAsZero) {
  const Shown shown = Show(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity());
  ExpectFields(shown.lon, 0, 0, 0.0f);
  ExpectFields(shown.lat, 0, 0, 0.0f);
  EXPECT_EQ(shown.lonLetter, 'E');
  EXPECT_EQ(shown.latLetter, 'N');
}
