// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/base_plane.h"

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr double kArcsecond = kRadiansPerDegree / 3600.0;

Direction Turn(unsigned char plane, double ra, double dec) {
  double m[9];
  PlaneMatrix(plane, m);
  Direction turned;
  MV3prod(m, MakeDirection(ra * kRadiansPerDegree, dec * kRadiansPerDegree).v, turned.v);
  return turned;
}

void ExpectNear(const Direction& turned, double lon, double lat, double tolerance) {
  const Direction expected = MakeDirection(lon * kRadiansPerDegree, lat * kRadiansPerDegree);
  EXPECT_LT(VectorsAngle(turned.v, expected.v), tolerance) << lon << ", " << lat;
}

}  // namespace

// Pole and node as the frame is defined (ESA 1997); the centre is 17h45m37.199s, -28 56' 10.22"
// (frame_against_erfa_test compares whole frames).
TEST(PlaneMatrix, GalacticPoleNodeAndCentreAreWhereTheyAreDefined) {
  ExpectNear(Turn(kGalacticPlane, 192.85948, 27.12825), 0.0, 90.0, 0.01 * kArcsecond);
  ExpectNear(Turn(kGalacticPlane, 266.404996, -28.936172), 0.0, 0.0, 0.1 * kArcsecond);
  // The ascending node of the plane on the equator.
  ExpectNear(Turn(kGalacticPlane, 282.85948, 0.0), 32.93192, 0.0, 0.01 * kArcsecond);
}

// The obliquity of J2000 is 84381.406 seconds of arc (IAU 2006).
TEST(PlaneMatrix, EclipticTurnsAboutTheEquinoxByTheObliquity) {
  constexpr double kObliquity = 84381.406 / 3600.0;
  ExpectNear(Turn(kEclipticPlane, 0.0, 0.0), 0.0, 0.0, 1e-12);
  ExpectNear(Turn(kEclipticPlane, 90.0, kObliquity), 90.0, 0.0, 0.001 * kArcsecond);
  ExpectNear(Turn(kEclipticPlane, 270.0, 90.0 - kObliquity), 0.0, 90.0, 0.001 * kArcsecond);
}

TEST(PlaneMatrix, EquatorIsThatOfTheCatalogue) {
  ExpectNear(Turn(kEquatorPlane, 123.0, -45.0), 123.0, -45.0, 1e-12);
}

TEST(PlaneFrame, ViewAlongThePlaneLooksAtItsPlaceOnTheSky) {
  FrameFixture f;
  f.camera.SetMovingType(11, false);
  SphViewCoor angles;  // longitude and latitude 0
  for (const auto& [plane, ra, dec] :
       {std::tuple(kEquatorPlane, 0.0, 0.0), std::tuple(kEclipticPlane, 0.0, 0.0),
        std::tuple(kGalacticPlane, 266.404996, -28.936172)}) {
    f.camera.SetBasePlane(plane);
    f.camera.SetRA_Dec(angles);
    f.Compute();
    double centre[2];
    f.camera.GetRA_Dec2K(centre[0], centre[1]);
    EXPECT_LT(VectorsAngle(MakeDirection(centre[0], centre[1]).v,
                           MakeDirection(ra * kRadiansPerDegree, dec * kRadiansPerDegree).v),
              0.1 * kArcsecond)
        << "plane " << static_cast<int>(plane);
    EXPECT_FALSE(f.observer.horizon);
    EXPECT_TRUE(f.frame.GetParts().horizon.GetGround().ringEnds.empty());
    EXPECT_TRUE(f.frame.GetParts().horizon.GetCompass().empty());
  }
}

// The south pole of the sky never rises at 52.5 degrees north.
TEST(PlaneFrame, WithoutAHorizonTheWholeSkyIsDrawn) {
  FrameFixture f;
  f.camera.SetMovingType(11, false);
  f.camera.SetBasePlane(kEquatorPlane);
  SphViewCoor angles;
  angles.lon = 219.9 * kRadiansPerDegree;
  angles.lat = -60.8 * kRadiansPerDegree;
  f.camera.SetRA_Dec(angles);
  f.Compute();
  EXPECT_NE(f.Find(5459), nullptr) << "Rigil Kentaurus";
}

// North is up along the equator, and the ascending right ascension to the left.
TEST(PlaneFrame, EquatorFrameHasNorthUpAndEastLeft) {
  FrameFixture f;
  f.camera.SetMovingType(11, false);
  f.camera.SetBasePlane(kEquatorPlane);
  SphViewCoor angles;
  angles.lon = 84.0 * kRadiansPerDegree;
  f.camera.SetRA_Dec(angles);
  f.Compute();
  const auto *betelgeuse = f.Find(2061), *rigel = f.Find(1713);
  ASSERT_TRUE(betelgeuse && rigel);
  EXPECT_GT(betelgeuse->output->m_Place.y, rigel->output->m_Place.y);
  EXPECT_LT(betelgeuse->output->m_Place.x, rigel->output->m_Place.x);
}

TEST(ObserverFault, OnlyTheEarthHasAHorizon) {
  FrameFixture f;
  EXPECT_EQ(FindObserverFault(f.camera), nullptr);
  f.camera.SetObserver(SSO_ID(FourCC("moon"), 301));
  ASSERT_NE(FindObserverFault(f.camera), nullptr);
  f.camera.SetBasePlane(kEclipticPlane);
  EXPECT_EQ(FindObserverFault(f.camera), nullptr);
}

TEST(ObserverFault, PlacesFarFromTheSunAreRefused) {
  FrameFixture f;
  f.camera.SetBasePlane(kEclipticPlane);
  f.camera.SetObserver(SSO_ID(FourCC("plnt"), 10));
  SphCoor place = f.camera.GetLocation();
  for (const auto& [distance, good] : {std::pair(1.0, true), std::pair(100.0, true), std::pair(101.0, false),
                                       std::pair(std::nan(""), false)}) {
    place.dist = distance;
    f.camera.SetLocation(place);
    EXPECT_EQ(FindObserverFault(f.camera) == nullptr, good) << distance;
  }
  f.camera.SetObserver(SSO_ID(FourCC("plnt"), 4));
  place.dist = 0.0;
  f.camera.SetLocation(place);
  EXPECT_NE(FindObserverFault(f.camera), nullptr) << "Mars";
}

// 8500 parsecs from the centre of the Galaxy, opposite to where the Sun sees it, is where the Sun is.
TEST(ObserverFault, GalaxyIsSeenFromThePlaceOfTheSunAlone) {
  FrameFixture f;
  f.camera.SetBasePlane(kGalacticPlane);
  f.camera.SetObserver(SSO_ID(FourCC("gala"), 0x3D000000));
  SphCoor place;
  place.dist = 8500.0 * 206264.8062470964;
  place.lon = kPi;
  place.coorSys = 3;
  f.camera.SetLocation(place);
  EXPECT_EQ(FindObserverFault(f.camera), nullptr);
  place.lon = 0.0;
  f.camera.SetLocation(place);
  EXPECT_NE(FindObserverFault(f.camera), nullptr);
  place.lon = kPi;
  place.coorSys = 2;
  f.camera.SetLocation(place);
  EXPECT_NE(FindObserverFault(f.camera), nullptr) << "another coordinate system";
}

// The Earth moves with 20.5 seconds of arc against the light of stars, an observer at rest does not.
TEST(ObserverMotion, AberrationIsThatOfTheEarthOnly) {
  FrameFixture f;
  f.camera.SetBasePlane(kEclipticPlane);
  const ObserverFrame withEarth = PrepareObserver(f.camera);
  EXPECT_NEAR(Vmod(withEarth.velocity, 3), 20.5 * kArcsecond, 0.5 * kArcsecond);
  f.camera.SetObserver(SSO_ID(FourCC("plnt"), 10));
  const ObserverFrame atSun = PrepareObserver(f.camera);
  EXPECT_EQ(Vmod(atSun.velocity, 3), 0.0);
}
