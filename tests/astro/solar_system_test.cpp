// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_system.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "helpers/known_orbits.h"
#include "helpers/sky_place.h"
#include "tests/support/allocation_counter.h"

using astro_test::Ceres;
using astro_test::FallingStage;
using astro_test::kArcSecond;
using astro_test::kCeresId;
using astro_test::Moon;
using astro_test::Planet;
using astro_test::Vanguard;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

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

// Beyond it the Earth's velocity, as its series goes on, passes that of light.
TEST(SolarSystem, StarsEndAfterAHundredThousandYears) {
  CQXSolSys model;
  model.SetObserverOnEarth(0.1, 0.2, 300.0);
  const StarRecord star;
  const SSO_ID id(FourCC("star"), 1);
  ObservedBody seen;
  for (const double sign : {-1.0, 1.0}) {
    model.SetMoment(2451545.0 + sign * 36525000.0, 69.0);
    ASSERT_TRUE(model.Observe(id, &star, seen));
    EXPECT_NEAR(Vmod(seen.apparent, 3), 1.0, 1e-12);
    for (const double days : {36525001.0, 1e12, 1e300}) {
      model.SetMoment(2451545.0 + sign * days, 69.0);
      EXPECT_FALSE(model.Observe(id, &star, seen)) << days;
      ASSERT_TRUE(model.SetAdditionalObject(id, &star));
      EXPECT_FALSE(model.Observe(id, nullptr, seen)) << days;
    }
    for (const double deltaT : {1.1e7, 1e300, kInfinity, kNaN}) {
      model.SetMoment(2451545.0, sign * deltaT);
      EXPECT_FALSE(model.Observe(id, &star, seen)) << deltaT;
    }
  }
}

// A model that keeps its place, moment after moment, sees what a new one sees.
TEST(SolarSystem, PlaceThatIsSetAgainIsThatOfTheNewMoment) {
  CQXSolSys model;
  for (int i = 0; i < 20; ++i) {
    const double date = 2461056.0 + 37.3 * i, lon = 0.3 * (i / 3), height = i % 2 == 0 ? 0.0 : 2000.0;
    const double lat = i % 5 < 2 ? 0.8 : -0.3;
    CQXSolSys fresh;
    for (CQXSolSys* one : {&model, &fresh}) {
      one->SetMoment(date, 69.0);
      one->SetObserverOnEarth(lon, lat, height);
    }
    ObservedBody seen, wanted;
    ASSERT_TRUE(model.Observe(SSO_ID(FourCC("moon"), 301), nullptr, seen));
    ASSERT_TRUE(fresh.Observe(SSO_ID(FourCC("moon"), 301), nullptr, wanted));
    for (int k = 0; k < 3; ++k) EXPECT_EQ(seen.apparent[k], wanted.apparent[k]) << i;
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

// At 27 au the turning Earth would carry an observer as fast as light.
TEST(SolarSystem, PlaceFarAboveTheSurfaceIsTheEarthsCentre) {
  CQXSolSys centre, high;
  ObservedBody a, b;
  ASSERT_TRUE(centre.Observe(Moon(), nullptr, a));
  for (const double height : {1.001e9, -1.001e9, 1e13, 1e300}) {
    high.SetObserverOnEarth(0.3, 0.2, height);
    ASSERT_TRUE(high.Observe(Moon(), nullptr, b));
    EXPECT_TRUE(SameBytes(a, b)) << height;
  }
  high.SetObserverOnEarth(0.3, 0.2, 1e9);
  ASSERT_TRUE(high.Observe(Moon(), nullptr, b));
  EXPECT_FALSE(SameBytes(a, b));
  EXPECT_NEAR(Vmod(b.apparent, 3), 1.0, 1e-12);
}

TEST(SolarSystem, RecordsNeedNotBeAligned) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  const OrbitalElements elements = Ceres();
  const StarRecord star;
  unsigned char bytes[sizeof elements + sizeof star + 1];
  std::memcpy(bytes + 1, &elements, sizeof elements);
  ObservedBody aligned, seen;
  ASSERT_TRUE(model.Observe(kCeresId, &elements, aligned));
  ASSERT_TRUE(model.Observe(kCeresId, bytes + 1, seen));
  EXPECT_TRUE(SameBytes(aligned, seen));
  std::memcpy(bytes + 1, &star, sizeof star);
  ASSERT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &star, aligned));
  ASSERT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), bytes + 1, seen));
  EXPECT_TRUE(SameBytes(aligned, seen));
}

// The aim object is asked first, then the locate object, then the additional ones.
TEST(SolarSystem, RecordOfTheFirstSlotThatKnowsTheObjectCounts) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  const auto turned = [](double angle) {
    OrbitalElements elements = Ceres();
    elements.M0 += angle;
    return elements;
  };
  const OrbitalElements additional = turned(0.5), locate = turned(1.0), aim = turned(1.5);
  ObservedBody expected, seen;
  const auto expectRecord = [&](const OrbitalElements& elements) {
    ASSERT_TRUE(model.Observe(kCeresId, &elements, expected));
    ASSERT_TRUE(model.Observe(kCeresId, nullptr, seen));
    EXPECT_TRUE(SameBytes(expected, seen));
  };
  ASSERT_TRUE(model.SetAdditionalObject(kCeresId, &additional));
  expectRecord(additional);
  ASSERT_TRUE(model.SetLocateObject(kCeresId, &locate));
  expectRecord(locate);
  ASSERT_TRUE(model.SetAimObject(kCeresId, &aim));
  expectRecord(aim);
}

// Where the planets are not known nobody on the Earth can observe; an undisturbed orbit about the Sun goes
// on.
TEST(SolarSystem, OrbitsAboutTheSunGoOnOutsideTheRangeOfThePlanets) {
  CQXSolSys model;
  const OrbitalElements elements = Ceres();
  ObservedBody seen;
  double position[3];
  model.SetMoment(kLastPlanetDate + 1000.0, 69.0);
  EXPECT_FALSE(model.Observe(kCeresId, &elements, seen));
  EXPECT_FALSE(model.GetHeliocentricState(Planet(5), nullptr, position, nullptr));
  ASSERT_TRUE(model.GetHeliocentricState(kCeresId, &elements, position, nullptr));
  EXPECT_NEAR(Vmod(position, 3), elements.a, elements.a * elements.e + 1e-12);
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
  // Light and satellite leave together, the Earth's motion shifts both ends: what is seen is the geometric
  // direction to the aberration by the satellite's own motion, 5 arc seconds.
  EXPECT_LT(VectorsAngle(seen.apparent, expected) / kArcSecond, 6.0);
}

// The Earth carries both ends of the way that the light takes: in no direction is the yearly aberration left.
TEST(SolarSystem, SatelliteHasNoYearlyAberration) {
  CQXSolSys model;
  const OrbitalElements elements = Vanguard();
  const SatelliteModel satellite(elements);
  const double deltaT = 64.0;
  for (double minutes = 0.0; minutes < 400.0; minutes += 10.0) {
    const double dateTT = elements.epoch + minutes / 1440.0 + deltaT / 86400.0;
    double teme[3], velocity[3], towards[3];
    ASSERT_EQ(satellite.GetState(minutes, teme, velocity), SatelliteFault::kNone);
    TemeToJ2000(dateTT, teme, towards);
    model.SetMoment(dateTT, deltaT);
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(SSO_ID(FourCC("scft"), 5), &elements, seen));
    EXPECT_LT(VectorsAngle(seen.apparent, towards) / kArcSecond, 6.0) << minutes;
  }
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
  EXPECT_TRUE(model.Observe(SSO_ID(FourCC("moon"), 606), nullptr, seen));
  EXPECT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &star, seen));
  EXPECT_TRUE(model.Observe(satelliteId, nullptr, seen));
  EXPECT_TRUE(model.ObserveIntegrated(seen));
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}
