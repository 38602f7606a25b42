// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/refraction.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include <gtest/gtest.h>

#include "text/refraction_table.h"

namespace {

using CommonInterfaces::InterpoleEarthRefractionShift;
using CommonInterfaces::kRefractionShifts;
using CommonInterfaces::ShiftAltOnEarthRefraction;

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kArcSecond = kDegree / 3600;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double SineOf(int entry) { return -0.024 + entry / 1000.0; }

// Degrees to degrees.
double Apparent(double trueAltitude) {
  double altitude = trueAltitude * kDegree;
  ShiftAltOnEarthRefraction(&altitude);
  return altitude / kDegree;
}

TEST(Refraction, LowestSineIsSeenFromBothScopes) {
  EXPECT_EQ(::g_cosOfLowerAngleForRefraction, -0.024);
  EXPECT_EQ(&CommonInterfaces::g_cosOfLowerAngleForRefraction, &::g_cosOfLowerAngleForRefraction);
}

TEST(Refraction, TableMeetsTheGivenEntries) {
  const std::pair<int, double> given[] = {{0, 0.0172626761276},      {1, 0.016781551774},
                                          {100, 0.00310590798968},   {500, 0.000572964396045},
                                          {1000, 0.000280547274413}, {1023, 0.0000238024100557}};
  for (const auto& [entry, shift] : given) {
    EXPECT_NEAR(kRefractionShifts[entry], shift, 1e-12 * shift) << entry;
    EXPECT_NEAR(InterpoleEarthRefractionShift(SineOf(entry)), shift, 1e-11 * shift) << entry;
  }
  EXPECT_EQ(kRefractionShifts[1024], 0.0);
  EXPECT_EQ(kRefractionShifts[1025], 0.0);
}

TEST(Refraction, EntryAtTheHorizonLiftsByTheStatedAngle) {
  EXPECT_NEAR(kRefractionShifts[24], std::tan(0.546 * kDegree), 1e-13);
}

TEST(Refraction, TableFallsStrictlyToZero) {
  for (int entry = 1; entry <= 1024; ++entry) {
    EXPECT_LT(kRefractionShifts[entry], kRefractionShifts[entry - 1]) << entry;
  }
}

// A jump in the model would show as a bend in the falls from entry to entry.
TEST(Refraction, FallsGrowSmallerUpToTheLineAtTheZenith) {
  for (int entry = 2; entry < 1013; ++entry) {
    const double before = kRefractionShifts[entry - 2] - kRefractionShifts[entry - 1];
    const double after = kRefractionShifts[entry - 1] - kRefractionShifts[entry];
    EXPECT_LT(after, before) << entry;
    EXPECT_GT(after, before * 0.95) << entry;
  }
}

// R = A tan z - B tan^3 z, with A and B from the entries 500 and 1000.
TEST(Refraction, TangentLawAboveFifteenDegrees) {
  for (int entry = 283; entry < 1013; ++entry) {
    const double altitude = std::asin(SineOf(entry));
    const double tanZ = 1 / std::tan(altitude);
    const double law = (56.4661 * tanZ - 0.0664 * tanZ * tanZ * tanZ) * kArcSecond;
    const double refraction =
        std::atan2(SineOf(entry) + kRefractionShifts[entry], std::cos(altitude)) - altitude;
    EXPECT_NEAR(refraction, law, 0.003 * kArcSecond) << entry;
  }
}

TEST(Refraction, TableRunsInAStraightLineToZeroAtTheZenith) {
  for (int entry = 1013; entry <= 1024; ++entry) {
    EXPECT_NEAR(kRefractionShifts[entry], (1024 - entry) * 0.0000238024100557, 1e-15) << entry;
  }
}

TEST(Refraction, ShiftIsInterpolatedInStraightLines) {
  const double between = InterpoleEarthRefractionShift(-0.0238);  // a fifth of the way from entry 0 to 1
  EXPECT_NEAR(between, 0.0172626761276 + (0.016781551774 - 0.0172626761276) * 0.2, 1e-14);
  EXPECT_NEAR(InterpoleEarthRefractionShift(0.9995), 0.0000238024100557 / 2, 1e-15);
}

TEST(Refraction, ShiftOfSineOneIsZero) { EXPECT_EQ(InterpoleEarthRefractionShift(1.0), 0.0); }

TEST(Refraction, ShiftOfASineBeyondTheTableIsThatOfItsEnd) {
  for (const double sine : {-0.0240001, -1.0, -1e300, -kInfinity}) {
    EXPECT_EQ(InterpoleEarthRefractionShift(sine), 0.0172626761276) << sine;
  }
  for (const double sine : {1.0000001, 2.0, 1e300, kInfinity}) {
    EXPECT_EQ(InterpoleEarthRefractionShift(sine), 0.0) << sine;
  }
}

TEST(Refraction, ShiftOfNoNumberIsZero) { EXPECT_EQ(InterpoleEarthRefractionShift(kNaN), 0.0); }

TEST(Refraction, AltitudeOfMinusTwoDegreesStays) {
  double altitude = -2 * kDegree;
  ShiftAltOnEarthRefraction(&altitude);
  EXPECT_EQ(altitude, -2 * kDegree);
}

TEST(Refraction, HorizonIsRaisedToAboutHalfADegree) { EXPECT_NEAR(Apparent(0.0), 0.546, 1e-9); }

TEST(Refraction, LowestAltitudeIsRaisedAndTheOneBelowItIsNot) {
  const double lowest = std::asin(-0.024);
  double above = lowest + 1e-9, below = lowest - 1e-9;
  ShiftAltOnEarthRefraction(&above);
  ShiftAltOnEarthRefraction(&below);
  EXPECT_NEAR(above / kDegree, -0.38613, 0.00001);  // by hand: atan2(-0.024 + 0.0172626761276, cos)
  EXPECT_EQ(below, lowest - 1e-9);
}

TEST(Refraction, ZenithStays) { EXPECT_NEAR(Apparent(90.0), 90.0, 1e-9); }

TEST(Refraction, OrderOfAltitudesIsKept) {
  double before = Apparent(-1.37);
  for (double altitude = -1.36; altitude <= 90.0; altitude += 0.01) {
    const double now = Apparent(altitude);
    EXPECT_GT(now, before) << altitude;
    EXPECT_GE(now, altitude - 1e-9) << altitude;
    before = now;
  }
}

TEST(Refraction, WhatIsNotFiniteStaysAndNullDoesNothing) {
  ShiftAltOnEarthRefraction(nullptr);
  for (const double wanted : {kInfinity, -kInfinity}) {
    double altitude = wanted;
    ShiftAltOnEarthRefraction(&altitude);
    EXPECT_EQ(altitude, wanted);
  }
  double altitude = kNaN;
  ShiftAltOnEarthRefraction(&altitude);
  EXPECT_TRUE(std::isnan(altitude));
}

// Saemundsson 1986 (Sky and Telescope 72, 70): arc minutes at 1010 hPa and 10 degrees Celsius, for the true
// altitude in degrees.
double Saemundsson(double altitude) {
  return 1.02 / std::tan((altitude + 10.3 / (altitude + 5.11)) * kDegree);
}

// The bounds are those that docs/refraction.md states.
TEST(Refraction, DepartureFromStandardRefractionIsAsDocumented) {
  const auto largest = [](double from, double to) {
    double worst = 0.0;
    for (double altitude = from; altitude <= to; altitude += 0.05) {
      const double refraction = (Apparent(altitude) - altitude) * 60;
      worst = std::max(worst, std::fabs(refraction - Saemundsson(altitude)));
    }
    return worst;
  };
  EXPECT_LT(largest(15.0, 90.0), 0.23);
  EXPECT_LT(largest(4.0, 15.0), 0.27);
  EXPECT_LT(largest(1.0, 4.0), 1.7);
  EXPECT_LT(largest(0.0, 1.0), 3.8);
  EXPECT_LT(largest(-1.375, 0.0), 17.2);
}

}  // namespace
