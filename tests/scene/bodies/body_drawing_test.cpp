// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// What bodies look like: their records in the display list.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "astro/rise_set.h"
#include "astro/vectors.h"
#include "scene/catalogs/satellites.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

const SSO_ID kMoon(FourCC("moon"), 301), kSun(FourCC("plnt"), 10), kJupiter(FourCC("plnt"), 5),
    kComet(FourCC("comt"), 1), kCeres(FourCC("astr"), 1), kStation(FourCC("scft"), 25544);

class BodyDrawing : public testing::Test {
 protected:
  // Turns to a body, wherever it stands, and computes the frame.
  void LookAt(const SSO_ID& id) {
    f.shown.horizon = false;
    f.Compute();
    const auto body = static_cast<std::size_t>(FindBody(f.catalogs.bodies, id));
    const astro::HorizonPlace place = astro::MakeHorizonPlace(
        f.observer.reduction, f.frame.GetBodies().GetStates()[body].seen.apparent, 0.0);
    f.SetLook(place.azimuth / kRadiansPerDegree, place.altitude / kRadiansPerDegree);
    f.Compute();
  }
  const DisplayList& GetList() const { return f.frame.GetDisplayList(); }

  // The records of the body.
  template <class Record>
  static std::vector<Record> Of(const SSO_ID& id, const std::vector<Record>& records) {
    std::vector<Record> found;
    for (const Record& record : records) {
      if (record.object == ObjectRef{id.kind, id.number}) found.push_back(record);
    }
    return found;
  }
  const DiscRecord& DiscOf(const SSO_ID& id) const {
    static const DiscRecord none = {};
    for (const GlobeRecord& globe : GetList().GetGlobes()) {
      if (globe.disc.object == ObjectRef{id.kind, id.number}) return globe.disc;
    }
    ADD_FAILURE() << "no globe";
    return none;
  }

  host_test::FrameFixture f;
};

double Light(const Rgba& colour) { return colour.red + colour.green + colour.blue; }

// The part of the Moon's diameter that lies inside a circle about the middle of the shadow.
double GetMagnitude(const DiscRecord& moon, const ShadowRecord& shadow) {
  const double apart = std::hypot(shadow.x - moon.x, shadow.y - moon.y);
  return (shadow.outerRadius + moon.radius - apart) / (2.0 * static_cast<double>(moon.radius));
}

}  // namespace

// 2025 March 14, greatest eclipse at 6:58.7 UT, with the Moon near the zenith, where no air squeezes it. In
// Espenak's canon its magnitudes are 2.2595 in the penumbra and 1.1784 in the umbra.
TEST_F(BodyDrawing, ShadowsOfTheEarthCoverAsMuchOfTheMoonAsTheCanonSays) {
  f.SetPlace(3.0, -103.0);
  f.SetTime(2025, 3, 14, 6, 59);
  f.camera.SetZoom(60.0);
  LookAt(kMoon);
  const auto shadows = Of(kMoon, GetList().GetShadows());
  ASSERT_EQ(shadows.size(), 2u) << "penumbra, umbra";
  const DiscRecord& moon = DiscOf(kMoon);
  EXPECT_NEAR(GetMagnitude(moon, shadows[0]), 2.2595, 0.01);
  EXPECT_NEAR(GetMagnitude(moon, shadows[1]), 1.1784, 0.01);
  EXPECT_EQ(shadows[0].innerRadius, shadows[1].outerRadius) << "the penumbra ends where the umbra begins";
}

TEST_F(BodyDrawing, UmbraIsRedAndDarkerThanThePenumbra) {
  f.SetPlace(3.0, -103.0);
  f.SetTime(2025, 3, 14, 6, 59);
  f.camera.SetZoom(60.0);
  LookAt(kMoon);
  const auto shadows = Of(kMoon, GetList().GetShadows());
  ASSERT_EQ(shadows.size(), 2u);
  EXPECT_EQ(shadows[0].outer.alpha, 0) << "nothing is taken at the edge of the penumbra";
  EXPECT_GT(shadows[0].inner.alpha, shadows[0].middleColour.alpha);
  for (const Rgba& colour : {shadows[1].inner, shadows[1].middleColour, shadows[1].outer}) {
    EXPECT_GT(colour.red, colour.green);
    EXPECT_GT(colour.red, colour.blue);
    EXPECT_GT(colour.alpha, shadows[0].inner.alpha);
  }
  EXPECT_LT(Light(shadows[1].inner), Light(shadows[1].outer)) << "darkest in the middle";
}

// 2024 March 25, 7:13 UT: penumbral, of magnitude 0.9577 (the same canon): no umbra falls on the Moon.
TEST_F(BodyDrawing, PenumbralEclipseIsShade) {
  f.SetPlace(-2.0, -107.0);
  f.SetTime(2024, 3, 25, 7, 13);
  f.camera.SetZoom(60.0);
  LookAt(kMoon);
  const auto shadows = Of(kMoon, GetList().GetShadows());
  ASSERT_FALSE(shadows.empty());
  EXPECT_NEAR(GetMagnitude(DiscOf(kMoon), shadows[0]), 0.9577, 0.01);
  for (std::size_t i = 1; i < shadows.size(); ++i) EXPECT_LT(GetMagnitude(DiscOf(kMoon), shadows[i]), 0.0);
}

// Halley's comet in March 1986. The tail ends farther along the great circle that leads from the Sun through
// the comet.
TEST_F(BodyDrawing, TailLeadsFromTheCometAwayFromTheSun) {
  f.SetPlace(-30.0, 20.0);
  f.SetTime(1986, 3, 20, 3, 0);
  f.shown.naturalSky = false;
  LookAt(kComet);
  const auto tails = Of(kComet, GetList().GetGradients());
  const auto points = Of(kComet, GetList().GetPoints());
  ASSERT_EQ(tails.size(), 1u);
  ASSERT_EQ(points.size(), 1u);
  const GradientRecord& tail = tails[0];
  EXPECT_EQ(tail.x0, points[0].x);
  EXPECT_EQ(tail.y0, points[0].y);

  const auto& bodies = f.frame.GetBodies();
  const double* sun = bodies.GetSun().seen.apparent;
  const double* comet =
      bodies.GetStates()[static_cast<std::size_t>(FindBody(f.catalogs.bodies, kComet))].seen.apparent;
  const double apart = VectorsAngle(sun, comet), on = 0.01;
  Direction beyond;
  for (int i = 0; i < 3; ++i)
    beyond.v[i] = (std::sin(apart + on) * comet[i] - std::sin(on) * sun[i]) / std::sin(apart);
  const auto away = ViewGeometry(f.camera).Project(beyond, SkyFrameOf::kJ2000);
  const double expected = std::atan2(GetList().GetHeight() - away.y - static_cast<double>(tail.y0),
                                     away.x - static_cast<double>(tail.x0)),
               drawn = std::atan2(tail.y1 - tail.y0, tail.x1 - tail.x0);
  EXPECT_NEAR(std::remainder(drawn - expected, 2.0 * kPi), 0.0, 0.02);
}

TEST_F(BodyDrawing, TailWidensAndFades) {
  f.SetPlace(-30.0, 20.0);
  f.SetTime(1986, 3, 20, 3, 0);
  f.shown.naturalSky = false;
  LookAt(kComet);
  const auto tails = Of(kComet, GetList().GetGradients());
  ASSERT_EQ(tails.size(), 1u);
  const GradientRecord& tail = tails[0];
  const auto between = [&tail](int a, int b) {
    return std::hypot(tail.cornerX[a] - tail.cornerX[b], tail.cornerY[a] - tail.cornerY[b]);
  };
  const double length = std::hypot(tail.x1 - tail.x0, tail.y1 - tail.y0);
  EXPECT_NEAR(between(0, 3), 2.0 * static_cast<double>(Of(kComet, GetList().GetPoints())[0].radius), 0.01)
      << "as wide as the head";
  EXPECT_GT(between(1, 2), 3.0f * between(0, 3));
  EXPECT_LT(between(1, 2), length);
  EXPECT_GT(tail.colour.alpha, 100);
  EXPECT_EQ(tail.endColour.alpha, 0);
  // Both sides are as long: the corners lie evenly about the way from the Sun.
  EXPECT_NEAR(between(0, 1), between(3, 2), 0.01);
}

TEST_F(BodyDrawing, SatelliteIsADiamondOnItsCorner) {
  std::string error;
  ASSERT_TRUE(LoadSatellites(f.sky.dir.Write("s.tle", host_test::StationSet()), f.catalogs.bodies, error));
  SkyFrame frame(f.catalogs);
  f.SetTime(2014, 1, 21, 5, 7);
  f.camera.SetZoom(0.3);
  f.SetLook(190.0, 60.0);
  frame.Compute(f.camera, PrepareObserver(f.camera), f.shown);
  const DrawnBody* const station =
      frame.GetParts().solarSystem.GetMarks().Find(FindBody(f.catalogs.bodies, kStation));
  ASSERT_NE(station, nullptr);
  const DisplayList& list = frame.GetDisplayList();
  const auto areas = Of(kStation, list.GetPolygons());
  ASSERT_EQ(areas.size(), 1u);
  ASSERT_EQ(areas[0].ringCount, 1);
  const RingRecord& ring = list.GetRings()[static_cast<std::size_t>(areas[0].firstRing)];
  ASSERT_EQ(ring.vertexCount, 4);
  const Vertex* corner = &list.GetVertices()[static_cast<std::size_t>(ring.firstVertex)];
  const double x = station->place.x, y = list.GetHeight() - station->place.y;
  for (int i = 0; i < 4; ++i) {
    const double right = static_cast<double>(corner[i].x) - x, down = static_cast<double>(corner[i].y) - y;
    EXPECT_NEAR(std::abs(right) + std::abs(down), 1.4 * station->radius, 1e-3) << i;
    EXPECT_NEAR(right * down, 0.0, 1e-2) << "left, above, right, below " << i;
  }
  EXPECT_NEAR(corner[0].x + corner[2].x, 2.0 * x, 1e-3);
  EXPECT_NEAR(corner[1].y + corner[3].y, 2.0 * y, 1e-3);
  EXPECT_EQ(areas[0].colour.alpha, 255);
}

// The illuminated fraction is half of one plus the cosine. First quarter on 2026 January 26 at 4:47 UT
// (Astronomical Almanac); a place on the Earth sees it up to 1 degree of phase away.
TEST_F(BodyDrawing, MoonHasItsPhaseUnlessPhasesAreOff) {
  f.SetTime(2026, 1, 26, 4, 47);
  f.camera.SetZoom(60.0);
  LookAt(kMoon);
  EXPECT_NEAR(0.5 * (1.0 + static_cast<double>(DiscOf(kMoon).cosPhase)), 0.50, 0.012);
  f.shown.moonPhases = false;
  f.Compute();
  EXPECT_EQ(DiscOf(kMoon).cosPhase, 1.0f);
}

// New Moon on 2026 January 18 at 19:52 UT, full on February 1 at 22:09 UT.
TEST_F(BodyDrawing, NewMoonIsInTheLightOfTheEarth) {
  f.shown.naturalSky = false;
  f.camera.SetZoom(60.0);
  f.SetTime(2026, 1, 17, 18, 0);
  LookAt(kMoon);
  const double byEarth = Light(DiscOf(kMoon).dark), lit = Light(DiscOf(kMoon).lit);
  f.SetTime(2026, 2, 1, 18, 0);
  LookAt(kMoon);
  const double without = Light(DiscOf(kMoon).dark);
  EXPECT_GT(byEarth, 2.0 * without);
  EXPECT_LT(byEarth, 0.2 * lit);
  EXPECT_EQ(Light(DiscOf(kMoon).lit), lit);
}

// By day the night side is no darker than the sky before it.
TEST_F(BodyDrawing, NightSideIsAsBrightAsTheSkyBeforeIt) {
  f.SetTime(2026, 1, 25, 13, 0);  // the half Moon in the east, in sunlight
  f.camera.SetZoom(60.0);
  LookAt(kMoon);
  const DiscRecord moon = DiscOf(kMoon);
  f.shown.naturalSky = false;
  f.Compute();
  const Rgba dark = moon.dark, byNight = DiscOf(kMoon).dark;
  EXPECT_GT(Light(dark), 3.0 * Light(byNight));
  EXPECT_GE(dark.red, byNight.red);
  EXPECT_GT(dark.blue, dark.red) << "as the sky is";
}

// Charts on paper know no light: what moves is a dot in a ring.
TEST_F(BodyDrawing, OnPaperBodiesHaveARingInsteadOfAGlow) {
  f.shown.naturalSky = false;
  LookAt(kJupiter);
  ASSERT_EQ(Of(kJupiter, GetList().GetPoints()).size(), 1u);
  EXPECT_GT(Of(kJupiter, GetList().GetPoints())[0].glow.radius, 0.0f);
  EXPECT_TRUE(Of(kJupiter, GetList().GetEllipses()).empty());
  SetChartStyle(ChartStyle::kPrint, f.shown);
  f.Compute();
  const auto points = Of(kJupiter, GetList().GetPoints());
  const auto rings = Of(kJupiter, GetList().GetEllipses());
  ASSERT_EQ(points.size(), 1u);
  ASSERT_EQ(rings.size(), 1u);
  EXPECT_EQ(points[0].glow.radius, 0.0f);
  EXPECT_EQ(rings[0].x, points[0].x);
  EXPECT_EQ(rings[0].semiMajor, rings[0].semiMinor);
  EXPECT_GT(rings[0].semiMajor, points[0].radius + GetList().GetUnit());
}

TEST_F(BodyDrawing, AsteroidHasARingWhereSymbolsAreDrawn) {
  f.shown.naturalSky = false;
  f.camera.SetZoom(20.0);
  LookAt(kCeres);
  EXPECT_EQ(Of(kCeres, GetList().GetEllipses()).size(), 1u);
  SetChartStyle(ChartStyle::kPhoto, f.shown);
  f.Compute();
  EXPECT_TRUE(Of(kCeres, GetList().GetEllipses()).empty());
  EXPECT_EQ(Of(kCeres, GetList().GetPoints()).size(), 1u);
}

// Dallas, 2024 April 8: total from 18:40:43 to 18:44:35 UT (Espenak & Anderson). Only the corona is left.
TEST_F(BodyDrawing, CoveredSunLeavesItsCorona) {
  f.SetPlace(32.78, -96.80);
  f.SetTime(2024, 4, 8, 18, 42);
  f.camera.SetZoom(60.0);
  LookAt(kSun);
  const auto covered = Of(kSun, GetList().GetPoints());
  ASSERT_EQ(covered.size(), 1u);
  EXPECT_EQ(covered[0].colour.alpha, 0);
  EXPECT_GT(covered[0].glow.radius, covered[0].radius);
  EXPECT_EQ(Of(kSun, GetList().GetDiscs()).size(), 0u);
  f.SetTime(2024, 4, 8, 18, 30);  // partial
  LookAt(kSun);
  EXPECT_TRUE(Of(kSun, GetList().GetPoints()).empty());
  EXPECT_EQ(DiscOf(kSun).lit.alpha, 255);
}

// A disc of 40 pixels and more would look like a lamp in fog.
TEST_F(BodyDrawing, SmallDiscGlowsAndALargeOneDoesNot) {
  f.shown.naturalSky = false;
  f.SetTime(2026, 2, 1, 21, 0);  // an hour before the full Moon
  f.camera.SetZoom(4.0);
  LookAt(kMoon);
  const double perZoom = static_cast<double>(DiscOf(kMoon).radius) / 4.0;
  f.camera.SetZoom(39.0 / perZoom);
  f.Compute();
  ASSERT_NEAR(DiscOf(kMoon).radius, 39.0f, 0.5f);
  EXPECT_NEAR(DiscOf(kMoon).glow.radius, 2.6f * DiscOf(kMoon).radius, 0.01f);
  f.camera.SetZoom(41.0 / perZoom);
  f.Compute();
  ASSERT_NEAR(DiscOf(kMoon).radius, 41.0f, 0.5f);
  EXPECT_EQ(DiscOf(kMoon).glow.radius, 0.0f);
}

// An hour and a half before it sets the Sun has more red than the sky and less blue: its glow has most of
// each.
TEST_F(BodyDrawing, GlowOfTheSunIsNowhereDarkerThanTheSunOrTheSky) {
  f.camera.SetZoom(5.0);
  f.SetTime(2026, 6, 21, 18, 0);
  LookAt(kSun);
  const auto& globes = GetList().GetGlobes();
  const auto sun = std::find_if(globes.begin(), globes.end(), [](const GlobeRecord& globe) {
    return globe.disc.object == ObjectRef{kSun.kind, kSun.number};
  });
  ASSERT_NE(sun, globes.end());
  const Rgba &lit = sun->disc.lit, &air = sun->air, &glow = sun->disc.glow.colour;
  EXPECT_GT(lit.red, air.red);
  EXPECT_LT(lit.blue, air.blue);
  EXPECT_EQ(glow.red, std::max(lit.red, air.red));
  EXPECT_EQ(glow.green, std::max(lit.green, air.green));
  EXPECT_EQ(glow.blue, std::max(lit.blue, air.blue));
}

// 2026 June 21 in Berlin: noon at 11:08 UT, sunset at 19:33 UT.
TEST_F(BodyDrawing, LowSunIsRed) {
  f.camera.SetZoom(20.0);
  f.SetTime(2026, 6, 21, 11, 8);
  LookAt(kSun);
  const Rgba high = DiscOf(kSun).lit;
  f.SetTime(2026, 6, 21, 19, 28);
  LookAt(kSun);
  const Rgba low = DiscOf(kSun).lit;
  EXPECT_GT(high.blue, 230);
  EXPECT_LT(low.blue, high.blue / 2);
  EXPECT_LT(low.green, high.green);
  EXPECT_GT(low.green, low.blue);
  EXPECT_EQ(low.red, 255);
}

// The profile of the file, with the colours from the inside outwards; radii in those of the planet.
TEST_F(BodyDrawing, LargeSaturnHasItsRing) {
  f.sky.dir.Write(
      "data/catalogs/saturn_ring.txt",
      "Radius:f64\tRed:u8\tGreen:u8\tBlue:u8\tOpacity:u8\n90402\t10\t20\t30\t40\n120536\t50\t60\t70\t80\n");
  const SSO_ID saturn(FourCC("plnt"), 6);
  f.camera.SetZoom(600.0);
  LookAt(saturn);
  SkyFrame frame(f.catalogs);
  frame.Compute(f.camera, f.observer, f.shown);
  const DisplayList& list = frame.GetDisplayList();
  const GlobeRecord* ringed = nullptr;
  for (const GlobeRecord& globe : list.GetGlobes()) {
    if (globe.disc.object == ObjectRef{saturn.kind, saturn.number}) ringed = &globe;
  }
  ASSERT_NE(ringed, nullptr);
  EXPECT_NEAR(ringed->ringInner, 1.5, 1e-6);
  EXPECT_NEAR(ringed->ringOuter, 2.0, 1e-6);
  ASSERT_EQ(ringed->ringColourCount, 2);
  const auto first = static_cast<std::size_t>(ringed->firstRingColour);
  EXPECT_EQ(list.GetColours()[first], (Rgba{10, 20, 30, 40}));
  EXPECT_EQ(list.GetColours()[first + 1], (Rgba{50, 60, 70, 80}));
}
