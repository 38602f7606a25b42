// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/magnitudes.h"

#include <gtest/gtest.h>

#include "companions/astro/model/far_moons.h"
#include "helpers/sky_place.h"

using astro_internal::AsteroidMagnitude;
using astro_internal::CometMagnitude;
using astro_internal::Illumination;
using astro_internal::PlanetMagnitude;
using astro_test::kDegree;
using astro_test::Moon;
using astro_test::Planet;

namespace {

constexpr double kUnknown = static_cast<double>(kUnknownStarMagnitude);
constexpr double kAxis[3] = {0.0, 0.0, 1.0};

double Magnitude(int planet, double sunDistance, double distance, double phase, double date = 2451545.0) {
  return PlanetMagnitude(Planet(planet), {sunDistance, distance, phase * kDegree, date, kAxis, kAxis});
}

// A vector that meets a body whose pole is at the given place (degrees) at the given latitude (degrees).
void VectorOfLatitude(double poleRA, double poleDec, double latitude, double v[3]) {
  sfp(-1.0, poleRA * kDegree, (poleDec - 90.0 + latitude) * kDegree, v);
}

}  // namespace

// The sample cases that A. Mallama & J. L. Hilton published with their program (2018), to 0.001 magnitude.
TEST(Magnitudes, Mercury) {
  EXPECT_NEAR(Magnitude(1, 0.310295423552, 1.32182643625754, 1.1677), -2.477, 0.0006);
  EXPECT_NEAR(Magnitude(1, 0.413629222334, 0.92644808718613, 90.1662), 0.181, 0.0006);
  EXPECT_NEAR(Magnitude(1, 0.448947624811, 0.56004973217883, 178.7284), 7.167, 0.0006);
}

TEST(Magnitudes, VenusOnBothSidesOfTheBoundary) {
  EXPECT_NEAR(Magnitude(2, 0.722722540169, 1.71607489554051, 1.3232), -3.917, 0.0006);
  EXPECT_NEAR(Magnitude(2, 0.721480714554, 0.37762511206278, 124.1348), -4.916, 0.0006);
  EXPECT_NEAR(Magnitude(2, 0.726166592736, 0.28889582420642, 179.1845), -3.090, 0.0006);
}

TEST(Magnitudes, Earth) {
  EXPECT_NEAR(Magnitude(3, 0.983331936476, 1.41317594650699, 8.7897), -3.269, 0.0006);
  EXPECT_NEAR(Magnitude(3, 0.983356467727, 0.62933287342927, 175.6869), 1.122, 0.0006);
}

TEST(Magnitudes, JupiterOnBothSidesOfTheBoundary) {
  EXPECT_NEAR(Magnitude(5, 5.446231815414, 6.44985867459088, 0.2446), -1.667, 0.0006);
  EXPECT_NEAR(Magnitude(5, 4.957681473205, 3.95393078136013, 0.3431), -2.934, 0.0006);
  EXPECT_NEAR(Magnitude(5, 5.227587855371, 5.23501920009381, 147.0989), 0.790, 0.0006);
}

TEST(Magnitudes, UranusByTheLatitudeOfSunAndEarth) {
  double sun[3], earth[3];
  // Planetographic latitudes -20.29 and -20.28 are planetocentric -19.44 and -19.43.
  VectorOfLatitude(257.311, -15.175, -19.44, sun);
  VectorOfLatitude(257.311, -15.175, -19.43, earth);
  EXPECT_NEAR(PlanetMagnitude(Planet(7),
                              {18.321003215845, 17.3229728525108, 0.0410 * kDegree, 2440673.5, sun, earth}),
              5.381, 0.0006);
  VectorOfLatitude(257.311, -15.175, 0.97, sun);
  VectorOfLatitude(257.311, -15.175, 0.93, earth);
  EXPECT_NEAR(PlanetMagnitude(Planet(7),
                              {20.096361095266, 21.0888470145276, 0.0568 * kDegree, 2454533.5, sun, earth}),
              6.025, 0.0006);
}

TEST(Magnitudes, NeptuneBrightenedFrom1980To2000) {
  EXPECT_NEAR(Magnitude(8, 30.322109867761, 31.3091610098214, 0.0549, 2440913.5), 7.997, 0.0006);
  EXPECT_NEAR(Magnitude(8, 30.207767693725, 29.8172370857530, 1.7741, 2448008.5), 7.827, 0.0006);
}

// Meeus, Astronomical Algorithms (1998), example 41.d: Saturn on 1992 December 16.0, the rings opened by 16.4
// degrees: 0.7 by the older formula of the Astronomical Almanac.
TEST(Magnitudes, SaturnAsInTheExample) {
  CQXSolSys model;
  ObservedBody seen;
  model.SetMoment(2448972.5, 59.0);
  ASSERT_TRUE(model.Observe(Planet(6), nullptr, seen));
  EXPECT_NEAR(seen.magnitude, 0.7, 0.15);
}

// JPL Horizons, geocentric: Saturn on 2010 January 1, 0h UT. Its phase angle has the aberration in it.
TEST(Magnitudes, DistancesAndPhaseThatTheyRestOn) {
  CQXSolSys model;
  ObservedBody seen;
  model.SetMoment(2455197.5 + 66.1 / 86400.0, 66.1);
  ASSERT_TRUE(model.Observe(Planet(6), nullptr, seen));
  EXPECT_NEAR(seen.sunDistance, 9.475089008, 5e-5);
  EXPECT_NEAR(seen.distance, 9.322613639, 5e-5);
  EXPECT_NEAR(seen.phaseAngle / kDegree, 5.9270, 20.85 / 3600.0);
}

TEST(Magnitudes, SaturnWithItsRingsOpen) {
  const double date = 2463591.5;
  const double ra = 40.589 - 0.036 * 0.3298, dec = 83.537 - 0.004 * 0.3298;
  double sun[3], earth[3];
  VectorOfLatitude(ra, dec, -22.0, sun);
  VectorOfLatitude(ra, dec, -22.0, earth);
  const Illumination open = {9.0, 8.0, 0.1 * kDegree, date, sun, earth};
  // By hand: 5 log 72 - 8.914 - 1.825 sin 22 + 0.0026 - 0.378 sin 22 exp(-0.225) = -0.421; without opening
  // 0.376.
  EXPECT_NEAR(PlanetMagnitude(Planet(6), open), 9.28666 - 8.914 - 0.68365 + 0.0026 - 0.11307, 0.001);
  VectorOfLatitude(ra, dec, 0.5, sun);
  const Illumination dark = {9.0, 8.0, 0.1 * kDegree, date, sun, earth};
  EXPECT_NEAR(PlanetMagnitude(Planet(6), dark), 9.28666 - 8.914 + 0.0026, 0.001);
}

// Full Moon at the mean distance: -12.73 (Allen). At half moon 2.6 fainter.
TEST(Magnitudes, Moon) {
  const double distance = 384400.0 / 149597870.7;
  EXPECT_NEAR(PlanetMagnitude(Moon(), {1.0, distance, 0.0, 2451545.0, kAxis, kAxis}), -12.73, 1e-6);
  EXPECT_NEAR(PlanetMagnitude(Moon(), {1.0, distance, 90.0 * kDegree, 2451545.0, kAxis, kAxis}),
              -12.73 + 2.34 + 0.26244, 1e-6);
}

TEST(Magnitudes, Sun) {
  EXPECT_NEAR(Magnitude(10, 0.0, 1.0, 0.0), -26.74, 1e-12);
  EXPECT_NEAR(Magnitude(10, 0.0, 10.0, 0.0), -21.74, 1e-12);
}

// The formulas of Mallama & Hilton 2018 worked out by hand on both sides of 50 degrees, and well beyond.
TEST(Magnitudes, MarsOnBothSidesOfTheBoundary) {
  EXPECT_NEAR(Magnitude(4, 1.0, 1.0, 49.99), -0.7930965, 1e-6);
  EXPECT_NEAR(Magnitude(4, 1.0, 1.0, 50.01), -0.7921628, 1e-6);
  EXPECT_NEAR(Magnitude(4, 1.0, 1.0, 59.0), -0.6858655, 1e-6);
}

// Beyond the phases that the Earth can see, the globe alone, worked out by hand.
TEST(Magnitudes, SaturnAtLargePhasesIsItsGlobe) {
  EXPECT_NEAR(Magnitude(6, 1.0, 1.0, 7.0), -8.9257001, 1e-6);
}

TEST(Magnitudes, MarsAtItsOppositionOf2003) {
  // Observed -2.88 (Mallama 2007); the part that turns with the planet is left out here: 0.1.
  CQXSolSys model;
  ObservedBody seen;
  model.SetMoment(2452879.5, 64.5);
  ASSERT_TRUE(model.Observe(Planet(4), nullptr, seen));
  EXPECT_NEAR(seen.magnitude, -2.88, 0.1);
}

TEST(Magnitudes, PlutoByDistancesAlone) { EXPECT_NEAR(Magnitude(9, 30.0, 30.0, 1.0), -1.01 + 14.7712, 1e-4); }

// Bowell et al. 1989: at phase 0 the magnitude is H and the distances. With G = 0.15 at 20 degrees the
// formula gives 1.00 more, worked out by hand: phi1 = exp(-3.33 * 0.17633^0.63) = 0.3276, phi2 = exp(-1.87 *
// 0.17633^1.22) = 0.7984.
TEST(Magnitudes, AsteroidsByAbsoluteMagnitudeAndSlope) {
  OrbitalElements elements;
  elements.absMagnitude = 3.33f;
  elements.slope = 0.15f;
  const Illumination opposition = {2.0, 1.0, 0.0, 2451545.0, kAxis, kAxis};
  EXPECT_NEAR(AsteroidMagnitude(elements, opposition), 3.33 + 5.0 * std::log10(2.0), 1e-6);
  const Illumination aside = {2.0, 1.0, 20.0 * kDegree, 2451545.0, kAxis, kAxis};
  EXPECT_NEAR(AsteroidMagnitude(elements, aside), 3.33 + 1.50515 + 0.9996, 0.0002);
}

TEST(Magnitudes, CometsByDistanceAndActivity) {
  OrbitalElements elements;
  elements.absMagnitude = 5.5f;
  elements.slope = 10.0f;
  const Illumination near = {0.1, 10.0, 1.0, 2451545.0, kAxis, kAxis};
  EXPECT_NEAR(CometMagnitude(elements, near), 5.5 + 5.0 - 10.0, 1e-6);
}

TEST(Magnitudes, UnknownStaysUnknown) {
  OrbitalElements elements;
  const Illumination light = {1.0, 1.0, 0.5, 2451545.0, kAxis, kAxis};
  EXPECT_EQ(AsteroidMagnitude(elements, light), kUnknown);
  EXPECT_EQ(CometMagnitude(elements, light), kUnknown);
  // The formulae have no end: what is no number is unknown.
  elements.absMagnitude = 3.0f;
  const Illumination behind = {1.0, 1.0, 180.0 * kDegree, 2451545.0, kAxis, kAxis};
  EXPECT_EQ(AsteroidMagnitude(elements, behind), kUnknown);
  const Illumination touching = {1.0, 0.0, 0.5, 2451545.0, kAxis, kAxis};
  EXPECT_EQ(CometMagnitude(elements, touching), kUnknown);
  EXPECT_EQ(PlanetMagnitude(Planet(4), touching), kUnknown);
}

TEST(Magnitudes, OfOtherMoonsAndAtNoDistanceThereIsNone) {
  const Illumination light = {5.2, 4.2, 0.0, 2451545.0, kAxis, kAxis},
                     nowhere = {0.0, 0.0, 0.0, 2451545.0, kAxis, kAxis};
  const double unknown = static_cast<double>(kUnknownStarMagnitude);
  const SSO_ID io(FourCC("moon"), 501);
  EXPECT_NEAR(astro_internal::FarMoonMagnitude(io, light), -1.68 + 5.0 * std::log10(5.2 * 4.2), 1e-9);
  EXPECT_EQ(astro_internal::FarMoonMagnitude(io, nowhere), unknown);
  EXPECT_EQ(astro_internal::FarMoonMagnitude(SSO_ID(FourCC("moon"), 599), light), unknown);
}
