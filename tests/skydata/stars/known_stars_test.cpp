// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/known_stars.h"

#include <cmath>

#include <gtest/gtest.h>

#include "skydata/stars/motion.h"

namespace skydata {
namespace {

constexpr double kSecond = scene::kRadiansPerDegree / 3600.0;

// A place so many arc seconds east of (40 degrees, lat).
scene::Direction East(double seconds, double lat = 0.5) {
  return scene::MakeDirection(40.0 * scene::kRadiansPerDegree + seconds * kSecond / std::cos(lat), lat);
}

KnownStars MakeOne(bool isPaired, double magnitude = 7.0) {
  KnownStars known;
  known.Add(East(0.0), {}, magnitude, isPaired);
  known.Sort();
  return known;
}

TEST(KnownStars, NearOneIsTheSameWhateverItsMagnitude) {
  for (const bool isPaired : {false, true}) {
    const KnownStars known = MakeOne(isPaired);
    for (const double magnitude : {-1.0, 7.0, 15.0}) {
      EXPECT_TRUE(known.Has(East(3.99), magnitude));
      EXPECT_TRUE(known.Has(East(-3.99), magnitude));
    }
    EXPECT_FALSE(known.Has(East(4.01), 9.0));
  }
}

TEST(KnownStars, FartherOneOfItsMagnitudeIsTheSameWhereNothingIsNear) {
  const KnownStars known = MakeOne(false);
  EXPECT_TRUE(known.Has(East(29.9), 7.69));
  EXPECT_TRUE(known.Has(East(29.9), 6.31));
  EXPECT_FALSE(known.Has(East(29.9), 7.71));
  EXPECT_FALSE(known.Has(East(30.1), 7.0));
}

TEST(KnownStars, SecondOfADoubleStarStaysWhereTheFirstIsNear) {
  KnownStars known = MakeOne(false);
  known.NoteNear(East(0.3));
  EXPECT_TRUE(known.Has(East(0.3), 7.0));
  EXPECT_FALSE(known.Has(East(8.0), 7.1));
}

TEST(KnownStars, PairedByOtherMeansTakesNoOther) {
  const KnownStars known = MakeOne(true);
  EXPECT_FALSE(known.Has(East(8.0), 7.0));
}

// A star of 3.7" a year, as the nearest one: in 1991.25 it stood 32" farther east.
TEST(KnownStars, FastStarIsFoundAlongItsWay) {
  KnownStars known;
  known.Add(East(0.0), MakeMotion(40.0 * scene::kRadiansPerDegree, 0.5, -3700.0, 0.0), 0.0, false);
  known.Sort();
  for (const double seconds : {-3.9, 0.0, 10.0, 20.0, 32.4, 36.2})
    EXPECT_TRUE(known.Has(East(seconds), 9.0)) << seconds;
  EXPECT_FALSE(known.Has(East(-4.1), 9.0));
  EXPECT_FALSE(known.Has(East(36.5), 9.0));
}

// Where cells of the grid meet, and across 0 h and the poles, places of neighbouring cells count.
TEST(KnownStars, BordersOfTheGridHideNothing) {
  for (int i = 0; i < 20000; ++i) {
    const double lon = 0.00031 * i, lat = i % 100 == 0 ? scene::kPi / 2.0 : std::asin(std::sin(i * 0.7));
    KnownStars known;
    known.Add(scene::MakeDirection(lon, lat), {}, 7.0, false);
    known.Sort();
    for (const double north : {-29.0, 29.0}) {
      const double other = lat + north * kSecond;  // beyond the pole it comes down on the other side
      const scene::Direction at = {
          {std::cos(other) * std::cos(lon), std::cos(other) * std::sin(lon), std::sin(other)}};
      ASSERT_TRUE(known.Has(at, 7.0)) << lon << " " << lat;
    }
  }
}

}  // namespace
}  // namespace skydata
