// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/moons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>

#include "astro/planets.h"
#include "astro/rotation.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"
#include "tests/astro/helpers/tsv.h"

namespace {

using astro::ComputeMoonOfPlanet;
using astro::GetMoonsOfPlanet;
using astro::IsMoonOfPlanet;
using astro::kKilometresPerAu;
using astro_test::Largest;
using astro_test::Planet;

SSO_ID MoonOf(int number) { return SSO_ID(FourCC("moon"), number); }

const std::map<std::string, int> kNumbers = {
    {"Phobos", 401},   {"Deimos", 402},  {"Io", 501},        {"Europa", 502},  {"Ganymede", 503},
    {"Callisto", 504}, {"Mimas", 601},   {"Enceladus", 602}, {"Tethys", 603},  {"Dione", 604},
    {"Rhea", 605},     {"Titan", 606},   {"Hyperion", 607},  {"Iapetus", 608}, {"Ariel", 701},
    {"Umbriel", 702},  {"Titania", 703}, {"Oberon", 704},    {"Miranda", 705}, {"Triton", 801},
    {"Charon", 901}};

struct CheckValue {
  std::string kind, theory;
  int moon;
  double date;
  double km[3];
};

std::vector<CheckValue> ReadCheckValues() {
  std::vector<CheckValue> values;
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "moon_check_values.tsv")) {
    const auto number = [&row](int cell) { return std::strtod(row[cell].c_str(), nullptr); };
    values.push_back({row[0], row[1], kNumbers.at(row[2]), number(3), {number(4), number(5), number(6)}});
  }
  return values;
}

// The largest difference of a coordinate, km.
double CoordinateDifference(const CheckValue& value) {
  double position[3];
  EXPECT_TRUE(ComputeMoonOfPlanet(MoonOf(value.moon), value.date, position, nullptr)) << value.moon;
  double largest = 0.0;
  for (int i = 0; i < 3; ++i)
    largest = std::max(largest, std::fabs(position[i] * kKilometresPerAu - value.km[i]));
  return largest;
}

}  // namespace

// Every theory at two dates, to a metre: the tables of data/moon_check_values.tsv, evaluated apart from this
// library.
TEST(Moons, EveryTheoryMeetsItsCheckValues) {
  Largest difference("moons, check values of the theories", "km");
  for (const CheckValue& value : ReadCheckValues()) {
    if (value.kind == "evaluated here") difference.Note(CoordinateDifference(value), value.moon);
  }
  difference.Expect(0.00051);
}

// The output of the authors' own program, which was rounded twice: in au, and to metres.
TEST(Moons, JupiterMoonsMeetTheAuthorsOutput) {
  Largest difference("Jupiter's moons, authors' output", "km");
  for (const CheckValue& value : ReadCheckValues()) {
    if (value.kind == "published" && value.theory == "L1.2")
      difference.Note(CoordinateDifference(value), value.moon);
  }
  difference.Expect(0.0011);
}

// JPL Horizons in 2023 and 2024, a measure of the theories themselves.
TEST(Moons, UranusAndMarsMoonsAgainstHorizons) {
  Largest uranus("Uranus' moons against Horizons", "km"), mars("Mars' moons against Horizons", "km");
  for (const CheckValue& value : ReadCheckValues()) {
    if (value.kind != "published") continue;
    if (value.theory == "GUST86") uranus.Note(CoordinateDifference(value), value.moon);
    if (value.theory == "Sinclair 1989") mars.Note(CoordinateDifference(value), value.moon);
  }
  uranus.Expect(1000.0);
  mars.Expect(400.0);
}

// Against differences of positions ten seconds to both sides. The orbits are not quite osculating ones: the
// theories leave out what has short periods and small amplitudes.
TEST(Moons, VelocitiesAreThoseOfThePositions) {
  Largest difference("velocities of moons", "of the speed");
  for (const auto& [name, number] : kNumbers) {
    for (int k = 0; k < 40; ++k) {
      const double date = 2440000.5 + 777.77 * k, step = 10.0 / 86400.0;
      double before[3], after[3], position[3], velocity[3], apart[3];
      ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), date - step, before, nullptr));
      ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), date + step, after, nullptr));
      ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), date, position, velocity));
      for (int i = 0; i < 3; ++i) apart[i] = (after[i] - before[i]) / (2.0 * step) - velocity[i];
      difference.Note(Vmod(apart, 3) / Vmod(velocity, 3), number);
    }
  }
  difference.Expect(0.002);
}

TEST(Moons, MoonsStandInTheOrderOfTheirDistances) {
  EXPECT_EQ(GetMoonsOfPlanet(5).size(), 4u);
  EXPECT_EQ(GetMoonsOfPlanet(6).size(), 8u);
  int count = 0;
  for (int planet = 1; planet <= 9; ++planet) {
    double last = 0.0;
    for (const int number : GetMoonsOfPlanet(planet)) {
      double position[3];
      ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), 2451545.0, position, nullptr));
      EXPECT_GT(Vmod(position, 3), last) << number;
      EXPECT_EQ(astro::PlanetOfMoon(MoonOf(number)), Planet(planet));
      EXPECT_TRUE(IsMoonOfPlanet(MoonOf(number)));
      last = Vmod(position, 3);
      ++count;
    }
  }
  EXPECT_EQ(count, 22);
  EXPECT_TRUE(GetMoonsOfPlanet(0).empty());
  EXPECT_TRUE(GetMoonsOfPlanet(10).empty());
  EXPECT_TRUE(GetMoonsOfPlanet(-5).empty());
}

TEST(Moons, TheEarthsMoonIsThatOfThePlanets) {
  double one[3], speed[3], other[3], otherSpeed[3];
  ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(301), 2460000.5, one, speed));
  ASSERT_TRUE(ComputeMoonState(2460000.5, other, otherSpeed));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(one[i], other[i]);
    EXPECT_EQ(speed[i], otherSpeed[i]);
  }
}

TEST(Moons, OtherBodiesAreNotKnownAndNothingIsWritten) {
  double position[3] = {7.0, 7.0, 7.0}, velocity[3] = {8.0, 8.0, 8.0};
  for (const SSO_ID& body : {SSO_ID(), MoonOf(300), MoonOf(302), MoonOf(505), MoonOf(609), MoonOf(706),
                             MoonOf(1001), MoonOf(-501), MoonOf(5), Planet(501), Planet(5)}) {
    EXPECT_FALSE(IsMoonOfPlanet(body)) << body.number;
    EXPECT_FALSE(ComputeMoonOfPlanet(body, 2451545.0, position, velocity)) << body.number;
  }
  for (const double value : position) EXPECT_EQ(value, 7.0);
  for (const double value : velocity) EXPECT_EQ(value, 8.0);
}

TEST(Moons, OutsideTheirRangesTheyAreNowhere) {
  double position[3];
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double date : {kFirstPlanetDate - 1.0, kLastPlanetDate + 1.0, infinity, -infinity,
                            std::numeric_limits<double>::quiet_NaN()}) {
    for (const auto& [name, number] : kNumbers)
      EXPECT_FALSE(ComputeMoonOfPlanet(MoonOf(number), date, position, nullptr)) << name;
  }
  // L1.2: the years 1130.3 to 2762.7, where its polynomials end.
  EXPECT_FALSE(ComputeMoonOfPlanet(MoonOf(501), astro_test::JulianDateOfYear(1130.0), position, nullptr));
  EXPECT_TRUE(ComputeMoonOfPlanet(MoonOf(501), astro_test::JulianDateOfYear(1131.0), position, nullptr));
  EXPECT_TRUE(ComputeMoonOfPlanet(MoonOf(501), astro_test::JulianDateOfYear(2762.0), position, nullptr));
  EXPECT_FALSE(ComputeMoonOfPlanet(MoonOf(501), astro_test::JulianDateOfYear(2763.0), position, nullptr));
}

// At the ends of the range the orbits are still orbits.
TEST(Moons, DistancesStayWithinTheEccentricities) {
  for (const auto& [name, number] : kNumbers) {
    double atEpoch[3];
    ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), 2451545.0, atEpoch, nullptr));
    for (const double date : {kFirstPlanetDate, 1000000.5, 2200000.5, 2600000.5, kLastPlanetDate}) {
      double position[3];
      if (!ComputeMoonOfPlanet(MoonOf(number), date, position, nullptr)) continue;
      EXPECT_NEAR(Vmod(position, 3) / Vmod(atEpoch, 3), 1.0, 0.3) << name << " " << date;
    }
  }
}

// Moons that always show their planets the same side have them above their prime meridians, which were chosen
// so by other people from other data: the rotations of the IAU. Those of Saturn's moons are tied to craters,
// up to 5 degrees away, and all moons swing by twice their eccentricities, Titan and Iapetus by 3.3 and 3.2
// degrees. Triton's theory and meridian are 3.7 degrees apart all the time; Mimas, whose meridian swings by
// 45 degrees with a period of 71 years, goes from 3 to 10 degrees in 33 years.
TEST(Moons, TurnTheSameSideToTheirPlanets) {
  Largest sub("planets above the prime meridians of their moons", "degree");
  Largest mimas("Saturn above that of Mimas", "degree"), north("above their equators", "degree");
  for (const auto& [name, number] : kNumbers) {
    if (number == 607) continue;  // Hyperion tumbles
    for (int k = 0; k < 20; ++k) {
      const double date = 2451545.0 + 617.7 * k;
      double position[3], fixed[3];
      const auto rotation = astro::ComputeRotation(MoonOf(number), date);
      ASSERT_TRUE(rotation) << name;
      ASSERT_TRUE(ComputeMoonOfPlanet(MoonOf(number), date, position, nullptr));
      for (double& x : position) x = -x;
      MV3prod(rotation->toBody, position, fixed);
      (number == 601 ? mimas : sub).Note(std::atan2(fixed[1], fixed[0]) / astro_test::kDegree, number);
      north.Note(std::asin(fixed[2] / Vmod(fixed, 3)) / astro_test::kDegree, number);
    }
  }
  sub.Expect(7.0);
  mimas.Expect(12.0);
  north.Expect(2.0);
}
