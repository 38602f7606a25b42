// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/variable_stars.h"

#include <cmath>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

using CommonInterfaces::GetVarStarMagnitude;
using CommonInterfaces::GetVarUserStarMagnitude;

namespace {

constexpr unsigned kEclipsing = 0x48780B23;
constexpr unsigned kRecurrentNova = 0x447807F5;
constexpr unsigned kNova = 0x41A701C0;
constexpr unsigned kUserNova = 0x77C91FD3;
constexpr unsigned kPeriodic[] = {0x48780B23, 0x4B710A52, 0x52230A71, 0x45C70F9B, 0x41EE0C46, 0x44781255};
constexpr unsigned kSupernovae[] = {0x2F5DC054, 0x3C24553D, 0x0DC3C508, 0x295848A3, 0x46FA33D6, 0x33703631};

// Magnitudes; a date has a resolution of 5e-10 day, in which the fastest curve changes by 3e-9.
constexpr double kTolerance = 1e-8;

double Magnitude(unsigned id, double jd) {
  double magnitude = -99.0;
  EXPECT_TRUE(GetVarStarMagnitude(&magnitude, id, jd)) << id;
  return magnitude;
}

double UserMagnitude(unsigned id, double jd) {
  double magnitude = -99.0;
  EXPECT_TRUE(GetVarUserStarMagnitude(&magnitude, id, jd)) << id;
  return magnitude;
}

double Before(double jd) { return std::nextafter(jd, 0.0); }
double After(double jd) { return std::nextafter(jd, std::numeric_limits<double>::infinity()); }

// The table is made by make_light_curves.py, which knows nothing of the library.
TEST(VariableStarsTest, EveryBranchOfEveryCurveIsThatOfTheTable) {
  std::ifstream table(LIGHT_CURVES_TABLE);
  std::set<std::string> stars;
  int rows = 0;
  for (std::string line; std::getline(table, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream words(line);
    std::string list, identifier, date, expected;
    words >> list >> identifier >> date >> expected;
    ASSERT_FALSE(expected.empty()) << line;
    const auto id = static_cast<unsigned>(std::stoul(identifier, nullptr, 16));
    const double jd = std::stod(date);
    const double magnitude = list == "user" ? UserMagnitude(id, jd) : Magnitude(id, jd);
    EXPECT_NEAR(magnitude, std::stod(expected), kTolerance) << line;
    stars.insert(list + identifier);
    ++rows;
  }
  EXPECT_EQ(stars.size(), 15u);
  EXPECT_GT(rows, 600);
}

TEST(VariableStarsTest, StarsWithoutAModelLeaveTheMagnitudeUntouched) {
  double magnitude = 1.25;
  for (const unsigned id : {0u, 1u, 0xFFFFFFFFu, kEclipsing + 1, kUserNova, 0x2F5DC054u}) {
    EXPECT_FALSE(GetVarStarMagnitude(&magnitude, id, 2451545.0)) << id;
  }
  for (const unsigned id : {0u, 0xFFFFFFFFu, kEclipsing, kRecurrentNova, kNova}) {
    EXPECT_FALSE(GetVarUserStarMagnitude(&magnitude, id, 2451545.0)) << id;
  }
  EXPECT_EQ(magnitude, 1.25);
}

TEST(VariableStarsTest, IdentifiersAreThoseOfTheCatalogueInDecimalToo) {
  double magnitude;
  for (const unsigned id : {1215826723u, 1265699410u, 1378028145u, 1170673563u, 1106119750u, 1148719701u,
                            1148717045u, 1101464000u}) {
    EXPECT_TRUE(GetVarStarMagnitude(&magnitude, id, 2451545.0)) << id;
  }
  for (const unsigned id :
       {794673236u, 1009014077u, 230933768u, 693651619u, 1190802390u, 862991921u, 2009669587u}) {
    EXPECT_TRUE(GetVarUserStarMagnitude(&magnitude, id, 2451545.0)) << id;
  }
}

TEST(VariableStarsTest, ADateThatIsNotANumberStillHasAMagnitude) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  double magnitude;
  for (const unsigned id : kPeriodic) EXPECT_TRUE(GetVarStarMagnitude(&magnitude, id, nan)) << id;
  EXPECT_TRUE(GetVarStarMagnitude(&magnitude, kRecurrentNova, nan));
  EXPECT_TRUE(GetVarStarMagnitude(&magnitude, kNova, nan));
  for (const unsigned id : kSupernovae) EXPECT_TRUE(GetVarUserStarMagnitude(&magnitude, id, nan)) << id;
  EXPECT_TRUE(GetVarUserStarMagnitude(&magnitude, kUserNova, nan));
}

TEST(VariableStarsTest, DatesBeyondAllTimeAreQuietForNovae) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double jd : {-infinity, infinity, -1e300, 1e300, 0.0}) {
    EXPECT_EQ(Magnitude(kNova, jd), 11.76) << jd;
    EXPECT_EQ(UserMagnitude(kUserNova, jd), 23.0) << jd;
    for (const unsigned id : kSupernovae) EXPECT_EQ(UserMagnitude(id, jd), 16.0) << jd;
  }
}

TEST(VariableStarsTest, PeriodicCurvesAreSymmetricAboutTheEpoch) {
  // Epochs that a double holds exactly, so that both sides are equally far.
  for (const double days : {0.25, 1.0, 17.5, 100.125, 408.0, 5000.5}) {
    EXPECT_EQ(Magnitude(0x52230A71, 2453148.0 + days), Magnitude(0x52230A71, 2453148.0 - days)) << days;
    EXPECT_EQ(Magnitude(0x44781255, 2452154.0 + days), Magnitude(0x44781255, 2452154.0 - days)) << days;
  }
}

TEST(VariableStarsTest, PeriodicStarsAreAtTheirExtremesAtEpochAndHalfAPeriodLater) {
  // cos^2 is 1 at the epoch and 0 half a period later, sin^2 the other way round.
  EXPECT_NEAR(Magnitude(kEclipsing, 2451912.29), 2.11 + 1.38, kTolerance);
  EXPECT_NEAR(Magnitude(0x4B710A52, 2451186.45), 3.25 + 1.1, kTolerance);
  EXPECT_NEAR(Magnitude(0x4B710A52, 2451186.45 + 12.9138 / 2), 3.25, kTolerance);
  EXPECT_NEAR(Magnitude(0x52230A71, 2453148.0), 3.3, kTolerance);
  EXPECT_NEAR(Magnitude(0x52230A71, 2453148.0 + 408.05 / 2), 3.3 + 10.9, kTolerance);
  EXPECT_NEAR(Magnitude(0x45C70F9B, 2451181.69), 3.48, kTolerance);
  EXPECT_NEAR(Magnitude(0x45C70F9B, 2451181.69 - 5.36634 / 2), 3.48 + 1.0, kTolerance);
  EXPECT_NEAR(Magnitude(0x41EE0C46, 2451179.3 + 0.5669 / 2), 7.06 + 1.05, kTolerance);
  EXPECT_NEAR(Magnitude(0x44781255, 2452154.0 + 333.8 / 4), 2.0 + 8.1 / 2, kTolerance);
}

TEST(VariableStarsTest, TheEclipsingStarHasAStepAndStaysAtItsBaseOutsideTheDip) {
  // 1.38 cos^2(pi phase) >= 1.35 up to the phase 0.047123, which is 0.135062 days.
  EXPECT_NEAR(Magnitude(kEclipsing, 2451912.29 + 0.13506), 3.46, 1e-4);
  EXPECT_EQ(Magnitude(kEclipsing, 2451912.29 + 0.13507), 2.11);
  EXPECT_NEAR(Magnitude(kEclipsing, 2451912.29 - 0.13506), 3.46, 1e-4);
  EXPECT_EQ(Magnitude(kEclipsing, 2451912.29 - 0.13507), 2.11);
  for (double part = 0.05; part < 0.951; part += 0.01) {
    EXPECT_EQ(Magnitude(kEclipsing, 2451912.29 + 40 * 2.86731 + part * 2.86731), 2.11) << part;
  }
}

TEST(VariableStarsTest, TheRecurrentNovaRisesInFiveDaysAndFadesInSixty) {
  EXPECT_EQ(Magnitude(kRecurrentNova, 2431855.5), 10.25);
  EXPECT_NEAR(Magnitude(kRecurrentNova, After(2431855.5)), 2.0 + 1.76 * 5, kTolerance);
  EXPECT_NEAR(Magnitude(kRecurrentNova, Before(2431860.5)), 2.0, kTolerance);
  EXPECT_EQ(Magnitude(kRecurrentNova, 2431860.5), 2.0);
  EXPECT_NEAR(Magnitude(kRecurrentNova, 2431890.5), 2.0 + 4.4, kTolerance);  // 30 of 60 days
  EXPECT_NEAR(Magnitude(kRecurrentNova, Before(2431920.5)), 10.8, kTolerance);
  EXPECT_EQ(Magnitude(kRecurrentNova, 2431920.5), 10.25);
}

TEST(VariableStarsTest, TheRecurrentNovaComesBackEvery29000Days) {
  for (const double cycle : {-3.0, -1.0, 1.0, 2.0}) {
    EXPECT_EQ(Magnitude(kRecurrentNova, 2431860.5 + 29000.0 * cycle), 2.0) << cycle;
    // Where one cycle ends and the next begins nothing is seen: the outburst is 21 days away.
    EXPECT_EQ(Magnitude(kRecurrentNova, Before(2431839.5 + 29000.0 * cycle)), 10.25) << cycle;
    EXPECT_EQ(Magnitude(kRecurrentNova, 2431839.5 + 29000.0 * cycle), 10.25) << cycle;
  }
}

TEST(VariableStarsTest, TheNovaIsQuietAtBothOuterDates) {
  EXPECT_EQ(Magnitude(kNova, 2421751.5), 11.76);
  EXPECT_NEAR(Magnitude(kNova, After(2421751.5)), 2 * 6.58 - 1.4, kTolerance);
  EXPECT_NEAR(Magnitude(kNova, Before(2421753.5)), -1.4, kTolerance);
  EXPECT_EQ(Magnitude(kNova, 2421753.5), -1.4);
  EXPECT_NEAR(Magnitude(kNova, Before(2422073.5)), 320 * 0.027375 + 3.0, kTolerance);
  EXPECT_EQ(Magnitude(kNova, 2422073.5), 11.76);
}

TEST(VariableStarsTest, TheNovaJumpsWhenItsSlowDeclineBegins) {
  EXPECT_NEAR(Magnitude(kNova, 2421763.5), 10 * 0.44 - 1.4, kTolerance);             // 3.0
  EXPECT_NEAR(Magnitude(kNova, After(2421763.5)), 10 * 0.027375 + 3.0, kTolerance);  // 3.27
}

TEST(VariableStarsTest, TheNovaOfTheUsersListHasACurveOfItsOwn) {
  EXPECT_EQ(UserMagnitude(kUserNova, 2442653.0), 23.0);
  EXPECT_NEAR(UserMagnitude(kUserNova, After(2442653.0)), 2 * 10.655 + 1.69, kTolerance);
  EXPECT_NEAR(UserMagnitude(kUserNova, Before(2442655.0)), 1.69, kTolerance);
  EXPECT_EQ(UserMagnitude(kUserNova, 2442655.0), 1.69);
  EXPECT_NEAR(UserMagnitude(kUserNova, 2442660.0), 5 * 0.662 + 1.69, kTolerance);        // 5.0
  EXPECT_NEAR(UserMagnitude(kUserNova, After(2442660.0)), 5 * 0.05625 + 5, kTolerance);  // 5.28
  EXPECT_NEAR(UserMagnitude(kUserNova, Before(2442975.0)), 320 * 0.05625 + 5, kTolerance);
  EXPECT_EQ(UserMagnitude(kUserNova, 2442975.0), 23.0);
}

TEST(VariableStarsTest, ASupernovaIsQuietOnItsFirstAndLastDate) {
  EXPECT_EQ(UserMagnitude(0x2F5DC054, 2106219.0), 16.0);
  EXPECT_NEAR(UserMagnitude(0x2F5DC054, After(2106219.0)), 20 * 0.8 - 4.8, kTolerance);
  EXPECT_NEAR(UserMagnitude(0x2F5DC054, Before(2106239.0)), -4.8, kTolerance);
  EXPECT_EQ(UserMagnitude(0x2F5DC054, 2106239.0), -4.8);
  EXPECT_NEAR(UserMagnitude(0x2F5DC054, 2106339.0), 100 * 0.05 - 4.8, kTolerance);
  EXPECT_NEAR(UserMagnitude(0x2F5DC054, Before(2106559.0)), 320 * 0.05 - 4.8, kTolerance);
  EXPECT_EQ(UserMagnitude(0x2F5DC054, 2106559.0), 16.0);
}

TEST(VariableStarsTest, EverySupernovaPeaksTwentyDaysAfterItsStart) {
  EXPECT_EQ(UserMagnitude(0x3C24553D, 2088626.0), -9.0);
  EXPECT_EQ(UserMagnitude(0x0DC3C508, 2295540.5), -4.0);
  EXPECT_EQ(UserMagnitude(0x295848A3, 2307190.5), -2.8);
  EXPECT_EQ(UserMagnitude(0x46FA33D6, 2409771.0), 5.8);
  EXPECT_EQ(UserMagnitude(0x33703631, 2446851.0), 4.5);
}

}  // namespace
