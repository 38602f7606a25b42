// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

using LineRecords = Records;

TEST_F(LineRecords, LineHasItsWidth) {
  AddLine({{20, 50}, {180, 50}}, 6.0f, 0.0f, kRed);
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 47), kRedPixel);
  EXPECT_EQ(picture.At(100, 52), kRedPixel);
  EXPECT_EQ(picture.At(100, 46), kBlack);
  EXPECT_EQ(picture.At(100, 53), kBlack);
  EXPECT_EQ(picture.At(20, 50), kRedPixel);
  EXPECT_EQ(picture.At(19, 50), kBlack) << "it ends at its vertex";
  EXPECT_EQ(picture.At(180, 50), kBlack);
}

TEST_F(LineRecords, DashesAndGapsAreEquallyLong) {
  AddLine({{20, 50}, {180, 50}}, 4.0f, 10.0f, kRed);
  const Painted picture(list);
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(picture.At(25 + 10 * i, 50), i % 2 == 0 ? kRedPixel : kBlack) << i;
  }
}

TEST_F(LineRecords, DashesOfOneLineDoNotDashTheNext) {
  AddLine({{20, 30}, {180, 30}}, 4.0f, 10.0f, kRed);
  AddLine({{20, 70}, {180, 70}}, 4.0f, 0.0f, kRed);
  const Painted picture(list);
  EXPECT_EQ(picture.At(35, 30), kBlack);
  EXPECT_EQ(picture.At(35, 70), kRedPixel);
}

TEST_F(LineRecords, ClosedLineReturnsToItsBeginning) {
  AddLine({{50, 20}, {150, 20}, {150, 80}, {50, 80}}, 4.0f, 0.0f, kRed, kClosedLine);
  AddLine({{60, 30}, {140, 30}, {140, 70}, {60, 70}}, 4.0f, 0.0f, kRed);
  const Painted picture(list);
  EXPECT_EQ(picture.At(50, 50), kRedPixel);
  EXPECT_EQ(picture.At(60, 50), kBlack) << "the open one has no fourth side";
  EXPECT_EQ(picture.At(100, 50), kBlack) << "and neither is filled";
}

TEST_F(LineRecords, RoundCapsReachBeyondTheEnds) {
  AddLine({{50, 50}, {150, 50}}, 20.0f, 0.0f, kRed, kRoundCaps);
  const Painted picture(list);
  EXPECT_EQ(picture.At(43, 50), kRedPixel);
  EXPECT_EQ(picture.At(41, 41), kBlack) << "the corner is round";
  EXPECT_EQ(picture.At(38, 50), kBlack);
}

TEST_F(LineRecords, RoundJoinsHaveNoCorner) {
  AddLine({{50, 80}, {100, 30}, {150, 80}}, 20.0f, 0.0f, kRed);
  EXPECT_EQ(Painted(list).At(100, 17), kRedPixel);  // a mitre of 10 * sqrt(2) = 14.1 pixels
  list.Begin(200, 100, 1.0);
  AddLine({{50, 80}, {100, 30}, {150, 80}}, 20.0f, 0.0f, kRed, kRoundJoins);
  EXPECT_EQ(Painted(list).At(100, 17), kBlack);
  EXPECT_EQ(Painted(list).At(100, 21), kRedPixel);  // 10 pixels
}

TEST_F(LineRecords, NeighboursOfOneStyleDoNotDarkenWhereTheyCross) {
  const Rgba faint = {255, 0, 0, 102};
  AddLine({{20, 50}, {180, 50}}, 8.0f, 0.0f, faint);
  AddLine({{100, 10}, {100, 90}}, 8.0f, 0.0f, faint);
  const Painted picture(list);
  ExpectNear(picture.At(50, 50), {102, 0, 0});
  EXPECT_EQ(picture.At(100, 50), picture.At(50, 50));
  EXPECT_EQ(picture.At(100, 20), picture.At(50, 50));
}

TEST_F(LineRecords, NeighboursOfOneStyleMayBelongToDifferentObjects) {
  const Rgba faint = {255, 0, 0, 102};
  for (const int number : {1, 2}) {
    AddVertices({{20, 50}, {180, 50}});
    list.AddLine(Layer::kFigures, PolylineRecord{0, 0, 8.0f, 0.0f, faint, 0, {7, number}});
  }
  ExpectNear(Painted(list).At(100, 50), {102, 0, 0});
}

// 0.4 on 0.4 is 0.64.
TEST_F(LineRecords, NeighboursOfDifferentStyleLieOnEachOther) {
  AddLine({{20, 50}, {180, 50}}, 8.0f, 0.0f, {255, 0, 0, 102});
  AddLine({{100, 10}, {100, 90}}, 9.0f, 0.0f, {255, 0, 0, 102});
  ExpectNear(Painted(list).At(100, 50), {163, 0, 0}, 2);
}
