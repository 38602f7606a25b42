// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/planets.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>
#include <string>

#include "astro/vectors.h"
#include "companions/astro/model/planet_path.h"
#include "helpers/measure.h"
#include "helpers/tsv.h"
#include "utils/text.h"

using astro_test::kArcSecond;
using astro_test::Largest;
using astro_test::ReadTable;

namespace {

const SSO_ID kMoon(FourCC("moon"), 301);
SSO_ID Planet(int number) { return SSO_ID(FourCC("plnt"), number); }

constexpr const char* kNames[12] = {"",       "Mercury", "Venus",   "Earth", "Mars", "Jupiter",
                                    "Saturn", "Uranus",  "Neptune", "Pluto", "Moon", "Sun"};

// As the Sun (the Moon: the Earth) sees it, arc seconds: what planets.h states or less.
constexpr double kStated[11] = {0, 1.5, 0.5, 0.5, 1, 1.5, 2, 3, 4, 0.1, 2};

double AngleBetween(const double a[3], const double b[3]) { return VectorsAngle(a, b) / kArcSecond; }

// Numbers of the test points: 13 is the barycentre of Earth and Moon. About the Sun.
bool StateOfPoint(int number, double date, double position[3], double velocity[3]) {
  constexpr double kMoonShare = 1.0 / (1.0 + 81.30056);  // mass ratio of DE405
  if (number <= 9) return ComputePlanetState(Planet(number), date, position, velocity);
  if (number == 10) return ComputePlanetState(kMoon, date, position, velocity);
  if (number == 11) return ComputePlanetState(Planet(10), date, position, velocity);
  double moon[3], moonVelocity[3];
  if (!ComputePlanetState(Planet(3), date, position, velocity)) return false;
  if (!ComputeMoonState(date, moon, moonVelocity)) return false;
  for (int i = 0; i < 3; ++i) {
    position[i] += kMoonShare * moon[i];
    velocity[i] += kMoonShare * moonVelocity[i];
  }
  return true;
}

void SetTo(double v[3], double value) { v[0] = v[1] = v[2] = value; }

// One coordinate of one body seen from another each. What two bodies are off adds up, and shows larger from
// near by.
void CompareTestPoints(const char* table, double tolerance) {
  std::map<int, Largest> largest;
  Largest speed("velocity against the test points", "au/day");
  for (const std::vector<double>& row : ReadTable(std::string(ASTRO_TEST_DATA) + table)) {
    const int target = static_cast<int>(row[1]), centre = static_cast<int>(row[2]);
    const int component = static_cast<int>(row[3]) - 1;
    double a[3], b[3], va[3], vb[3], between[3];
    ASSERT_TRUE(StateOfPoint(target, row[0], a, va) && StateOfPoint(centre, row[0], b, vb));
    for (int i = 0; i < 3; ++i) between[i] = a[i] - b[i];
    if (component > 2) {
      speed.Note(va[component - 3] - vb[component - 3] - row[4], row[0]);
      continue;
    }
    const double error = (between[component] - row[4]) / Vmod(between, 3) / kArcSecond;
    for (const int number : {target, centre}) {
      if (number > 11) continue;
      largest.try_emplace(number, (std::string(kNames[number]) + " from any body").c_str(), "arc second")
          .first->second.Note(error, row[0]);
    }
  }
  ASSERT_EQ(largest.size(), 11u);
  for (const auto& [number, difference] : largest) difference.Expect(tolerance);
  speed.Expect(1e-6);
}

}  // namespace

// 40 dates of each body from 1960 to 2059: direction and distance against JPL's DE405.
TEST(Planets, MeetDe405From1960To2059) {
  std::map<int, Largest> directions, distances;
  for (const std::vector<double>& row : ReadTable(ASTRO_TEST_DATA "de405_states.tsv")) {
    const int number = row[0] > 300 ? 10 : static_cast<int>(row[0]);
    double position[3];
    ASSERT_TRUE(number == 10 ? ComputeMoonState(row[1], position, nullptr)
                             : ComputePlanetState(Planet(number), row[1], position, nullptr));
    const std::string name = kNames[number];
    auto& direction =
        directions.try_emplace(number, (name + ": direction against DE405").c_str(), "arc second")
            .first->second;
    auto& distance =
        distances.try_emplace(number, (name + ": distance against DE405").c_str(), "of it").first->second;
    const double published[3] = {row[2], row[3], row[4]};
    direction.Note(AngleBetween(position, published), row[1]);
    distance.Note(Vmod(position, 3) / Vmod(published, 3) - 1.0, row[1]);
  }
  ASSERT_EQ(directions.size(), 10u);
  for (const auto& [number, direction] : directions) direction.Expect(kStated[number]);
  for (const auto& [number, distance] : distances) distance.Expect(kStated[number] * kArcSecond);
}

// JPL's own test points of the same ephemeris, 1900 to 1945 and 2060 to 2100.
TEST(Planets, MeetTheTestPointsOfDe405From1900To2100) { CompareTestPoints("de405_test_points.tsv", 6.0); }

// The farthest years that DE405 covers, 1601 to 1624 and 2187 to 2200: an arc minute is promised.
TEST(Planets, MeetTheTestPointsOfDe405From1600To2200) {
  CompareTestPoints("de405_test_points_1600_2200.tsv", 12.0);
}

// Seen from bodies so near the Sun that what they are off themselves does not show.
TEST(Planets, PlutoMeetsDe405From1600To2200) {
  const std::set<int> inner = {1, 2, 3, 4, 10, 11, 13};
  Largest difference("Pluto from Mercury to Mars, Moon and Sun", "arc second");
  for (const char* table : {"de405_test_points.tsv", "de405_test_points_1600_2200.tsv"}) {
    for (const std::vector<double>& row : ReadTable(std::string(ASTRO_TEST_DATA) + table)) {
      const int target = static_cast<int>(row[1]), centre = static_cast<int>(row[2]);
      const int component = static_cast<int>(row[3]) - 1;
      const bool both = (target == 9 && inner.count(centre) > 0) || (centre == 9 && inner.count(target) > 0);
      if (!both || component > 2) continue;
      double a[3], b[3], velocity[3], between[3];
      ASSERT_TRUE(StateOfPoint(target, row[0], a, velocity) && StateOfPoint(centre, row[0], b, velocity));
      for (int i = 0; i < 3; ++i) between[i] = a[i] - b[i];
      difference.Note((between[component] - row[4]) / Vmod(between, 3) / kArcSecond, row[0]);
    }
  }
  difference.Expect(0.1);
}

// Meeus, Astronomical Algorithms (1998), example 32.a: Venus on 1992 December 20, 0h TD, heliocentric, mean
// ecliptic of date; here the radius, which no frame changes. His shorter table is 1.3e-6 off DE405.
TEST(Planets, DistanceOfVenusFromTheSunAsInTheExample) {
  double position[3];
  ASSERT_TRUE(ComputePlanetState(Planet(2), 2448976.5, position, nullptr));
  EXPECT_NEAR(Vmod(position, 3), 0.724603, 2e-6);
}

// Meeus, example 37.a: Pluto on 1992 October 13.0 TD, ecliptic J2000.
TEST(Planets, PlutoAsInTheExample) {
  const double obliquity = 84381.448 * kArcSecond;
  double p[3];
  ASSERT_TRUE(ComputePlanetState(Planet(9), 2448908.5, p, nullptr));
  const double y = std::cos(obliquity) * p[1] + std::sin(obliquity) * p[2];
  const double z = std::cos(obliquity) * p[2] - std::sin(obliquity) * p[1];
  EXPECT_NEAR(std::atan2(y, p[0]) / astro_test::kDegree + 360.0, 232.74071, 0.0003);
  EXPECT_NEAR(std::asin(z / Vmod(p, 3)) / astro_test::kDegree, 14.58782, 0.0003);
  EXPECT_NEAR(Vmod(p, 3), 29.711111, 2e-5);
}

// Meeus, example 47.a: the Moon on 1992 April 12, 0h TD.
TEST(Planets, DistanceOfTheMoonAsInTheExample) {
  double position[3];
  ASSERT_TRUE(ComputeMoonState(2448724.5, position, nullptr));
  EXPECT_NEAR(Vmod(position, 3) * 149597870.7, 368409.7, 5.0);
}

TEST(Planets, VelocityIsTheDerivativeOfThePosition) {
  constexpr double kStep = 1.0 / 512.0;  // days; a Julian date holds it exactly
  for (int number = 1; number <= 11; ++number) {
    const SSO_ID body = number == 10 ? kMoon : Planet(number == 11 ? 10 : number);
    Largest difference((std::string("velocity against differences, ") + kNames[number]).c_str(), "au/day");
    for (double date = 2378500.0; date < 2524000.0; date += 9999.0) {
      double before[3], after[3], position[3], velocity[3];
      ASSERT_TRUE(ComputePlanetState(body, date - kStep, before, nullptr));
      ASSERT_TRUE(ComputePlanetState(body, date + kStep, after, nullptr));
      ASSERT_TRUE(ComputePlanetState(body, date, position, velocity));
      for (int i = 0; i < 3; ++i) {
        difference.Note(velocity[i] - (after[i] - before[i]) / (2.0 * kStep), date);
      }
    }
    difference.Expect(2e-9);
  }
}

TEST(Planets, SunStandsStill) {
  double position[3], velocity[3];
  SetTo(position, 1.0);
  SetTo(velocity, 1.0);
  ASSERT_TRUE(ComputePlanetState(Planet(10), 2451545.0, position, velocity));
  EXPECT_EQ(Vmod(position, 3), 0.0);
  EXPECT_EQ(Vmod(velocity, 3), 0.0);
}

TEST(Planets, MoonIsThatOfTheEarth) {
  double earth[3], geocentric[3], heliocentric[3];
  ASSERT_TRUE(ComputePlanetState(Planet(3), 2451545.0, earth, nullptr));
  ASSERT_TRUE(ComputeMoonState(2451545.0, geocentric, nullptr));
  ASSERT_TRUE(ComputePlanetState(kMoon, 2451545.0, heliocentric, nullptr));
  for (int i = 0; i < 3; ++i) EXPECT_DOUBLE_EQ(heliocentric[i], earth[i] + geocentric[i]);
}

TEST(Planets, OtherBodiesAreNotKnownAndNothingIsWritten) {
  double position[3], velocity[3];
  SetTo(position, 7.0);
  SetTo(velocity, 8.0);
  for (const SSO_ID& body : {Planet(0), Planet(11), Planet(-1), SSO_ID(FourCC("moon"), 302),
                             SSO_ID(FourCC("moon"), 3), SSO_ID(FourCC("star"), 3), SSO_ID()}) {
    EXPECT_FALSE(ComputePlanetState(body, 2451545.0, position, velocity)) << body.number;
  }
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(position[i], 7.0);
    EXPECT_EQ(velocity[i], 8.0);
  }
}

TEST(Planets, RangeOfTheSeriesIsClosed) {
  double position[3], velocity[3];
  const double infinity = std::numeric_limits<double>::infinity();
  for (const SSO_ID& body : {Planet(1), Planet(8), Planet(10), kMoon}) {
    EXPECT_TRUE(ComputePlanetState(body, kFirstPlanetDate, position, velocity));
    EXPECT_TRUE(std::isfinite(Vmod(position, 3)) && std::isfinite(Vmod(velocity, 3)));
    EXPECT_TRUE(ComputePlanetState(body, kLastPlanetDate, position, velocity));
    EXPECT_TRUE(std::isfinite(Vmod(position, 3)) && std::isfinite(Vmod(velocity, 3)));
    SetTo(position, 7.0);
    for (const double date : {kFirstPlanetDate - 0.001, kLastPlanetDate + 0.001, infinity, -infinity,
                              std::numeric_limits<double>::quiet_NaN()}) {
      EXPECT_FALSE(ComputePlanetState(body, date, position, velocity)) << date;
    }
    EXPECT_EQ(position[0], 7.0);
  }
  EXPECT_FALSE(ComputeMoonState(std::numeric_limits<double>::quiet_NaN(), position, velocity));
  EXPECT_FALSE(ComputeMoonState(kLastPlanetDate + 1.0, position, velocity));
}

TEST(Planets, PlutoIsKnownFrom1600To2200Only) {
  double position[3], velocity[3];
  EXPECT_FALSE(ComputePlanetState(Planet(9), 2305447.0, position, velocity));
  EXPECT_TRUE(ComputePlanetState(Planet(9), 2305447.5, position, velocity));
  EXPECT_TRUE(ComputePlanetState(Planet(9), 2524597.5, position, velocity));
  EXPECT_FALSE(ComputePlanetState(Planet(9), 2524598.0, position, velocity));
}

// One polynomial ends where the next begins.
TEST(Planets, PlutoRunsOnFromPieceToPiece) {
  for (int piece = 1; piece < 30; ++piece) {
    const double date = 2305447.5 + 7305.0 * piece;
    double before[3], after[3];
    ASSERT_TRUE(ComputePlanetState(Planet(9), date - 1e-6, before, nullptr));
    ASSERT_TRUE(ComputePlanetState(Planet(9), date + 1e-6, after, nullptr));
    EXPECT_LT(AngleBetween(before, after), 0.1) << piece;
  }
}

// Archinal et al. 2018, IAU 2015 Resolution B3.
TEST(Planets, MeanRadii) {
  EXPECT_DOUBLE_EQ(GetBodyRadius(Planet(3)), 6371.0084);
  EXPECT_DOUBLE_EQ(GetBodyRadius(Planet(5)), 69911.0);
  EXPECT_DOUBLE_EQ(GetBodyRadius(Planet(10)), 695700.0);
  EXPECT_DOUBLE_EQ(GetBodyRadius(kMoon), 1737.4);
  EXPECT_EQ(GetBodyRadius(Planet(11)), 0.0);
  EXPECT_EQ(GetBodyRadius(Planet(0)), 0.0);
  EXPECT_NEAR(GetBodyRadius(SSO_ID(FourCC("moon"), 501)), 1821.5, 0.1);   // Io
  EXPECT_NEAR(GetBodyRadius(SSO_ID(FourCC("moon"), 606)), 2574.8, 0.01);  // Titan
  EXPECT_EQ(GetBodyRadius(SSO_ID(FourCC("moon"), 302)), 0.0);
}

TEST(Planets, OtherKindsHaveNoRadius) {
  EXPECT_EQ(GetBodyRadius(SSO_ID(FourCC("star"), 5)), 0.0);
  EXPECT_EQ(GetBodyRadius(SSO_ID()), 0.0);
}

TEST(Planets, AreNumbered1To9) {
  for (int number = -1; number <= 11; ++number) {
    EXPECT_EQ(astro_internal::IsPlanet(Planet(number)), number >= 1 && number <= 9) << number;
  }
  EXPECT_FALSE(astro_internal::IsPlanet(SSO_ID(FourCC("moon"), 5)));
}
