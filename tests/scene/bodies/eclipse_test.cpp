// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Eclipses against the tables of Espenak (NASA, Five Millennium Canon; eclipsewise.com): times in Universal Time.
#include "scene/eclipse.h"

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

TEST_F(EclipseTest, TotalLunarEclipseOf20250314) {
  Compute(2025, 3, 14, 6, 58, 42);
  EXPECT_EQ(shadows.GetLunarEclipse(), LunarEclipse::kTotal);
  EXPECT_NEAR(shadows.GetUmbralMagnitude(), 1.1784, 0.004);
  EXPECT_NEAR(shadows.GetPenumbralMagnitude(), 2.2595, 0.01);
}

TEST_F(EclipseTest, TotalLunarEclipseOf20260303) {
  Compute(2026, 3, 3, 11, 33, 37);
  EXPECT_EQ(shadows.GetLunarEclipse(), LunarEclipse::kTotal);
  EXPECT_NEAR(shadows.GetUmbralMagnitude(), 1.1507, 0.004);
}

// Contacts: penumbra from 8:44:22, umbra from 9:50:00, total from 11:04:26 to 12:02:45, umbra left at 13:17:10.
TEST_F(EclipseTest, ContactsOf20260303AreWithinAMinute) {
  const struct {
    int hour, minute, second;
    LunarEclipse before, after;
  } contacts[] = {{8, 44, 22, LunarEclipse::kNone, LunarEclipse::kPenumbral},
                  {9, 50, 0, LunarEclipse::kPenumbral, LunarEclipse::kPartial},
                  {11, 4, 26, LunarEclipse::kPartial, LunarEclipse::kTotal},
                  {12, 2, 45, LunarEclipse::kTotal, LunarEclipse::kPartial},
                  {13, 17, 10, LunarEclipse::kPartial, LunarEclipse::kPenumbral}};
  for (const auto& contact : contacts) {
    Compute(2026, 3, 3, contact.hour, contact.minute - 1, contact.second);
    EXPECT_EQ(shadows.GetLunarEclipse(), contact.before) << contact.hour << ":" << contact.minute;
    Compute(2026, 3, 3, contact.hour, contact.minute + 1, contact.second);
    EXPECT_EQ(shadows.GetLunarEclipse(), contact.after) << contact.hour << ":" << contact.minute;
  }
}

TEST_F(EclipseTest, FullMoonOf20260102PassesTheShadowBy) {
  Compute(2026, 1, 3, 10, 3, 0);
  EXPECT_EQ(shadows.GetLunarEclipse(), LunarEclipse::kNone);
  EXPECT_EQ(shadows.GetMoonShadow(), nullptr);
  EXPECT_LT(shadows.GetUmbralMagnitude(), 0.0);
}

TEST_F(EclipseTest, ListsHoldTheShadowsOfTheMomentAlone) {
  const SSO_ID moon(FourCC("moon"), 301), earth(FourCC("plnt"), 3);
  Compute(2025, 3, 14, 6, 58, 42);
  auto* list = shadows.GetMap().FindList(moon);
  ASSERT_TRUE(list && list->size() == 1u);
  const auto& shadow = list->front();
  EXPECT_EQ(shadow.m_Caster, earth);
  EXPECT_NEAR(Vmod(shadow.m_Axis, 3), 1.0, 1e-12);
  // The foot is perpendicular to the axis; the umbra is some 4600 km wide at the Moon, the penumbra 8200 (radii).
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

// 2024 April 8, total in Dallas (32.78 N, 96.80 W) from 18:40:43 to 18:44:34; annular on 2023 October 14 in San Antonio.
TEST_F(EclipseTest, SolarEclipsesAsTheyAreSeen) {
  const EarthPlace dallas = {-96.80 * kRadiansPerDegree, 32.78 * kRadiansPerDegree, 130.0};
  Compute(2024, 4, 8, 18, 42, 40, dallas);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kTotal);
  EXPECT_NEAR(shadows.GetSolarMagnitude(), 1.056, 0.005);
  EXPECT_EQ(shadows.GetMap().FindList(SSO_ID(FourCC("plnt"), 3))->size(), 1u);
  Compute(2024, 4, 8, 18, 0, 0, dallas);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kPartial);
  const EarthPlace sanAntonio = {-98.49 * kRadiansPerDegree, 29.42 * kRadiansPerDegree, 200.0};
  Compute(2023, 10, 14, 16, 54, 0, sanAntonio);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kAnnular);
  EXPECT_NEAR(shadows.GetSolarMagnitude(), 0.95, 0.01);
  const EarthPlace sydney = {151.2 * kRadiansPerDegree, -33.9 * kRadiansPerDegree, 0.0};
  Compute(2024, 4, 8, 18, 42, 40, sydney);
  EXPECT_EQ(shadows.GetSolarEclipse(), SolarEclipse::kElsewhere);
}
