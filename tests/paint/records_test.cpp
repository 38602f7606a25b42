// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Each type of record, painted on black. A pixel (x, y) has its middle at (x + 0.5, y + 0.5).
#include "paint/records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "paint/painted.h"

using namespace scene;
using host_test::Painted;
using host_test::Pixel;

namespace {

constexpr Rgba kRed = {255, 0, 0, 255}, kBlue = {0, 0, 255, 255}, kWhite = {255, 255, 255, 255};
constexpr Pixel kBlack = {0, 0, 0}, kRedPixel = {255, 0, 0}, kBluePixel = {0, 0, 255};

class Records : public testing::Test {
 protected:
  Records() { list.Begin(200, 100, 1.0); }
  void AddVertices(std::initializer_list<Vertex> vertices) {
    for (const Vertex& vertex : vertices) list.AddVertex(vertex.x, vertex.y);
  }
  void AddBox(float left, float top, float right, float bottom) {
    AddVertices({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
    list.EndRing();
  }
  void AddLine(std::initializer_list<Vertex> vertices, float width, float dash, const Rgba& colour,
               unsigned flags = 0) {
    AddVertices(vertices);
    list.AddLine(Layer::kFigures, PolylineRecord{0, 0, width, dash, colour, flags, {}});
  }
  // A disc of radius 40 in the middle of the picture.
  void AddDisc(float sunX, float sunY, float cosPhase) {
    list.Add(Layer::kBodies, DiscRecord{100.0f, 50.0f, 40.0f, sunX, sunY, cosPhase, kRed, kBlue, {}, {}});
  }

  DisplayList list;
};

// Half a step for the opacity, half for the colour.
void ExpectNear(const Pixel& pixel, const Pixel& expected, int most = 1) {
  EXPECT_NEAR(pixel.red, expected.red, most);
  EXPECT_NEAR(pixel.green, expected.green, most);
  EXPECT_NEAR(pixel.blue, expected.blue, most);
}

}  // namespace

TEST_F(Records, EmptyListPaintsNothing) { EXPECT_TRUE(Painted(list).IsBlack()); }

TEST_F(Records, PointIsAFilledCircle) {
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 10.0f, {255, 128, 0, 255}, {}, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), (Pixel{255, 128, 0}));
  EXPECT_EQ(picture.At(108, 50), (Pixel{255, 128, 0}));
  EXPECT_EQ(picture.At(112, 50), kBlack);
  EXPECT_EQ(picture.At(106, 56), (Pixel{255, 128, 0}));  // 8.5 from the middle
  EXPECT_EQ(picture.At(108, 58), kBlack);                // 11.3
}

TEST_F(Records, OpacityMixesWithWhatLiesBelow) {
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 20.0f, kBlue, {}, {}});
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 10.0f, {255, 0, 0, 51}, {}, {}});
  const Painted picture(list);
  ExpectNear(picture.At(100, 50), {51, 0, 204});  // a fifth of it
  EXPECT_EQ(picture.At(115, 50), kBluePixel);
}

// White of opacity 1 in the middle, 0.4 at half of the way, nothing at 40 pixels.
TEST_F(Records, GlowFadesFromStopToStopAndLiesBelowItsPoint) {
  const Glow glow = {0.0f, 40.0f, 0.5f, kWhite, {255, 255, 255, 102}};
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 4.0f, kRed, glow, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), kRedPixel);
  EXPECT_NEAR(picture.At(110, 50).red, 178.5, 2.0);
  EXPECT_NEAR(picture.At(120, 50).red, 102.0, 2.0);
  EXPECT_NEAR(picture.At(130, 50).green, 51.0, 2.0);
  EXPECT_NEAR(picture.At(100, 15).green, 25.5, 2.0);
  EXPECT_EQ(picture.At(141, 50), kBlack);
}

TEST_F(Records, GlowIsWholeInsideItsInnerRadius) {
  const Glow glow = {20.0f, 40.0f, 0.5f, kWhite, {255, 255, 255, 102}};
  list.Add(Layer::kStars, PointRecord{100.5f, 50.5f, 2.0f, kRed, glow, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(110, 50), (Pixel{255, 255, 255}));
  EXPECT_NEAR(picture.At(130, 50).red, 102.0, 2.0);
}

TEST_F(Records, HalfMoonIsLitOnTheSideOfTheSun) {
  AddDisc(1.0f, 0.0f, 0.0f);
  const Painted picture(list);
  EXPECT_EQ(picture.At(102, 50), kRedPixel);
  EXPECT_EQ(picture.At(135, 50), kRedPixel);
  EXPECT_EQ(picture.At(97, 50), kBluePixel);
  EXPECT_EQ(picture.At(65, 50), kBluePixel);
  EXPECT_EQ(picture.At(102, 85), kRedPixel);
  EXPECT_EQ(picture.At(97, 15), kBluePixel);
  EXPECT_EQ(picture.At(145, 50), kBlack);
}

TEST_F(Records, SunBelowLightsTheLowerHalf) {
  AddDisc(0.0f, 1.0f, 0.0f);
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 60), kRedPixel);
  EXPECT_EQ(picture.At(100, 40), kBluePixel);
}

// The terminator crosses the middle line at the cosine of the phase angle, on the dark side.
TEST_F(Records, PhaseMovesTheTerminator) {
  AddDisc(1.0f, 0.0f, 0.5f);
  const Painted gibbous(list);
  EXPECT_EQ(gibbous.At(82, 50), kRedPixel);  // it lies at 80
  EXPECT_EQ(gibbous.At(77, 50), kBluePixel);
  list.Begin(200, 100, 1.0);
  AddDisc(1.0f, 0.0f, -0.5f);
  const Painted crescent(list);
  EXPECT_EQ(crescent.At(122, 50), kRedPixel);  // at 120
  EXPECT_EQ(crescent.At(117, 50), kBluePixel);
}

TEST_F(Records, FullDiscIsLitAllOverAndNewOneNowhere) {
  AddDisc(0.6f, 0.8f, 1.0f);
  const Painted full(list);
  list.Begin(200, 100, 1.0);
  AddDisc(0.6f, 0.8f, -1.0f);
  const Painted dark(list);
  for (const int x : {65, 85, 100, 115, 135}) {
    EXPECT_EQ(full.At(x, 50), kRedPixel) << x;
    EXPECT_EQ(dark.At(x, 50), kBluePixel) << x;
  }
}

// A shadow around (60, 50), whole up to 20 pixels, a half at 30, gone at 40, on a disc around (80, 50).
TEST_F(Records, ShadowFallsOnItsDiscAlone) {
  list.Add(Layer::kBodies, PointRecord{100.0f, 50.0f, 100.0f, kWhite, {}, {}});
  list.Add(Layer::kBodies, ShadowRecord{60.5f,
                                        50.5f,
                                        20.0f,
                                        40.0f,
                                        0.5f,
                                        80.0f,
                                        50.0f,
                                        30.0f,
                                        {0, 0, 0, 255},
                                        {0, 0, 0, 128},
                                        {0, 0, 0, 0},
                                        {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(45, 50), (Pixel{255, 255, 255})) << "in the shadow, beside the disc";
  EXPECT_EQ(picture.At(55, 50), kBlack);
  EXPECT_EQ(picture.At(75, 50), kBlack);
  EXPECT_NEAR(picture.At(90, 50).red, 127.0, 2.0);
  EXPECT_NEAR(picture.At(95, 50).red, 191.0, 2.0);
  EXPECT_EQ(picture.At(105, 50), (Pixel{255, 255, 255})) << "on the disc, beside the shadow";
}

TEST_F(Records, LineHasItsWidth) {
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

TEST_F(Records, DashesAndGapsAreEquallyLong) {
  AddLine({{20, 50}, {180, 50}}, 4.0f, 10.0f, kRed);
  const Painted picture(list);
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(picture.At(25 + 10 * i, 50), i % 2 == 0 ? kRedPixel : kBlack) << i;
  }
}

TEST_F(Records, DashesOfOneLineDoNotDashTheNext) {
  AddLine({{20, 30}, {180, 30}}, 4.0f, 10.0f, kRed);
  AddLine({{20, 70}, {180, 70}}, 4.0f, 0.0f, kRed);
  const Painted picture(list);
  EXPECT_EQ(picture.At(35, 30), kBlack);
  EXPECT_EQ(picture.At(35, 70), kRedPixel);
}

TEST_F(Records, ClosedLineReturnsToItsBeginning) {
  AddLine({{50, 20}, {150, 20}, {150, 80}, {50, 80}}, 4.0f, 0.0f, kRed, kClosedLine);
  AddLine({{60, 30}, {140, 30}, {140, 70}, {60, 70}}, 4.0f, 0.0f, kRed);
  const Painted picture(list);
  EXPECT_EQ(picture.At(50, 50), kRedPixel);
  EXPECT_EQ(picture.At(60, 50), kBlack) << "the open one has no fourth side";
  EXPECT_EQ(picture.At(100, 50), kBlack) << "and neither is filled";
}

TEST_F(Records, RoundCapsReachBeyondTheEnds) {
  AddLine({{50, 50}, {150, 50}}, 20.0f, 0.0f, kRed, kRoundCaps);
  const Painted picture(list);
  EXPECT_EQ(picture.At(43, 50), kRedPixel);
  EXPECT_EQ(picture.At(41, 41), kBlack) << "the corner is round";
  EXPECT_EQ(picture.At(38, 50), kBlack);
}

TEST_F(Records, RoundJoinsHaveNoCorner) {
  AddLine({{50, 80}, {100, 30}, {150, 80}}, 20.0f, 0.0f, kRed);
  EXPECT_EQ(Painted(list).At(100, 17), kRedPixel);  // a mitre of 10 * sqrt(2) = 14.1 pixels
  list.Begin(200, 100, 1.0);
  AddLine({{50, 80}, {100, 30}, {150, 80}}, 20.0f, 0.0f, kRed, kRoundJoins);
  EXPECT_EQ(Painted(list).At(100, 17), kBlack);
  EXPECT_EQ(Painted(list).At(100, 21), kRedPixel);  // 10 pixels
}

TEST_F(Records, NeighboursOfOneStyleDoNotDarkenWhereTheyCross) {
  const Rgba faint = {255, 0, 0, 102};
  AddLine({{20, 50}, {180, 50}}, 8.0f, 0.0f, faint);
  AddLine({{100, 10}, {100, 90}}, 8.0f, 0.0f, faint);
  const Painted picture(list);
  ExpectNear(picture.At(50, 50), {102, 0, 0});
  EXPECT_EQ(picture.At(100, 50), picture.At(50, 50));
  EXPECT_EQ(picture.At(100, 20), picture.At(50, 50));
}

TEST_F(Records, NeighboursOfOneStyleMayBelongToDifferentObjects) {
  const Rgba faint = {255, 0, 0, 102};
  for (const int number : {1, 2}) {
    AddVertices({{20, 50}, {180, 50}});
    list.AddLine(Layer::kFigures, PolylineRecord{0, 0, 8.0f, 0.0f, faint, 0, {7, number}});
  }
  ExpectNear(Painted(list).At(100, 50), {102, 0, 0});
}

// 0.4 on 0.4 is 0.64.
TEST_F(Records, NeighboursOfDifferentStyleLieOnEachOther) {
  AddLine({{20, 50}, {180, 50}}, 8.0f, 0.0f, {255, 0, 0, 102});
  AddLine({{100, 10}, {100, 90}}, 9.0f, 0.0f, {255, 0, 0, 102});
  ExpectNear(Painted(list).At(100, 50), {163, 0, 0}, 2);
}

TEST_F(Records, EllipseIsAnOutlineOfOneWidth) {
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 80.0f, 30.0f, 0.0f, 4.0f, 0.0f, kRed, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(179, 50), kRedPixel);
  EXPECT_EQ(picture.At(20, 49), kRedPixel);
  EXPECT_EQ(picture.At(100, 79), kRedPixel);
  EXPECT_EQ(picture.At(100, 18), kRedPixel);
  EXPECT_EQ(picture.At(100, 83), kBlack);
  EXPECT_EQ(picture.At(175, 50), kBlack);
  EXPECT_EQ(picture.At(100, 50), kBlack) << "it is not filled";
}

TEST_F(Records, EllipseTurnsFromTheXAxisTowardsTheYAxis) {
  const float turn = static_cast<float>(std::numbers::pi / 4.0);
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 40.0f, 10.0f, turn, 4.0f, 0.0f, kRed, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(128, 78), kRedPixel);  // 40 pixels to the right and down
  EXPECT_EQ(picture.At(71, 21), kRedPixel);
  EXPECT_EQ(picture.At(128, 21), kBlack);
}

// A circle of 32 pixels: an eighth of a turn is 25.13 pixels. The first dash begins on the right and goes
// down.
TEST_F(Records, EllipseIsDashed) {
  const float dash = static_cast<float>(8.0 * std::numbers::pi);
  list.Add(Layer::kDeepsky, EllipseRecord{100.0f, 50.0f, 32.0f, 32.0f, 0.0f, 4.0f, dash, kRed, {}});
  const Painted picture(list);
  for (int i = 0; i < 8; ++i) {
    const double angle = (i + 0.5) * std::numbers::pi / 4.0;
    const int x = static_cast<int>(std::floor(100.0 + 32.0 * std::cos(angle)));
    const int y = static_cast<int>(std::floor(50.0 + 32.0 * std::sin(angle)));
    EXPECT_EQ(picture.At(x, y), i % 2 == 0 ? kRedPixel : kBlack) << i;
  }
}

TEST_F(Records, AreaHasAHoleWhereItsRingsLieInEachOther) {
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

TEST_F(Records, NextAreaIsFilledOnItsOwn) {
  for (int i = 0; i < 2; ++i) {
    AddBox(20, 10, 180, 90);
    list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
  }
  EXPECT_EQ(Painted(list).At(100, 50), kRedPixel);
}

// With a softness of 2 the strokes are 9, 21, 36 and 56 pixels wide, and the half of each lies outside: 4.5,
// 10.5, 18 and 28 pixels. Each has an opacity of 0.2: 1 - 0.8 ^ n where n of them lie.
TEST_F(Records, SoftEdgeFadesOutwards) {
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

TEST_F(Records, SoftEdgeLiesInTheHoleToo) {
  AddBox(-100, -100, 300, 200);
  AddBox(40, -50, 160, 150);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{0, 0, kBlue, {255, 0, 0, 51}, 2.0f, {}});
  const Painted picture(list);
  ExpectNear(picture.At(63, 50), {51, 0, 0});
  EXPECT_EQ(picture.At(100, 50), kBlack);
  EXPECT_EQ(picture.At(30, 50), kBluePixel);
}

TEST_F(Records, GradientHasItsColoursAtItsStopsAndEndsAtItsCorners) {
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

TEST_F(Records, GradientGoesOnBeyondItsEnds) {
  list.Add(Layer::kBackground,
           GradientRecord{
               {0, 200, 200, 0}, {0, 0, 100, 100}, 80, 0, 120, 0, 0.5f, kRed, {0, 255, 0, 255}, kBlue, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(20, 50), kRedPixel);
  EXPECT_EQ(picture.At(180, 50), kBluePixel);
}

TEST_F(Records, TextStandsAtItsAnchor) {
  const auto paint = [this](float anchor) {
    list.Begin(200, 100, 1.0);
    list.AddText(Layer::kLabels, TextRecord{100.0f, 60.0f, anchor, 20.0f, 0, 0, 0, kWhite, {}}, "HHHH");
    return std::pair(Painted(list).GetFirstColumn(), Painted(list).GetLastColumn());
  };
  const auto [startLeft, startRight] = paint(0.0f);
  const auto [middleLeft, middleRight] = paint(0.5f);
  const auto [endLeft, endRight] = paint(1.0f);
  EXPECT_GE(startLeft, 100);
  EXPECT_LE(startLeft, 104) << "but for the room beside the letter";
  EXPECT_GT(startRight, 130);
  EXPECT_LT(endRight, 100);
  EXPECT_GE(endRight, 95);
  EXPECT_NEAR(middleLeft + middleRight, 199, 3);
  EXPECT_NEAR(startRight - startLeft, endRight - endLeft, 1);
}

TEST_F(Records, TextStandsOnItsBaselineInItsColour) {
  list.AddText(Layer::kLabels, TextRecord{20.0f, 60.0f, 0.0f, 40.0f, 0, 0, 0, kRed, {}}, "HH");
  const Painted picture(list);
  bool above = false;
  for (int x = 0; x < 200; ++x) {
    above = above || picture.At(x, 57) == kRedPixel;
    EXPECT_EQ(picture.At(x, 62), kBlack);
    EXPECT_EQ(picture.At(x, 19), kBlack);
  }
  EXPECT_TRUE(above);
}

TEST_F(Records, BoldTextHasMoreInk) {
  const auto ink = [this](unsigned style) {
    list.Begin(200, 100, 1.0);
    list.AddText(Layer::kLabels, TextRecord{20.0f, 60.0f, 0.0f, 30.0f, 0, 0, style, kWhite, {}}, "HIH");
    const Painted picture(list);
    long sum = 0;
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 200; ++x) sum += picture.At(x, y).red;
    }
    return sum;
  };
  EXPECT_GT(ink(kBoldText), ink(0) * 11 / 10);
  EXPECT_NE(ink(kItalicText), ink(0));
}

TEST_F(Records, WhatIsAddedLaterLiesOnTop) {
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 20.0f, kRed, {}, {}});
  AddBox(90, 40, 110, 60);
  list.AddArea(Layer::kGround, PolygonRecord{0, 0, kBlue, {}, 0.0f, {}});
  list.Add(Layer::kMarkers, PointRecord{100.0f, 50.0f, 5.0f, kRed, {}, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), kRedPixel);
  EXPECT_EQ(picture.At(108, 50), kBluePixel);
  EXPECT_EQ(picture.At(115, 50), kRedPixel);
}

TEST_F(Records, ContextIsLeftAsItWas) {
  AddLine({{20, 50}, {180, 50}}, 4.0f, 10.0f, kRed, kRoundCaps);
  AddBox(0, 0, 50, 50);
  list.AddArea(Layer::kMilkyWay, PolygonRecord{0, 0, kRed, kRed, 2.0f, {}});
  list.Begin(50, 50, 1.0);
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 200, 100);
  cairo_t* context = cairo_create(surface);
  cairo_set_line_width(context, 17.0);
  paint::PaintDisplayList(list, context);
  double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
  cairo_clip_extents(context, &left, &top, &right, &bottom);
  EXPECT_EQ(right, 200.0) << "the clip to the list is gone";
  EXPECT_EQ(cairo_get_line_width(context), 17.0);
  EXPECT_EQ(cairo_get_fill_rule(context), CAIRO_FILL_RULE_WINDING);
  EXPECT_EQ(cairo_status(context), CAIRO_STATUS_SUCCESS);
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}
