// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter.h"

#include <gtest/gtest.h>

#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

using Painter = Records;

TEST_F(Painter, EmptyListPaintsNothing) { EXPECT_TRUE(Painted(list).IsBlack()); }

TEST_F(Painter, OpacityMixesWithWhatLiesBelow) {
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 20.0f, kBlue, {}, {}});
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 10.0f, {255, 0, 0, 51}, {}, {}});
  const Painted picture(list);
  ExpectNear(picture.At(100, 50), {51, 0, 204});  // a fifth of it
  EXPECT_EQ(picture.At(115, 50), kBluePixel);
}

TEST_F(Painter, TextStandsAtItsAnchor) {
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

TEST_F(Painter, TextStandsOnItsBaselineInItsColour) {
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

TEST_F(Painter, TextsAreLeftOutBelowTheLeastSizeAndNotAtIt) {
  list.AddText(Layer::kLabels, TextRecord{20.0f, 60.0f, 0.0f, 20.0f, 0, 0, 0, kWhite, {}}, "HH");
  paint::PaintScope scope;
  scope.leastText = 20.0f;
  EXPECT_FALSE(Painted(list, scope).IsBlack());
  scope.leastText = 20.5f;
  EXPECT_TRUE(Painted(list, scope).IsBlack());
}

TEST_F(Painter, BoldTextHasMoreInk) {
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

TEST_F(Painter, WhatIsAddedLaterLiesOnTop) {
  list.Add(Layer::kStars, PointRecord{100.0f, 50.0f, 20.0f, kRed, {}, {}});
  AddBox(90, 40, 110, 60);
  list.AddArea(Layer::kGround, PolygonRecord{0, 0, kBlue, {}, 0.0f, {}});
  list.Add(Layer::kMarkers, PointRecord{100.0f, 50.0f, 5.0f, kRed, {}, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), kRedPixel);
  EXPECT_EQ(picture.At(108, 50), kBluePixel);
  EXPECT_EQ(picture.At(115, 50), kRedPixel);
}

TEST_F(Painter, EllipseAfterATextHasNoLineToIt) {
  list.AddText(Layer::kLabels, TextRecord{0.0f, 50.0f, 0.0f, 20.0f, 0, 0, 0, kWhite, {}}, "H");
  EllipseRecord ellipse = {};
  ellipse.x = 150.0f;
  ellipse.y = 50.0f;
  ellipse.semiMajor = ellipse.semiMinor = 20.0f;
  ellipse.width = 4.0f;
  ellipse.colour = kRed;
  list.Add(Layer::kLabels, ellipse);
  const Painted picture(list);
  EXPECT_EQ(picture.At(130, 50), kRedPixel);
  EXPECT_EQ(picture.At(100, 50), kBlack);
  EXPECT_EQ(picture.At(150, 50), kBlack);
}

TEST_F(Painter, NothingIsPaintedBesideTheListWhateverPathTheContextHas) {
  list.Begin(50, 50, 1.0);
  list.Add(Layer::kStars, PointRecord{50.0f, 25.0f, 20.0f, kRed, {}, {}});
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 100, 50);
  cairo_t* context = cairo_create(surface);
  cairo_rectangle(context, 0.0, 0.0, 100.0, 50.0);
  paint::PaintDisplayList(list, context);
  cairo_surface_flush(surface);
  const auto* const row = reinterpret_cast<const std::uint32_t*>(
      cairo_image_surface_get_data(surface) + 25 * cairo_image_surface_get_stride(surface));
  EXPECT_EQ(row[45] & 0xFFFFFF, 0xFF0000u);
  EXPECT_EQ(row[55] & 0xFFFFFF, 0u);
  cairo_destroy(context);
  cairo_surface_destroy(surface);
}

TEST_F(Painter, ContextIsLeftAsItWas) {
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
