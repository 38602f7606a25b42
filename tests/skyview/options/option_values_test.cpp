// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/option_values.h"

#include <gtest/gtest.h>

using namespace scene;
using namespace skyview;

TEST(ViewFileValue, IdIsOneWhenLeftOut) {
  const auto view = ParseViewFile("views/orion.data");
  ASSERT_TRUE(view);
  EXPECT_EQ(view->path, "views/orion.data");
  EXPECT_EQ(view->id, 1);
}

TEST(ViewFileValue, OnlyANumberBehindTheLastColonIsAnId) {
  const auto numbered = ParseViewFile("media:views:orion.data:12");
  ASSERT_TRUE(numbered);
  EXPECT_EQ(numbered->path, "media:views:orion.data");
  EXPECT_EQ(numbered->id, 12);
  const auto plain = ParseViewFile("media:views");
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->path, "media:views");
}

TEST(ViewFileValue, IdsOutOfRangeAndEmptyNamesAreRefused) {
  for (const char* text : {"", ":1", "a:0", "a:2147483648"}) EXPECT_FALSE(ParseViewFile(text)) << text;
}

TEST(PlaceValue, TakesLatitudeThenLongitude) {
  const auto place = ParsePlace("-33.9,151.2");
  ASSERT_TRUE(place);
  EXPECT_DOUBLE_EQ(place->latitude, -33.9);
  EXPECT_DOUBLE_EQ(place->longitude, 151.2);
}

TEST(PlaceValue, OutOfRangeAndMalformedAreRefused) {
  for (const char* text :
       {"", "52", "91,0", "0,181", "52;13", "52,13,1", "52, 13", "nan,0", "inf,0", "52,"}) {
    EXPECT_FALSE(ParsePlace(text)) << text;
  }
}

TEST(LookValue, TakesAzimuthThenAltitude) {
  const auto look = ParseLook("180,-5.5");
  ASSERT_TRUE(look);
  EXPECT_DOUBLE_EQ(look->azimuth, 180.0);
  EXPECT_DOUBLE_EQ(look->altitude, -5.5);
  for (const char* text : {"-1,0", "361,0", "0,91", "south,30"}) EXPECT_FALSE(ParseLook(text)) << text;
}

TEST(ZoomValue, IsBetweenAQuarterAndTenThousand) {
  EXPECT_DOUBLE_EQ(ParseZoom("0.25").value_or(0.0), 0.25);
  EXPECT_DOUBLE_EQ(ParseZoom("10000").value_or(0.0), 10000.0);
  for (const char* text : {"0.24", "10001", "0", "-1", "nan", "x2", "2x"})
    EXPECT_FALSE(ParseZoom(text)) << text;
}

// Julian dates from the Astronomical Almanac: JD 2461056.5 begins 2026-01-15, JD 2451545.0 is 2000-01-01 12h.
TEST(TimeValue, DateAloneIsItsMidnight) {
  const auto time = ParseTime("2026-01-15");
  ASSERT_TRUE(time);
  EXPECT_DOUBLE_EQ(time->day + time->fraction, 2461055.5);
  EXPECT_FALSE(time->utcOffset);
}

TEST(TimeValue, ClockWithSecondsAndZ) {
  const auto time = ParseTime("2000-01-01T12:00:30Z");
  ASSERT_TRUE(time);
  EXPECT_EQ(time->day, 2451545);
  EXPECT_NEAR(time->fraction, 30.0 / 86400.0, 1e-12);
  EXPECT_DOUBLE_EQ(time->utcOffset.value_or(9.0), 0.0);
}

TEST(TimeValue, OffsetsCarryTheirSign) {
  EXPECT_DOUBLE_EQ(ParseTime("2000-01-01T12:00+05:30")->utcOffset.value_or(9.0), 5.5 / 24.0);
  EXPECT_DOUBLE_EQ(ParseTime("2000-01-01 12:00-08:00")->utcOffset.value_or(9.0), -8.0 / 24.0);
}

TEST(TimeValue, FractionsOfSecondsAndEarlyYears) {
  EXPECT_NEAR(ParseTime("2000-01-01T12:00:00.25")->fraction, 0.25 / 86400.0, 1e-13);
  // JD 0 is noon of 1 January 4713 BC, the astronomical year -4712, of the Julian calendar.
  const auto first = ParseTime("-4712-01-01T12:00");
  ASSERT_TRUE(first);
  EXPECT_EQ(first->day, 0);
  EXPECT_DOUBLE_EQ(first->fraction, 0.0);
}

TEST(TimeValue, DaysOutsideTheCalendarAreRefused) {
  for (const char* text :
       {"2026-02-29", "2026-04-31", "2026-13-01", "2026-00-10", "2026-01-00", "1582-10-10"}) {
    EXPECT_FALSE(ParseTime(text)) << text;
  }
  EXPECT_TRUE(ParseTime("2028-02-29"));
}

TEST(TimeValue, MalformedTimesAreRefused) {
  for (const char* text :
       {"", "now", "15.1.2026", "2026-1-15", "2026-01-15T", "2026-01-15T24:00", "2026-01-15T12:60",
        "2026-01-15T12:00:60", "2026-01-15T12:00:00.", "2026-01-15T12:00Zx", "2026-01-15T12:00+1",
        "2026-01-15T12", "2026-01-1", "2026-01-15T1", "2026-01-15T12:0", "2026-01-15T12:00:0",
        "2026-01-15T12:00+01:0", "026-01-15", "202"}) {
    EXPECT_FALSE(ParseTime(text)) << text;
  }
}

TEST(PictureName, EndsInSvgOrPng) {
  for (const char* text : {"a.svg", "dir/a.png", "a.pdf"}) EXPECT_TRUE(IsPictureName(text)) << text;
  for (const char* text : {"", ".svg", "dir/.png", "a.jpg", "a.SVG", "svg"})
    EXPECT_FALSE(IsPictureName(text)) << text;
}
