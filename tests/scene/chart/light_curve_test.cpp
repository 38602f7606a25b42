// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/light_curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace scene;

TEST(LightCurve, StarsAreFoundByIdentifierAndName) {
  for (const char* name :
       {"Algol", "algol", "0x48780B23", "0X48780b23", "1215826723", "beta Per", "β Per", "bet Per"}) {
    const VariableStar* star = FindVariableStar(name);
    ASSERT_NE(star, nullptr) << name;
    EXPECT_EQ(star->id, 0x48780B23u) << name;
  }
  EXPECT_EQ(FindVariableStar("Mira")->id, 0x44781255u);
  EXPECT_EQ(FindVariableStar("delta Cephei")->id, 0x45C70F9Bu);
  EXPECT_EQ(FindVariableStar("S And")->id, 0x46FA33D6u);
  for (const char* name : {"", "Sirius", "0x", "0x48780B2", "99999999999", "-1", "Algo"}) {
    EXPECT_EQ(FindVariableStar(name), nullptr) << name;
  }
  EXPECT_EQ(ListVariableStars().size(), 15u);
}

TEST(LightCurve, PeriodicStarShowsTwoPeriodsAroundTheDate) {
  const LightCurve curve = MakeLightCurve(*FindVariableStar("delta Cephei"), 2461056.5);
  EXPECT_NEAR(curve.first, 2461056.5 - 5.36634, 1e-6);
  EXPECT_NEAR(curve.last, 2461056.5 + 5.36634, 1e-6);
  double least = 99.0, most = -99.0;
  for (const auto& point : curve.points) {
    least = std::min(least, point.y);
    most = std::max(most, point.y);
  }
  EXPECT_NEAR(least, 3.48, 1e-3);
  EXPECT_NEAR(most, 4.48, 1e-3);
  EXPECT_LT(curve.brightest, least);
  EXPECT_GT(curve.faintest, most);
}

TEST(LightCurve, OutburstsAreShownWhole) {
  for (const char* name :
       {"T CrB", "V603 Aql", "SN 1054", "SN 1006", "SN 1572", "SN 1604", "S And", "SN 1987A", "V1500 Cyg"}) {
    const LightCurve curve = MakeLightCurve(*FindVariableStar(name), 2432000.5);
    const auto [least, most] = std::minmax_element(curve.points.begin(), curve.points.end(),
                                                   [](const auto& a, const auto& b) { return a.y < b.y; });
    EXPECT_GT(most->y - least->y, 8.0) << name;
    EXPECT_DOUBLE_EQ(curve.points.front().y, curve.points.back().y) << name << " is quiet before and after";
  }
  // The next outburst of the recurrent nova, one cycle after that of 1946.
  EXPECT_DOUBLE_EQ(MakeLightCurve(*FindVariableStar("T CrB"), 2461056.5).first, 2431850.5 + 29000.0);
}

TEST(LightCurve, TicksAreRound) {
  EXPECT_DOUBLE_EQ(ChooseTick(10.7, 8), 2.0);
  EXPECT_DOUBLE_EQ(ChooseTick(1.5, 8), 0.2);
  EXPECT_DOUBLE_EQ(ChooseTick(340.0, 8), 50.0);
  EXPECT_DOUBLE_EQ(ChooseTick(8.0, 8), 1.0);
}
