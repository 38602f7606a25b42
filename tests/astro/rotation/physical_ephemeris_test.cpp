// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/physical_ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/rotation.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"

namespace {

using astro::CloudLongitudeShift;
using astro::CloudSystem;
using astro::FindPhysicalEphemeris;
using astro::PhysicalEphemeris;
using astro::SurfacePoint;
using astro_test::ExpectDegrees;
using astro_test::kDegree;
using astro_test::Moon;
using astro_test::Planet;

struct Disc {
  ObservedBody seen;
  PhysicalEphemeris physical;
};

Disc SeeDisc(const SSO_ID& body, double julianDateTT) {
  CQXSolSys model;
  model.SetMoment(julianDateTT, 60.0);
  Disc disc;
  EXPECT_TRUE(model.Observe(body, nullptr, disc.seen));
  const auto found = FindPhysicalEphemeris(body, disc.seen, julianDateTT);
  EXPECT_TRUE(found.has_value());
  if (found) disc.physical = *found;
  return disc;
}

}  // namespace

// Meeus, example 29.a: 1992 October 13, 0h UT. His inclination of the Sun's equator is 7.25 degrees, as the
// IAU's pole has it within 0.003.
TEST(PhysicalEphemeris, SunInMeeusExample) {
  const PhysicalEphemeris sun = SeeDisc(Planet(10), 2448908.50068).physical;
  ExpectDegrees(sun.poleAngle, 26.27, 0.01);
  ExpectDegrees(sun.observer.latitude, 5.99, 0.01);
  ExpectDegrees(sun.observer.longitude, 238.63, 0.01);
  EXPECT_EQ(sun.phaseAngle, 0.0);
  EXPECT_EQ(sun.illuminated, 1.0);
}

// Meeus, example 42.a: 1992 November 9, 0h UT. His meridian is that of 1980.
TEST(PhysicalEphemeris, MarsInMeeusExample) {
  const PhysicalEphemeris mars = SeeDisc(Planet(4), 2448935.500683).physical;
  ExpectDegrees(mars.observer.latitude, 12.44, 0.006);
  ExpectDegrees(mars.sun.latitude, -2.76, 0.006);
  ExpectDegrees(mars.observer.longitude, 111.55, 0.03);
  ExpectDegrees(mars.poleAngle, 347.64, 0.006);
  EXPECT_NEAR(mars.illuminated, 0.9012, 0.0001);
  EXPECT_NEAR(2.0 * mars.equatorialRadius / astro_test::kArcSecond, 10.75, 0.02);
}

// Meeus, example 43.a: 1992 December 16, 0h UT; his declinations are planetocentric. His central meridians
// are those of the illuminated disc: the correction for the phase, 57.2958 sin^2 (i / 2), is 0.43 degree. His
// Systems I and II are 23.747 degrees apart at J2000.0; the IAU rounded that to 23.8.
TEST(PhysicalEphemeris, JupiterInMeeusExample) {
  const Disc disc = SeeDisc(Planet(5), 2448972.50068);
  const PhysicalEphemeris& jupiter = disc.physical;
  ExpectDegrees(jupiter.observer.latitude, -2.48, 0.01);
  ExpectDegrees(jupiter.sun.latitude, -2.20, 0.01);
  ExpectDegrees(jupiter.poleAngle, 24.80, 0.01);
  const double half = std::sin(jupiter.phaseAngle / 2.0);
  const double forPhase = half * half;
  EXPECT_NEAR(forPhase / kDegree, 0.43, 0.005);
  const auto first = CloudLongitudeShift(Planet(5), CloudSystem::kFirst, jupiter.julianDate);
  const auto second = CloudLongitudeShift(Planet(5), CloudSystem::kSecond, jupiter.julianDate);
  ASSERT_TRUE(first && second);
  ExpectDegrees(jupiter.observer.longitude + *first + forPhase, 268.06, 0.07);
  ExpectDegrees(jupiter.observer.longitude + *second + forPhase, 72.74, 0.07);
}

// Meeus, example 45.a: 1992 December 16, 0h TD. The difference of the longitudes of Sun and Earth in the
// plane of the rings is 4.198 degrees. His pole of the rings is 0.025 degree from the IAU's, mostly across
// the line of sight, which shows in the position angle.
TEST(PhysicalEphemeris, RingTiltInMeeusExample) {
  const PhysicalEphemeris saturn = SeeDisc(Planet(6), 2448972.5).physical;
  ExpectDegrees(saturn.observer.latitude, 16.442, 0.01);
  ExpectDegrees(saturn.sun.latitude, 14.679, 0.01);
  ExpectDegrees(saturn.poleAngle, 6.741, 0.03);
  ExpectDegrees(
      std::fabs(std::remainder(saturn.sun.longitude - saturn.observer.longitude, astro_test::kTurn)), 4.198,
      0.01);
}

// The rings were seen edge-on from the Earth on 2025 March 23, 16h UT, and lit edge-on on May 6, 12h (the
// Astronomical Almanac); within a day here: the tilt changes by 0.08 and 0.015 degree a day.
TEST(PhysicalEphemeris, RingsStandEdgeOnWhenTheAlmanacsSay) {
  EXPECT_NEAR(SeeDisc(Planet(6), 2460758.17).physical.observer.latitude / kDegree, 0.0, 0.01);
  EXPECT_NEAR(SeeDisc(Planet(6), 2460802.0).physical.sun.latitude / kDegree, 0.0, 0.01);
}

// Phase angle and bright limb do not depend on how the body turns: Meeus, example 41.a (Venus, 1992 December
// 20, 0h TD: k = 0.647), and the Moon of 1992 April 12, example 48.a: position angle 285.0, k = 0.6786.
TEST(PhysicalEphemeris, PhaseAndBrightLimbInMeeusExamples) {
  EXPECT_NEAR(SeeDisc(Planet(2), 2448976.5).physical.illuminated, 0.647, 0.0005);
  const PhysicalEphemeris moon = SeeDisc(Moon(), 2448724.5).physical;
  EXPECT_NEAR(moon.illuminated, 0.6786, 0.0002);
  ExpectDegrees(moon.brightLimbAngle, 285.0, 0.05);
}

// On an ellipsoid the normal is steeper than the radius.
TEST(PhysicalEphemeris, LatitudesDifferByTheFlattening) {
  const Disc disc = SeeDisc(Planet(6), 2448972.5);
  const SurfacePoint& point = disc.physical.observer;
  const double ratio = 60268.0 / 54364.0;
  EXPECT_NEAR(std::tan(point.graphicLatitude), std::tan(point.latitude) * ratio * ratio, 1e-12);
  EXPECT_NEAR(point.longitude + point.eastLongitude, astro_test::kTurn, 1e-12);
  EXPECT_GT(disc.physical.polarRadius, disc.physical.equatorialRadius * 54364.0 / 60268.0);
  EXPECT_LT(disc.physical.polarRadius, disc.physical.equatorialRadius);
  const PhysicalEphemeris venus = SeeDisc(Planet(2), 2448972.5).physical;
  EXPECT_EQ(venus.observer.longitude, venus.observer.eastLongitude) << "it turns backwards";
}

TEST(PhysicalEphemeris, NothingOfWhatIsNotKnown) {
  ObservedBody seen;
  EXPECT_FALSE(FindPhysicalEphemeris(Planet(5), seen, 2451545.0)) << "no distance";
  seen.distance = 4.0;
  seen.astrometric[0] = 1.0;
  EXPECT_TRUE(FindPhysicalEphemeris(Planet(5), seen, 2451545.0));
  EXPECT_FALSE(FindPhysicalEphemeris(Planet(3), seen, 2451545.0));
  EXPECT_FALSE(FindPhysicalEphemeris(Planet(11), seen, 2451545.0));
  EXPECT_FALSE(FindPhysicalEphemeris(SSO_ID(FourCC("star"), 5), seen, 2451545.0));
  EXPECT_FALSE(FindPhysicalEphemeris(Planet(5), seen, std::numeric_limits<double>::infinity()));
}
