// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Converted records in the solar-system model itself: what goes in comes out where it belongs.
#include <cmath>

#include <gtest/gtest.h>

#include "astro/coordinates.h"
#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "common_interfaces/record_conversion.h"
#include "output/recorded_conversion.h"
#include "utils/text.h"

using namespace CommonInterfaces;
using test_support::MadeUpRecord;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kJ2000 = 2451545.0;
constexpr double kDeltaT2000 = 63.83;  // seconds
// Of the ecliptic J2000: 84381.406 arcseconds (IAU 2006).
constexpr double kObliquity = 84381.406 / 3600.0 * kPi / 180.0;
// The ellipse of yearly aberration and the diameter of the Earth's orbit at one parsec are below this.
constexpr double kSeenFromEarth = 1e-4;  // radians
constexpr double kAuPerParsec = 206264.806;

double AngleTo(const double seen[3], double ra, double dec) {
  double expected[3];
  sfp(1.0, ra, dec, expected);
  return VectorsAngle(seen, expected);
}

class ConversionIntoModelTest : public testing::Test {
 protected:
  ConversionIntoModelTest() { model.SetMoment(kJ2000, kDeltaT2000); }

  int Convert(const SSO_ID& object, short mode) {
    SSO_ID id = object;
    return ConvertDBRecord(id, &db, nullptr, &model, mode);
  }

  int ConvertUser(const SSO_ID& object, OrbitalElements elements, short mode) {
    SSO_ID id = object;
    return ConvertDBRecord(id, nullptr, reinterpret_cast<unsigned char*>(&elements), &model, mode);
  }

  MadeUpRecord db;
  CQXSolSys model;
};

TEST_F(ConversionIntoModelTest, AStarStandsWhereItsRecordSaysAtTheDistanceOfItsParallax) {
  db.SetDouble("RA", 1.25);
  db.SetDouble("Dec", -0.5);
  db.SetFloat("Parallax", 100.0f);  // 10 pc
  ASSERT_EQ(Convert(SSO_ID(FourCC("star"), 1), kConvertLocateObject), 1);
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveLocateObject(seen));
  EXPECT_LT(AngleTo(seen.astrometric, 1.25, -0.5), kSeenFromEarth);
  EXPECT_NEAR(seen.distance, 10.0 * kAuPerParsec, 2.0);
}

TEST_F(ConversionIntoModelTest, ProperMotionMovesAStarByItsMilliarcseconds) {
  db.SetDouble("RA", 1.25);
  db.SetShort("PropMotionDec", 10000);
  ASSERT_EQ(Convert(SSO_ID(FourCC("star"), 1), kConvertAimObject), 1);
  model.SetMoment(kJ2000 + 365.25 * 36.0, kDeltaT2000);  // 36 years of 10 arcseconds: 0.1 degree
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveAimObject(seen));
  EXPECT_NEAR(AngleTo(seen.astrometric, 1.25, 0.0), 0.1 * kPi / 180.0, 1e-8);
}

TEST_F(ConversionIntoModelTest, AClusterStandsAtItsDistance) {
  db.SetDouble("RA", 2.0);
  db.SetDouble("Dec", 0.25);
  db.SetShort("Distance", 2000);
  const SSO_ID id(FourCC("clst"), 40 << 24 | 44);
  ASSERT_EQ(Convert(id, kConvertAdditionalObject), 1);
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveAdditionalObject(id, seen));
  EXPECT_LT(AngleTo(seen.astrometric, 2.0, 0.25), kSeenFromEarth);
  EXPECT_NEAR(seen.distance / (2000.0 * kAuPerParsec), 1.0, 1e-6);
}

TEST_F(ConversionIntoModelTest, AConstellationStandsInTheDirectionOfItsCentre) {
  db.Set("CenterVector", kFieldInt16, std::vector<short>{0, 300, 300});
  ASSERT_EQ(Convert(SSO_ID(FourCC("cnst"), 1), kConvertLocateObject), 1);
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveLocateObject(seen));
  EXPECT_LT(AngleTo(seen.astrometric, kPi / 2, kPi / 4), kSeenFromEarth);
}

TEST_F(ConversionIntoModelTest, ACometOfTheUserMovesByTheGravityOfTheModel) {
  // A circle of 1 au in the ecliptic, a quarter of a turn at the epoch and, by the Gaussian constant, a
  // quarter more after 365.2568983 / 4 days.
  OrbitalElements elements;
  elements.epoch = kJ2000;
  elements.a = 1.0;
  elements.M0 = 90.0;
  const SSO_ID id(FourCC("fCOM"), 1);
  ASSERT_EQ(ConvertUser(id, elements, kConvertAdditionalObject), 1);
  double position[3], velocity[3];
  ASSERT_TRUE(model.GetHeliocentricState(id, nullptr, position, velocity));
  EXPECT_NEAR(position[0], 0.0, 1e-9);
  EXPECT_NEAR(position[1], std::cos(kObliquity), 1e-6);
  EXPECT_NEAR(position[2], std::sin(kObliquity), 1e-6);
  EXPECT_NEAR(Vmod(velocity, 3), 0.01720209895, 1e-9);
  model.SetMoment(kJ2000 + 365.2568983 / 4.0, kDeltaT2000);
  ASSERT_TRUE(model.GetHeliocentricState(id, nullptr, position, velocity));
  EXPECT_NEAR(position[0], -1.0, 1e-9);
}

TEST_F(ConversionIntoModelTest, AnAsteroidOfADatabaseIsObservedAndIntegrated) {
  db.SetDouble("a", 2.0);
  db.SetDouble("M0", 1.0);
  db.SetDouble("n", 0.01720209895 / std::pow(2.0, 1.5));
  db.SetDouble("JulianDate", kJ2000);
  db.SetFloat("Hy", 5.0f);
  db.SetFloat("SlopeParam", 0.15f);
  const SSO_ID id(FourCC("astr"), 1);
  ASSERT_EQ(Convert(id, kConvertAimObject), 1);
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveAimObject(seen));
  EXPECT_NEAR(seen.sunDistance, 2.0, 1e-9);
  EXPECT_LT(seen.magnitude, 12.0);
  ASSERT_EQ(Convert(id, kConvertIntegration), 1);
  ObservedBody integrated;
  ASSERT_TRUE(model.ObserveIntegrated(integrated));
  EXPECT_LT(VectorsAngle(seen.astrometric, integrated.astrometric), 1e-5);
}

TEST_F(ConversionIntoModelTest, TwoLineElementsOfTheUserAreASatellite) {
  OrbitalElements elements;
  elements.elementSet = kTwoLineElements;
  elements.centralNumber = 3;
  elements.epoch = kJ2000;
  elements.e = 0.0005;
  elements.i = 51.6;
  elements.n = 15.5;  // revolutions a day: by Kepler's third law 6795 km from the Earth's centre
  const SSO_ID id(FourCC("uSCO"), 25544);
  ASSERT_EQ(ConvertUser(id, elements, kConvertAdditionalObject), 1);
  ObservedBody seen;
  ASSERT_TRUE(model.ObserveAdditionalObject(id, seen));
  EXPECT_NEAR(seen.distance * 149597870.7, 6796.0,
              30.0);  // the flattening of the Earth changes it by some km
}

TEST_F(ConversionIntoModelTest, WhatTheModelRefusesIsConvertedAllTheSame) {
  EXPECT_EQ(Convert(SSO_ID(FourCC("cnst"), 1), kConvertAimObject), 1);  // no centre: no direction
  ObservedBody seen;
  EXPECT_FALSE(model.ObserveAimObject(seen));
}

}  // namespace
