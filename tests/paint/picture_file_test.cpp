// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "scene/frame_helpers.h"
#include "support/xml_check.h"

using namespace paint;
using namespace scene;

class PictureFile : public testing::Test {
 protected:
  PictureFile() { f.Compute(); }
  std::size_t CountFiles() const {
    const std::filesystem::directory_iterator files(f.sky.dir.Path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  host_test::FrameFixture f;
  std::string error;
};

TEST_F(PictureFile, SvgIsWellFormedAndHoldsItsLabelsAsText) {
  std::string svg;
  ASSERT_TRUE(MakeSvg(f.frame.GetDisplayList(), svg, error)) << error;
  EXPECT_EQ(host_test::FindXmlFault(svg), "");
  for (const char* label : {"Sirius", "Betelgeuse", "Rigel", "M42", "Orion"}) {
    EXPECT_NE(svg.find(">" + std::string(label) + "</text>"), std::string::npos) << label;
  }
  EXPECT_NE(svg.find("width=\"1600px\""), std::string::npos);
}

TEST_F(PictureFile, TextInTheSvgIsEscaped) {
  f.frame.SetCaption({"<a & b>"});
  f.Compute();
  std::string svg;
  ASSERT_TRUE(MakeSvg(f.frame.GetDisplayList(), svg, error)) << error;
  EXPECT_EQ(host_test::FindXmlFault(svg), "");
  EXPECT_NE(svg.find(">&lt;a &amp; b&gt;</text>"), std::string::npos);
}

// PNG specification: eight bytes of signature, then the header chunk with width and height, most significant
// first.
TEST_F(PictureFile, PngHasTheSizeOfTheWindow) {
  std::string png;
  ASSERT_TRUE(MakePng(f.frame.GetDisplayList(), png, error)) << error;
  ASSERT_GT(png.size(), 24u);
  EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x06\x40\0\0\x03\xE8", 8));
}

TEST_F(PictureFile, WritingReplacesTheOldPictureWhole) {
  const std::string path = f.sky.dir.Write("sky.svg", "old");
  ASSERT_TRUE(WritePicture(f.frame.GetDisplayList(), path, error)) << error;
  EXPECT_EQ(host_test::FindXmlFault(f.sky.dir.Read("sky.svg")), "");
  EXPECT_FALSE(std::filesystem::exists(path + ".part"));
}

TEST_F(PictureFile, MissingFolderIsOneLineThatNamesTheFile) {
  const std::string path = f.sky.dir.Path("nowhere/sky.png");
  EXPECT_FALSE(WritePicture(f.frame.GetDisplayList(), path, error));
  EXPECT_EQ(error.find(path), 0u) << error;
  EXPECT_EQ(error.find('\n'), std::string::npos);
}

TEST_F(PictureFile, FailureLeavesNothingBehind) {
  // A folder of the picture's name cannot be replaced by a file.
  std::filesystem::create_directories(f.sky.dir.Path("sky.png/inside"));
  const std::size_t before = CountFiles();
  EXPECT_FALSE(WritePicture(f.frame.GetDisplayList(), f.sky.dir.Path("sky.png"), error));
  EXPECT_EQ(CountFiles(), before);
}
