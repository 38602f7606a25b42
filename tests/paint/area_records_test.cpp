// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cairo.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <utility>

#include "paint/painter.h"
#include "paint/picture_file.h"
#include "paint/record_fixture.h"

using namespace scene;
using namespace host_test;

using AreaRecords = Records;

namespace {

void ExpectSamePixels(cairo_surface_t* surface, const Painted& wanted, int number) {
  cairo_surface_flush(surface);
  for (int y = 0; y < 100; ++y) {
    const unsigned char* const row =
        cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
    for (int x = 0; x < 200; ++x) {
      std::uint32_t pixel;
      std::memcpy(&pixel, row + 4 * x, sizeof pixel);
      const Pixel is = {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
                        static_cast<int>(pixel & 0xFF)};
      ASSERT_EQ(is, wanted.At(x, y)) << "ring " << number << ", pixel " << x << " " << y;
    }
  }
}

}  // namespace

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

// A surface that keeps what is painted as paths, painted in turn. Rings of which most lies outside, on every
// side, some of them round the whole picture.
TEST_F(AreaRecords, PathsWithoutUnseenVerticesEncloseTheSameInThePicture) {
  std::mt19937 random(20260115);
  const auto pick = [&random](int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
  };
  for (int i = 0; i < 200; ++i) {
    list.Begin(200, 100, 1.0);
    for (int left = pick(3, 60); left > 0; --left) {
      const int reach = pick(0, 2) == 0 ? 20 : 900;
      list.AddVertex(pick(-reach, 200 + reach), pick(-reach, 100 + reach));
    }
    list.EndRing();
    list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
    cairo_surface_t* const paths = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr);
    cairo_t* const context = cairo_create(paths);
    paint::PaintDisplayList(list, context);
    cairo_destroy(context);
    cairo_surface_t* const again = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 200, 100);
    cairo_t* const image = cairo_create(again);
    cairo_set_source_surface(image, paths, 0, 0);
    cairo_paint(image);
    cairo_destroy(image);
    ExpectSamePixels(again, Painted(list), i);
    cairo_surface_destroy(again);
    cairo_surface_destroy(paths);
  }
}

TEST_F(AreaRecords, SvgHasNoVerticesFarOutside) {
  const auto makeSvg = [this](int unseen) {
    list.Begin(200, 100, 1.0);
    for (const auto& [x, y] : {std::pair{-500, 50}, std::pair{100, 20}, std::pair{100, 80}})
      list.AddVertex(x, y);
    for (int i = 0; i < unseen; ++i) list.AddVertex(-400.0 - i % 7, 80.0 - 0.01 * i);
    list.EndRing();
    list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
    std::string bytes, error;
    EXPECT_TRUE(paint::MakeSvg(list, bytes, error)) << error;
    return bytes;
  };
  EXPECT_LT(makeSvg(3000).size(), makeSvg(3).size() + 100);
}

TEST_F(AreaRecords, RingWithoutVerticesIsNothingInAFile) {
  list.EndRing();
  list.AddArea(Layer::kGround, PolygonRecord{0, 0, kRed, {}, 0.0f, {}});
  std::string bytes, error;
  ASSERT_TRUE(paint::MakeSvg(list, bytes, error)) << error;
  EXPECT_EQ(bytes.find("<path"), bytes.npos);
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

// Where the middle one stands at an end, the first or the last colour lies beyond it only.
TEST_F(AreaRecords, GradientMayHaveItsMiddleColourAtAnEnd) {
  const auto paint = [this](float middle) {
    list.Begin(200, 100, 1.0);
    list.Add(
        Layer::kBackground,
        GradientRecord{
            {0, 200, 200, 0}, {0, 0, 100, 100}, 50, 0, 150, 0, middle, kRed, {0, 255, 0, 255}, kBlue, {}});
    return std::pair(Painted(list).At(52, 50), Painted(list).At(147, 50));
  };
  const auto [startAtStart, endAtStart] = paint(0.0f);
  ExpectNear(startAtStart, {0, 249, 6}, 3);
  ExpectNear(endAtStart, {0, 6, 249}, 3);
  const auto [startAtEnd, endAtEnd] = paint(1.0f);
  ExpectNear(startAtEnd, {249, 6, 0}, 3);
  ExpectNear(endAtEnd, {6, 249, 0}, 3);
}

TEST_F(AreaRecords, GradientGoesOnBeyondItsEnds) {
  list.Add(Layer::kBackground,
           GradientRecord{
               {0, 200, 200, 0}, {0, 0, 100, 100}, 80, 0, 120, 0, 0.5f, kRed, {0, 255, 0, 255}, kBlue, {}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(20, 50), kRedPixel);
  EXPECT_EQ(picture.At(180, 50), kBluePixel);
}
