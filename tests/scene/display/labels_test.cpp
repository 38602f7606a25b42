// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/labels.h"

#include <gtest/gtest.h>

#include "utils/text.h"

using namespace scene;

class LabelPlacing : public testing::Test {
 protected:
  LabelPlacing() { placer.Begin(400, 300); }
  LabelPlacer placer;
};

TEST_F(LabelPlacing, FirstChoiceIsRightOfTheObject) {
  ASSERT_EQ(placer.PlaceBeside("Vega", {200, 150}, 4.0, 12.0, LabelKind::kStarName), 0);
  const Label& label = placer.GetLabels()[0];
  EXPECT_GT(label.place.x, 204.0);
  EXPECT_EQ(label.anchor, 0.0);
}

TEST_F(LabelPlacing, AtTheRightEdgeItGoesToTheLeft) {
  ASSERT_EQ(placer.PlaceBeside("Betelgeuse", {390, 150}, 4.0, 12.0, LabelKind::kStarName), 0);
  EXPECT_LT(placer.GetLabels()[0].place.x, 386.0);
  EXPECT_EQ(placer.GetLabels()[0].anchor, 1.0);
}

TEST_F(LabelPlacing, FourFitAroundOnePointAndTheFifthIsLeftOut) {
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(placer.PlaceBeside("name", {200, 150}, 4.0, 12.0, LabelKind::kStarName), i);
  EXPECT_EQ(placer.PlaceBeside("name", {200, 150}, 4.0, 12.0, LabelKind::kStarName), -1);
}

TEST_F(LabelPlacing, ReservedPlacesStayFree) {
  placer.Reserve({200, 150}, 100.0, 100.0);
  EXPECT_EQ(placer.PlaceCentred("Orion", {200, 150}, 12.0, LabelKind::kConstellation), -1);
  EXPECT_EQ(placer.PlaceBeside("Rigel", {210, 160}, 4.0, 12.0, LabelKind::kStarName), -1);
}

TEST_F(LabelPlacing, NearAPointIsTheFirstRingWithRoom) {
  placer.Reserve({200, 150}, 15.0, 15.0);
  EXPECT_EQ(placer.PlaceNear("Orion", {200, 150}, 12.0, LabelKind::kConstellation, {}, 1), -1);
  ASSERT_EQ(placer.PlaceNear("Orion", {200, 150}, 12.0, LabelKind::kConstellation, {}, 2), 0);
  EXPECT_EQ(placer.GetLabels()[0].place.x, 200.0);
  EXPECT_LT(placer.GetLabels()[0].place.y, 135.0);
}

TEST_F(LabelPlacing, EmptyTextAndPointsOutsideGetNoLabel) {
  EXPECT_EQ(placer.PlaceBeside("", {200, 150}, 4.0, 12.0, LabelKind::kStarName), -1);
  EXPECT_EQ(placer.PlaceBeside("Vega", {-100, 150}, 4.0, 12.0, LabelKind::kStarName), -1);
  EXPECT_EQ(placer.PlaceCentred("Lyra", {200, 1000}, 12.0, LabelKind::kConstellation), -1);
}

TEST_F(LabelPlacing, BeginForgetsEverything) {
  placer.Reserve({200, 150}, 100.0, 100.0);
  placer.Begin(400, 300);
  EXPECT_EQ(placer.PlaceCentred("Orion", {200, 150}, 12.0, LabelKind::kConstellation), 0);
}

TEST(LabelKinds, FollowTheClassOfTheObject) {
  EXPECT_EQ(LabelKindOfDeepsky(FourCC("gala")), LabelKind::kGalaxy);
  EXPECT_EQ(LabelKindOfDeepsky(FourCC("clst")), LabelKind::kCluster);
  EXPECT_EQ(LabelKindOfDeepsky(FourCC("nebu")), LabelKind::kNebula);
  EXPECT_EQ(LabelKindOfDeepsky(FourCC("dsnv")), LabelKind::kOtherDeepsky);
}
