// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// That the picture, the reports and the questions agree on how far the air lifts.
#include <gtest/gtest.h>

#include <cmath>

#include "astro/rise_set.h"
#include "astro/solar_system.h"
#include "scene/frame_helpers.h"
#include "scene/search/aim.h"
#include "scene/search/pick.h"
#include "scene/view/air.h"
#include "scene/view/pixel_directions.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr double kSecond = 1.0 / 86400.0;

class RefractionInPicture : public ::testing::Test {
 protected:
  void SetMoment(const SkyMoment& moment) {
    CommonInterfaces::_Date time;
    time.day = moment.day;
    time.fraction = moment.fraction;
    f.camera.SetUniversalTime(time);
  }
  // Computes the picture with the body at the horizon in its middle.
  void ShowHorizon(const SkyMoment& moment, double azimuth) {
    SetMoment(moment);
    f.SetLook(azimuth / kRadiansPerDegree, 0.0);
    f.camera.SetZoom(200.0);
    f.observer = PrepareObserver(f.camera, true);
    f.frame.Compute(f.camera, f.observer, f.shown);
  }
  const GlobeRecord* FindGlobe(const SSO_ID& id) const {
    for (const auto& globe : f.frame.GetDisplayList().GetGlobes()) {
      if (globe.disc.object.kind == id.kind && globe.disc.object.number == id.number) return &globe;
    }
    return nullptr;
  }
  // The upper limb above the horizon's line, pixels: the line of sight meets the ball where the picture's way
  // upwards, on the axes of the body, is 1 long.
  double LimbAboveHorizon(const GlobeRecord& globe, double azimuth) const {
    const double up = std::hypot(globe.toBody[1], globe.toBody[4], globe.toBody[7]);
    const double limb = globe.disc.y - globe.disc.radius / up;
    const ViewGeometry geometry(f.camera, f.observer);
    const auto horizon = geometry.Project(MakeDirection(-azimuth, 0.0), SkyFrameOf::kHorizon);
    return (geometry.height - horizon.y) - limb;
  }

  FrameFixture f;
};

}  // namespace

// Within a second of time, which the body's own motion measures.
TEST_F(RefractionInPicture, UpperLimbStandsOnTheHorizonAtRiseAndSet) {
  CQXSolSys model;
  int checked = 0;
  for (const double latitude : {52.5, 0.0, -33.9, 60.2}) {
    for (const SSO_ID& id : {SSO_ID(FourCC("plnt"), 10), SSO_ID(FourCC("moon"), 301)}) {
      f.SetPlace(latitude, 13.4);
      const EarthPlace place = GetPlace(f.camera);
      const auto find = MakeBodyFinder(model, id, nullptr, place, astro::RisingPart::kUpperLimb);
      const auto events = FindRiseTransitSet(find, MakeMoment(2461212, 0.0), 1.5, 0.01);
      const std::optional<SkyMoment> turns[] = {events.rise, events.set};
      for (const auto& event : turns) {
        ASSERT_TRUE(event);
        const double azimuth = find(*event)->azimuth;
        // A tenth of a second, to which events are found, decides whether the limb is seen.
        ShowHorizon(Later(*event, (&event == &turns[0] ? 0.2 : -0.2) * kSecond), azimuth);
        const GlobeRecord* globe = FindGlobe(id);
        ASSERT_NE(globe, nullptr) << latitude;
        const double off = LimbAboveHorizon(*globe, azimuth);
        // Twenty seconds before a rise and after a set there is nothing to see.
        const double up = &event == &turns[0] ? 20.0 : -20.0;
        ShowHorizon(Later(*event, -up * kSecond), azimuth);
        EXPECT_EQ(FindGlobe(id), nullptr) << latitude;
        ShowHorizon(Later(*event, up * kSecond), azimuth);
        ASSERT_NE(FindGlobe(id), nullptr) << latitude;
        const double perSecond = (LimbAboveHorizon(*FindGlobe(id), azimuth) - off) / 20.0;
        EXPECT_GT(perSecond, 0.0);
        EXPECT_LT(std::fabs(off), perSecond) << latitude << " " << id.number;
        ++checked;
      }
    }
  }
  EXPECT_EQ(checked, 16);
}

TEST_F(RefractionInPicture, SettingSunIsFlattenedByAFifth) {
  CQXSolSys model;
  const SSO_ID sun(FourCC("plnt"), 10);
  const auto find = MakeBodyFinder(model, sun, nullptr, GetPlace(f.camera), astro::RisingPart::kUpperLimb);
  const auto events = FindRiseTransitSet(find, MakeMoment(2461212, 0.0), 1.5, 0.01);
  const SkyMoment before = Later(*events.set, -240.0 * kSecond);
  ShowHorizon(before, find(before)->azimuth);
  const GlobeRecord* globe = FindGlobe(sun);
  ASSERT_NE(globe, nullptr);
  const double across = std::hypot(globe->toBody[0], globe->toBody[3], globe->toBody[6]),
               up = std::hypot(globe->toBody[1], globe->toBody[4], globe->toBody[7]);
  EXPECT_NEAR(across, 1.0, 1e-3);
  EXPECT_GT(up, 1.15);
  EXPECT_LT(up, 1.3);
}

TEST_F(RefractionInPicture, AimedObjectIsInTheMiddleWhereAClickFindsIt) {
  f.SetTime(2026, 1, 15, 22, 0);
  f.camera.SetZoom(30.0);
  f.shown.horizon = false;
  f.shown.extinction = false;
  for (const int star : {0, 1, 2}) {
    const FoundObject found = {ObjectGroup::kStar, star};
    ASSERT_TRUE(AimAt(found, f.catalogs, f.camera, true));
    f.observer = PrepareObserver(f.camera, true);
    f.frame.Compute(f.camera, f.observer, f.shown);
    const auto hits = PickObjects(f.frame.GetDisplayList(), 800.0, 500.0, 1.0);
    ASSERT_FALSE(hits.empty()) << star;
    EXPECT_EQ(hits.front().object.number, f.catalogs.stars.GetNumber(star));
  }
}

// What is told of a place is what the picture shows of it.
TEST_F(RefractionInPicture, StandingIsThatOfThePicture) {
  f.SetLook(180.0, 1.0);
  f.observer = PrepareObserver(f.camera, true);
  const ViewGeometry geometry(f.camera, f.observer);
  const Standing middle = FindStanding(geometry.centreJ2000, f.observer);
  EXPECT_NEAR(middle.azimuth, 180.0, 1e-6);
  EXPECT_NEAR(middle.altitude, 1.0, 1e-6);
  EXPECT_NEAR(SeenSine(geometry.centreJ2000, f.observer), std::sin(kRadiansPerDegree), 1e-9);
}

// The horizontal grid counts apparent altitudes: its circle of 0 is the horizon's line.
TEST_F(RefractionInPicture, HorizontalGridCountsFromWhereThingsAreSeen) {
  f.SetLook(180.0, 2.0);
  f.camera.SetZoom(8.0);
  f.shown = {};
  f.shown.figures = f.shown.naturalSky = false;
  f.shown.lines.horizontalGrid = 1;
  f.observer = PrepareObserver(f.camera, true);
  f.frame.Compute(f.camera, f.observer, f.shown);
  const ViewGeometry geometry(f.camera, f.observer);
  const PixelDirections directions(geometry);
  const DisplayList& list = f.frame.GetDisplayList();
  int onParallels = 0, lines = 0;
  for (const auto& run : list.GetRuns()) {
    if (run.layer != Layer::kSkyLines) continue;
    for (int i = run.first; i < run.first + run.count; ++i) {
      const PolylineRecord& line = list.GetPolylines()[static_cast<std::size_t>(i)];
      const Vertex& middle =
          list.GetVertices()[static_cast<std::size_t>(line.firstVertex + line.vertexCount / 2)];
      const Direction seen = directions.Find({middle.x, static_cast<double>(geometry.height) - middle.y});
      const double altitude = std::asin(seen.v[2]) / kRadiansPerDegree;
      onParallels += std::fabs(altitude - std::round(altitude)) < 1e-4;
      ++lines;
    }
  }
  EXPECT_GE(onParallels, 4);
  EXPECT_GT(lines, onParallels);
}

TEST_F(RefractionInPicture, OtherPlanesHaveNoAir) {
  f.camera.SetBasePlane(3);
  EXPECT_FALSE(PrepareObserver(f.camera, true).refraction);
}
