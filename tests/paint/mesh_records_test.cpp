// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <set>

#include "paint/picture_file.h"
#include "paint/record_fixture.h"

using namespace scene;
using host_test::ExpectNear;
using host_test::kBlack;
using host_test::kRed;
using host_test::Painted;
using host_test::Pixel;

namespace {

class MeshRecords : public host_test::Records {
 protected:
  void AddMesh(float left, float top, float right, float bottom, int columns,
               std::initializer_list<Rgba> colours) {
    for (const Rgba& colour : colours) list.AddColour(colour);
    list.AddMesh(Layer::kBackground, {left, top, right, bottom, columns, 0, 0, {}});
  }
};

}  // namespace

// The middle of the pixel (x, y) stands (x + 0.5) / 200 of the way to the right, (y + 0.5) / 100 downwards.
TEST_F(MeshRecords, BlendBetweenTheirNodes) {
  AddMesh(0, 0, 200, 100, 2,
          {{0, 0, 100, 255}, {200, 0, 100, 255}, {0, 100, 100, 255}, {200, 100, 100, 255}});
  const Painted picture(list);
  ASSERT_TRUE(picture.IsGood());
  for (const int x : {0, 50, 99, 150, 199}) {
    for (const int y : {0, 25, 49, 99}) {
      SCOPED_TRACE(x * 1000 + y);
      ExpectNear(picture.At(x, y),
                 {static_cast<int>(std::lround(x + 0.5)), static_cast<int>(std::lround(y + 0.5)), 100});
    }
  }
}

TEST_F(MeshRecords, HaveTheirInnerNodesBetweenTheEdges) {
  AddMesh(
      0, 0, 200, 100, 3,
      {{0, 0, 0, 255}, {240, 0, 0, 255}, {0, 0, 0, 255}, {0, 0, 0, 255}, {240, 0, 0, 255}, {0, 0, 0, 255}});
  const Painted picture(list);
  ExpectNear(picture.At(100, 50), {239, 0, 0}, 1);
  ExpectNear(picture.At(50, 50), {121, 0, 0}, 1);
  ExpectNear(picture.At(150, 50), {119, 0, 0}, 1);
}

TEST_F(MeshRecords, FillTheirRectangleAndNothingBeside) {
  AddMesh(40, 20, 80, 60, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(40, 20), (Pixel{9, 9, 9}));
  EXPECT_EQ(picture.At(79, 59), (Pixel{9, 9, 9}));
  for (const auto& [x, y] : {std::pair{39, 30}, {80, 30}, {60, 19}, {60, 60}})
    EXPECT_EQ(picture.At(x, y), kBlack);
}

TEST_F(MeshRecords, LetShineThroughWhatLiesBelow) {
  AddMesh(0, 0, 200, 100, 2, {{0, 0, 200, 255}, {0, 0, 200, 255}, {0, 0, 200, 255}, {0, 0, 200, 255}});
  AddMesh(0, 0, 200, 100, 2, {{200, 0, 0, 51}, {200, 0, 0, 51}, {200, 0, 0, 51}, {200, 0, 0, 51}});
  ExpectNear(Painted(list).At(100, 50), {40, 0, 160}, 2);
}

// Nodes two pixels apart, 0 and 240 in turn: the middle of a pixel lies a quarter of the way behind a node,
// or before it.
TEST_F(MeshRecords, BlendWithinAPixelOfTheirNodes) {
  for (int i = 0; i < 2 * 101; ++i)
    list.AddColour({static_cast<unsigned char>(i % 101 % 2 * 240), 0, 0, 255});
  list.AddMesh(Layer::kBackground, {0, 0, 200, 100, 101, 0, 0, {}});
  const Painted picture(list);
  for (const int x : {0, 100, 196}) {
    const int expected[] = {60, 180, 180, 60};
    for (int i = 0; i < 4; ++i) ExpectNear(picture.At(x + i, 50), {expected[i], 0, 0}, 2);
  }
}

// The outline of the area before has no part in it: rings in each other would be holes.
TEST_F(MeshRecords, AreWholeAfterASoftArea) {
  AddBox(50, 20, 150, 80);
  list.AddArea(Layer::kBackground, PolygonRecord{0, 0, kRed, kRed, 2.0f, {}});
  AddMesh(0, 0, 200, 100, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}});
  const Painted picture(list);
  EXPECT_EQ(picture.At(100, 50), (Pixel{9, 9, 9}));
  EXPECT_EQ(picture.At(20, 50), (Pixel{9, 9, 9}));
}

TEST_F(MeshRecords, ThinOnesHaveOneRowOrColumn) {
  AddMesh(0, 50, 200, 50.4f, 2, {{250, 0, 0, 255}, {250, 0, 0, 255}, {250, 0, 0, 255}, {250, 0, 0, 255}});
  AddMesh(100, 0, 100.4f, 100, 2, {{0, 250, 0, 255}, {0, 250, 0, 255}, {0, 250, 0, 255}, {0, 250, 0, 255}});
  const Painted picture(list);
  ASSERT_TRUE(picture.IsGood());
  EXPECT_GT(picture.At(20, 50).red, 0);
  EXPECT_GT(picture.At(100, 20).green, 0);
  EXPECT_EQ(picture.At(20, 51), kBlack);
  EXPECT_EQ(picture.At(101, 20), kBlack);
}

// From 10 to 12 over 200 pixels: steps would be 100 wide.
TEST_F(MeshRecords, ShowNoStepsWhereColoursHardlyDiffer) {
  AddMesh(0, 0, 200, 100, 2, {{10, 10, 10, 255}, {12, 12, 12, 255}, {10, 10, 10, 255}, {12, 12, 12, 255}});
  const Painted picture(list);
  for (const int from : {0, 40, 96, 152, 192}) {
    double sum = 0.0;
    for (int x = from; x < from + 8; ++x) {
      for (int y = 0; y < 8; ++y) sum += picture.At(x, y).red;
    }
    EXPECT_NEAR(sum / 64.0, 10.0 + 2.0 * (from + 4) / 200.0, 0.03) << from;
  }
}

TEST_F(MeshRecords, OfNoSizeOrTooFewNodesPaintNothing) {
  AddMesh(50, 20, 50, 60, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}});
  AddMesh(50, 20, 90, 20, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}});
  AddMesh(0, 0, 200, 100, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}});
  AddMesh(0, 0, 200, 100, 1, {{9, 9, 9, 255}, {9, 9, 9, 255}});
  AddMesh(0, 0, std::nanf(""), 100, 2, {{9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}, {9, 9, 9, 255}});
  const Painted picture(list);
  ASSERT_TRUE(picture.IsGood());
  EXPECT_TRUE(picture.IsBlack());
}

TEST_F(MeshRecords, AreOneImageInSvgAndPdf) {
  AddMesh(0, 0, 200, 100, 2,
          {{0, 0, 100, 255}, {200, 0, 100, 255}, {0, 100, 100, 255}, {200, 100, 100, 255}});
  std::string bytes, error;
  ASSERT_TRUE(paint::MakeSvg(list, bytes, error)) << error;
  EXPECT_NE(bytes.find("<image "), std::string::npos);
  ASSERT_TRUE(paint::MakePdf(list, bytes, error)) << error;
  EXPECT_NE(bytes.find("/Subtype /Image"), std::string::npos);
}
