// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Asteroids that are shown however faint they are, and the limits of satellites by their distance.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "scene/bodies/body_tests.h"
#include "scene/catalogs/satellites.h"
#include "scene/frame_helpers.h"
#include "scene/search/aim.h"
#include "scene/view/standing.h"
#include "utils/text.h"

using namespace scene;

namespace {

OrbitalElements Orbit(double a, double e) {
  OrbitalElements elements;
  elements.a = a;
  elements.e = e;
  return elements;
}

// Ceres, and as bodies of other groups Chiron; both made fainter than any limit of the view.
class AsteroidGroups : public testing::Test {
 protected:
  AsteroidGroups() {
    constexpr host_test::OrbitRow kFaint[] = {
        {1, "Ceres", 2459800.5, 2.766619044655007, 0.07863575691875528, 10.58679512153367, 80.2664361119415,
         73.53162522557164, 334.3271698971151, 13.0, 0.12},
        {2060, "Chiron", 2459800.5, 13.71132261517404, 0.3762722, 6.92, 209.3, 339.5, 180.0, 13.0, 0.12}};
    f.sky.dir.Write("data/catalogs/asteroids.txt", host_test::OrbitTable(kFaint, 2, false));
    f.catalogs.bodies = LoadBodies();
    frame = std::make_unique<SkyFrame>(f.catalogs);
    f.shown.horizon = false;
    f.shown.naturalSky = false;
    f.camera.SetZoom(1.0);
  }
  // Looks at it; whether it is drawn.
  bool Shows(int number) {
    const int body = FindBody(f.catalogs.bodies, SSO_ID(FourCC("astr"), number));
    EXPECT_GE(body, 0);
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
    const auto& state = frame->GetBodies().GetStates()[static_cast<std::size_t>(body)];
    EXPECT_TRUE(state.known);
    LookTo(FindStanding(MakeDirection(state.seen.apparent), PrepareObserver(f.camera)), f.camera);
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
    return frame->IsBodyDrawn(body);
  }
  bool HasName(const std::string& name) const {
    for (const auto& label : frame->GetParts().labels.GetLabels()) {
      if (name == label.text) return true;
    }
    return false;
  }

  host_test::FrameFixture f;
  std::unique_ptr<SkyFrame> frame;
};

}  // namespace

// 4:1 and 2:1 with Jupiter's 5.2026 au are 2.065 and 3.277 au.
TEST(MainBelt, LiesBetweenTheResonancesAndBeyondMars) {
  EXPECT_NEAR(5.2026 / std::cbrt(16.0), 2.065, 0.001);
  EXPECT_NEAR(5.2026 / std::cbrt(4.0), 3.278, 0.001);
  EXPECT_TRUE(IsOfMainBelt(Orbit(2.7666, 0.0786))) << "Ceres";
  EXPECT_TRUE(IsOfMainBelt(Orbit(3.1286, 0.118))) << "Hygiea";
  EXPECT_FALSE(IsOfMainBelt(Orbit(1.458, 0.223))) << "Eros";
  EXPECT_FALSE(IsOfMainBelt(Orbit(2.666, 0.533))) << "Ganymed, which crosses the orbit of Mars";
  EXPECT_FALSE(IsOfMainBelt(Orbit(3.439, 0.11))) << "Cybele";
  EXPECT_FALSE(IsOfMainBelt(Orbit(5.209, 0.147))) << "Achilles";
  EXPECT_FALSE(IsOfMainBelt(Orbit(39.45, 0.25))) << "Pluto";
}

TEST_F(AsteroidGroups, FaintOnesAreDrawnWithTheirGroupAlone) {
  EXPECT_FALSE(Shows(1));
  EXPECT_FALSE(Shows(2060));
  f.shown.asteroidBelt = true;
  EXPECT_TRUE(Shows(1));
  EXPECT_FALSE(Shows(2060));
  f.shown.asteroidBelt = false;
  f.shown.asteroidGroups = true;
  EXPECT_FALSE(Shows(1));
  EXPECT_TRUE(Shows(2060));
}

TEST_F(AsteroidGroups, NamesAreThoseOfTheGroup) {
  f.shown.asteroidBelt = true;
  EXPECT_TRUE(Shows(1));
  EXPECT_TRUE(HasName("Ceres"));
  f.shown.asteroidNames = false;
  EXPECT_TRUE(Shows(1));
  EXPECT_FALSE(HasName("Ceres"));
  f.shown.asteroidNames = true;
  f.shown.asteroidLabels.shown = false;
  EXPECT_TRUE(Shows(1));
  EXPECT_FALSE(HasName("Ceres"));
}

TEST_F(AsteroidGroups, DrawnAsTheFaintestThatTheLimitLetsThrough) {
  f.shown.asteroidBelt = true;
  ASSERT_TRUE(Shows(1));
  const int body = FindBody(f.catalogs.bodies, SSO_ID(FourCC("astr"), 1));
  const DrawnBody* const drawn = frame->GetParts().solarSystem.GetMarks().Find(body);
  ASSERT_NE(drawn, nullptr);
  EXPECT_FLOAT_EQ(drawn->opacity, 0.3f);
  EXPECT_NEAR(drawn->radius, 0.6, 1e-6) << "as that of the faintest stars";
}

TEST_F(AsteroidGroups, DaylightHidesThem) {
  f.shown.asteroidBelt = true;
  f.shown.horizon = f.shown.naturalSky = true;
  bool seenByDay = false, seenByNight = false;
  for (int hour = 0; hour < 24; ++hour) {
    f.SetTime(2026, 1, 15, hour, 0);
    const bool drawn = Shows(1);
    const auto& sun = frame->GetBodies().GetSun();
    const auto observer = PrepareObserver(f.camera);
    const double altitude = FindStanding(MakeDirection(sun.seen.apparent), observer).altitude;
    if (altitude > 5.0) seenByDay |= drawn;
    if (altitude < -10.0) seenByNight |= drawn;
  }
  EXPECT_FALSE(seenByDay);
  EXPECT_TRUE(seenByNight);
}

// The satellite of the fixture counts as of magnitude 4 + 5 log10(distance / 1000 km): its opacity follows
// "USCOZoomDependShow", whether it has its name "USCOZoomDependLabel".
TEST(SatelliteLimits, FollowTheDistance) {
  host_test::FrameFixture f;
  std::string error;
  ASSERT_TRUE(LoadSatellites(f.sky.dir.Write("s.tle", host_test::StationSet()), f.catalogs.bodies, error));
  SkyFrame frame(f.catalogs);
  f.SetTime(2014, 1, 21, 3, 30);
  f.shown.horizon = false;
  const int body = static_cast<int>(f.catalogs.bodies.size()) - 1;
  const auto compute = [&](float show, float label) {
    f.camera.SetMagCorrection(18, show);
    f.camera.SetMagCorrection(19, label);
    f.camera.RefreshLimitingMagnitudes();
    frame.Compute(f.camera, PrepareObserver(f.camera), f.shown);
    const auto& state = frame.GetBodies().GetStates()[static_cast<std::size_t>(body)];
    LookTo(FindStanding(MakeDirection(state.seen.apparent), PrepareObserver(f.camera)), f.camera);
    frame.Compute(f.camera, PrepareObserver(f.camera), f.shown);
  };
  const auto find = [&] { return frame.GetParts().solarSystem.GetMarks().Find(body); };
  compute(60.0f, 60.0f);
  const ObserverFrame observer = PrepareObserver(f.camera);
  const ViewGeometry geometry(f.camera, observer);
  const Landscape none;
  const BodyTests tests(frame.GetBodies(), geometry, observer, f.shown, ObjectFilters::None(),
                        frame.GetParts().light, none);
  const auto& state = frame.GetBodies().GetStates()[static_cast<std::size_t>(body)];
  const double code = 10.0 * (6.0 + 5.0 * std::log10(state.seen.distance * 149597870.7 / 1000.0));
  EXPECT_NEAR(static_cast<double>(tests.GetLimitCode(body)), code, 0.001);
  ASSERT_NE(find(), nullptr);
  EXPECT_EQ(find()->opacity, 1.0f);
  EXPECT_GE(find()->labelIndex, 0);
  const float limit = f.camera.GetDarkMagDrawF(FourCC("scft")),
              zoomed = f.camera.GetDarkMagLabelF(FourCC("scft")) - 60.0f;
  ASSERT_LT(code, static_cast<double>(limit));
  compute(-150.0f, static_cast<float>(code) - zoomed - 1.0f);
  ASSERT_NE(find(), nullptr);
  EXPECT_LT(find()->opacity, 1.0f);
  EXPECT_EQ(find()->labelIndex, -1);
  compute(-150.0f, static_cast<float>(code) - zoomed + 1.0f);
  EXPECT_GE(find()->labelIndex, 0);
}
