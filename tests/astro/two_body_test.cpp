// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/two_body.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/vectors.h"
#include "helpers/measure.h"
#include "helpers/tsv.h"

using astro_test::kDegree;
using astro_test::Largest;

namespace {

constexpr OrbitPlane kFlat = {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
constexpr double kEpoch = 0.0;  // a Julian date of today would round the days

constexpr double kGravity = kGaussianConstant * kGaussianConstant;

// The rule of object_records.h for the mean motion, written out once more: `size` is the semi-major axis for
// e < 1 and the pericentre otherwise.
double MeanMotion(double gravity, double size, double e) {
  if (e < 1.0) return std::sqrt(gravity / (size * size * size));
  if (e - 1.0 < 1e-6) return std::sqrt(gravity / (2.0 * size * size * size));
  const double axis = size / (e - 1.0);
  return std::sqrt(gravity / (axis * axis * axis));
}

// In the plane, at the pericentre at the epoch.
OrbitalElements MakeOrbit(double size, double e, double gravity = kGravity) {
  OrbitalElements elements;
  elements.a = size;
  elements.e = e;
  elements.n = MeanMotion(gravity, size, e);
  elements.epoch = kEpoch;
  return elements;
}

struct State {
  double position[3], velocity[3];
};

State At(const OrbitalElements& elements, double days) {
  State state;
  EXPECT_TRUE(ComputeTwoBodyState(elements, kFlat, kEpoch + days, state.position, state.velocity));
  return state;
}

double Distance(const State& state) { return Vmod(state.position, 3); }

}  // namespace

TEST(TwoBody, PositionsOfTheReferenceTable) {
  Largest position("place relative to the larger of |a| and r", "");
  Largest distance("distance relative to the larger of |a| and r", "");
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "kepler_equation.tsv")) {
    const double e = std::stod(row[1]);
    const double mean = std::stod(row[2]) * kDegree;  // of an orbit with |a| = 1, mu = 1: the time too
    OrbitalElements elements = MakeOrbit(e < 1.0 ? 1.0 : e - 1.0, e, 1.0);
    elements.M0 = elements.n * mean;
    const double nu = std::stod(row[4]) * kDegree;
    const double r = std::stod(row[5]);
    const State state = At(elements, 0.0);
    const double scale = std::fmax(1.0, r);
    position.Note(
        std::hypot(state.position[0] - r * std::cos(nu), state.position[1] - r * std::sin(nu)) / scale, e);
    distance.Note((Distance(state) - r) / scale, e);
  }
  position.Expect(1e-12);
  distance.Expect(1e-12);
}

TEST(TwoBody, ParabolasOfTheReferenceTable) {
  Largest position("place relative to r", "");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "parabolic.tsv")) {
    const State state = At(MakeOrbit(row[0], 1.0), row[1]);
    const double nu = row[2] * kDegree;
    position.Note(
        std::hypot(state.position[0] - row[3] * std::cos(nu), state.position[1] - row[3] * std::sin(nu)) /
            row[3],
        row[0]);
  }
  position.Expect(1e-12);
}

TEST(TwoBody, MeanMotionsOfTheReferenceTableAreThoseOfTheRule) {
  Largest motion("mean motion, relative", "");
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "mean_motion.tsv")) {
    const double size = std::stod(row[1].substr(2));
    const double e = std::stod(row[2]);
    motion.Note(MeanMotion(kGravity, size, e) / std::stod(row[3]) - 1.0, e);
  }
  motion.Expect(1e-14);
}

// A quarter of the period after the pericentre of the table's ellipses, and the speed of the vis-viva
// equation with the gravity that the mean motion came from: the mean motion of every conic is read as it was
// made.
TEST(TwoBody, SpeedFollowsFromTheMeanMotionOfEveryConic) {
  Largest energy("speed squared against 2/r - 1/a, relative", "");
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "mean_motion.tsv")) {
    const double size = std::stod(row[1].substr(2));
    const double e = std::stod(row[2]);
    OrbitalElements elements = MakeOrbit(size, e);
    elements.n = std::stod(row[3]);
    const State state = At(elements, 100.0);
    const double inverseAxis = e < 1.0 ? 1.0 / size : (1.0 - e) / size;
    const double speed = Vmod(state.velocity, 3);
    energy.Note(speed * speed / (kGravity * (2.0 / Distance(state) - inverseAxis)) - 1.0, e);
  }
  energy.Expect(1e-13);
}

TEST(TwoBody, NearParabolicOrbitsLoseNoDigits) {
  Largest position("place relative to r", "");
  Largest velocity("velocity, relative", "");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "near_parabolic.tsv")) {
    const double e = 1.0 + row[0];
    ASSERT_EQ(e - 1.0, row[0]);
    const OrbitalElements elements = MakeOrbit(e < 1.0 ? row[1] / (1.0 - e) : row[1], e);
    // Many turns multiply the rounding of the mean motion: they are another test's subject.
    if (e < 1.0 && elements.n * std::fabs(row[2]) > 3.0) continue;
    const State state = At(elements, row[2]);
    position.Note(
        std::hypot(state.position[0] - row[3], state.position[1] - row[4]) / std::hypot(row[3], row[4]),
        row[0]);
    velocity.Note(
        std::hypot(state.velocity[0] - row[5], state.velocity[1] - row[6]) / std::hypot(row[5], row[6]),
        row[0]);
  }
  position.Expect(1e-13);
  velocity.Expect(1e-13);
}

TEST(TwoBody, ManyTurnsOfTheNearParabolicTable) {
  Largest position("place relative to a, for each radian since the pericentre", "");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "near_parabolic.tsv")) {
    const double e = 1.0 + row[0];
    const OrbitalElements elements = MakeOrbit(e < 1.0 ? row[1] / (1.0 - e) : row[1], e);
    if (e >= 1.0 || elements.n * std::fabs(row[2]) <= 3.0) continue;
    const State state = At(elements, row[2]);
    position.Note(std::hypot(state.position[0] - row[3], state.position[1] - row[4]) /
                      (elements.a * elements.n * std::fabs(row[2])),
                  row[0]);
  }
  position.Expect(1e-14);
}

TEST(TwoBody, EnergyAndAngularMomentumStay) {
  Largest energy("energy, relative to the kinetic one", "");
  Largest momentum("angular momentum, relative to distance times speed", "");
  for (double e : {0.0, 0.0167, 0.5, 0.967, 0.999999, 1.0, 1.0000005, 1.00002, 1.2, 3.36, 40.0}) {
    const double q = 0.75;
    const OrbitalElements elements = MakeOrbit(e < 1.0 ? q / (1.0 - e) : q, e);
    const double inverseAxis = (1.0 - e) / q;
    const double area = std::sqrt(kGravity * q * (1.0 + e));
    for (double days : {-30000.0, -200.0, -3.0, 0.0, 0.01, 40.0, 1000.0, 90000.0}) {
      const State state = At(elements, days);
      const double r = Distance(state);
      const double speed = Vmod(state.velocity, 3);
      energy.Note((speed * speed - kGravity * (2.0 / r - inverseAxis)) / (speed * speed), e);
      double normal[3];
      Vprod(state.position, state.velocity, normal);
      momentum.Note((normal[2] - area) / (r * speed), e);
    }
  }
  energy.Expect(1e-13);
  momentum.Expect(1e-13);
}

TEST(TwoBody, VelocityIsTheChangeOfPosition) {
  Largest velocity("velocity against differences of the position, relative", "");
  for (double e : {0.0, 0.3, 0.9, 0.999999, 1.0, 1.0000004, 1.0001, 1.7}) {
    const OrbitalElements elements = MakeOrbit(e < 1.0 ? 1.0 / (1.0 - e) : 1.0, e);
    for (double days : {-256.0, -32.0, 16.0, 128.0}) {
      const State state = At(elements, days);
      // Differences of the fourth order.
      const double step = 0.125;
      const State before2 = At(elements, days - 2 * step), before = At(elements, days - step);
      const State after = At(elements, days + step), after2 = At(elements, days + 2 * step);
      for (int k = 0; k < 2; ++k) {
        const double change =
            (8.0 * (after.position[k] - before.position[k]) - (after2.position[k] - before2.position[k])) /
            (12.0 * step);
        velocity.Note((state.velocity[k] - change) / Vmod(state.velocity, 3), e);
      }
    }
  }
  velocity.Expect(1e-9);
}

TEST(TwoBody, ConicsMeetAtTheParabola) {
  const State parabola = At(MakeOrbit(1.0, 1.0), 100.0);
  for (double excess : {-1e-12, -1e-14, 1e-14, 1e-12}) {
    const double e = 1.0 + excess;
    const State state = At(MakeOrbit(e < 1.0 ? 1.0 / (1.0 - e) : 1.0, e), 100.0);
    for (int k = 0; k < 2; ++k) EXPECT_NEAR(state.position[k], parabola.position[k], 5e-12) << excess;
  }
}

// The bound of the rule, from both sides: n jumps there by a factor of 7e8, the place does not.
TEST(TwoBody, MeanMotionOfTheParabolaIsReadUpToItsBound) {
  const double below = 1.0 + 0.9999e-6;
  const double above = 1.0 + 1.0001e-6;
  const State inner = At(MakeOrbit(1.0, below), 300.0);
  const State outer = At(MakeOrbit(1.0, above), 300.0);
  EXPECT_GT(MeanMotion(kGravity, 1.0, below) / MeanMotion(kGravity, 1.0, above), 1e8);
  for (int k = 0; k < 2; ++k) EXPECT_NEAR(inner.position[k], outer.position[k], 1e-8);
}

// Axes: the pericentre of an orbit with all angles 0 lies at the equinox; with w = 90 degrees at the
// northernmost point of the ecliptic, whose declination is its obliquity (84381.448 arc seconds, IAU 1976).
TEST(TwoBody, PlaneCountsFromTheEquinoxAndTheEcliptic) {
  OrbitalElements elements;
  OrbitPlane plane = MakeOrbitPlane(elements);
  EXPECT_NEAR(plane.p[0], 1.0, 1e-15);
  elements.w = 90.0 * kDegree;
  plane = MakeOrbitPlane(elements);
  EXPECT_NEAR(std::asin(plane.p[2]) / astro_test::kArcSecond, 84381.448, 1e-9);
  EXPECT_NEAR(plane.q[0], -1.0, 1e-15);
  elements.elementSet = kTwoLineElements;
  plane = MakeOrbitPlane(elements);
  EXPECT_NEAR(plane.p[1], 1.0, 1e-15);
  EXPECT_NEAR(plane.p[2], 0.0, 1e-15);
}

TEST(TwoBody, PlaneVectorsAreAtRightAngles) {
  OrbitalElements elements;
  for (double angle = -7.0; angle < 7.0; angle += 0.3) {
    elements.i = angle;
    elements.om = 1.7 * angle;
    elements.w = 2.9 * angle;
    const OrbitPlane plane = MakeOrbitPlane(elements);
    double product = 0.0;
    for (int k = 0; k < 3; ++k) product += plane.p[k] * plane.q[k];
    EXPECT_NEAR(product, 0.0, 3e-16);
    EXPECT_NEAR(Vmod(plane.p, 3), 1.0, 4e-16);
    EXPECT_NEAR(Vmod(plane.q, 3), 1.0, 4e-16);
  }
}

// Meeus, Astronomical Algorithms (1998), example 33.b: comet Encke, 6 October 1990. He gives the right angled
// equatorial coordinates in example 33.a from elements of equinox 2000: X = +0.2508066, Y = +0.4849175, Z =
// +0.3573373.
TEST(TwoBody, EnckeOfMeeus) {
  OrbitalElements elements = MakeOrbit(2.2091404, 0.8502196);
  elements.i = 11.94524 * kDegree;
  elements.om = 334.75006 * kDegree;
  elements.w = 186.23352 * kDegree;
  elements.epoch = 2448193.04502;  // 1990 October 28.54502, the pericentre
  double position[3];
  ASSERT_TRUE(ComputeTwoBodyState(elements, MakeOrbitPlane(elements), 2448170.5, position, nullptr));
  EXPECT_NEAR(position[0], 0.2508066, 2e-7);
  EXPECT_NEAR(position[1], 0.4849175, 2e-7);
  EXPECT_NEAR(position[2], 0.3573373, 2e-7);
}

TEST(TwoBody, ElementsThatDescribeNoOrbitLeaveTheResults) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double none = std::numeric_limits<double>::quiet_NaN();
  const OrbitalElements good = MakeOrbit(1.0, 0.5);
  State state = {{7.0, 7.0, 7.0}, {8.0, 8.0, 8.0}};
  const auto refuse = [&](OrbitalElements elements, double moment = kEpoch) {
    EXPECT_FALSE(ComputeTwoBodyState(elements, kFlat, moment, state.position, state.velocity));
    EXPECT_EQ(state.position[0], 7.0);
    EXPECT_EQ(state.velocity[2], 8.0);
  };
  for (double bad : {0.0, -1.0, none, infinity}) {
    OrbitalElements elements = good;
    elements.a = bad;
    refuse(elements);
    elements = good;
    elements.n = bad;
    refuse(elements);
  }
  for (double bad : {-0.1, none, infinity}) {
    OrbitalElements elements = good;
    elements.e = bad;
    refuse(elements);
  }
  OrbitalElements elements = good;
  elements.M0 = none;
  refuse(elements);
  refuse(good, none);
  refuse(good, infinity);
}

TEST(TwoBody, WildElementsEndAndGiveNumbersOrNothing) {
  for (double size : {1e-300, 1e-5, 1.0, 1e20, 1e300})
    for (double e : {0.0, 0.5, 1.0 - 1.2e-16, 1.0, 1.0 + 2.3e-16, 1.0000002, 2.0, 1e8, 1e300})
      for (double n : {1e-300, 1e-3, 1.0, 1e300})
        for (double days : {-1e300, -1.0, 0.0, 1e-300, 1e6}) {
          OrbitalElements elements = MakeOrbit(size, 0.0);
          elements.e = e;
          elements.n = n;
          State state = {};
          if (!ComputeTwoBodyState(elements, kFlat, kEpoch + days, state.position, state.velocity)) continue;
          for (double value : state.position) EXPECT_TRUE(std::isfinite(value));
          for (double value : state.velocity) EXPECT_TRUE(std::isfinite(value));
        }
}
