// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/sky_light.h"

#include <gtest/gtest.h>

#include <cmath>

#include "scene/frame_helpers.h"
#include "support/allocation_counter.h"
#include "utils/text.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr int kSirius = 2491, kRigel = 1713;

SkySources AtNight() {
  SkySources sources;
  sources.sun = MakeDirection(0.0, -60.0 * kRadiansPerDegree);
  sources.moon = MakeDirection(1.0, -60.0 * kRadiansPerDegree);
  return sources;
}

SkySources WithSun(double altitude) {
  SkySources sources = AtNight();
  sources.sun = MakeDirection(kPi, altitude * kRadiansPerDegree);
  return sources;
}

// Of the naked eye's limit where the sky has 21.5 magnitudes a square second of arc.
float MakeDarkCode() {
  return static_cast<float>((astro::GetNakedEyeLimit(astro::GetLuminance(21.5)) + 2.0) * 10.0);
}

class SkyLightTest : public testing::Test {
 protected:
  void Compute(const SkySources& sources) { light.Compute(ViewGeometry(f.camera), sources); }
  ClassLimits Limits(const char* kind) { return ClassLimits(f.camera, GetFOURCC(kind)); }

  FrameFixture f;
  SkyLight light;
};

}  // namespace

TEST_F(SkyLightTest, PlainSkyHidesNothing) {
  Compute(WithSun(50.0));
  EXPECT_TRUE(light.IsNatural());
  light.SetPlain();
  EXPECT_FALSE(light.IsNatural());
  EXPECT_EQ(light.FindDim(Limits("star"), {800.0, 500.0}, 0.01), 0.0f);
  EXPECT_EQ(light.FindLeastDim(Limits("star")), 0.0f);
  EXPECT_EQ(light.GetLineStrength(), 1.0);
  EXPECT_EQ(light.GetGlowStrength(), 1.0);
}

TEST_F(SkyLightTest, DarkSkyHidesNothingAboveTheAirNearTheHorizon) {
  Compute(AtNight());
  for (const char* kind : {"star", "gala", "plnt"}) {
    EXPECT_EQ(light.FindLeastDim(Limits(kind)), 0.0f);
    EXPECT_EQ(light.FindDim(Limits(kind), {800.0, 900.0}, 1.0), 0.0f) << kind;
  }
  EXPECT_EQ(light.GetLineStrength(), 1.0);
  EXPECT_EQ(light.GetGlowStrength(), 1.0);
}

// 0.2 magnitudes for each air mass more than at 30 degrees (Kasten & Young 1989, table II): 1.9939 there,
// 5.5841 at 10, 26.3079 at 1.
TEST_F(SkyLightTest, AirTakesLightNearTheHorizon) {
  Compute(AtNight());
  const ClassLimits stars = Limits("star");
  const auto dim = [&](double altitude) {
    return light.FindDim(stars, {800.0, 900.0}, std::sin(altitude * kRadiansPerDegree));
  };
  EXPECT_EQ(dim(90.0), 0.0f);
  EXPECT_EQ(dim(31.0), 0.0f);
  EXPECT_NEAR(dim(10.0), 2.0 * (5.5841 - 1.9939), 0.05);
  EXPECT_NEAR(dim(1.0), 2.0 * (26.3079 - 1.9939), 0.3);
  EXPECT_EQ(dim(-10.0), dim(10.0)) << "as high above the horizon";
}

TEST_F(SkyLightTest, LimitFallsAsTheSunRises) {
  float before = -1.0f;
  for (int altitude = -18; altitude <= 45; ++altitude) {
    Compute(WithSun(altitude));
    const float dim = light.FindLeastDim(Limits("star"));
    EXPECT_GE(dim, before) << altitude;
    before = dim;
  }
  EXPECT_GT(before, 80.0f) << "from 6.5 to brighter than Sirius";
}

// The naked eye's limit for the darkest part of the window is the one that is drawn at zoom 0.25, whose own
// is 5.1; a larger instrument sees farther by what it sees farther at night.
TEST_F(SkyLightTest, InstrumentKeepsItsLead) {
  Compute(WithSun(-8.0));
  const auto drawn = [&] {
    return MagnitudeOfCode(Limits("star").draw - light.FindLeastDim(Limits("star")));
  };
  f.camera.SetZoom(1.0);
  Compute(WithSun(-8.0));
  const double wide = drawn();
  f.camera.SetZoom(10.0);
  Compute(WithSun(-8.0));
  EXPECT_NEAR(drawn() - wide, MagnitudeOfCode(Limits("star").draw) - 7.5, 0.5);
}

// Galaxies reach to 10.5 at zoom 1 by night and stars to 7.5: by day nothing of that lead is left.
TEST_F(SkyLightTest, ClassesThatReachFartherComeDownToTheStars) {
  Compute(WithSun(40.0));
  const auto drawn = [&](const char* kind) { return Limits(kind).draw - light.FindLeastDim(Limits(kind)); };
  EXPECT_NEAR(drawn("gala"), drawn("star"), 0.1);
  EXPECT_NEAR(drawn("plnt"), drawn("star"), 0.1);
}

TEST_F(SkyLightTest, WhatIsNoPointLosesHalfAsMuchAgainAsTheEye) {
  const tPoint<double> pixel = {800.0, 500.0};
  Compute(AtNight());
  EXPECT_EQ(light.FindDimOfExtended(Limits("gala"), pixel, 1.0), 0.0f);
  float last = 0.0f;
  for (const double altitude : {-14.0, -11.0, -9.0, -7.0}) {
    Compute(WithSun(altitude));
    const float more =
        light.FindDimOfExtended(Limits("gala"), pixel, 1.0) - light.FindDim(Limits("gala"), pixel, 1.0);
    EXPECT_GT(more, last) << altitude;
    const float eye =
        light.GetNodes()[SkyLight::kRows / 2 * SkyLight::kColumns + SkyLight::kColumns / 2].limit;
    EXPECT_NEAR(more, 0.5f * (MakeDarkCode() - eye), 1e-3f) << altitude;
    last = more;
  }
  light.SetPlain();
  EXPECT_EQ(light.FindDimOfExtended(Limits("gala"), pixel, 1.0), 0.0f);
}

TEST_F(SkyLightTest, TheMilkyWayFadesWithTheSkyBeforeItAndTheAir) {
  Compute(AtNight());
  // The picture is 40 degrees high around an altitude of 30.
  EXPECT_GT(light.FindGlow({800.0, 980.0}), 0.9f);
  EXPECT_LT(light.FindGlow({800.0, 20.0}), light.FindGlow({800.0, 980.0}) - 0.1f);
  Compute(WithSun(-10.0));
  EXPECT_EQ(light.FindGlow({800.0, 500.0}), 0.0f);
  light.SetPlain();
  EXPECT_EQ(light.FindGlow({800.0, 20.0}), 1.0f);
}

TEST_F(SkyLightTest, CornersOfThePictureAreThoseOfTheNodesAndWhatLiesBeyondToo) {
  Compute(WithSun(-14.0));
  const auto& nodes = light.GetNodes();
  EXPECT_FLOAT_EQ(light.FindGlow({0.0, 1000.0}), nodes.front().glow);
  EXPECT_FLOAT_EQ(light.FindGlow({1600.0, 0.0}), nodes.back().glow);
  EXPECT_FLOAT_EQ(light.FindGlow({1700.0, -50.0}), nodes.back().glow);
  EXPECT_NE(nodes.front().glow, nodes.back().glow);
}

// Rigel grows brighter from minute to minute of the dusk, which hides it at first.
TEST_F(SkyLightTest, StarIsDrawnFaintlyNextToASkyThatHidesIt) {
  f.SetLook(210.0, 25.0);
  f.shown.horizon = false;
  float last = 0.0f;
  int faint = 0;
  for (int minute = 0; minute < 90; ++minute) {
    f.SetTime(2026, 4, 10, 17 + (30 + minute) / 60, (30 + minute) % 60);
    f.Compute();
    const DrawnStar* const rigel = f.Find(kRigel);
    const float opacity = rigel ? rigel->opacity : 0.0f;
    EXPECT_GE(opacity, last - 0.01f) << minute;
    faint += opacity > 0.0f && opacity < 0.8f;
    last = opacity;
  }
  EXPECT_EQ(last, 1.0f);
  EXPECT_GE(faint, 2);
}

TEST_F(SkyLightTest, LinesAndMilkyWayFade) {
  Compute(WithSun(-7.0));
  EXPECT_GT(light.GetLineStrength(), 0.1);
  EXPECT_LT(light.GetLineStrength(), 1.0);
  EXPECT_EQ(light.GetGlowStrength(), 0.0);
  Compute(WithSun(10.0));
  EXPECT_EQ(light.GetLineStrength(), 0.0);
  SkySources moonlit = AtNight();
  moonlit.moon = MakeDirection(0.0, 50.0 * kRadiansPerDegree);
  Compute(moonlit);
  EXPECT_GT(light.GetLineStrength(), 0.7);
  EXPECT_LT(light.GetGlowStrength(), 0.3);
}

TEST_F(SkyLightTest, AllocatesNothing) {
  Compute(AtNight());
  const ViewGeometry geometry(f.camera);
  const auto before = host_test::GetAllocationCount();
  light.Compute(geometry, WithSun(3.0));
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}

TEST_F(SkyLightTest, StarsOfAFrameFadeAtDusk) {
  f.SetTime(2026, 1, 15, 21, 0);
  f.Compute();
  ASSERT_TRUE(f.Find(kRigel));
  const float night = f.Find(kRigel)->output->m_Place.radius;
  f.SetTime(2026, 4, 10, 19, 0);  // the Sun 10 degrees below the horizon, Orion in the west
  f.SetLook(230.0, 25.0);
  f.Compute();
  ASSERT_TRUE(f.Find(kRigel));
  EXPECT_LT(f.Find(kRigel)->output->m_Place.radius, night);
  f.SetTime(2026, 4, 10, 17, 0);  // and 7 degrees above it
  f.SetLook(205.0, 25.0);
  f.Compute();
  EXPECT_FALSE(f.Find(kRigel));
  EXPECT_FALSE(f.Find(kSirius));
  EXPECT_FALSE(f.HasLabel("Orion"));
  f.shown.naturalSky = false;
  f.Compute();
  EXPECT_TRUE(f.Find(kSirius));
}

TEST_F(SkyLightTest, SunAndMoonAreSeenByDay) {
  f.SetTime(2026, 6, 23, 15, 0);
  f.SetLook(200.0, 40.0);
  f.camera.SetZoom(0.25);
  f.Compute();
  EXPECT_TRUE(f.frame.IsBodyDrawn(kSunBody));
  EXPECT_TRUE(f.frame.IsBodyDrawn(kMoonBody));
}

TEST_F(SkyLightTest, ObserverElsewhereHasAPlainSky) {
  f.SetTime(2026, 6, 21, 11, 0);
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().light.IsNatural());
  f.camera.SetBasePlane(2);
  f.Compute();
  EXPECT_FALSE(f.frame.GetParts().light.IsNatural());
}
