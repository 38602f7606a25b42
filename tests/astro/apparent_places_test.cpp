// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Places of the Sun, the planets and the Moon as an observer sees them, against published ones.
#include <gtest/gtest.h>

#include "helpers/sky_place.h"
#include "helpers/tsv.h"

using astro_test::ApparentPlace;
using astro_test::ArcSecondsBetween;
using astro_test::FromDms;
using astro_test::FromHms;
using astro_test::kDegree;
using astro_test::Largest;
using astro_test::Moon;
using astro_test::PlaceOf;
using astro_test::Planet;
using astro_test::SkyPlace;

namespace {

ObservedBody SeenFromTheCentre(const SSO_ID& body, double dateTT) {
  CQXSolSys model;
  model.SetMoment(dateTT, 60.0);
  ObservedBody seen;
  EXPECT_TRUE(model.Observe(body, nullptr, seen));
  return seen;
}

}  // namespace

// Meeus, Astronomical Algorithms (1998), example 25.b: the Sun on 1992 October 13.0 TD, the values of the
// whole VSOP87.
TEST(ApparentPlaces, SunAsInTheExample) {
  const ObservedBody sun = SeenFromTheCentre(Planet(10), 2448908.5);
  const SkyPlace published = {FromHms(13, 13, 30.749), -FromDms(7, 47, 1.74)};
  EXPECT_LT(ArcSecondsBetween(ApparentPlace(sun, 2448908.5), published), 0.5);
  EXPECT_NEAR(sun.distance, 0.99760853, 2e-6);
  EXPECT_EQ(sun.sunDistance, 0.0);
  EXPECT_EQ(sun.phaseAngle, 0.0);
  EXPECT_EQ(sun.elongation, 0.0);
}

// Meeus, example 33.a: Venus on 1992 December 20.0 TD, the values of the whole VSOP87; the light took
// 0.0052612 day.
TEST(ApparentPlaces, VenusAsInTheExample) {
  const ObservedBody venus = SeenFromTheCentre(Planet(2), 2448976.5);
  const SkyPlace published = {FromHms(21, 4, 41.454), -FromDms(18, 53, 16.84)};
  EXPECT_LT(ArcSecondsBetween(ApparentPlace(venus, 2448976.5), published), 0.3);
  EXPECT_NEAR(venus.lightTime, 0.0052612, 1e-7);
  EXPECT_NEAR(venus.distance, 0.91095, 2e-5);
}

// Example 41.a: the phase angle of the same moment; 41.c the illuminated part 0.647.
TEST(ApparentPlaces, PhaseOfVenusAsInTheExample) {
  const ObservedBody venus = SeenFromTheCentre(Planet(2), 2448976.5);
  EXPECT_NEAR((1.0 + std::cos(venus.phaseAngle)) / 2.0, 0.647, 0.0005);
  EXPECT_NEAR(venus.phaseAngle / kDegree, 72.96, 0.01);
}

// Meeus, example 47.a: the Moon on 1992 April 12, 0h TD; his table is good to 10 arc seconds.
TEST(ApparentPlaces, MoonAsInTheExample) {
  const ObservedBody moon = SeenFromTheCentre(Moon(), 2448724.5);
  EXPECT_LT(ArcSecondsBetween(ApparentPlace(moon, 2448724.5), {134.688470 * kDegree, 13.768368 * kDegree}),
            5.0);
  // The light left 1.2 seconds earlier; the Earth has moved by 37 km since.
  EXPECT_NEAR(moon.distance * 149597870.7, 368405.6, 40.0);
}

// Example 48.a: the same moment, illuminated part 0.6786, phase angle 69.0756 degrees.
TEST(ApparentPlaces, PhaseOfTheMoonAsInTheExample) {
  const ObservedBody moon = SeenFromTheCentre(Moon(), 2448724.5);
  EXPECT_NEAR((1.0 + std::cos(moon.phaseAngle)) / 2.0, 0.6786, 0.0003);
  EXPECT_NEAR(moon.phaseAngle / kDegree, 69.0756, 0.03);
}

// Meeus, example 40.a: Mars on 2003 August 28, 3h 17m UT, from the Earth's centre and from Palomar.
TEST(ApparentPlaces, ParallaxOfMarsAsInTheExample) {
  const double deltaT = 64.0;
  const double dateTT = 2452879.5 + (3.0 + 17.0 / 60.0) / 24.0 + deltaT / 86400.0;
  CQXSolSys model;
  model.SetMoment(dateTT, deltaT);
  ObservedBody mars;
  ASSERT_TRUE(model.Observe(Planet(4), nullptr, mars));
  EXPECT_LT(ArcSecondsBetween(ApparentPlace(mars, dateTT), {339.530208 * kDegree, -15.771083 * kDegree}),
            0.7);
  EXPECT_NEAR(mars.distance, 0.37276, 1e-5);
  model.SetObserverOnEarth(-FromHms(7, 47, 27), FromDms(33, 21, 22), 1706.0);
  ASSERT_TRUE(model.Observe(Planet(4), nullptr, mars));
  const SkyPlace published = {FromHms(22, 38, 8.54), -FromDms(15, 46, 30.0)};
  EXPECT_LT(ArcSecondsBetween(ApparentPlace(mars, dateTT), published), 1.0);
}

// JPL Horizons (DE431), from 81 degrees west, 29 degrees north, 10 m: astrometric places on ICRS axes.
// Universal Time.
TEST(ApparentPlaces, TopocentricPlacesOfHorizons) {
  Largest moon("the Moon from a place on the Earth against Horizons", "arc second");
  Largest mars("Mars from a place on the Earth against Horizons", "arc second");
  for (const std::vector<double>& row : astro_test::ReadTable(ASTRO_TEST_DATA "horizons_topocentric.tsv")) {
    CQXSolSys model;
    const bool isMoon = row[0] > 300;
    model.SetObserverOnEarth(279.0 * kDegree, 29.0 * kDegree, 10.0);
    const double deltaT = ET_UT::Get(static_cast<int>(row[1]), row[1] - static_cast<int>(row[1]));
    model.SetMoment(row[1] + deltaT / 86400.0, deltaT);
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(isMoon ? Moon() : Planet(4), nullptr, seen));
    const double off = ArcSecondsBetween(PlaceOf(seen.astrometric), {row[2] * kDegree, row[3] * kDegree});
    (isMoon ? moon : mars).Note(off, row[1]);
  }
  moon.Expect(2.0);
  mars.Expect(2.0);
}

// The parallax of the Moon on the horizon is about a degree: an observer sees it lower than the Earth's
// centre does.
TEST(ApparentPlaces, TheMoonStandsLowerForWhoStandsOnTheSurface) {
  CQXSolSys model;
  model.SetMoment(2458454.5, 69.2);
  ObservedBody centre, surface;
  ASSERT_TRUE(model.Observe(Moon(), nullptr, centre));
  model.SetObserverOnEarth(0.0, 0.0, 0.0);
  ASSERT_TRUE(model.Observe(Moon(), nullptr, surface));
  const double shift = VectorsAngle(centre.astrometric, surface.astrometric) / kDegree;
  EXPECT_GT(shift, 0.0);
  EXPECT_LT(shift, 1.1);
  model.SetObserverAtEarthCentre();
  ObservedBody again;
  ASSERT_TRUE(model.Observe(Moon(), nullptr, again));
  EXPECT_EQ(VectorsAngle(centre.astrometric, again.astrometric), 0.0);
}

// The largest aberration is 20.84 arc seconds, at the Earth's perihelion; light from Jupiter takes 35 to 54
// minutes.
TEST(ApparentPlaces, AberrationAndLightTimeHaveTheirSize) {
  for (double date = 2451545.0; date < 2452000.0; date += 31.0) {
    const ObservedBody jupiter = SeenFromTheCentre(Planet(5), date);
    EXPECT_LT(VectorsAngle(jupiter.astrometric, jupiter.apparent) / astro_test::kArcSecond, 20.85) << date;
    EXPECT_NEAR(jupiter.lightTime * 1440.0, jupiter.distance * 8.316746, 1e-4) << date;
    EXPECT_GT(jupiter.distance, 3.9);
    EXPECT_LT(jupiter.distance, 6.5);
  }
}

// Light is bent away from the Sun by 1.75 arc seconds at its limb (Einstein 1916), less in proportion to the
// distance from its centre.
TEST(ApparentPlaces, LightIsBentAtTheSun) {
  CQXSolSys model;
  model.SetMoment(2451545.0, 63.83);
  ObservedBody sun;
  ASSERT_TRUE(model.Observe(Planet(10), nullptr, sun));
  const SkyPlace place = PlaceOf(sun.astrometric);
  for (const double radii : {1.2, 2.0, 4.0, 10.0}) {
    StarRecord star;
    star.ra = place.ra;
    star.dec = place.dec + radii * sun.angularRadius;
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &star, seen));
    double unbent[3], velocity[3];
    EarthVelocity(2451545.0, velocity);
    Aberration(seen.astrometric, velocity, unbent);
    EXPECT_NEAR(VectorsAngle(unbent, seen.apparent) / astro_test::kArcSecond, 1.7512 / radii, 0.003) << radii;
    EXPECT_GT(VectorsAngle(seen.apparent, sun.apparent), VectorsAngle(unbent, sun.apparent));
  }
}

// Where no light comes through there is no deflection to be right about; none grows beyond 2 arc seconds.
TEST(ApparentPlaces, BehindTheSunTheBendingStaysSmall) {
  CQXSolSys model;
  model.SetMoment(2451545.0, 63.83);
  ObservedBody sun;
  ASSERT_TRUE(model.Observe(Planet(10), nullptr, sun));
  const SkyPlace place = PlaceOf(sun.astrometric);
  double velocity[3];
  EarthVelocity(2451545.0, velocity);
  for (const double radii : {0.0, 0.001, 0.01, 0.1, 0.5, 0.9}) {
    StarRecord star;
    star.ra = place.ra;
    star.dec = place.dec + radii * sun.angularRadius;
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(SSO_ID(FourCC("star"), 1), &star, seen));
    double unbent[3];
    Aberration(seen.astrometric, velocity, unbent);
    EXPECT_LT(VectorsAngle(unbent, seen.apparent) / astro_test::kArcSecond, 1.98) << radii;
  }
}
