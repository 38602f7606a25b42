// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/fixed_objects.h"

#include <gtest/gtest.h>

#include "helpers/sky_place.h"

using astro_test::ApparentPlace;
using astro_test::ArcSecondsBetween;
using astro_test::FromDms;
using astro_test::FromHms;
using astro_test::JulianDateOfYear;
using astro_test::kArcSecond;
using astro_test::PlaceOf;

namespace {

const SSO_ID kStar(FourCC("star"), 1);

ObservedBody See(const SSO_ID& id, const void* record, double dateTT) {
  CQXSolSys model;
  model.SetMoment(dateTT, 69.0);
  ObservedBody seen;
  EXPECT_TRUE(model.Observe(id, record, seen));
  return seen;
}

// Barnard's star: van Leeuwen 2007 (Hipparcos, the new reduction), radial velocity SIMBAD.
StarRecord Barnard() {
  StarRecord star;
  star.ra = FromHms(17, 57, 48.49803);
  star.dec = FromDms(4, 41, 36.2072);
  star.properMotionRA = -0.79858 * kArcSecond;
  star.properMotionDec = 10.32812 * kArcSecond;
  star.parallax = 0.54851 * kArcSecond;
  star.radialVelocity = -110.51f;
  star.visMagnitude = 9.54f;
  star.radius = 0.196f;
  return star;
}

}  // namespace

// Meeus, Astronomical Algorithms (1998), example 23.a: theta Persei on 2028 November 13.19 TD. His constants
// of precession are older than ours by 0.1 arc second.
TEST(Stars, ThetaPerseiAsInTheExample) {
  StarRecord star;
  star.ra = FromHms(2, 44, 11.986);
  star.dec = FromDms(49, 13, 42.48);
  star.properMotionRA = 0.03425 * 15.0 * std::cos(star.dec) * kArcSecond;
  star.properMotionDec = -0.0895 * kArcSecond;
  const ObservedBody seen = See(kStar, &star, 2462088.69);
  const double off =
      ArcSecondsBetween(ApparentPlace(seen, 2462088.69), {FromHms(2, 46, 14.390), FromDms(49, 21, 7.45)});
  EXPECT_LT(off, 0.15);
}

// A star at 1 parsec towards the pole of the ecliptic circles at the Earth's distance from the barycentre.
TEST(Stars, ParallaxIsThatOfTheEarthsOrbit) {
  const double obliquity = 84381.406 * kArcSecond;
  StarRecord star;
  star.ra = FromHms(18, 0, 0);
  star.dec = astro_test::kTurn / 4.0 - obliquity;
  star.parallax = kArcSecond;
  double towards[3];
  sfp(1.0, star.ra, star.dec, towards);
  for (double date = 2451545.0; date < 2451910.0; date += 15.0) {
    const ObservedBody seen = See(kStar, &star, date);
    EXPECT_NEAR(VectorsAngle(seen.astrometric, towards) / kArcSecond, 1.0, 0.025) << date;
    EXPECT_NEAR(seen.distance, 206264.806, 0.1);
    EXPECT_NEAR(seen.elongation, astro_test::kTurn / 4.0, 1e-4);
  }
}

// Without a parallax the proper motion keeps every digit: after 1000 years the tangent is the arc.
TEST(Stars, ProperMotionWithoutParallaxIsStraight) {
  StarRecord star;
  star.properMotionRA = 2.0 * kArcSecond;
  star.radialVelocity = 500.0f;
  const ObservedBody seen = See(kStar, &star, JulianDateOfYear(3000));
  EXPECT_NEAR(PlaceOf(seen.astrometric).ra, std::atan(2000.0 * kArcSecond), 1e-9);
  EXPECT_EQ(seen.distance, 0.0);
}

// The light that reaches the Earth on the near side of its orbit left the star later than what the barycentre
// sees: with 1000 arc seconds a year, 8 minutes are 0.016 arc second.
TEST(Stars, ProperMotionCountsFromWhenTheLightPassesTheBarycentre) {
  const double date = 2451545.0 + 3652.5;
  CQXSolSys model;
  model.SetMoment(date, 66.0);
  double earth[3];
  ASSERT_TRUE(model.GetHeliocentricState(astro_test::Planet(3), nullptr, earth, nullptr));
  const double distance = Vmod(earth, 3);
  StarRecord star;
  star.ra = std::atan2(earth[1], earth[0]);
  star.dec = std::asin(earth[2] / distance);
  star.properMotionDec = 1000.0 * kArcSecond;
  ObservedBody seen;
  ASSERT_TRUE(model.Observe(kStar, &star, seen));
  const double years = 10.0 + distance * 499.004784 / 86400.0 / 365.25;  // 1 au is 499 light seconds
  // The barycentre lies up to 0.01 au from the Sun.
  EXPECT_NEAR(VectorsAngle(seen.astrometric, earth) / kArcSecond,
              std::atan(star.properMotionDec * years) / kArcSecond, 0.0003);
}

// Barnard's star passes the Sun at 3.76 light years about the year 11800 (Bobylev 2010); until 9800 it comes
// nearer and its motion grows.
TEST(Stars, ApproachingStarGrowsFasterAndNearer) {
  const StarRecord star = Barnard();
  const ObservedBody now = See(kStar, &star, JulianDateOfYear(2000));
  const ObservedBody later = See(kStar, &star, JulianDateOfYear(11800));
  EXPECT_NEAR(now.distance, 206264.806 / 0.54851, 1.1);
  EXPECT_NEAR(later.distance / 63241.077, 3.76, 0.06);
  const ObservedBody century = See(kStar, &star, JulianDateOfYear(2100));
  const double moved = VectorsAngle(now.astrometric, century.astrometric) / kArcSecond;
  EXPECT_GT(moved, 1035.89);  // 100 times the proper motion, 10.359 arc seconds, and what it gained
  EXPECT_LT(moved, 1043.0);
}

TEST(Stars, MagnitudeAndSizeAreThoseOfTheRecord) {
  StarRecord star = Barnard();
  ObservedBody seen = See(kStar, &star, 2451545.0);
  EXPECT_FLOAT_EQ(static_cast<float>(seen.magnitude), 9.54f);
  // 0.196 solar radii at 1.8231 parsecs: 0.5 milliarcsecond.
  EXPECT_NEAR(seen.angularRadius / kArcSecond, 0.000500, 0.000002);
  EXPECT_EQ(seen.lightTime, 0.0);
  EXPECT_EQ(seen.sunDistance, 0.0);
  EXPECT_EQ(seen.phaseAngle, 0.0);
  star.visMagnitude = kUnknownStarMagnitude;
  star.magnitude = 9.0f;
  seen = See(kStar, &star, 2451545.0);
  EXPECT_EQ(seen.magnitude, 9.0);
  star.magnitude = kUnknownStarMagnitude;
  seen = See(kStar, &star, 2451545.0);
  EXPECT_EQ(seen.magnitude, static_cast<double>(kUnknownStarMagnitude));
}

// Hipparcos measured many far stars with parallaxes below 0.
TEST(Stars, NegativeParallaxIsInfinitelyFar) {
  StarRecord star = Barnard();
  star.parallax = -0.002 * kArcSecond;
  StarRecord far = star;
  far.parallax = 0.0;
  const ObservedBody seen = See(kStar, &star, JulianDateOfYear(2020));
  const ObservedBody farther = See(kStar, &far, JulianDateOfYear(2020));
  EXPECT_EQ(seen.distance, 0.0);
  EXPECT_EQ(VectorsAngle(seen.apparent, farther.apparent), 0.0);
}

TEST(Stars, SizeBelowZeroIsNone) {
  StarRecord star = Barnard();
  star.radius = -1e30f;
  EXPECT_EQ(See(kStar, &star, 2451545.0).angularRadius, 0.0);
  star.parallax = 0.0;
  EXPECT_EQ(See(kStar, &star, 2451545.0).angularRadius, 0.0);
  DeepskyRecord galaxy;
  galaxy.angularSize = -0.01;
  EXPECT_EQ(See(SSO_ID(FourCC("gala"), 1), &galaxy, 2451545.0).angularRadius, 0.0);
}

TEST(Stars, DistanceBeyondAllNumbersIsNone) {
  StarRecord star;
  star.parallax = 5e-324;
  EXPECT_EQ(See(kStar, &star, 2451545.0).distance, 0.0);
  DeepskyRecord galaxy;
  galaxy.parallax = 1e-310;
  EXPECT_EQ(See(SSO_ID(FourCC("gala"), 1), &galaxy, 2451545.0).distance, 0.0);
}

TEST(Deepsky, SizeMagnitudeAndDistance) {
  DeepskyRecord galaxy;
  galaxy.ra = 1.0;
  galaxy.dec = -0.5;
  galaxy.angularSize = 0.01;
  galaxy.parallax = 1e-12;
  for (const int kind : {FourCC("gala"), FourCC("nebu"), FourCC("clst"), FourCC("dsnv"), FourCC("uDSO"),
                         FourCC("uNEB"), FourCC("uCLS"), FourCC("uGAL")}) {
    const ObservedBody seen = See(SSO_ID(kind, 1), &galaxy, 2451545.0);
    EXPECT_NEAR(PlaceOf(seen.astrometric).ra, 1.0, 1e-9) << kind;
    EXPECT_EQ(seen.angularRadius, 0.005);
    EXPECT_NEAR(seen.distance, 1e12, 1e3);
    EXPECT_EQ(seen.magnitude, static_cast<double>(kUnknownStarMagnitude));
  }
  galaxy.visMagnitude = 8.5f;
  EXPECT_EQ(See(SSO_ID(FourCC("gala"), 1), &galaxy, 2451545.0).magnitude, 8.5);
}

TEST(Constellations, CentreIsADirectionOfAnyLength) {
  ConstellationRecord constellation;
  constellation.center[1] = -3.0;
  const ObservedBody seen = See(SSO_ID(FourCC("cnst"), 1), &constellation, 2451545.0);
  EXPECT_NEAR(seen.astrometric[1], -1.0, 1e-15);
  EXPECT_NEAR(Vmod(seen.apparent, 3), 1.0, 1e-15);
  EXPECT_EQ(seen.distance, 0.0);
}

// Where the planets' series end, stars are still there: without parallax, bending and elongation.
TEST(Stars, AreSeenInEveryYear) {
  const StarRecord star = Barnard();
  const ObservedBody seen = See(kStar, &star, JulianDateOfYear(5000));
  EXPECT_NEAR(Vmod(seen.apparent, 3), 1.0, 1e-15);
  EXPECT_EQ(seen.elongation, 0.0);
  EXPECT_LT(VectorsAngle(seen.astrometric, seen.apparent) / kArcSecond, 20.85);
}

TEST(Constellations, ACentreThatIsNoDirectionIsNotSeen) {
  const astro_internal::Moment moment = astro_internal::MomentAt(2451545.0, 64.0, {});
  ObservedBody seen;
  seen.distance = 77.0;
  EXPECT_FALSE(astro_internal::ObserveConstellation(moment, ConstellationRecord(), seen));
  EXPECT_EQ(seen.distance, 77.0);
}
