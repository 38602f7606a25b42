// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Eclipses of the tables of Espenak (NASA, Five Millennium Canon; eclipsewise.com), in Universal Time, where
// the frame keeps them; the numbers themselves are held in tests/astro/eclipse_test.cpp.
#include "scene/bodies/eclipse.h"

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "astro/vectors.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

struct EclipseTest : testing::Test {
  void Compute(int year, int month, int day, int hour, int minute, int second, EarthPlace place = {}) {
    int number = 0;
    double fraction = 0.0;
    DJ({year, month, day, hour, minute, static_cast<double>(second)}, number, fraction);
    model.Compute(MakeMoment(number, fraction), place);
    shadows.Compute(model);
  }

  host_test::FrameFixture f;
  BodyModel model{f.catalogs.bodies};
  EclipseShadows shadows;
};

}  // namespace

TEST_F(EclipseTest, ListsHoldTheShadowsOfTheMomentAlone) {
  const SSO_ID moon(FourCC("moon"), 301), earth(FourCC("plnt"), 3);
  Compute(2025, 3, 14, 6, 58, 42);
  auto* list = shadows.GetMap().FindList(moon);
  ASSERT_TRUE(list && list->size() == 1u);
  const auto& shadow = list->front();
  EXPECT_EQ(shadow.m_Caster, earth);
  EXPECT_NEAR(Vmod(shadow.m_Axis, 3), 1.0, 1e-12);
  // The foot is perpendicular to the axis; the umbra is some 4600 km wide at the Moon, the penumbra 8200
  // (radii).
  double along = 0.0;
  for (int i = 0; i < 3; ++i) along += shadow.m_Axis[i] * shadow.m_Foot[i];
  EXPECT_NEAR(along, 0.0, 1e-12);
  constexpr double kKmPerAu = 149597870.7;
  EXPECT_NEAR(shadow.m_UmbraRadius * kKmPerAu, 4600.0, 100.0);
  EXPECT_NEAR(shadow.m_PenumbraRadius * kKmPerAu, 8250.0, 150.0);
  Compute(2025, 3, 20, 0, 0, 0);
  EXPECT_EQ(shadows.GetMap().FindList(moon), list) << "the list stays";
  EXPECT_TRUE(list->empty());
  EXPECT_TRUE(shadows.GetMap().FindList(earth)->empty());
}

// 2024 April 8, total in Dallas (32.78 N, 96.80 W): the Moon's shadow lies on the Earth, whoever sees it.
TEST_F(EclipseTest, ShadowOnTheEarthIsListedWhoeverSeesIt) {
  const EarthPlace dallas = {-96.80 * kRadiansPerDegree, 32.78 * kRadiansPerDegree, 130.0};
  const EarthPlace sydney = {151.2 * kRadiansPerDegree, -33.9 * kRadiansPerDegree, 0.0};
  Compute(2024, 4, 8, 18, 42, 40, dallas);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kTotal);
  EXPECT_NEAR(shadows.GetSolarMagnitude(), 1.056, 0.005);
  EXPECT_EQ(shadows.GetMap().FindList(SSO_ID(FourCC("plnt"), 3))->size(), 1u);
  Compute(2024, 4, 8, 18, 42, 40, sydney);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kElsewhere);
  EXPECT_EQ(shadows.GetMap().FindList(SSO_ID(FourCC("plnt"), 3))->size(), 1u);
}

TEST_F(EclipseTest, NoShadowOnTheMoonWithoutAnEclipse) {
  Compute(2026, 1, 3, 10, 3, 0);
  EXPECT_EQ(shadows.GetLunarEclipse(), LunarEclipse::kNone);
  EXPECT_EQ(shadows.GetMoonShadow(), nullptr);
  EXPECT_LT(shadows.GetUmbralMagnitude(), 0.0);
}
