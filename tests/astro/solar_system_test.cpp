// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_system.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "sky_place.h"
#include "tests/host/allocation_counter.h"

using astro_test::kArcSecond;
using astro_test::kDegree;
using astro_test::Moon;
using astro_test::Planet;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

const SSO_ID kCeresId(FourCC("astr"), 1);

// JPL Small-Body Database, mid 2022.
OrbitalElements Ceres() {
  OrbitalElements elements;
  elements.epoch = 2459800.5;
  elements.a = 2.766619044655007;
  elements.e = 0.07863575691875528;
  elements.i = 10.58679512153367 * kDegree;
  elements.om = 80.2664361119415 * kDegree;
  elements.w = 73.53162522557164 * kDegree;
  elements.M0 = 334.3271698971151 * kDegree;
  elements.n = 0.214180550572 * kDegree;
  elements.absMagnitude = 3.33f;
  elements.slope = 0.12f;
  return elements;
}

OrbitalElements Satellite(const char* line1, const char* line2) {
  OrbitalElements elements;
  int number = 0;
  std::string error;
  EXPECT_TRUE(ParseTwoLineElements(line1, line2, elements, number, error)) << error;
  return elements;
}

// The verification set of Vallado et al. 2006: number 5, and 28872, which falls within the hour.
OrbitalElements Vanguard() {
  return Satellite("1 00005U 58002B   00179.78495062  .00000023  00000-0  28098-4 0  4753",
                   "2 00005  34.2682 348.7242 1859667 331.7664  19.3264 10.82419157413667");
}
OrbitalElements FallingStage() {
  return Satellite("1 28872U 05037B   05333.02012661  .25992681  00000-0  24476-3 0  1534",
                   "2 28872  96.4736 157.9986 0303955 244.0492 110.6523 16.46015938 10708");
}

bool SameBytes(const ObservedBody& a, const ObservedBody& b) {
  return a.distance == b.distance && a.magnitude == b.magnitude && a.lightTime == b.lightTime &&
         std::memcmp(a.apparent, b.apparent, sizeof(a.apparent)) == 0;
}

}  // namespace

TEST(SolarSystem, BeginsAtJ2000AtTheEarthsCentre) {
  CQXSolSys fresh, set;
  set.SetObserverAtEarthCentre();
  set.SetMoment(2451545.0, 63.83);
  ObservedBody a, b;
  ASSERT_TRUE(fresh.Observe(Moon(), nullptr, a));
  ASSERT_TRUE(set.Observe(Moon(), nullptr, b));
  EXPECT_TRUE(SameBytes(a, b));
}

// Observed with the record, and after it was given, is the same; the record is copied.
TEST(SolarSystem, ObjectsThatWereGivenAreSeenWithoutTheirRecord) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  OrbitalElements elements = Ceres();
  ObservedBody direct, seen;
  ASSERT_TRUE(model.Observe(kCeresId, &elements, direct));
  EXPECT_FALSE(model.Observe(kCeresId, nullptr, seen));
  EXPECT_FALSE(model.ObserveAimObject(seen));
  EXPECT_FALSE(model.ObserveLocateObject(seen));
  EXPECT_FALSE(model.ObserveAdditionalObject(kCeresId, seen));
  EXPECT_FALSE(model.ObserveIntegrated(seen));
  ASSERT_TRUE(model.SetAimObject(kCeresId, &elements));
  elements = OrbitalElements();
  ASSERT_TRUE(model.ObserveAimObject(seen));
  EXPECT_TRUE(SameBytes(direct, seen));
  ASSERT_TRUE(model.Observe(kCeresId, nullptr, seen));
  EXPECT_TRUE(SameBytes(direct, seen));
}

// Each slot takes the record of an object that another slot knows.
TEST(SolarSystem, RecordGoesFromSlotToSlot) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  const OrbitalElements elements = Ceres();
  ObservedBody first, seen;
  EXPECT_FALSE(model.SetLocateObject(kCeresId, nullptr));
  ASSERT_TRUE(model.SetAimObject(kCeresId, &elements));
  ASSERT_TRUE(model.ObserveAimObject(first));
  ASSERT_TRUE(model.SetLocateObject(kCeresId, nullptr));
  ASSERT_TRUE(model.SetAdditionalObject(kCeresId, nullptr));
  ASSERT_TRUE(model.SetAimObject(Planet(5), nullptr));
  ASSERT_TRUE(model.SetLocateObject(kCeresId, nullptr));
  ASSERT_TRUE(model.ObserveLocateObject(seen));
  EXPECT_TRUE(SameBytes(first, seen));
  ASSERT_TRUE(model.ObserveAdditionalObject(kCeresId, seen));
  EXPECT_TRUE(SameBytes(first, seen));
  ASSERT_TRUE(model.InitIntegr(kCeresId, nullptr));
  ASSERT_TRUE(model.SetLocateObject(Moon(), nullptr));
  ASSERT_TRUE(model.Observe(kCeresId, nullptr, seen));
  model.ClearAdditionalObjects();
  EXPECT_FALSE(model.ObserveAdditionalObject(kCeresId, seen));
  EXPECT_FALSE(model.Observe(kCeresId, nullptr, seen));
}

TEST(SolarSystem, AdditionalObjectIsReplaced) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  OrbitalElements elements = Ceres();
  ObservedBody first, second;
  ASSERT_TRUE(model.SetAdditionalObject(kCeresId, &elements));
  ASSERT_TRUE(model.ObserveAdditionalObject(kCeresId, first));
  elements.M0 += 1.0;
  ASSERT_TRUE(model.SetAdditionalObject(kCeresId, &elements));
  ASSERT_TRUE(model.ObserveAdditionalObject(kCeresId, second));
  EXPECT_GT(VectorsAngle(first.apparent, second.apparent), 0.1);
}

TEST(SolarSystem, UnknownKindsAndMissingRecordsAreRefused) {
  CQXSolSys model;
  const OrbitalElements elements = Ceres();
  ObservedBody seen;
  seen.distance = 77.0;
  for (const SSO_ID& id :
       {SSO_ID(), Planet(0), Planet(11), SSO_ID(FourCC("moon"), 501), SSO_ID(FourCC("flda"), 1)}) {
    EXPECT_FALSE(model.SetAimObject(id, &elements)) << id.kind;
    EXPECT_FALSE(model.Observe(id, &elements, seen)) << id.kind;
  }
  for (const int kind : {FourCC("star"), FourCC("gala"), FourCC("cnst"), FourCC("astr"), FourCC("scft")}) {
    EXPECT_FALSE(model.SetAdditionalObject(SSO_ID(kind, 1), nullptr));
    EXPECT_FALSE(model.InitIntegr(SSO_ID(kind, 1), nullptr));
    EXPECT_FALSE(model.Observe(SSO_ID(kind, 1), nullptr, seen));
  }
  EXPECT_EQ(seen.distance, 77.0);
}

TEST(SolarSystem, RefusedRecordKeepsWhatTheSlotHeld) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  OrbitalElements elements = Ceres();
  ASSERT_TRUE(model.SetAimObject(kCeresId, &elements));
  ASSERT_TRUE(model.SetAdditionalObject(kCeresId, &elements));
  ASSERT_TRUE(model.InitIntegr(kCeresId, &elements));
  elements.a = -1.0;
  EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  EXPECT_FALSE(model.SetAdditionalObject(kCeresId, &elements));
  EXPECT_FALSE(model.InitIntegr(kCeresId, &elements));
  ObservedBody seen;
  EXPECT_TRUE(model.ObserveAimObject(seen));
  EXPECT_TRUE(model.ObserveAdditionalObject(kCeresId, seen));
  EXPECT_TRUE(model.ObserveIntegrated(seen));
}

// Every number of every record in turn: not a number, infinite.
TEST(SolarSystem, NumbersThatAreNotFiniteAreRefused) {
  CQXSolSys model;
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    for (double StarRecord::*field : {&StarRecord::ra, &StarRecord::dec, &StarRecord::properMotionRA,
                                      &StarRecord::properMotionDec, &StarRecord::parallax}) {
      StarRecord star;
      star.*field = bad;
      EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("star"), 1), &star));
    }
    for (float StarRecord::*field :
         {&StarRecord::radialVelocity, &StarRecord::radius, &StarRecord::magnitude, &StarRecord::visMagnitude,
          &StarRecord::blueMagnitude, &StarRecord::absMagnitude}) {
      StarRecord star;
      star.*field = static_cast<float>(bad);
      EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("uSTR"), 1), &star));
    }
    for (double DeepskyRecord::*field :
         {&DeepskyRecord::ra, &DeepskyRecord::dec, &DeepskyRecord::parallax, &DeepskyRecord::angularSize}) {
      DeepskyRecord object;
      object.*field = bad;
      EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("gala"), 1), &object));
    }
    ConstellationRecord constellation;
    constellation.center[2] = bad;
    EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("cnst"), 1), &constellation));
    for (double OrbitalElements::*field :
         {&OrbitalElements::epoch, &OrbitalElements::a, &OrbitalElements::e, &OrbitalElements::i,
          &OrbitalElements::om, &OrbitalElements::w, &OrbitalElements::M0, &OrbitalElements::n}) {
      OrbitalElements elements = Ceres();
      elements.*field = bad;
      EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
    }
    for (double OrbitalElements::*field :
         {&OrbitalElements::epoch, &OrbitalElements::e, &OrbitalElements::i, &OrbitalElements::om,
          &OrbitalElements::w, &OrbitalElements::M0, &OrbitalElements::n, &OrbitalElements::dragTerm}) {
      OrbitalElements elements = Vanguard();
      elements.*field = bad;
      EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("scft"), 5), &elements));
    }
    OrbitalElements elements = Ceres();
    elements.absMagnitude = static_cast<float>(bad);
    EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  }
}

TEST(SolarSystem, ElementsThatDescribeNoOrbitAreRefused) {
  CQXSolSys model;
  OrbitalElements elements = Ceres();
  elements.a = 0.0;
  EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  elements = Ceres();
  elements.e = -0.1;
  EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  elements = Ceres();
  elements.n = 0.0;
  EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  elements = Ceres();
  elements.centralNumber = 11;
  EXPECT_FALSE(model.SetAimObject(kCeresId, &elements));
  elements = Vanguard();
  elements.tag = 0;
  EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("scft"), 5), &elements));
  elements = Vanguard();
  elements.n = -1.0;
  EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("scft"), 5), &elements));
  const ConstellationRecord nowhere;
  EXPECT_FALSE(model.SetAimObject(SSO_ID(FourCC("cnst"), 1), &nowhere));
}

// Whatever bytes a record holds: nothing but false or numbers comes out.
TEST(SolarSystem, RandomBytesGiveFalseOrNumbers) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  unsigned state = 12345;
  for (int round = 0; round < 5000; ++round) {
    OrbitalElements elements;
    unsigned char bytes[sizeof(elements)];
    for (unsigned char& byte : bytes) {
      state = state * 1664525u + 1013904223u;
      byte = static_cast<unsigned char>(state >> 24);
    }
    std::memcpy(static_cast<void*>(&elements), bytes, sizeof(elements));
    elements.centralKind = FourCC("plnt");
    elements.centralNumber = 10;
    if (round % 2 == 0) elements.e = static_cast<double>(round) / 2500.0;
    if (round % 3 == 0) elements.elementSet = kKeplerElements;
    ObservedBody seen;
    if (!model.Observe(kCeresId, &elements, seen)) continue;
    for (const double number : {seen.distance, seen.lightTime, seen.phaseAngle, seen.elongation,
                                seen.magnitude, seen.apparent[0], seen.astrometric[0]}) {
      EXPECT_TRUE(std::isfinite(number));
    }
  }
}

TEST(SolarSystem, NothingIsSeenAtNoTime) {
  CQXSolSys model;
  const StarRecord star;
  ObservedBody seen;
  double position[3], velocity[3];
  for (const double date : {kNaN, kInfinity, -kInfinity}) {
    model.SetMoment(date, 69.0);
    EXPECT_FALSE(model.Observe(Planet(5), nullptr, seen));
    EXPECT_FALSE(model.Observe(SSO_ID(FourCC("star"), 1), &star, seen));
    EXPECT_FALSE(model.GetHeliocentricState(Planet(5), nullptr, position, velocity));
    model.SetMoment(2451545.0, date);
    EXPECT_FALSE(model.Observe(Planet(5), nullptr, seen));
  }
}

TEST(SolarSystem, PlanetsEndWithTheirSeries) {
  CQXSolSys model;
  const OrbitalElements elements = Ceres();
  ObservedBody seen;
  for (const double date : {kFirstPlanetDate - 1.0, kLastPlanetDate + 1.0, 1e300, -1e300}) {
    model.SetMoment(date, 69.0);
    EXPECT_FALSE(model.Observe(Planet(5), nullptr, seen)) << date;
    EXPECT_FALSE(model.Observe(Moon(), nullptr, seen)) << date;
    EXPECT_FALSE(model.Observe(kCeresId, &elements, seen)) << date;
  }
  model.SetMoment(2299000.0, 150.0);
  EXPECT_FALSE(model.Observe(Planet(9), nullptr, seen));
  EXPECT_TRUE(model.Observe(Planet(8), nullptr, seen));
}

TEST(SolarSystem, PlaceThatIsNotFiniteIsTheEarthsCentre) {
  CQXSolSys centre, nowhere;
  nowhere.SetObserverOnEarth(0.0, kNaN, 0.0);
  ObservedBody a, b;
  ASSERT_TRUE(centre.Observe(Moon(), nullptr, a));
  ASSERT_TRUE(nowhere.Observe(Moon(), nullptr, b));
  EXPECT_TRUE(SameBytes(a, b));
}

// From its own centre the Earth is nowhere; from its surface it is below.
TEST(SolarSystem, EarthIsBelowWhoStandsOnIt) {
  CQXSolSys model;
  ObservedBody seen;
  EXPECT_FALSE(model.Observe(Planet(3), nullptr, seen));
  model.SetObserverOnEarth(0.3, astro_test::kTurn / 4.0, 0.0);
  ASSERT_TRUE(model.Observe(Planet(3), nullptr, seen));
  // The light left 0.02 second earlier; the Earth has moved by 0.6 km since.
  EXPECT_NEAR(seen.distance * 149597870.7, 6356.752, 0.64);
  double toDate[9], below[3];
  PrecessionNutationMatrix(2451545.0, toDate);
  MV3prod(toDate, seen.astrometric, below);
  EXPECT_NEAR(below[2], -1.0, 1e-7);
}

TEST(SolarSystem, SatelliteIsWhereItsModelSays) {
  CQXSolSys model;
  const OrbitalElements elements = Vanguard();
  const SSO_ID id(FourCC("scft"), 5);
  const double deltaT = 64.0;
  model.SetMoment(elements.epoch + 0.25 + deltaT / 86400.0, deltaT);
  // The verification set at 360 minutes, TEME, km; the date's digits are 40 microseconds, 0.3 m of the way.
  const double published[3] = {-7154.03120202, -3783.17682504, -3536.19412294};
  double expected[3], earth[3], position[3], velocity[3];
  TemeToJ2000(elements.epoch + 0.25 + deltaT / 86400.0, published, expected);
  ASSERT_TRUE(model.GetHeliocentricState(Planet(3), nullptr, earth, nullptr));
  ASSERT_TRUE(model.GetHeliocentricState(id, &elements, position, velocity));
  for (int i = 0; i < 3; ++i) EXPECT_NEAR((position[i] - earth[i]) * 149597870.7, expected[i], 0.002);
  ObservedBody seen;
  ASSERT_TRUE(model.SetAdditionalObject(id, &elements));
  ASSERT_TRUE(model.ObserveAdditionalObject(id, seen));
  EXPECT_NEAR(seen.distance * 149597870.7, Vmod(published, 3), 1.0);
  EXPECT_EQ(seen.magnitude, static_cast<double>(kUnknownStarMagnitude));
  // Light and satellite leave together, the Earth's motion shifts both ends: what is seen is the geometric direction
  // to the aberration by the satellite's own motion, 5 arc seconds.
  EXPECT_LT(VectorsAngle(seen.apparent, expected) / kArcSecond, 6.0);
}

TEST(SolarSystem, FallenSatelliteIsNotSeen) {
  CQXSolSys model;
  const OrbitalElements elements = FallingStage();
  const SSO_ID id(FourCC("scft"), 28872);
  ASSERT_TRUE(model.SetAimObject(id, &elements));
  ObservedBody seen;
  model.SetMoment(elements.epoch + 5.0 / 1440.0 + 65.0 / 86400.0, 65.0);
  EXPECT_TRUE(model.ObserveAimObject(seen));
  seen.distance = 77.0;
  model.SetMoment(elements.epoch + 55.0 / 1440.0 + 65.0 / 86400.0, 65.0);
  EXPECT_FALSE(model.ObserveAimObject(seen));
  EXPECT_EQ(seen.distance, 77.0);
}

// An orbit about a planet goes with the planet.
TEST(SolarSystem, OrbitAboutAPlanetFollowsThePlanet) {
  CQXSolSys model;
  OrbitalElements elements;
  elements.centralNumber = 5;
  elements.a = 0.01;
  elements.n = std::sqrt(model.GetGravity(Planet(5)) / 1e-6);
  double jupiter[3], position[3], velocity[3], jupiterVelocity[3];
  ASSERT_TRUE(model.GetHeliocentricState(Planet(5), nullptr, jupiter, jupiterVelocity));
  ASSERT_TRUE(model.GetHeliocentricState(SSO_ID(FourCC("uSCO"), 1), &elements, position, velocity));
  double away[3], speed[3];
  for (int i = 0; i < 3; ++i) {
    away[i] = position[i] - jupiter[i];
    speed[i] = velocity[i] - jupiterVelocity[i];
  }
  EXPECT_NEAR(Vmod(away, 3), 0.01, 1e-14);
  EXPECT_NEAR(Vmod(speed, 3), elements.n * 0.01, 1e-14);
}

TEST(SolarSystem, StatesOfWhatStandsOutsideAreRefusedAndNothingIsWritten) {
  CQXSolSys model;
  const StarRecord star;
  double position[3] = {7.0, 7.0, 7.0}, velocity[3] = {8.0, 8.0, 8.0};
  EXPECT_FALSE(model.GetHeliocentricState(SSO_ID(FourCC("star"), 1), &star, position, velocity));
  EXPECT_FALSE(model.GetHeliocentricState(Planet(99), nullptr, position, velocity));
  EXPECT_EQ(position[0], 7.0);
  EXPECT_EQ(velocity[0], 8.0);
  EXPECT_TRUE(model.GetHeliocentricState(Planet(4), nullptr, position, nullptr));
  EXPECT_NE(position[0], 7.0);
}

// DE440 (Park et al. 2021), table 2, in km^3/s^2; the Sun's is the square of the Gaussian constant.
TEST(SolarSystem, GravityOfTheBodies) {
  const CQXSolSys model;
  const double unit = 86400.0 * 86400.0 / std::pow(149597870.7, 3);
  EXPECT_EQ(model.GetGravity(Planet(10)), kGaussianConstant * kGaussianConstant);
  EXPECT_NEAR(model.GetGravity(Planet(10)) / (132712440041.279419 * unit), 1.0, 1e-11);
  EXPECT_NEAR(model.GetGravity(Planet(3)) / (398600.435507 * unit), 1.0, 1e-12);
  EXPECT_NEAR(model.GetGravity(Planet(1)) / (22031.868551 * unit), 1.0, 1e-12);
  EXPECT_NEAR(model.GetGravity(Moon()) / (4902.800118 * unit), 1.0, 1e-12);
  // Without its moons Jupiter has 2.07e-4 less than with them.
  EXPECT_NEAR(model.GetGravity(Planet(5)) / (126712764.1 * unit), 1.0 - 2.07e-4, 1e-6);
  EXPECT_EQ(model.GetGravity(Planet(11)), 0.0);
  EXPECT_EQ(model.GetGravity(Planet(0)), 0.0);
  EXPECT_EQ(model.GetGravity(SSO_ID(FourCC("moon"), 501)), 0.0);
  EXPECT_EQ(model.GetGravity(SSO_ID()), 0.0);
}

TEST(SolarSystem, ObservingOrbitsPlanetsAndStarsAllocatesNothing) {
  CQXSolSys model;
  const OrbitalElements elements = Ceres();
  const OrbitalElements satellite = Vanguard();
  const StarRecord star;
  const SSO_ID satelliteId(FourCC("scft"), 5);
  ASSERT_TRUE(model.SetAdditionalObject(satelliteId, &satellite));
  ASSERT_TRUE(model.InitIntegr(kCeresId, &elements));
  ObservedBody seen;
  const unsigned long long before = host_test::GetAllocationCount();
  model.SetMoment(satellite.epoch + 0.1, 64.0);
  EXPECT_TRUE(model.Observe(kCeresId, &elements, seen));
  EXPECT_TRUE(model.Observe(Planet(5), nullptr, seen));
  EXPECT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &star, seen));
  EXPECT_TRUE(model.Observe(satelliteId, nullptr, seen));
  EXPECT_TRUE(model.ObserveIntegrated(seen));
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}
