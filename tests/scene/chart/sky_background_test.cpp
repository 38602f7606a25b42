// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/sky_background.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"
#include "scene/display/sky_colours.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

double Brightness(const Rgba& colour) {
  return 0.2126 * colour.red + 0.7152 * colour.green + 0.0722 * colour.blue;
}

// The look is to the south, 30 degrees high, through 94 x 60 degrees.
class SkyBackground : public testing::Test {
 protected:
  SkyBackground() { f.camera.SetZoom(0.68); }

  void Draw(double sunAltitude, double sunAzimuth, double sunlight = 1.0) {
    SkySources sources;
    sources.sun = MakeDirection(-sunAzimuth * kRadiansPerDegree, sunAltitude * kRadiansPerDegree);
    sources.moon = MakeDirection(0.0, -1.0);
    sources.sunlight = sunlight;
    light.Compute(ViewGeometry(f.camera), sources);
    list.Begin(1600, 1000, 1.0);
    DrawNaturalSky(light, list);
  }
  Rgba At(double x, double y) { return SkyColours(list, light).Find(x, y); }

  host_test::FrameFixture f;
  SkyLight light;
  DisplayList list;
};

}  // namespace

TEST_F(SkyBackground, IsBlueByDay) {
  Draw(60.0, 0.0);
  const Rgba sky = At(800.0, 200.0);
  EXPECT_GT(sky.blue, 170);
  EXPECT_GT(sky.blue, sky.green + 40);
  EXPECT_GT(sky.green, sky.red + 20);
  EXPECT_GT(Brightness(At(800.0, 960.0)), Brightness(sky)) << "paler towards the horizon";
}

// As it was before there was a day: nothing differs by more than two of 255 between the colours of top and
// foot.
TEST_F(SkyBackground, IsThatOfThePlainSkyInADarkNight) {
  Draw(-50.0, 0.0);
  const Rgba top = ToRgba(palette::kSkyTop), foot = ToRgba(palette::kSkyFoot);
  for (const Rgba& colour : list.GetColours()) {
    EXPECT_TRUE(colour.red >= top.red - 2 && colour.red <= foot.red + 2) << int{colour.red};
    EXPECT_TRUE(colour.green >= top.green - 2 && colour.green <= foot.green + 2) << int{colour.green};
    EXPECT_TRUE(colour.blue >= top.blue - 2 && colour.blue <= foot.blue + 2) << int{colour.blue};
  }
}

TEST_F(SkyBackground, IsWarmUnderTheSettingSunAndBlueAbove) {
  Draw(-2.0, 180.0);
  const Rgba low = At(800.0, 930.0), high = At(800.0, 100.0);
  EXPECT_GT(low.red, low.blue + 40);
  EXPECT_GT(high.blue, high.red + 40);
  EXPECT_GT(Brightness(low), Brightness(high) + 40.0);
}

TEST_F(SkyBackground, GrowsDarkerThroughTwilight) {
  double before = 255.0;
  for (const double altitude : {10.0, 0.0, -3.0, -6.0, -9.0, -12.0, -18.0}) {
    Draw(altitude, 0.0);
    const double now = Brightness(At(800.0, 300.0));
    EXPECT_LT(now, before) << altitude;
    before = now;
  }
  EXPECT_LT(before, 15.0);
}

TEST_F(SkyBackground, IsDarkInATotalEclipse) {
  Draw(40.0, 180.0);
  const double day = Brightness(At(200.0, 300.0));
  Draw(40.0, 180.0, SkySources::kLeft);
  EXPECT_LT(Brightness(At(200.0, 300.0)), 0.5 * day);
  EXPECT_GT(At(200.0, 960.0).red, At(200.0, 960.0).blue) << "a sunset all around";
}

// Neither lavender nor cyan: on the way to white the channels keep their order and no two of the three meet
// alone.
TEST_F(SkyBackground, KeepsItsHueTowardsTheSun) {
  Draw(55.0, 180.0);
  for (const Rgba& sky : list.GetColours()) {
    EXPECT_LE(sky.red, sky.green + 1);
    EXPECT_LE(sky.green, sky.blue + 1);
    if (sky.blue - sky.red > 30) {
      const double place = (sky.green - sky.red) / static_cast<double>(sky.blue - sky.red);
      EXPECT_GT(place, 0.3) << "lavender";
      EXPECT_LT(place, 0.65) << "cyan";
    }
  }
}

TEST_F(SkyBackground, LinesAndNamesCanBeReadOnEverySky) {
  const Rgba colours[] = {
      ToRgba(palette::kEquatorialGrid), ToRgba(palette::kEclipticGrid), {255, 230, 173, 250}};
  for (const double sun : {60.0, 20.0, 5.0, 0.0, -4.0, -8.0}) {
    Draw(sun, 60.0);
    const SkyColours sky(list, light);
    const Rgba ground = At(800.0, 400.0);
    for (const Rgba& colour : colours) {
      const Rgba shown = sky.Readable(colour, 800.0, 400.0);
      const double opaque = shown.alpha / 255.0;
      EXPECT_GT(std::fabs(Brightness(shown) - Brightness(ground)) * opaque, 35.0) << sun;
    }
  }
  Draw(-30.0, 60.0);
  EXPECT_EQ(SkyColours(list, light).Readable(colours[0], 800.0, 400.0), colours[0]);
  EXPECT_EQ(SkyColours(list, light).ReadableLine(colours[0]), colours[0]);
}

// A telescope on the Sun shows its disc and not a white field.
TEST_F(SkyBackground, FollowsTheLightBesideTheSun) {
  f.SetLook(180.0, 40.0);
  f.camera.SetZoom(20.0);
  Draw(40.0, 180.0);
  EXPECT_LT(Brightness(At(800.0, 500.0)), 225.0);
}

TEST_F(SkyBackground, GroundLightensWithTheDay) {
  Draw(-50.0, 0.0);
  const Rgba night = FindGroundColour(light);
  EXPECT_NEAR(night.green, ToRgba(palette::kGround).green, 1);
  Draw(50.0, 0.0);
  EXPECT_GT(Brightness(FindGroundColour(light)), 70.0);
  EXPECT_LT(Brightness(FindGroundColour(light)), Brightness(At(800.0, 300.0)));
  light.SetPlain();
  EXPECT_EQ(FindGroundColour(light), ToRgba(palette::kGround));
}

// The night side of the Moon has the colour of the sky around it by day, and its own at night.
TEST_F(SkyBackground, NightSideOfTheMoonShinesAsTheSky) {
  f.SetTime(2026, 6, 23, 15, 0);
  f.SetLook(128.0, 14.0);
  f.Compute();
  const DisplayList& frame = f.frame.GetDisplayList();
  ASSERT_EQ(frame.GetGlobes().size(), 1u);
  const DiscRecord& moon = frame.GetGlobes()[0].disc;
  const Rgba sky = SkyColours(frame, f.frame.GetParts().light).Find(moon.x, moon.y);
  EXPECT_EQ(std::tuple(moon.dark.red, moon.dark.green, moon.dark.blue),
            std::tuple(sky.red, sky.green, sky.blue));
  EXPECT_EQ(frame.GetGlobes()[0].air, sky);
  f.shown.naturalSky = false;
  f.Compute();
  EXPECT_LT(f.frame.GetDisplayList().GetGlobes()[0].disc.dark.blue, 30);
  EXPECT_EQ(f.frame.GetDisplayList().GetGlobes()[0].air, (Rgba{0, 0, 0, 255}));
}

// High and low; without a surface to be seen, but for a telescope.
TEST_F(SkyBackground, SunHasTheColourThatTheAirLeaves) {
  f.camera.SetBasePlane(1);
  int reddest = 255;
  for (const int hour : {11, 19}) {
    f.SetTime(2026, 6, 21, hour, 10);
    f.SetLook(hour == 11 ? 180.0 : 308.0, hour == 11 ? 60.0 : 5.0);
    f.camera.SetZoom(0.68);
    f.Compute();
    const auto& globes = f.frame.GetDisplayList().GetGlobes();
    ASSERT_EQ(globes.size(), 1u) << hour;
    EXPECT_EQ(globes[0].map, -1);
    EXPECT_EQ(globes[0].limbDarkening, 0.0f);
    EXPECT_EQ(globes[0].disc.lit.red, 255);
    EXPECT_LT(globes[0].disc.lit.blue, reddest);
    reddest = globes[0].disc.lit.blue;
    EXPECT_GT(globes[0].disc.glow.radius, globes[0].disc.radius);
  }
  EXPECT_LT(reddest, 200);
}
