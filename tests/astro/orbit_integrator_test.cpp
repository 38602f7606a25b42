// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/orbits/orbit_integrator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/two_body.h"
#include "astro/vectors.h"
#include "helpers/measure.h"

using astro_internal::IntegrateOrbit;
using astro_internal::IntegrationLimits;
using astro_internal::OrbitState;
using astro_test::kTurn;

namespace {

constexpr double kGravity = kGaussianConstant * kGaussianConstant;

// One body at the origin; counts how often it was asked, and says stop after `stopAt` asks.
struct Pull {
  int asked = 0;
  int stopAt = std::numeric_limits<int>::max();
};

bool TwoBodies(double /*t*/, const double position[3], double acceleration[3], void* context) {
  Pull& pull = *static_cast<Pull*>(context);
  const double r = Vmod(position, 3);
  for (int k = 0; k < 3; ++k) acceleration[k] = -kGravity * position[k] / (r * r * r);
  return ++pull.asked < pull.stopAt;
}

// At the pericentre of an orbit with a = 1, tilted so that all axes take part.
OrbitState AtPericentre(double e) {
  const double q = 1.0 - e;
  const double speed = std::sqrt(kGravity * (1.0 + e) / q);
  return {{q * 0.6, q * 0.8, 0.0}, {-speed * 0.8 * 0.6, speed * 0.6 * 0.6, speed * 0.8}};
}

double Separation(const OrbitState& a, const OrbitState& b) {
  double sum = 0.0;
  for (int k = 0; k < 3; ++k) sum += (a.position[k] - b.position[k]) * (a.position[k] - b.position[k]);
  return std::sqrt(sum);
}

double Energy(const OrbitState& state) {
  const double speed = Vmod(state.velocity, 3);
  return 0.5 * speed * speed - kGravity / Vmod(state.position, 3);
}

constexpr double kPeriod = kTurn / kGaussianConstant;  // of a = 1, days

OrbitState Integrate(OrbitState state, double from, double to, double tolerance = 1e-15,
                     Pull* pull = nullptr) {
  Pull own;
  IntegrationLimits limits;
  limits.tolerance = tolerance;
  double t = from;
  EXPECT_TRUE(IntegrateOrbit(state, t, to, limits, TwoBodies, pull != nullptr ? pull : &own));
  EXPECT_EQ(t, to);
  return state;
}

}  // namespace

TEST(OrbitIntegrator, ReturnsToItsStartAfterAHundredRevolutions) {
  for (double e : {0.0, 0.3, 0.95}) {
    const OrbitState start = AtPericentre(e);
    Pull pull;
    const OrbitState end = Integrate(start, 0.0, 100.0 * kPeriod, 1e-15, &pull);
    const double speed = Vmod(start.velocity, 3);
    // What counts at the pericentre is when the body comes there: 1e-11 of a revolution is 0.3 millisecond of
    // a year.
    const double late = Separation(start, end) / speed / kPeriod;
    std::printf("[ largest  ] e = %g: %.3g of a revolution, energy %.3g, %d evaluations\n", e, late,
                Energy(end) / Energy(start) - 1.0, pull.asked);
    EXPECT_LT(late, 1e-11) << e;
    EXPECT_NEAR(Energy(end) / Energy(start), 1.0, 1e-13) << e;
  }
}

TEST(OrbitIntegrator, FollowsTheKnownMotion) {
  OrbitalElements elements;
  elements.a = 1.0;
  elements.e = 0.7;
  elements.n = kGaussianConstant;
  elements.epoch = 0.0;
  const OrbitPlane plane = MakeOrbitPlane(elements);
  OrbitState start, expected;
  ASSERT_TRUE(ComputeTwoBodyState(elements, plane, 0.0, start.position, start.velocity));
  for (double days : {1e-6, 1.0, 100.0, -777.0, 5000.0}) {
    ASSERT_TRUE(ComputeTwoBodyState(elements, plane, days, expected.position, expected.velocity));
    EXPECT_LT(Separation(Integrate(start, 0.0, days), expected), 1e-12) << days;
  }
}

TEST(OrbitIntegrator, BackwardsLeadsToTheStart) {
  const OrbitState start = AtPericentre(0.6);
  const OrbitState there = Integrate(start, 1000.0, 4000.0);
  EXPECT_LT(Separation(Integrate(there, 4000.0, 1000.0), start), 1e-12);
}

TEST(OrbitIntegrator, ErrorFollowsTheTolerance) {
  const OrbitState start = AtPericentre(0.5);
  double lastError = HUGE_VAL;
  int lastAsked = 0;
  for (double tolerance : {1e-3, 1e-5, 1e-7, 1e-9}) {
    Pull pull;
    const double error = Separation(Integrate(start, 0.0, 10.0 * kPeriod, tolerance, &pull), start);
    std::printf("[ largest  ] tolerance %g: %.3g au after ten revolutions, %d evaluations\n", tolerance,
                error, pull.asked);
    EXPECT_LT(error, lastError / 10.0);
    EXPECT_LT(error, 100.0 * tolerance);  // of some 150 steps

    EXPECT_GT(pull.asked, lastAsked);
    lastError = error;
    lastAsked = pull.asked;
  }
}

TEST(OrbitIntegrator, TolerancesThatCannotBeAreTakenAsTheNearest) {
  const OrbitState start = AtPericentre(0.2);
  for (double tolerance : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(Separation(Integrate(start, 0.0, 500.0, tolerance), Integrate(start, 0.0, 500.0, 1e-16)), 0.0);
  EXPECT_EQ(Separation(Integrate(start, 0.0, 500.0, 1e9), Integrate(start, 0.0, 500.0, 1e-3)), 0.0);
}

// The body falls into the centre: the steps shrink without end.
TEST(OrbitIntegrator, FallIntoTheCentreEndsWithinTheSteps) {
  OrbitState state = {{1.0, 0.0, 0.0}, {0.0, 0.0, 0.0}};
  double t = 0.0;
  Pull pull;
  EXPECT_FALSE(IntegrateOrbit(state, t, 1000.0, {1e-15, 3000}, TwoBodies, &pull));
  EXPECT_LE(pull.asked, 3000 * 90);
  // From rest at distance 1 the fall takes pi / (2 sqrt(2) k) days.
  EXPECT_LE(t, kTurn / (4.0 * std::sqrt(2.0) * kGaussianConstant));
  EXPECT_TRUE(std::isfinite(state.position[0]));
}

TEST(OrbitIntegrator, StepsThatAreUsedUpLeaveAStateToGoOnFrom) {
  const OrbitState start = AtPericentre(0.5);
  OrbitState state = start;
  double t = 0.0;
  Pull pull;
  int calls = 0;
  while (!IntegrateOrbit(state, t, 3.0 * kPeriod, {1e-15, 40}, TwoBodies, &pull)) {
    ASSERT_LT(++calls, 100);
    ASSERT_GT(t, 0.0);
  }
  EXPECT_GT(calls, 2);
  EXPECT_LT(Separation(state, start), 1e-11);
}

TEST(OrbitIntegrator, StopOfTheAccelerationIsObeyed) {
  for (int stopAt : {1, 5, 200}) {
    OrbitState state = AtPericentre(0.1);
    double t = 0.0;
    Pull pull;
    pull.stopAt = stopAt;
    EXPECT_FALSE(IntegrateOrbit(state, t, 1000.0, {}, TwoBodies, &pull));
    EXPECT_EQ(pull.asked, stopAt);
    EXPECT_LT(t, 1000.0);
  }
}

TEST(OrbitIntegrator, NumbersThatAreNoneChangeNothing) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const OrbitState start = AtPericentre(0.1);
  Pull pull;
  OrbitState state = start;
  double t = 0.0;
  EXPECT_FALSE(IntegrateOrbit(state, t, none, {}, TwoBodies, &pull));
  EXPECT_FALSE(IntegrateOrbit(state, t, std::numeric_limits<double>::infinity(), {}, TwoBodies, &pull));
  EXPECT_EQ(Separation(state, start), 0.0);
  EXPECT_EQ(t, 0.0);
  state.velocity[1] = none;
  EXPECT_FALSE(IntegrateOrbit(state, t, 10.0, {}, TwoBodies, &pull));
  EXPECT_EQ(t, 0.0);
}

TEST(OrbitIntegrator, NoTimeNoChange) {
  OrbitState state = AtPericentre(0.1);
  double t = 5.0;
  EXPECT_TRUE(IntegrateOrbit(state, t, 5.0, {}, TwoBodies, nullptr));
  EXPECT_EQ(Separation(state, AtPericentre(0.1)), 0.0);
}

namespace {

// Nothing pulls, until `until` days.
struct Quiet {
  double until = HUGE_VAL;
  double pull = 0.0;
  int asked = 0;
};

bool Stillness(double t, const double /*position*/[3], double acceleration[3], void* context) {
  Quiet& quiet = *static_cast<Quiet*>(context);
  ++quiet.asked;
  for (int k = 0; k < 3; ++k) acceleration[k] = quiet.pull;
  return t < quiet.until;
}

// Each sweep finds another pull at its last point, by half as much as the last time.
bool Unsettled(double /*t*/, const double /*position*/[3], double acceleration[3], void* context) {
  const int asked = (*static_cast<int*>(context))++;  // 0 at the beginning of the step
  const double more = asked > 0 && asked % 7 == 0 ? std::pow(0.5, asked / 7) : 0.0;
  for (int k = 0; k < 3; ++k) acceleration[k] = 1.0 + more;
  return true;
}

}  // namespace

// At rest in the origin nothing tells how long a step should be: it is the whole way.
TEST(OrbitIntegrator, FromRestAtTheOriginItGoesTheWholeWay) {
  OrbitState state = {};
  double t = 0.0;
  Quiet quiet;
  quiet.pull = 0.5;
  EXPECT_TRUE(IntegrateOrbit(state, t, 4.0, {}, Stillness, &quiet));
  EXPECT_EQ(t, 4.0);
  EXPECT_NEAR(state.position[1], 0.5 * 0.5 * 16.0, 1e-12);
  EXPECT_NEAR(state.velocity[2], 2.0, 1e-12);
}

TEST(OrbitIntegrator, APullThatIsNoNumberStopsIt) {
  OrbitState state = AtPericentre(0.1);
  double t = 0.0;
  Quiet quiet;
  quiet.pull = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(IntegrateOrbit(state, t, 10.0, {}, Stillness, &quiet));
  EXPECT_EQ(quiet.asked, 1);
}

// The first step is taken; where the next would begin there is no acceleration any more.
TEST(OrbitIntegrator, AStopAtTheBeginningOfAStepLeavesTheLastOne) {
  OrbitState once = AtPericentre(0.1), state = once;
  double first = 0.0, t = 0.0;
  Quiet quiet;
  EXPECT_FALSE(IntegrateOrbit(once, first, 1000.0, {1e-15, 1}, Stillness, &quiet));
  ASSERT_GT(first, 0.0);
  quiet.until = first;
  EXPECT_FALSE(IntegrateOrbit(state, t, 1000.0, {}, Stillness, &quiet));
  EXPECT_EQ(t, first);
  EXPECT_EQ(Separation(state, once), 0.0);
}

// One look at the beginning and twelve sweeps over seven points; and one where the next step begins.
TEST(OrbitIntegrator, AStepThatDoesNotSettleEndsAfterTwelveSweeps) {
  OrbitState state = AtPericentre(0.1);
  double t = 0.0;
  int asked = 0;
  IntegrateOrbit(state, t, 1000.0, {1e-15, 1}, Unsettled, &asked);
  EXPECT_GE(asked, 1 + 12 * 7);
  EXPECT_LE(asked, 2 + 12 * 7);
}
