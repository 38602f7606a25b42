// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/contact_sheet.h"

#include <gtest/gtest.h>

#include "paint/painted.h"
#include "support/temp_dir.h"

using namespace scene;
using host_test::Painted;
using host_test::Pixel;

namespace {

// A picture of one colour.
DisplayList MakePlain(const Rgba& colour, int width, int height) {
  DisplayList list;
  list.Begin(width, height, 1.0);
  const float right = static_cast<float>(width), bottom = static_cast<float>(height);
  list.Add(
      Layer::kBackground,
      GradientRecord{
          {0, right, right, 0}, {0, 0, bottom, bottom}, 0, 0, 0, bottom, 0.5f, colour, colour, colour, {}});
  return list;
}

constexpr Rgba kRed = {255, 0, 0, 255}, kGreen = {0, 255, 0, 255}, kBlue = {0, 0, 255, 255};
// The sheet itself: 0.10, 0.11, 0.13, of which the first is 25.5.
bool IsGround(const Pixel& pixel) {
  return (pixel.red == 25 || pixel.red == 26) && pixel.green == 28 && pixel.blue == 33;
}

class ContactSheetTest : public testing::Test {
 protected:
  // The bytes of the file.
  std::string Write(const paint::ContactSheet& sheet) {
    EXPECT_TRUE(sheet.Write(dir.Path("sheet.png"), error)) << error;
    return dir.Read("sheet.png");
  }
  test_support::TempDir dir;
  std::string error;
};

}  // namespace

// Three frames of 160 x 100: the root of 1.6 * 3 * 100 / 160 is 1.7, so two columns. Copies are 400 x 250,
// the gaps 8 and the lines of text 18 pixels: 824 wide and 2 * 276 + 8 = 560 high.
TEST_F(ContactSheetTest, CopiesStandInRowsFromTheUpperLeftCorner) {
  paint::ContactSheet sheet(3, 160, 100);
  for (const Rgba& colour : {kRed, kGreen, kBlue}) {
    ASSERT_TRUE(sheet.Add(MakePlain(colour, 160, 100), "", error)) << error;
  }
  const Painted picture(Write(sheet));
  ASSERT_TRUE(picture.IsGood());
  ASSERT_EQ(picture.GetWidth(), 824);
  ASSERT_EQ(picture.GetHeight(), 560);
  EXPECT_TRUE(IsGround(picture.At(4, 100)));
  EXPECT_EQ(picture.At(12, 12), (Pixel{255, 0, 0}));
  EXPECT_EQ(picture.At(404, 254), (Pixel{255, 0, 0}));
  EXPECT_TRUE(IsGround(picture.At(412, 100)));
  EXPECT_EQ(picture.At(420, 12), (Pixel{0, 255, 0}));
  EXPECT_TRUE(IsGround(picture.At(200, 270)));
  EXPECT_EQ(picture.At(12, 288), (Pixel{0, 0, 255}));
  EXPECT_TRUE(IsGround(picture.At(420, 288))) << "the fourth place is empty";
}

// 16 columns and 10 rows of squares, each 1600 / 16 pixels wide, with 8 between them and 18 for the text.
TEST_F(ContactSheetTest, SheetIsAbout16TimesAsWideAsHigh) {
  const Painted picture(Write(paint::ContactSheet(160, 10, 10)));
  EXPECT_EQ(picture.GetWidth(), 16 * (100 + 8) + 8);
  EXPECT_EQ(picture.GetHeight(), 10 * (100 + 18 + 8) + 8);
}

TEST_F(ContactSheetTest, TextStandsBelowItsCopy) {
  paint::ContactSheet sheet(1, 160, 100);
  ASSERT_TRUE(sheet.Add(MakePlain(kRed, 160, 100), "HHHHHH", error)) << error;
  const Painted picture(Write(sheet));
  int first = -1, last = -1;
  for (int x = 0; x < picture.GetWidth(); ++x) {
    for (int y = 260; y < 276; ++y) {
      if (IsGround(picture.At(x, y))) continue;
      if (first < 0) first = x;
      last = x;
    }
  }
  ASSERT_GE(first, 0) << "there is a text";
  EXPECT_NEAR(0.5 * (first + last), 208.0, 2.0) << "in the middle";
}

TEST_F(ContactSheetTest, MoreFramesThanPlacesAreRefused) {
  paint::ContactSheet sheet(1, 160, 100);
  ASSERT_TRUE(sheet.Add(MakePlain(kRed, 160, 100), "", error));
  EXPECT_FALSE(sheet.Add(MakePlain(kBlue, 160, 100), "", error));
  EXPECT_EQ(error, "the contact sheet is full");
  EXPECT_EQ(Painted(Write(sheet)).At(100, 100), (Pixel{255, 0, 0}));
}

TEST_F(ContactSheetTest, FrameThatCannotBeDrawnIsTold) {
  paint::ContactSheet huge(1, 100000, 10);  // images end at 32767 pixels
  EXPECT_FALSE(huge.Add(MakePlain(kRed, 100000, 10), "", error));
  EXPECT_NE(error, "");
  DisplayList list = MakePlain(kRed, 160, 100);
  list.Add(Layer::kBodies, DiscRecord{});  // no drawing library scales by 0
  error = "";
  paint::ContactSheet sheet(1, 160, 100);
  EXPECT_FALSE(sheet.Add(list, "", error));
  EXPECT_NE(error, "");
}

TEST_F(ContactSheetTest, MissingFolderIsOneLineThatNamesTheFile) {
  const paint::ContactSheet sheet(1, 160, 100);
  const std::string path = dir.Path("nowhere/sheet.png");
  EXPECT_FALSE(sheet.Write(path, error));
  EXPECT_EQ(error.find(path), 0u) << error;
  EXPECT_EQ(error.find('\n'), std::string::npos);
}

// Lines of one pixel, at 0.4 of their size: each pixel of the copy is made of all that it covers.
TEST_F(ContactSheetTest, CopiesAreSmooth) {
  DisplayList list = MakePlain({0, 0, 0, 255}, 1000, 500);
  for (int x = 0; x < 1000; x += 2) {
    for (const auto& [right, bottom] : {std::pair(0, 0), {1, 0}, {1, 500}, {0, 500}})
      list.AddVertex(x + right, bottom);
    PolygonRecord line = {};
    line.colour = {255, 255, 255, 255};
    list.AddArea(Layer::kBackground, line);
  }
  paint::ContactSheet sheet(1, 1000, 500);
  ASSERT_TRUE(sheet.Add(list, "", error)) << error;
  const Painted picture(Write(sheet));
  int least = 255, most = 0;
  for (int x = 20; x < 390; ++x) {
    least = std::min<int>(least, picture.At(x, 100).red);
    most = std::max<int>(most, picture.At(x, 100).red);
  }
  EXPECT_LE(most - least, 1) << least << " to " << most;
}

// One frame of 1600 x 1000 is copied 400 wide, at a quarter: texts of 20 pixels are 5 there, those of 40 are
// 10. A caption, of 13 pixels, has gone, and so has the ground below it.
TEST_F(ContactSheetTest, TextsTooSmallToReadAreLeftOut) {
  const auto write = [this](float size, bool ground) {
    DisplayList list = MakePlain({0, 0, 0, 255}, 1600, 1000);
    const float right = 1600.0f, top = 900.0f, bottom = 1000.0f;
    if (ground) {
      list.Add(Layer::kCaptionGround, GradientRecord{{0, right, right, 0},
                                                     {top, top, bottom, bottom},
                                                     0,
                                                     top,
                                                     0,
                                                     bottom,
                                                     0.5f,
                                                     kRed,
                                                     kRed,
                                                     kRed,
                                                     {}});
    }
    TextRecord text = {};
    text.x = 100.0f;
    text.y = 500.0f;
    text.size = size;
    text.colour = {255, 255, 255, 255};
    list.AddText(Layer::kLabels, text, "MMMMMM");
    paint::ContactSheet sheet(1, 1600, 1000);
    EXPECT_TRUE(sheet.Add(list, "", error)) << error;
    return Write(sheet);
  };
  const auto isBlack = [](const std::string& png) {
    const Painted picture(png);
    for (int y = 9; y < 250; ++y) {
      for (int x = 9; x < 400; ++x) {
        if (picture.At(x, y) != Pixel{0, 0, 0}) return false;
      }
    }
    return true;
  };
  EXPECT_TRUE(isBlack(write(20.0f, false)));
  EXPECT_FALSE(isBlack(write(40.0f, false)));
  EXPECT_TRUE(isBlack(write(20.0f, true)));
}
