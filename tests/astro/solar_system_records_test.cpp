// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Records that the solar-system model must refuse.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "helpers/known_orbits.h"
#include "helpers/sky_place.h"

using astro_test::Ceres;
using astro_test::kCeresId;
using astro_test::Planet;
using astro_test::Vanguard;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

}  // namespace

TEST(SolarSystemRecords, UnknownKindsAndMissingRecordsAreRefused) {
  CQXSolSys model;
  const OrbitalElements elements = Ceres();
  ObservedBody seen;
  seen.distance = 77.0;
  for (const SSO_ID& id :
       {SSO_ID(), Planet(0), Planet(11), SSO_ID(FourCC("moon"), 505), SSO_ID(FourCC("flda"), 1)}) {
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

TEST(SolarSystemRecords, RefusedRecordKeepsWhatTheSlotHeld) {
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

TEST(SolarSystemRecords, NumbersThatAreNotFiniteAreRefused) {
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

TEST(SolarSystemRecords, ElementsThatDescribeNoOrbitAreRefused) {
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

TEST(SolarSystemRecords, RandomBytesGiveFalseOrNumbers) {
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

// The same for what stands beyond the solar system, with numbers from one end of the range to the other.
TEST(SolarSystemRecords, WildFixedObjectsGiveFalseOrNumbers) {
  constexpr double kWild[] = {0.0, 5e-324, -1e-310, 1e-9, -1.0, 1e10, -1e38, 1e150, -1e300, 1.7e308};
  CQXSolSys model;
  model.SetObserverOnEarth(0.3, 0.7, 100.0);
  unsigned state = 4321;
  const auto wild = [&] {
    state = state * 1664525u + 1013904223u;
    return kWild[(state >> 16) % 10];
  };
  const auto wildFloat = [&] { return static_cast<float>(std::fmod(wild(), 3e38)); };
  const auto expectNumbers = [&](const SSO_ID& id, const void* record) {
    ObservedBody seen;
    if (!model.Observe(id, record, seen)) return false;
    for (const double number : {seen.distance, seen.elongation, seen.magnitude, seen.angularRadius,
                                Vmod(seen.apparent, 3), Vmod(seen.astrometric, 3)}) {
      EXPECT_TRUE(std::isfinite(number));
    }
    return true;
  };
  int seenCount = 0;
  for (int round = 0; round < 5000; ++round) {
    StarRecord star;
    star.ra = wild();
    star.dec = wild();
    star.properMotionRA = wild();
    star.properMotionDec = wild();
    star.parallax = wild();
    star.radialVelocity = wildFloat();
    star.radius = wildFloat();
    seenCount += expectNumbers(SSO_ID(FourCC("star"), 1), &star) ? 1 : 0;
    DeepskyRecord object;
    object.ra = wild();
    object.parallax = wild();
    object.angularSize = wild();
    seenCount += expectNumbers(SSO_ID(FourCC("gala"), 1), &object) ? 1 : 0;
    ConstellationRecord constellation;
    for (double& component : constellation.center) component = wild();
    seenCount += expectNumbers(SSO_ID(FourCC("cnst"), 1), &constellation) ? 1 : 0;
  }
  EXPECT_GT(seenCount, 1000);
}
