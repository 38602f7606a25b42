// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Eclipses against the tables of Espenak (NASA, Five Millennium Canon; eclipsewise.com): times in Universal
// Time.
#include "astro/eclipse.h"

#include <gtest/gtest.h>

#include "astro/constants.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "helpers/midnight.h"

using namespace astro;
using astro_test::At;

namespace {

struct EclipseTest : testing::Test {
  void Compute(int year, int month, int day, int hour, int minute, int second, EarthPlace place = {}) {
    const SkyMoment moment =
        astro_test::MomentOf({year, month, day, hour, minute, static_cast<double>(second)});
    model.SetMoment(moment.julianDateTT, moment.deltaT);
    model.SetObserverAtEarthCentre();
    TakeVector(kSun, sun);
    TakeVector(kMoon, moon);
    SetUpModel(moment, place, model);
    ASSERT_TRUE(model.Observe(kSun, nullptr, sunSeen) && model.Observe(kMoon, nullptr, moonSeen));
    lunar = FindLunarEclipse(sun, moon);
    solar = FindSolarEclipse(sun, moon, sunSeen, moonSeen);
  }

  void TakeVector(const SSO_ID& id, double vector[3]) {
    ObservedBody seen;
    ASSERT_TRUE(model.Observe(id, nullptr, seen));
    for (int i = 0; i < 3; ++i) vector[i] = seen.apparent[i] * seen.distance;
  }

  CQXSolSys model;
  double sun[3] = {}, moon[3] = {};
  ObservedBody sunSeen, moonSeen;
  LunarEclipseState lunar;
  SolarEclipseState solar;
};

}  // namespace

TEST_F(EclipseTest, TotalLunarEclipseOf20250314) {
  Compute(2025, 3, 14, 6, 58, 42);
  EXPECT_EQ(lunar.kind, LunarEclipse::kTotal);
  EXPECT_NEAR(lunar.umbralMagnitude, 1.1784, 0.004);
  EXPECT_NEAR(lunar.penumbralMagnitude, 2.2595, 0.01);
}

TEST_F(EclipseTest, TotalLunarEclipseOf20260303) {
  Compute(2026, 3, 3, 11, 33, 37);
  EXPECT_EQ(lunar.kind, LunarEclipse::kTotal);
  EXPECT_NEAR(lunar.umbralMagnitude, 1.1507, 0.004);
}

// Contacts: penumbra from 8:44:22, umbra from 9:50:00, total from 11:04:26 to 12:02:45, umbra left at
// 13:17:10.
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
    EXPECT_EQ(lunar.kind, contact.before) << contact.hour << ":" << contact.minute;
    Compute(2026, 3, 3, contact.hour, contact.minute + 1, contact.second);
    EXPECT_EQ(lunar.kind, contact.after) << contact.hour << ":" << contact.minute;
  }
}

TEST_F(EclipseTest, FullMoonOf20260102PassesTheShadowBy) {
  Compute(2026, 1, 3, 10, 3, 0);
  EXPECT_EQ(lunar.kind, LunarEclipse::kNone);
  EXPECT_LT(lunar.umbralMagnitude, 0.0);
}

// 2024 April 8, total in Dallas (32.78 N, 96.80 W) from 18:40:43 to 18:44:34; annular on 2023 October 14 in
// San Antonio.
TEST_F(EclipseTest, SolarEclipsesAsTheyAreSeen) {
  const EarthPlace dallas = At(32.78, -96.80, 130.0);
  Compute(2024, 4, 8, 18, 42, 40, dallas);
  EXPECT_EQ(solar.kind, SolarEclipse::kTotal);
  EXPECT_NEAR(solar.magnitude, 1.056, 0.005);
  Compute(2024, 4, 8, 18, 0, 0, dallas);
  EXPECT_EQ(solar.kind, SolarEclipse::kPartial);
  const EarthPlace sanAntonio = At(29.42, -98.49, 200.0);
  Compute(2023, 10, 14, 16, 54, 0, sanAntonio);
  EXPECT_EQ(solar.kind, SolarEclipse::kAnnular);
  EXPECT_NEAR(solar.magnitude, 0.95, 0.01);
  const EarthPlace sydney = At(-33.9, 151.2, 0.0);
  Compute(2024, 4, 8, 18, 42, 40, sydney);
  EXPECT_EQ(solar.kind, SolarEclipse::kElsewhere);
}

// The foot is perpendicular to the axis; at the Moon the umbra is some 4600 km wide, the penumbra 8200
// (radii).
TEST_F(EclipseTest, ShadowOfTheEarthAtTheMoon) {
  Compute(2025, 3, 14, 6, 58, 42);
  EXPECT_NEAR(Vmod(lunar.shadow.axis, 3), 1.0, 1e-12);
  EXPECT_NEAR(Dot(lunar.shadow.axis, lunar.shadow.foot), 0.0, 1e-12);
  EXPECT_NEAR(lunar.shadow.umbraRadius * kKilometresPerAu, 4600.0, 100.0);
  EXPECT_NEAR(lunar.shadow.penumbraRadius * kKilometresPerAu, 8250.0, 150.0);
}

// By hand: a ball of 0.001 au, 1 au from the Sun (0.00465047 au), whose target stands 0.1 au behind it and
// 0.0005 beside.
TEST(Shadow, RadiiFollowFromTheConesOfTheTangents) {
  const double sunAt[3] = {1.0, 0.0, 0.0}, target[3] = {-0.1, 0.0005, 0.0};
  const Shadow shadow = CastShadow(0.001, sunAt, target);
  EXPECT_EQ(shadow.axis[0], -1.0);
  EXPECT_NEAR(shadow.foot[0], 0.0, 1e-17);
  EXPECT_NEAR(shadow.foot[1], -0.0005, 1e-17);
  EXPECT_NEAR(shadow.umbraRadius, 0.001 - 0.1 * 0.00365047, 1e-9);
  EXPECT_NEAR(shadow.penumbraRadius, 0.001 + 0.1 * 0.00565047, 1e-9);
  // The tip of the umbra lies 0.001 / 0.00365047 = 0.273937 au behind.
  const double tip[3] = {-0.273937, 0.0, 0.0};
  EXPECT_NEAR(CastShadow(0.001, sunAt, tip).umbraRadius, 0.0, 1e-8);
}
