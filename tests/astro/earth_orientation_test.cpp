// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/earth_orientation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/coordinates.h"
#include "astro/delta_t.h"
#include "astro/vectors.h"
#include "helpers/measure.h"

using astro_test::FromDms;
using astro_test::FromHms;
using astro_test::JulianDateOfYear;
using astro_test::kArcSecond;
using astro_test::kDegree;
using astro_test::kSecondOfTime;
using astro_test::kTurn;
using astro_test::Largest;

namespace {

// By how much the axes of `later` are turned about their third axis against those of `earlier`, for small
// turns.
double TurnAboutThePole(const double earlier[9], const double later[9]) {
  const double* x = later;
  const double* y = later + 3;
  double xOnY = 0.0, yOnX = 0.0;
  for (int i = 0; i < 3; ++i) {
    xOnY += x[i] * earlier[3 + i];
    yOnX += y[i] * earlier[i];
  }
  return 0.5 * (xOnY - yOnX);
}

// Earth rotation angle, IAU 2000 (Capitaine, Guinot & McCarthy 2000), without whole turns, at noon.
double EarthRotationAtNoon(int day) {
  return kTurn * (0.7790572732640 + std::fmod(0.00273781191135448 * (day - 2451545.0), 1.0));
}

}  // namespace

// Meeus, Astronomical Algorithms (1998), examples 12.a and 12.b; his nutation is that of 1980.
TEST(EarthOrientation, PublishedSiderealTimes) {
  const double deltaT = 55.9;
  EXPECT_NEAR((ApparentSiderealTime(2446895, 0.5, deltaT) - FromHms(13, 10, 46.1351)) / kSecondOfTime, 0.0,
              0.005);
  const double evening = 0.5 + (19.0 + 21.0 / 60.0) / 24.0;
  EXPECT_NEAR((ApparentSiderealTime(2446895, evening, deltaT) - FromHms(8, 34, 56.853)) / kSecondOfTime, 0.0,
              0.005);
}

// Meeus, example 13.b: Venus over Washington, the longitude as he rounds it. Neither refraction nor parallax
// is in his numbers or in ours.
TEST(EarthOrientation, PublishedAltitudeAndAzimuth) {
  const double longitude = -FromHms(5, 8, 15.7);
  const double latitude = FromDms(38, 55, 17);
  const double evening = 0.5 + (19.0 + 21.0 / 60.0) / 24.0;
  double venus[3], m[9], lon, lat;
  sfp(1.0, FromHms(23, 9, 16.641), -FromDms(6, 43, 11.61), venus);
  HorizonMatrix(ApparentSiderealTime(2446895, evening, 55.9) + longitude, latitude, m);
  MV3prod(m, venus, venus);
  psf(venus, 1.0, lon, lat);
  const double azimuthFromSouth = 68.0337;
  EXPECT_NEAR((kTurn - lon) / kDegree, azimuthFromSouth + 180.0, 0.00006);
  EXPECT_NEAR(lat / kDegree, 15.1249, 0.00006);
}

TEST(EarthOrientation, HorizonAxesAreNorthWestZenith) {
  const double siderealTime = 1.1, latitude = 0.7;
  double m[9], v[3];
  HorizonMatrix(siderealTime, latitude, m);
  const double pole[3] = {0.0, 0.0, 1.0};
  MV3prod(m, pole, v);
  EXPECT_NEAR(v[0], std::cos(latitude), 1e-15);
  EXPECT_NEAR(v[1], 0.0, 1e-15);
  EXPECT_NEAR(v[2], std::sin(latitude), 1e-15);
  double zenith[3], east[3];
  sfp(1.0, siderealTime, latitude, zenith);
  MV3prod(m, zenith, v);
  EXPECT_NEAR(v[2], 1.0, 1e-15);
  sfp(1.0, siderealTime + kTurn / 4.0, 0.0, east);  // rises: six hours before it culminates
  MV3prod(m, east, v);
  EXPECT_NEAR(v[1], -1.0, 1e-15);
}

// Rows of length 1, the third the cross product of the others.
TEST(EarthOrientation, MatricesAreRotations) {
  Largest difference("third row against the product of the others", "");
  for (const double year : {-4800.0, 1600.0, 2000.0, 2100.0, 9999.0}) {
    double matrices[3][9];
    PrecessionNutationMatrix(JulianDateOfYear(year), matrices[0]);
    TrueEclipticMatrix(JulianDateOfYear(year), matrices[2]);
    HorizonMatrix(year, 0.4, matrices[1]);
    for (const auto& m : matrices) {
      double cross[3];
      Vprod(m, m + 3, cross);
      for (int i = 0; i < 3; ++i) difference.Note(cross[i] - m[6 + i], year);
      difference.Note(Vmod(m, 3) - 1.0, year);
    }
  }
  difference.Expect(1e-15);
}

// The equator and the ecliptic of date share the equinox and stand at the true obliquity: Meeus, example
// 22.a, gives 23 26' 36.850" for 1987 April 10.0, with the obliquity of 1976 and the nutation of 1980, whose
// terms are up to 0.01 arc second from those of 2000.
TEST(EarthOrientation, EclipticMeetsTheEquatorAtTheEquinox) {
  double equator[9], ecliptic[9];
  PrecessionNutationMatrix(2446895.5, equator);
  TrueEclipticMatrix(2446895.5, ecliptic);
  EXPECT_NEAR(VectorsAngle(equator, ecliptic), 0.0, 1e-15);
  EXPECT_NEAR((VectorsAngle(equator + 6, ecliptic + 6) - FromDms(23, 26, 36.850 - 0.042)) / kArcSecond, 0.0,
              0.01);
}

// Meeus, example 22.a: 23 26' 27.407" with the obliquity of 1976, 0.042 arc second larger than that of 2006.
TEST(EarthOrientation, PublishedMeanObliquity) {
  EXPECT_NEAR((MeanObliquity(2446895.5) - FromDms(23, 26, 27.407 - 0.042)) / kArcSecond, 0.0, 0.01);
  EXPECT_NEAR(MeanObliquity(2451545.0) / kArcSecond, 84381.406, 1e-9);
}

// What keeps stars in place over the horizon: sidereal time less the rotation of the Earth must gain just
// what the equinox moves along the equator. That is summed here from 2000 outwards, in steps of 20 days.
TEST(EarthOrientation, SiderealTimeFollowsTheEquinoxOverTheAges) {
  const struct {
    const char* quantity;
    int step;  // days
    int lastYear;
    double tolerance;  // arc second, as the header says
  } kRanges[] = {{"sidereal time against the equinox, until 4500", 20, 4500, 0.1},
                 {"sidereal time against the equinox, back to 0", -20, 0, 0.1},
                 {"sidereal time against the equinox, until 10000", 20, 10000, 65.0},
                 {"sidereal time against the equinox, back to -5000", -20, -5000, 20.0}};
  for (const auto& range : kRanges) {
    Largest difference(range.quantity, "arc second");
    int day = 2451545;
    const double atFirst = ApparentSiderealTime(day, 0.0, 0.0) - EarthRotationAtNoon(day);
    double m[9], next[9], turned = 0.0;
    PrecessionNutationMatrix(day, m);
    for (; (JulianDateOfYear(range.lastYear) - day) / range.step > 0.0; day += range.step) {
      PrecessionNutationMatrix(day + range.step, next);
      turned += TurnAboutThePole(m, next);
      for (int i = 0; i < 9; ++i) m[i] = next[i];
      const double here =
          ApparentSiderealTime(day + range.step, 0.0, 0.0) - EarthRotationAtNoon(day + range.step);
      difference.Note(std::remainder(here - atFirst + turned, kTurn) / kArcSecond, day + range.step);
    }
    difference.Expect(range.tolerance);
  }
}

TEST(EarthOrientation, SiderealTimeLiesInOneTurnAndKeepsTheDigitsOfTheFraction) {
  for (int day = 2451545; day < 2451545 + 400; ++day) {
    for (const double fraction : {-0.5, -0.25, 0.0, 0.3, 0.499999}) {
      const double time = ApparentSiderealTime(day, fraction, 64.0);
      EXPECT_GE(time, 0.0);
      EXPECT_LT(time, kTurn);
    }
  }
  const double step = 1e-9;  // of a day: 0.00009 s, far below what a single Julian date can hold
  const double turned =
      ApparentSiderealTime(2460000, 0.25 + step, 69.0) - ApparentSiderealTime(2460000, 0.25, 69.0);
  EXPECT_NEAR(turned / (kTurn * 1.00273781 * step), 1.0, 1e-5);
}

TEST(EarthOrientation, WholeDaysMayStandInTheFraction) {
  const double split = ApparentSiderealTime(2460000, 0.25, 69.0);
  EXPECT_NEAR(std::remainder(ApparentSiderealTime(2459990, 10.25, 69.0) - split, kTurn), 0.0, 1e-12);
  EXPECT_NEAR(std::remainder(ApparentSiderealTime(2460001, -0.75, 69.0) - split, kTurn), 0.0, 1e-12);
}

TEST(EarthOrientation, WhatIsNotFiniteStaysNotFinite) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  double m[9];
  PrecessionNutationMatrix(nan, m);
  EXPECT_TRUE(std::isnan(m[0]));
  EXPECT_TRUE(std::isnan(MeanObliquity(nan)));
  EXPECT_FALSE(std::isfinite(ApparentSiderealTime(2451545, nan, 64.0)));
}

// A moment before it is 0 the sidereal time is less than a turn by less than a double can tell.
TEST(EarthOrientation, SiderealTimeIsLessThanATurnUpToTheMomentOfZero) {
  for (int day = 2447893; day < 2447893 + 365; ++day) {
    const double turn = (kTurn - ApparentSiderealTime(day, -0.5, 57.0)) / (kTurn * 1.00273781) - 0.5;
    double before = turn - 0.01, after = turn + 0.01;
    while (std::nextafter(before, after) < after) {
      const double middle = 0.5 * (before + after);
      (ApparentSiderealTime(day, middle, 57.0) > 3.0 ? before : after) = middle;
    }
    double fraction = before;
    for (int i = 0; i < 20; ++i) fraction = std::nextafter(fraction, -1.0);
    for (int i = 0; i < 40; ++i, fraction = std::nextafter(fraction, 1.0)) {
      const double time = ApparentSiderealTime(day, fraction, 57.0);
      EXPECT_GE(time, 0.0);
      EXPECT_LT(time, kTurn);
    }
  }
}
