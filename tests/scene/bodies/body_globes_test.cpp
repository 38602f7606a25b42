// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_globes.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/physical_ephemeris.h"
#include "astro/vectors.h"
#include "scene/frame_helpers.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

class BodyGlobesTest : public testing::Test {
 protected:
  // Turns to a body and draws it alone and large; 2026 January 15 at 21:00, from Berlin.
  const GlobeRecord* LookAt(const SSO_ID& id) {
    f.shown.horizon = false;
    f.camera.SetZoom(300.0);
    f.Compute();
    const int body = FindBody(f.catalogs.bodies, id);
    const ObservedBody& seen = f.frame.GetBodies().GetStates()[static_cast<std::size_t>(body)].seen;
    double v[3], longitude = 0.0, latitude = 0.0;
    MV3prod(f.observer.reduction, seen.apparent, v);
    psf(v, 1.0, longitude, latitude);
    f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
    f.Compute();
    surface = astro::FindPhysicalEphemeris(id, seen, f.frame.GetBodies().GetMoment().julianDateTT);
    for (const GlobeRecord& globe : f.frame.GetDisplayList().GetGlobes()) {
      if (globe.disc.object == ObjectRef{id.kind, id.number}) return &globe;
    }
    return nullptr;
  }

  FrameFixture f;
  std::optional<astro::PhysicalEphemeris> surface;
};

SSO_ID Planet(int number) { return SSO_ID(FourCC("plnt"), number); }

}  // namespace

// The middle of the disc is the point of the surface that has the observer in its zenith, but for the
// aberration, which turns the apparent way to the body by up to 20.7 arc seconds.
TEST_F(BodyGlobesTest, MiddleOfTheDiscIsBelowTheObserver) {
  for (const SSO_ID& id : {Planet(5), Planet(6), Planet(10), SSO_ID(FourCC("moon"), 301)}) {
    const GlobeRecord* const globe = LookAt(id);
    ASSERT_TRUE(globe && surface) << id.number;
    const float* m = globe->toBody;  // its third column is the way to the viewer
    const double longitude = std::atan2(m[5], m[2]), latitude = std::asin(m[8]);
    EXPECT_NEAR(std::remainder(longitude - surface->observer.eastLongitude, 2.0 * kPi), 0.0, 1.02e-4)
        << id.number;
    EXPECT_NEAR(latitude, surface->observer.latitude, 1.02e-4) << id.number;
  }
}

// The north pole points in the picture where its position angle says: the picture's own north is found by a
// step of the camera towards the pole of the sky.
TEST_F(BodyGlobesTest, AxisPointsWhereItsPositionAngleSays) {
  const GlobeRecord* const globe = LookAt(Planet(5));
  ASSERT_TRUE(globe && surface);
  const ViewGeometry geometry(f.camera);
  const double* apparent = f.frame.GetBodies()
                               .GetStates()[static_cast<std::size_t>(FindBody(f.catalogs.bodies, Planet(5)))]
                               .seen.apparent;
  double toDate[9], ofDate[3], ra = 0.0, dec = 0.0;
  PrecessionNutationMatrix(f.frame.GetBodies().GetMoment().julianDateTT, toDate);
  MV3prod(toDate, apparent, ofDate);
  psf(ofDate, 1.0, ra, dec);
  double north[3];
  Direction step;
  sfp(1.0, ra, dec + 1e-5, north);
  V3Mprod(north, toDate, step.v);
  const auto here = geometry.Project(MakeDirection(apparent), SkyFrameOf::kJ2000),
             up = geometry.Project(step, SkyFrameOf::kJ2000);
  const double skyNorth = std::atan2(up.y - here.y, up.x - here.x);
  // Position angles count over east, which is to the left of north as seen from inside the sky.
  const double expected = skyNorth + surface->poleAngle;
  const double drawn =
      std::atan2(-static_cast<double>(globe->toBody[7]), static_cast<double>(globe->toBody[6]));
  EXPECT_NEAR(std::remainder(drawn - expected, 2.0 * kPi), 0.0, 1e-3);
}

TEST_F(BodyGlobesTest, GiantsAreFlat) {
  const GlobeRecord* const globe = LookAt(Planet(5));
  ASSERT_TRUE(globe);
  EXPECT_NEAR(globe->flattening, 1.0 - 66854.0 / 71492.0, 1e-5);  // Archinal et al. 2018, table 4
}

TEST_F(BodyGlobesTest, WithoutMapsTheDiscSaysTheColour) {
  const GlobeRecord* const globe = LookAt(Planet(5));
  ASSERT_TRUE(globe);
  EXPECT_EQ(globe->map, -1) << "the small data root has none";
  EXPECT_TRUE(f.frame.GetDisplayList().GetMaps().empty());
  EXPECT_EQ(globe->disc.lit.alpha, 255);
}

// The profile in kilometres becomes Saturn's equatorial radii of 60268 km (Archinal et al. 2018).
TEST_F(BodyGlobesTest, RingCountsInRadiiOfItsPlanet) {
  f.sky.dir.Write(
      "data/catalogs/saturn_ring.txt",
      "Radius:f64\tRed:u8\tGreen:u8\tBlue:u8\tOpacity:u8\n90402\t10\t20\t30\t40\n120536\t50\t60\t70\t80\n");
  const BodyGlobes globes(f.catalogs.bodies);
  EXPECT_EQ(globes.GetRing(), (std::vector<Rgba>{{10, 20, 30, 40}, {50, 60, 70, 80}}));
  EXPECT_NEAR(globes.GetRingInner(), 1.5, 1e-6);
  EXPECT_NEAR(globes.GetRingOuter(), 2.0, 1e-6);
}

// Inside the planet, from outside inwards, without breadth, and farther out than the display list can say.
TEST_F(BodyGlobesTest, RingThatNoPlanetCanHaveIsToldAndLeftOut) {
  const std::pair<const char*, const char*> kRadii[] = {
      {"30000", "120536"}, {"120536", "90402"}, {"90402", "90402"}, {"90402", "1e300"}};
  for (const auto& [inner, outer] : kRadii) {
    f.diagnostics.lines.clear();
    f.sky.dir.Write("data/catalogs/saturn_ring.txt",
                    std::string("Radius:f64\tRed:u8\tGreen:u8\tBlue:u8\tOpacity:u8\n") + inner +
                        "\t10\t20\t30\t40\n" + outer + "\t50\t60\t70\t80\n");
    EXPECT_TRUE(BodyGlobes(f.catalogs.bodies).GetRing().empty()) << inner << " " << outer;
    ASSERT_EQ(f.diagnostics.lines.size(), 1u) << inner << " " << outer;
    EXPECT_NE(f.diagnostics.lines[0].find("saturn_ring.txt: holds no ring"), std::string::npos);
  }
}

TEST_F(BodyGlobesTest, DamagedRingIsToldAndLeftOut) {
  f.sky.dir.Write("data/catalogs/saturn_ring.txt", "no header\n");
  EXPECT_TRUE(BodyGlobes(f.catalogs.bodies).GetRing().empty());
  ASSERT_EQ(f.diagnostics.lines.size(), 1u);
  EXPECT_NE(f.diagnostics.lines[0].find("saturn_ring.txt"), std::string::npos);
}

TEST_F(BodyGlobesTest, OnlySaturnHasTheRing) {
  f.sky.dir.Write(
      "data/catalogs/saturn_ring.txt",
      "Radius:f64\tRed:u8\tGreen:u8\tBlue:u8\tOpacity:u8\n90402\t10\t20\t30\t40\n120536\t50\t60\t70\t80\n");
  const BodyGlobes globes(f.catalogs.bodies);
  f.Compute();
  const ViewGeometry geometry(f.camera);
  for (const int planet : {5, 6, 7}) {
    const int body = FindBody(f.catalogs.bodies, Planet(planet));
    const auto globe = globes.Find(body, f.frame.GetBodies().GetStates()[static_cast<std::size_t>(body)],
                                   geometry, f.frame.GetBodies().GetMoment().julianDateTT);
    ASSERT_TRUE(globe);
    EXPECT_EQ(globe->ringed, planet == 6);
  }
}

// Io is never farther than 6 radii of Jupiter from it, some 2.3 minutes of arc.
TEST(MoonsOfPlanets, FallTogetherWithTheDotOfTheirPlanetUntilTheViewIsLarge) {
  FrameFixture f;
  f.shown.horizon = false;
  f.camera.SetZoom(0.25);
  const int io = FindBody(f.catalogs.bodies, SSO_ID(FourCC("moon"), 501));
  for (const double azimuth : {0.0, 120.0, 240.0}) {
    f.SetLook(azimuth, 0.0);
    f.Compute();
    EXPECT_FALSE(f.frame.IsBodyDrawn(io)) << azimuth;
  }
  const auto& jupiter =
      f.frame.GetBodies().GetStates()[static_cast<std::size_t>(FindBody(f.catalogs.bodies, Planet(5)))];
  double v[3], longitude = 0.0, latitude = 0.0;
  MV3prod(f.observer.reduction, jupiter.seen.apparent, v);
  psf(v, 1.0, longitude, latitude);
  f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
  f.camera.SetZoom(1000.0);
  f.Compute();
  EXPECT_TRUE(f.frame.IsBodyDrawn(io));
}
