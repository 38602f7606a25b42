// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/star_trails.h"

#include <gtest/gtest.h>

#include <tuple>

#include "paint/painted.h"
#include "support/temp_dir.h"

using namespace scene;
using host_test::Painted;
using host_test::Pixel;

namespace {

constexpr Rgba kWhite = {255, 255, 255, 255}, kGrey = {100, 100, 100, 255}, kGreen = {0, 90, 0, 255};
constexpr int kStar = 0x73746172;  // "star"

class StarTrailsTest : public testing::Test {
 protected:
  // A sky of 200 x 100 pixels of that brightness; Add closes it with its ground.
  void Begin(unsigned char sky, ChartStyle style = ChartStyle::kScreen) {
    list.Begin(200, 100, 1.0);
    list.SetStyle(style);
    AddBox(0.0, 100.0, {sky, sky, sky, 255}, Layer::kBackground);
  }
  void AddStar(int number, double x, double y, const Rgba& colour = kWhite, int kind = kStar,
               Layer layer = Layer::kStars) {
    PointRecord point = {};
    point.x = static_cast<float>(x);
    point.y = static_cast<float>(y);
    point.radius = 2.0f;
    point.colour = colour;
    point.object = {kind, number};
    list.Add(layer, point);
  }
  void AddBox(double top, double bottom, const Rgba& colour, Layer layer) {
    list.AddVertex(0.0, top);
    list.AddVertex(200.0, top);
    list.AddVertex(200.0, bottom);
    list.AddVertex(0.0, bottom);
    PolygonRecord area = {};
    area.colour = colour;
    list.AddArea(layer, area);
  }
  void Add() { ASSERT_TRUE(trails.Add(list, error)) << error; }
  std::string Write() {
    EXPECT_TRUE(trails.Write(dir.Path("trails.png"), error)) << error;
    return dir.Read("trails.png");
  }

  DisplayList list;
  paint::StarTrails trails{200, 100};
  test_support::TempDir dir;
  std::string error;
};

}  // namespace

TEST_F(StarTrailsTest, StarLeavesATrailFromFrameToFrame) {
  for (const double x : {50.0, 80.0, 110.0}) {
    Begin(0);
    AddStar(1, x, 40.0);
    Add();
  }
  const Painted picture(Write());
  for (const int x : {50, 65, 80, 95, 109}) EXPECT_EQ(picture.At(x, 40), (Pixel{255, 255, 255})) << x;
  EXPECT_EQ(picture.At(46, 40), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(114, 40), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(65, 36), (Pixel{0, 0, 0})) << "as wide as the star";
}

// The brightest light of all frames stays, of the sky too.
TEST_F(StarTrailsTest, BrightestPixelWins) {
  for (const unsigned char sky : std::initializer_list<unsigned char>{10, 60, 20}) {
    Begin(sky);
    AddStar(1, 100.0, 50.0, sky == 60 ? kGrey : kWhite);
    Add();
  }
  const Painted picture(Write());
  EXPECT_EQ(picture.At(10, 10), (Pixel{60, 60, 60}));
  EXPECT_EQ(picture.At(100, 50), (Pixel{255, 255, 255}));
}

// Where a pale trail lies on itself it grows no brighter: half of white on black is 127.
TEST_F(StarTrailsTest, PaleTrailsDoNotAddUp) {
  for (int i = 0; i < 6; ++i) {
    Begin(0);
    AddStar(1, 100.0 + i % 2, 50.0, {255, 255, 255, 127});
    Add();
  }
  EXPECT_EQ(Painted(Write()).At(100, 50), (Pixel{127, 127, 127}));
}

// On black, 100 / 255 of it; and on paper, where ink is black: 255 - 100.
TEST_F(StarTrailsTest, PaleTrailsHaveTheColourThatIsSeen) {
  for (const auto& [style, sky, seen] : {std::tuple(ChartStyle::kScreen, 0, Pixel{39, 78, 19}),
                                         {ChartStyle::kPrint, 255, Pixel{155, 155, 155}}}) {
    paint::StarTrails pale(200, 100);
    for (const double x : {50.0, 80.0}) {
      Begin(static_cast<unsigned char>(sky), style);
      AddStar(1, x, 40.0, {100, 200, 50, 100});
      ASSERT_TRUE(pale.Add(list, error)) << error;
    }
    ASSERT_TRUE(pale.Write(dir.Path("pale.png"), error)) << error;
    EXPECT_EQ(Painted(dir.Read("pale.png")).At(65, 40), seen);
  }
}

TEST_F(StarTrailsTest, OneFrameIsThePictureOfItsLights) {
  Begin(30);
  AddStar(1, 1.0, 1.0);
  AddStar(2, 100.3, 50.7);
  Add();
  const Painted picture(Write()), painted(list);
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) ASSERT_EQ(picture.At(x, y), painted.At(x, y)) << x << " " << y;
  }
}

// No drawing library scales by 0.
TEST_F(StarTrailsTest, FrameThatCannotBeDrawnIsTold) {
  Begin(0);
  list.Add(Layer::kBodies, DiscRecord{});
  EXPECT_FALSE(trails.Add(list, error));
  EXPECT_NE(error, "");
}

TEST_F(StarTrailsTest, OtherStarsAndJumpsLeaveNone) {
  Begin(0);
  AddStar(1, 20.0, 20.0);
  AddStar(2, 20.0, 60.0);
  Add();
  Begin(0);
  AddStar(3, 60.0, 20.0);   // another one
  AddStar(2, 190.0, 60.0);  // farther than a quarter of the sides
  Add();
  const Painted picture(Write());
  EXPECT_EQ(picture.At(40, 20), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(100, 60), (Pixel{0, 0, 0}));
}

// A quarter of 200 + 100 pixels.
TEST_F(StarTrailsTest, LongestTrailIsAQuarterOfTheSides) {
  for (const int far : {0, 1}) {
    Begin(0);
    AddStar(1, far * 75.0, 20.0);
    AddStar(2, far * 75.5, 40.0);
    AddStar(3, 100.0 + far * 60.0, 50.0 + far * 45.0);
    AddStar(4, 100.0 - far * 60.5, 50.0 + far * 45.0);
    Add();
  }
  const Painted picture(Write());
  EXPECT_EQ(picture.At(40, 20), (Pixel{255, 255, 255}));
  EXPECT_EQ(picture.At(40, 40), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(132, 74), (Pixel{255, 255, 255}));
  EXPECT_EQ(picture.At(68, 74), (Pixel{0, 0, 0}));
}

// A cursor, and the Moon, whose phase would be smeared.
TEST_F(StarTrailsTest, MarkersAndDiscsLeaveNone) {
  for (const double x : {50.0, 80.0}) {
    Begin(0);
    AddStar(1, x, 20.0, kWhite, kStar, Layer::kMarkers);
    DiscRecord disc = {};
    disc.x = static_cast<float>(x);
    disc.y = 60.0f;
    disc.radius = 5.0f;
    disc.lit = disc.dark = kGrey;
    disc.object = {kStar, 2};
    list.Add(Layer::kBodies, disc);
    Add();
  }
  const Painted picture(Write());
  EXPECT_EQ(picture.At(65, 20), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(65, 60), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(50, 60), (Pixel{100, 100, 100})) << "each exposure shows the disc itself";
}

TEST_F(StarTrailsTest, TrailIsAsWideAsItsStar) {
  for (const double x : {50.0, 80.0}) {
    Begin(0);
    AddStar(1, x, 40.0);
    Add();
  }
  const Painted picture(Write());
  for (const int y : {38, 41}) EXPECT_EQ(picture.At(65, y), (Pixel{255, 255, 255})) << y;
  for (const int y : {37, 42}) EXPECT_EQ(picture.At(65, y), (Pixel{0, 0, 0})) << y;
}

// What has no number cannot be found again: two of them are not one that moved.
TEST_F(StarTrailsTest, LightsOfNoObjectLeaveNone) {
  for (const double x : {50.0, 80.0}) {
    Begin(0);
    AddStar(0, x, 40.0, kWhite, 0);
    Add();
  }
  EXPECT_EQ(Painted(Write()).At(65, 40), (Pixel{0, 0, 0}));
}

TEST_F(StarTrailsTest, PictureThatCannotBeDrawnIsNamed) {
  paint::StarTrails huge(1000000, 1000000);
  const std::string path = dir.Path("huge.png");
  EXPECT_FALSE(huge.Write(path, error));
  EXPECT_TRUE(error.starts_with(path + ": cannot be drawn: ")) << error;
  EXPECT_GT(error.size(), (path + ": cannot be drawn: ").size());
}

TEST_F(StarTrailsTest, GroundLiesOnThemAndNamesAreLeftOut) {
  for (const double y : {40.0, 90.0}) {
    Begin(0);
    AddStar(1, 100.0, y);
    AddBox(70.0, 100.0, kGreen, Layer::kGround);
    AddBox(0.0, 30.0, kGrey, Layer::kLabels);
    Add();
  }
  const Painted picture(Write());
  EXPECT_EQ(picture.At(100, 60), (Pixel{255, 255, 255}));
  EXPECT_EQ(picture.At(100, 85), (Pixel{0, 90, 0}));
  EXPECT_EQ(picture.At(100, 10), (Pixel{0, 0, 0}));
}

TEST_F(StarTrailsTest, OnPaperTheDarkestInkWins) {
  for (const double x : {50.0, 80.0}) {
    Begin(255, ChartStyle::kPrint);
    AddStar(1, x, 40.0);
    Add();
  }
  const Painted picture(Write());
  EXPECT_EQ(picture.At(65, 40), (Pixel{0, 0, 0}));
  EXPECT_EQ(picture.At(65, 60), (Pixel{255, 255, 255}));
}
