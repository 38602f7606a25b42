// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

using AreaRecords = Records;

TEST_F(AreaRecords, AreaHasAHoleWhereItsRingsLieInEachOther) {
  AddBox(20, 10, 180, 90);
  AddBox(60, 30, 140, 70);
  AddBox(90, 40, 110, 60);
  list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(40, 50), kRedPixel);
  EXPECT_EQ(picture.At(70, 50), kBlack);
  EXPECT_EQ(picture.At(100, 50), kRedPixel) << "an island in the hole";
  EXPECT_EQ(picture.At(10, 50), kBlack);
}

TEST_F(AreaRecords, NextAreaIsFilledOnItsOwn) {
  for (int i = 0; i < 2; ++i) {
    AddBox(20, 10, 180, 90);
    list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
  }
  EXPECT_EQ(Painted(list).At(100, 50), kRedPixel);
}

// With a softness of 2 the strokes are 9, 21, 36 and 56 pixels wide, and the half of each lies outside: 4.5,
// 10.5, 18 and 28 pixels. Each has an opacity of 0.2: 1 - 0.8 ^ n where n of them lie.
TEST_F(AreaRecords, SoftEdgeFadesOutwards) {
  AddBox(0, -100, 100, 200);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{0, 0, {255, 0, 0, 128}, {255, 0, 0, 51}, 2.0f, {}});
  const Painted picture(list);
  ExpectNear(picture.At(98, 50), {128, 0, 0});
  EXPECT_EQ(picture.At(50, 50), picture.At(98, 50)) << "the edge does not reach inwards";
  ExpectNear(picture.At(102, 50), {151, 0, 0}, 3);  // 255 * 0.5904
  ExpectNear(picture.At(107, 50), {124, 0, 0}, 3);  // 255 * 0.488
  ExpectNear(picture.At(114, 50), {92, 0, 0}, 2);   // 255 * 0.36
  ExpectNear(picture.At(123, 50), {51, 0, 0});
  EXPECT_EQ(picture.At(129, 50), kBlack);
}

TEST_F(AreaRecords, SoftEdgeLiesInTheHoleToo) {
  AddBox(-100, -100, 300, 200);
  AddBox(40, -50, 160, 150);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{0, 0, kBlue, {255, 0, 0, 51}, 2.0f, {}});
  const Painted picture(list);
  ExpectNear(picture.At(63, 50), {51, 0, 0});
  EXPECT_EQ(picture.At(100, 50), kBlack);
  EXPECT_EQ(picture.At(30, 50), kBluePixel);
}

TEST_F(AreaRecords, GradientHasItsColoursAtItsStopsAndEndsAtItsCorners) {
  list.Add(Layer::kBackground,
           GradientRecord{
               {20, 180, 180, 20}, {0, 0, 100, 100}, 0, 0, 0, 100, 0.25f, kRed, {0, 255, 0, 255}, kBlue, {}});
  const Painted picture(list);
  ExpectNear(picture.At(100, 0), {250, 5, 0}, 2);     // 0.02 of the way to the middle one
  ExpectNear(picture.At(100, 12), {127, 127, 0}, 3);  // a half
  ExpectNear(picture.At(100, 25), {0, 253, 2}, 3);
  ExpectNear(picture.At(100, 62), {0, 127, 128}, 3);
  ExpectNear(picture.At(100, 99), {0, 2, 253}, 2);
  EXPECT_EQ(picture.At(10, 50), kBlack);
  EXPECT_EQ(picture.At(190, 50), kBlack);
}

TEST_F(AreaRecords, GradientGoesOnBeyondItsEnds) {
  list.Add(Layer::kBackground,
           GradientRecord{
               {0, 200, 200, 0}, {0, 0, 100, 100}, 80, 0, 120, 0, 0.5f, kRed, {0, 255, 0, 255}, kBlue, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(20, 50), kRedPixel);
  EXPECT_EQ(picture.At(180, 50), kBluePixel);
}
