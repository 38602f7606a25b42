// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/animation.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "paint/painted.h"
#include "paint/picture_file.h"
#include "support/temp_dir.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

using namespace scene;

namespace {

DisplayList MakePlain(const Rgba& colour, int width, int height) {
  DisplayList list;
  list.Begin(width, height, 1.0);
  list.AddVertex(0.0, 0.0);
  list.AddVertex(width, 0.0);
  list.AddVertex(width, height);
  list.AddVertex(0.0, height);
  PolygonRecord area = {};
  area.colour = colour;
  list.AddArea(Layer::kBackground, area);
  return list;
}

struct Chunk {
  std::string type, content;
};

// Every length, and every checksum, must be right.
std::vector<Chunk> SplitPng(const std::string& png) {
  std::vector<Chunk> chunks;
  for (std::size_t at = 8; at + 12 <= png.size();) {
    const std::size_t length = LoadBE32(png.data() + at);
    if (at + 12 + length > png.size()) break;
    EXPECT_EQ(LoadBE32(png.data() + at + 8 + length), GetCrc32(png.substr(at + 4, 4 + length)));
    chunks.push_back({png.substr(at + 4, 4), png.substr(at + 8, length)});
    at += 12 + length;
  }
  return chunks;
}

class AnimationTest : public testing::Test {
 protected:
  std::string Make(int count, int rate, const std::vector<DisplayList>& frames) {
    paint::Animation animation(count, rate);
    EXPECT_TRUE(animation.Open(dir.Path("a.png"), error)) << error;
    for (const auto& frame : frames) EXPECT_TRUE(animation.Add(frame, error)) << error;
    EXPECT_TRUE(animation.Close(error)) << error;
    return dir.Read("a.png");
  }
  const DisplayList red = MakePlain({255, 0, 0, 255}, 40, 30), blue = MakePlain({0, 0, 255, 255}, 40, 30);
  test_support::TempDir dir;
  std::string error;
};

}  // namespace

TEST_F(AnimationTest, ReaderWithoutAnimationsSeesTheFirstFrame) {
  const host_test::Painted picture(Make(2, 10, {red, blue}));
  ASSERT_TRUE(picture.IsGood());
  EXPECT_EQ(picture.GetWidth(), 40);
  EXPECT_EQ(picture.At(20, 15), (host_test::Pixel{255, 0, 0}));
}

// The order of chunks and the fields of the PNG specification, chapter 11: an animation of 2 frames for ever,
// each of 40 x 30 pixels for 1/10 second.
TEST_F(AnimationTest, ChunksAreThoseOfAnAnimatedPng) {
  const auto chunks = SplitPng(Make(2, 10, {red, blue}));
  std::string order, timing;
  std::vector<std::string> controls;
  std::vector<unsigned> numbers;
  for (const auto& [type, content] : chunks) {
    if (!order.ends_with(type)) order += type;
    if (type == "acTL") timing = content;
    if (type == "fcTL") controls.push_back(content);
    if (type == "fcTL" || type == "fdAT") numbers.push_back(LoadBE32(content.data()));
  }
  EXPECT_EQ(order, "IHDRacTLfcTLIDATfcTLfdATIEND");
  EXPECT_EQ(timing, std::string("\0\0\0\2\0\0\0\0", 8));
  ASSERT_EQ(controls.size(), 2u);
  const std::string expected("\0\0\0\x28\0\0\0\x1e\0\0\0\0\0\0\0\0\0\1\0\x0a\0\0", 22);
  for (const auto& control : controls) EXPECT_EQ(control.substr(4), expected);
  for (std::size_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], i) << "one count for both kinds";
}

TEST_F(AnimationTest, NumbersCountOnOverAllFrames) {
  std::vector<unsigned> numbers;
  for (const auto& [type, content] : SplitPng(Make(4, 10, {red, blue, red, blue}))) {
    if (type == "fcTL" || type == "fdAT") numbers.push_back(LoadBE32(content.data()));
  }
  ASSERT_GE(numbers.size(), 7u);
  for (std::size_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], i);
}

// The data of the later frames are those of their pictures.
TEST_F(AnimationTest, LaterFramesHoldTheirPictures) {
  const auto chunks = SplitPng(Make(2, 10, {red, blue}));
  std::string png, data, wanted;
  ASSERT_TRUE(paint::MakePng(blue, png, error));
  for (const auto& [type, content] : SplitPng(png)) {
    if (type == "IDAT") wanted += content;
  }
  for (const auto& [type, content] : chunks) {
    if (type == "fdAT") data += content.substr(4);
  }
  EXPECT_EQ(data, wanted);
}

TEST_F(AnimationTest, WhatIsNotWholeLeavesTheFileAsItWas) {
  dir.Write("a.png", "before");
  {
    paint::Animation animation(2, 10);
    ASSERT_TRUE(animation.Open(dir.Path("a.png"), error));
    ASSERT_TRUE(animation.Add(red, error));
    EXPECT_FALSE(animation.Add(MakePlain({0, 0, 0, 255}, 41, 30), error));
    EXPECT_NE(error.find("another size"), std::string::npos) << error;
    EXPECT_FALSE(animation.Close(error));
    EXPECT_NE(error.find("frames are missing"), std::string::npos) << error;
  }
  EXPECT_EQ(dir.Read("a.png"), "before");
}

TEST_F(AnimationTest, FrameThatCannotBeWrittenIsOneLineThatNamesTheFile) {
  paint::Animation animation(1, 10);
  const std::string path = dir.Path("nowhere/a.png");
  ASSERT_FALSE(animation.Open(path, error));
  error = "";
  EXPECT_FALSE(animation.Add(red, error));
  EXPECT_TRUE(error.starts_with(path + ": cannot be written: ")) << error;
}

TEST_F(AnimationTest, FrameTooManyIsRefused) {
  paint::Animation animation(1, 10);
  ASSERT_TRUE(animation.Open(dir.Path("b.png"), error));
  ASSERT_TRUE(animation.Add(red, error));
  EXPECT_FALSE(animation.Add(blue, error));
  EXPECT_TRUE(animation.Close(error)) << error;
}

TEST_F(AnimationTest, FolderThatIsMissingIsOneLine) {
  paint::Animation animation(1, 10);
  EXPECT_FALSE(animation.Open(dir.Path("none/a.png"), error));
  EXPECT_NE(error.find("a.png: cannot be written: "), std::string::npos) << error;
}
