// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Moons through the solar-system model: as the observer sees them.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <string>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/moons.h"
#include "astro/physical_ephemeris.h"
#include "astro/planets.h"
#include "astro/rotation.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"
#include "tests/astro/helpers/tsv.h"

namespace {

using astro::GetMoonsOfPlanet;
using astro_test::kArcSecond;
using astro_test::Largest;
using astro_test::Planet;

SSO_ID MoonOf(int number) { return SSO_ID(FourCC("moon"), number); }

// Where a moon is seen from the Earth's centre, by the whole theories at every round of the light's way.
void SeeByIteration(int number, double date, double fromEarth[3]) {
  double earth[3], earthVelocity[3], earthAboutBarycentre[3];
  ASSERT_TRUE(ComputePlanetState(Planet(3), date, earth, earthVelocity));
  EarthVelocity(date, earthAboutBarycentre);
  double lightTime = 0.0;
  for (int step = 0; step < 10; ++step) {
    double planet[3], moon[3];
    ASSERT_TRUE(ComputePlanetState(Planet(number / 100), date - lightTime, planet, nullptr));
    ASSERT_TRUE(astro::ComputeMoonOfPlanet(MoonOf(number), date - lightTime, moon, nullptr));
    for (int i = 0; i < 3; ++i) {
      const double sun = earthAboutBarycentre[i] * astro::kLightAuPerDay - earthVelocity[i];
      fromEarth[i] = planet[i] + moon[i] - lightTime * sun - earth[i];
    }
    lightTime = Vmod(fromEarth, 3) / astro::kLightAuPerDay;
  }
}

// How far a moon is seen from its planet's centre, in equatorial radii of the planet at the distance of the
// planet: to the west, and to the north along the axis.
void OnThePlaneOfSky(const SSO_ID& planet, const ObservedBody& planetSeen, const ObservedBody& moonSeen,
                     double date, double& west, double& north) {
  const auto rotation = astro::ComputeRotation(planet, date - planetSeen.lightTime);
  ASSERT_TRUE(rotation);
  const double* pole = rotation->toBody + 6;
  const double* towards = planetSeen.apparent;
  double east[3], up[3];
  Vprod(pole, towards, east);
  Vprod(towards, east, up);
  const double length = Vmod(east, 3), along = astro::Dot(moonSeen.apparent, towards);
  const double scale =
      planetSeen.distance * astro::kKilometresPerAu / astro::GetBodyShape(planet)->a / along / length;
  west = -astro::Dot(moonSeen.apparent, east) * scale;
  north = astro::Dot(moonSeen.apparent, up) * scale;
}

}  // namespace

TEST(ObservedMoons, StandWhereTheirLightLeft) {
  Largest direction("moons as seen against the iterated light time", "arc second");
  Largest distance("their distances", "km");
  CQXSolSys model;
  for (int k = 0; k < 12; ++k) {
    const double date = 2440000.5 + 1999.99 * k;
    model.SetMoment(date, 64.0);
    for (int planet = 4; planet <= 9; ++planet) {
      for (const int number : GetMoonsOfPlanet(planet)) {
        double expected[3];
        SeeByIteration(number, date, expected);
        ObservedBody seen;
        ASSERT_TRUE(model.Observe(MoonOf(number), nullptr, seen)) << number;
        direction.Note(VectorsAngle(expected, seen.astrometric) / kArcSecond, number);
        distance.Note((Vmod(expected, 3) - seen.distance) * astro::kKilometresPerAu, number);
      }
    }
  }
  direction.Expect(1e-5);
  distance.Expect(0.2);
}

TEST(ObservedMoons, HeliocentricStateIsThatOfThePlanetAndTheMoon) {
  CQXSolSys model;
  model.SetMoment(2460000.5, 69.0);
  double position[3], velocity[3], planet[3], planetVelocity[3], moon[3], moonVelocity[3];
  ASSERT_TRUE(model.GetHeliocentricState(MoonOf(606), nullptr, position, velocity));
  ASSERT_TRUE(ComputePlanetState(Planet(6), 2460000.5, planet, planetVelocity));
  ASSERT_TRUE(astro::ComputeMoonOfPlanet(MoonOf(606), 2460000.5, moon, moonVelocity));
  for (int i = 0; i < 3; ++i) {
    EXPECT_DOUBLE_EQ(position[i], planet[i] + moon[i]);
    EXPECT_DOUBLE_EQ(velocity[i], planetVelocity[i] + moonVelocity[i]);
  }
}

// The planet is kept from moon to moon, but not from moment to moment nor from place to place.
TEST(ObservedMoons, EachMomentAndEachPlaceLooksAnew) {
  CQXSolSys kept, fresh;
  ObservedBody seen, expected;
  kept.SetMoment(2460000.5, 69.0);
  ASSERT_TRUE(kept.Observe(MoonOf(501), nullptr, seen));
  kept.SetMoment(2460100.5, 69.0);
  fresh.SetMoment(2460100.5, 69.0);
  ASSERT_TRUE(kept.Observe(MoonOf(501), nullptr, seen));
  ASSERT_TRUE(fresh.Observe(MoonOf(501), nullptr, expected));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(seen.apparent[i], expected.apparent[i]);
  kept.SetObserverOnEarth(0.3, 0.8, 100.0);
  fresh.SetObserverOnEarth(0.3, 0.8, 100.0);
  ASSERT_TRUE(kept.Observe(MoonOf(501), nullptr, seen));
  for (int i = 0; i < 3; ++i) EXPECT_NE(seen.apparent[i], expected.apparent[i]);
  ASSERT_TRUE(fresh.Observe(MoonOf(501), nullptr, expected));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(seen.apparent[i], expected.apparent[i]);
}

// Meeus, examples 44.b and 46.a. His radii of the planets and his perspective make up to 0.4% of the
// distance; Dourneau's theory places Hyperion and Iapetus less well.
TEST(ObservedMoons, PlaneOfSkyInMeeusExamples) {
  const std::map<std::string, int> numbers = {{"Io", 501},       {"Europa", 502},   {"Ganymede", 503},
                                              {"Callisto", 504}, {"Mimas", 601},    {"Enceladus", 602},
                                              {"Tethys", 603},   {"Dione", 604},    {"Rhea", 605},
                                              {"Titan", 606},    {"Hyperion", 607}, {"Iapetus", 608}};
  Largest jupiter("Jupiter's moons in Meeus' example", "of the distance and a radius more");
  Largest saturn("Saturn's moons in Meeus' example", "of the distance and a radius more");
  CQXSolSys model;
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "moon_examples.tsv")) {
    const double date = std::strtod(row[1].c_str(), nullptr);
    const double x = std::strtod(row[4].c_str(), nullptr), y = std::strtod(row[5].c_str(), nullptr);
    const int number = numbers.at(row[3]);
    model.SetMoment(date, 60.0);
    ObservedBody planet, moon;
    ASSERT_TRUE(model.Observe(Planet(number / 100), nullptr, planet));
    ASSERT_TRUE(model.Observe(MoonOf(number), nullptr, moon));
    double west = 0.0, north = 0.0;
    OnThePlaneOfSky(Planet(number / 100), planet, moon, date, west, north);
    const double difference = std::hypot(west - x, north - y) / (1.0 + std::hypot(x, y));
    (number < 600 ? jupiter : saturn).Note(difference, number);
  }
  jupiter.Expect(0.005);
  saturn.Expect(0.012);
}

// The mean opposition magnitudes of the Astronomical Almanac and of JPL's tables of satellites. The distances
// of those days are not the mean ones: 0.2 magnitude, with Mars' orbit 0.6.
TEST(ObservedMoons, MagnitudesAtMeanOpposition) {
  struct Expected {
    int moon;
    double date, magnitude, tolerance;
  };
  // Oppositions: Mars 2022 December 8, Jupiter 2026 January 10, Saturn 2021 August 2, Uranus 2023 November
  // 13, Neptune 2023 September 19, Pluto 2000 June 1, the year to which its magnitude belongs.
  for (const Expected& row : {Expected{401, 2459921.5, 11.4, 0.6},  Expected{402, 2459921.5, 12.45, 0.6},
                              Expected{501, 2461050.5, 5.02, 0.2},  Expected{502, 2461050.5, 5.29, 0.2},
                              Expected{503, 2461050.5, 4.61, 0.2},  Expected{504, 2461050.5, 5.65, 0.2},
                              Expected{601, 2459428.5, 12.9, 0.2},  Expected{602, 2459428.5, 11.7, 0.2},
                              Expected{603, 2459428.5, 10.2, 0.2},  Expected{604, 2459428.5, 10.4, 0.2},
                              Expected{605, 2459428.5, 9.7, 0.2},   Expected{606, 2459428.5, 8.28, 0.2},
                              Expected{607, 2459428.5, 14.19, 0.2}, Expected{608, 2459428.5, 11.1, 0.2},
                              Expected{701, 2460261.5, 14.16, 0.2}, Expected{702, 2460261.5, 14.81, 0.2},
                              Expected{703, 2460261.5, 13.73, 0.2}, Expected{704, 2460261.5, 13.94, 0.2},
                              Expected{705, 2460261.5, 16.3, 0.2},  Expected{801, 2460206.5, 13.47, 0.2},
                              Expected{901, 2451696.5, 15.65, 0.4}}) {
    CQXSolSys model;
    model.SetMoment(row.date, 69.0);
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(MoonOf(row.moon), nullptr, seen));
    EXPECT_NEAR(seen.magnitude, row.magnitude, row.tolerance) << row.moon;
  }
}

TEST(ObservedMoons, SizesAreThoseOfTheReport) {
  CQXSolSys model;
  model.SetMoment(2460251.5, 69.0);
  ObservedBody ganymede;
  ASSERT_TRUE(model.Observe(MoonOf(503), nullptr, ganymede));
  EXPECT_NEAR(std::sin(ganymede.angularRadius) * ganymede.distance * astro::kKilometresPerAu, 2631.2, 1e-6);
}

TEST(ObservedMoons, ThoseWithoutATheoryAreNotSeen) {
  CQXSolSys model;
  ObservedBody seen;
  seen.distance = 77.0;
  for (const int number : {302, 505, 609, 706, 802, 902}) {
    EXPECT_FALSE(model.Observe(MoonOf(number), nullptr, seen)) << number;
    EXPECT_FALSE(model.SetAimObject(MoonOf(number), nullptr)) << number;
  }
  EXPECT_FALSE(model.InitIntegr(MoonOf(501), nullptr));
  model.SetMoment(2300000.5, 100.0);  // 1585: Pluto's table begins in 1600
  EXPECT_FALSE(model.Observe(MoonOf(901), nullptr, seen));
  EXPECT_TRUE(model.SetAimObject(MoonOf(901), nullptr));
  EXPECT_FALSE(model.ObserveAimObject(seen));
  EXPECT_EQ(seen.distance, 77.0);
}
