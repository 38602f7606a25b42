// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Records, places and dates at the edges of what the solar-system model takes.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "astro/moons.h"
#include "astro/planets.h"
#include "astro/solar_system.h"
#include "helpers/known_orbits.h"
#include "helpers/sky_place.h"

using astro_test::Ceres;
using astro_test::kCeresId;
using astro_test::Moon;
using astro_test::Planet;
using astro_test::Vanguard;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool SameBytes(const ObservedBody& a, const ObservedBody& b) {
  return a.distance == b.distance && a.magnitude == b.magnitude &&
         std::memcmp(a.apparent, b.apparent, sizeof(a.apparent)) == 0;
}

}  // namespace

// A record that one slot has serves another one, whatever its kind.
TEST(SolarSystemRanges, RecordsOfAllKindsGoFromSlotToSlot) {
  CQXSolSys model;
  StarRecord star;
  star.ra = 1.0;
  DeepskyRecord galaxy;
  galaxy.dec = 0.5;
  ConstellationRecord figure;
  figure.center[1] = 1.0;
  const OrbitalElements ceres = Ceres();
  const struct {
    SSO_ID id;
    const void* record;
  } objects[] = {{SSO_ID(FourCC("star"), 1), &star},
                 {SSO_ID(FourCC("gala"), 1), &galaxy},
                 {SSO_ID(FourCC("cnst"), 1), &figure},
                 {kCeresId, &ceres}};
  for (const auto& object : objects) {
    ObservedBody direct, seen;
    ASSERT_TRUE(model.Observe(object.id, object.record, direct));
    ASSERT_TRUE(model.SetAdditionalObject(object.id, object.record));
    ASSERT_TRUE(model.SetLocateObject(object.id, nullptr));
    model.ClearAdditionalObjects();
    ASSERT_TRUE(model.ObserveLocateObject(seen));
    EXPECT_TRUE(SameBytes(direct, seen));
  }
}

TEST(SolarSystemRanges, LongitudeThatIsNotFiniteIsTheEarthsCentre) {
  CQXSolSys centre, model;
  ObservedBody expected, seen;
  ASSERT_TRUE(centre.Observe(Moon(), nullptr, expected));
  for (const double lon : {kNaN, kInfinity}) {
    model.SetObserverOnEarth(0.5, 0.5, 0.0);
    model.SetObserverOnEarth(lon, 0.5, 0.0);
    ASSERT_TRUE(model.Observe(Moon(), nullptr, seen));
    EXPECT_TRUE(SameBytes(expected, seen));
  }
}

// The state at the moment itself, with and without its velocity: a moon goes with its planet.
TEST(SolarSystemRanges, StatesOfMoonsAreThoseOfTheirPlanetsAndTheirOwn) {
  const SSO_ID io(FourCC("moon"), 501);
  const double date = 2459900.5;
  double planet[3], planetVelocity[3], about[3], aboutVelocity[3], position[3], velocity[3], alone[3];
  CQXSolSys model;
  model.SetMoment(date, 69.2);
  ASSERT_TRUE(ComputePlanetState(Planet(5), date, planet, planetVelocity));
  ASSERT_TRUE(astro::ComputeMoonOfPlanet(io, date, about, aboutVelocity));
  ASSERT_TRUE(model.GetHeliocentricState(io, nullptr, position, velocity));
  ASSERT_TRUE(model.GetHeliocentricState(io, nullptr, alone, nullptr));
  for (int i = 0; i < 3; ++i) {
    EXPECT_DOUBLE_EQ(position[i], planet[i] + about[i]);
    EXPECT_DOUBLE_EQ(velocity[i], planetVelocity[i] + aboutVelocity[i]);
    EXPECT_EQ(alone[i], position[i]);
  }
}

// Of moons of which the theory ends (Jupiter's), of which the planet's does, of orbits about planets and of
// satellites.
TEST(SolarSystemRanges, StatesThatHangOnAPlanetEndWithIt) {
  CQXSolSys model;
  OrbitalElements aboutJupiter = Ceres();
  aboutJupiter.centralNumber = 5;
  aboutJupiter.a = 0.01;
  const OrbitalElements satellite = Vanguard();
  double position[3] = {7.0, 7.0, 7.0}, velocity[3];
  const SSO_ID io(FourCC("moon"), 501), titan(FourCC("moon"), 606);
  model.SetMoment(700000.5, 69.2);
  EXPECT_FALSE(model.GetHeliocentricState(io, nullptr, position, velocity));
  model.SetMoment(kLastPlanetDate + 1.0, 69.2);
  EXPECT_FALSE(model.GetHeliocentricState(titan, nullptr, position, velocity));
  EXPECT_FALSE(model.GetHeliocentricState(kCeresId, &aboutJupiter, position, velocity));
  EXPECT_FALSE(model.GetHeliocentricState(kCeresId, &aboutJupiter, position, nullptr));
  EXPECT_FALSE(model.GetHeliocentricState(SSO_ID(FourCC("scft"), 5), &satellite, position, velocity));
  EXPECT_EQ(position[0], 7.0);
  model.SetMoment(2459900.5, 69.2);
  ObservedBody seen;
  EXPECT_TRUE(model.GetHeliocentricState(kCeresId, &aboutJupiter, position, nullptr));
  EXPECT_TRUE(model.Observe(kCeresId, &aboutJupiter, seen));
}

// The kinds of catalogs and of the user's own files share their formulas; what goes on an orbit and is
// neither comet nor asteroid has none.
TEST(SolarSystemRanges, MagnitudesFollowTheFamilyOfTheKind) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  const OrbitalElements elements = Ceres();
  const auto magnitude = [&](int kind) {
    ObservedBody seen;
    EXPECT_TRUE(model.Observe(SSO_ID(kind, 1), &elements, seen)) << kind;
    return seen.magnitude;
  };
  const double unknown = static_cast<double>(kUnknownStarMagnitude);
  EXPECT_EQ(magnitude(FourCC("fAST")), magnitude(FourCC("astr")));
  EXPECT_EQ(magnitude(FourCC("fCOM")), magnitude(FourCC("comt")));
  EXPECT_NE(magnitude(FourCC("comt")), magnitude(FourCC("astr")));
  EXPECT_NE(magnitude(FourCC("astr")), unknown);
  EXPECT_EQ(magnitude(FourCC("scft")), unknown);
}

// A thousand radians a day at 2.8 au: what outruns its light is seen somewhere on its orbit, and soon.
TEST(SolarSystemRanges, ABodyFasterThanLightIsSeenOnItsOrbit) {
  CQXSolSys model;
  model.SetMoment(2459900.5, 69.2);
  OrbitalElements elements = Ceres();
  elements.n = 1000.0;
  ObservedBody seen;
  ASSERT_TRUE(model.Observe(kCeresId, &elements, seen));
  EXPECT_GT(seen.sunDistance, elements.a * (1.0 - elements.e) * 0.999);
  EXPECT_LT(seen.sunDistance, elements.a * (1.0 + elements.e) * 1.001);
}

TEST(SolarSystemRanges, WhatWasGivenIsNotSeenOutsideItsRangeEither) {
  CQXSolSys model;
  ASSERT_TRUE(model.SetAimObject(Moon(), nullptr) && model.SetLocateObject(Moon(), nullptr) &&
              model.SetAdditionalObject(Moon(), nullptr));
  ObservedBody seen;
  EXPECT_TRUE(model.ObserveAimObject(seen) && model.ObserveLocateObject(seen) &&
              model.ObserveAdditionalObject(Moon(), seen));
  model.SetMoment(kLastPlanetDate + 1.0, 69.2);
  EXPECT_FALSE(model.ObserveAimObject(seen));
  EXPECT_FALSE(model.ObserveLocateObject(seen));
  EXPECT_FALSE(model.ObserveAdditionalObject(Moon(), seen));
}
