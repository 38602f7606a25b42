// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/orbit_info.h"

#include <cmath>
#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

using CommonInterfaces::OrbitInfo;

namespace {

static_assert(std::is_trivially_copyable_v<OrbitInfo>);
static_assert(offsetof(OrbitInfo, m_Center) == 0);
static_assert(offsetof(OrbitInfo, m_Normal) == 3 * 8);
static_assert(offsetof(OrbitInfo, m_Radius) == 6 * 8);
static_assert(offsetof(OrbitInfo, m_CosAnomaly) == 9 * 8);
static_assert(offsetof(OrbitInfo, m_SinAnomaly) == 10 * 8);
static_assert(offsetof(OrbitInfo, m_Eccentricity) == 11 * 8);
static_assert(offsetof(OrbitInfo, m_SemiLatusRectum) == 12 * 8);

constexpr double kTiny = 1e-14;

OrbitInfo Orbit(double mu, double x, double y, double z, double vx, double vy, double vz) {
  const double r[3] = {x, y, z}, v[3] = {vx, vy, vz};
  OrbitInfo orbit{};
  orbit.init(1.0 / mu, r, v);
  return orbit;
}

void ExpectVector(const double v[3], double x, double y, double z) {
  EXPECT_NEAR(v[0], x, kTiny);
  EXPECT_NEAR(v[1], y, kTiny);
  EXPECT_NEAR(v[2], z, kTiny);
}

void ExpectShape(const OrbitInfo& orbit, double e, double p, double cosAnomaly, double sinAnomaly) {
  EXPECT_NEAR(orbit.m_Eccentricity, e, kTiny);
  EXPECT_NEAR(orbit.m_SemiLatusRectum, p, kTiny * p);
  EXPECT_NEAR(orbit.m_CosAnomaly, cosAnomaly, kTiny);
  EXPECT_NEAR(orbit.m_SinAnomaly, sinAnomaly, kTiny);
}

// In all of these h is r times the tangential speed, p = h^2 / mu, e cos nu = p / r - 1 and e sin nu = h vr /
// mu.

TEST(OrbitInfoTest, CircleCountsTheAnomalyFromTheBody) {
  const OrbitInfo orbit = Orbit(4.0, 0.0, 4.0, 0.0, -1.0, 0.0, 0.0);  // v^2 = mu / r
  ExpectShape(orbit, 0.0, 4.0, 1.0, 0.0);
  ExpectVector(orbit.m_Normal, 0.0, 0.0, 1.0);
  ExpectVector(orbit.m_Radius, 0.0, 1.0, 0.0);
}

TEST(OrbitInfoTest, EllipseAtItsPericentre) {
  // h = 1.2, p = 1.44, e cos nu = 0.44
  ExpectShape(Orbit(1.0, 1.0, 0.0, 0.0, 0.0, 1.2, 0.0), 0.44, 1.44, 1.0, 0.0);
}

TEST(OrbitInfoTest, EllipseAtItsApocentre) {
  // h = 0.8, p = 0.64, e cos nu = -0.36
  ExpectShape(Orbit(1.0, 1.0, 0.0, 0.0, 0.0, 0.8, 0.0), 0.36, 0.64, -1.0, 0.0);
}

TEST(OrbitInfoTest, EllipseAtTheEndOfItsSemiLatusRectumRisingAndFalling) {
  // r = p = 4, h = 2, e sin nu = 2 * 0.15
  ExpectShape(Orbit(1.0, 4.0, 0.0, 0.0, 0.15, 0.5, 0.0), 0.3, 4.0, 0.0, 1.0);
  ExpectShape(Orbit(1.0, 4.0, 0.0, 0.0, -0.15, 0.5, 0.0), 0.3, 4.0, 0.0, -1.0);
}

TEST(OrbitInfoTest, EllipseAtAGeneralAnomaly) {
  // mu = 2, r = 2, vt = 1.25, vr = 0.6: h = 2.5, p = 3.125, e cos nu = 0.5625, e sin nu = 0.75, e = 0.9375
  ExpectShape(Orbit(2.0, 2.0, 0.0, 0.0, 0.6, 1.25, 0.0), 0.9375, 3.125, 0.6, 0.8);
}

TEST(OrbitInfoTest, ParabolaAndHyperbola) {
  ExpectShape(Orbit(1.0, 2.0, 0.0, 0.0, 0.0, 1.0, 0.0), 1.0, 4.0, 1.0, 0.0);  // v^2 = 2 mu / r
  ExpectShape(Orbit(1.0, 1.0, 0.0, 0.0, 0.0, 2.0, 0.0), 3.0, 4.0, 1.0, 0.0);
}

TEST(OrbitInfoTest, NormalFollowsTheSenseOfMotion) {
  ExpectVector(Orbit(1.0, 1.0, 0.0, 0.0, 0.0, -1.0, 0.0).m_Normal, 0.0, 0.0, -1.0);
  ExpectVector(Orbit(1.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.5).m_Normal, 1.0, 0.0, 0.0);
  // r = 5 (0.6, 0, 0.8), v along y: r x v = (-0.8, 0, 0.6) |r| |v|
  const OrbitInfo tilted = Orbit(1.0, 3.0, 0.0, 4.0, 0.0, 0.5, 0.0);
  ExpectVector(tilted.m_Normal, -0.8, 0.0, 0.6);
  ExpectVector(tilted.m_Radius, 0.6, 0.0, 0.8);
}

TEST(OrbitInfoTest, NearlyCircularOrbitKeepsItsEccentricityAsComputed) {
  const OrbitInfo orbit = Orbit(1.0, 1.0, 0.0, 0.0, 5e-8, 1.0, 0.0);  // e sin nu = 5e-8
  EXPECT_EQ(orbit.m_CosAnomaly, 1.0);
  EXPECT_EQ(orbit.m_SinAnomaly, 0.0);
  EXPECT_NEAR(orbit.m_Eccentricity, 5e-8, 1e-15);
}

TEST(OrbitInfoTest, JustAboveTheCircularLimitTheAnomalyCountsFromThePericentre) {
  const OrbitInfo orbit = Orbit(1.0, 1.0, 0.0, 0.0, 2e-7, 1.0, 0.0);
  EXPECT_NEAR(orbit.m_CosAnomaly, 0.0, 1e-8);
  EXPECT_NEAR(orbit.m_SinAnomaly, 1.0, 1e-8);
}

// The eccentricity is e sin nu, so that it is known to the last digits.
TEST(OrbitInfoTest, CircularLimitIsOneTenMillionth) {
  EXPECT_EQ(Orbit(1.0, 1.0, 0.0, 0.0, 0.99e-7, 1.0, 0.0).m_SinAnomaly, 0.0);
  EXPECT_NEAR(Orbit(1.0, 1.0, 0.0, 0.0, 1.01e-7, 1.0, 0.0).m_SinAnomaly, 1.0, 1e-8);
}

TEST(OrbitInfoTest, InitLeavesTheCentreToTheCaller) {
  const double r[3] = {1.0, 0.0, 0.0}, v[3] = {0.0, 1.0, 0.0};
  OrbitInfo orbit{};
  orbit.m_Center[0] = 11.0;
  orbit.m_Center[1] = 12.0;
  orbit.m_Center[2] = 13.0;
  orbit.init(1.0, r, v);
  EXPECT_EQ(orbit.m_Center[0], 11.0);
  EXPECT_EQ(orbit.m_Center[1], 12.0);
  EXPECT_EQ(orbit.m_Center[2], 13.0);
}

TEST(OrbitInfoTest, FallStraightToTheCentreHasNoPlane) {
  const OrbitInfo orbit = Orbit(1.0, 2.0, 0.0, 0.0, -1.0, 0.0, 0.0);  // h = 0: e cos nu = -1, e sin nu = 0
  EXPECT_TRUE(std::isnan(orbit.m_Normal[0]));
  EXPECT_EQ(orbit.m_Eccentricity, 1.0);
  EXPECT_EQ(orbit.m_CosAnomaly, -1.0);
  EXPECT_EQ(orbit.m_SemiLatusRectum, 0.0);
}

TEST(OrbitInfoTest, BodyAtTheCentreIsNotANumberAndCountsAsCircular) {
  const OrbitInfo orbit = Orbit(1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  EXPECT_TRUE(std::isnan(orbit.m_Radius[0]));
  EXPECT_TRUE(std::isnan(orbit.m_Eccentricity));
  EXPECT_EQ(orbit.m_CosAnomaly, 1.0);
  EXPECT_EQ(orbit.m_SinAnomaly, 0.0);
}

}  // namespace
