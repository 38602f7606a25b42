// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "catalogs/deepsky_images_catalog.h"
#include "common_interfaces/sky_images.h"
#include "tests/support/debug_capture.h"
#include "tests/support/temp_dir.h"
#include "utils/text.h"

using CommonInterfaces::DSOImageDesc;
using CommonInterfaces::DSOImages;
using namespace test_support;

namespace {

TEST(DeepskyImages, MissingFileIsReportedWithItsLogicalPath) {
  TempRoots roots;
  DebugCapture debug;
  DSOImages images;
  EXPECT_EQ(debug.lines,
            (std::vector<std::string>{"File media:skyobjects:dso_images:dsoimagestrue.txt not found\n"}));
  EXPECT_EQ(images.GetFirst(), nullptr);
  EXPECT_EQ(images.Find(kGalaxy, 0), nullptr);
}

TEST(DeepskyImages, FileThatIsGoneEmptiesTheCatalogAtReload) {
  Catalog catalog("1 1 0 0 0 2\n");
  catalog.images();
  std::filesystem::remove(catalog.roots.dir.Path(kFile));
  DebugCapture debug;
  DSOImages::Reload();
  EXPECT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(catalog.images().GetFirst(), nullptr);
  EXPECT_TRUE(DSOImages::s_IndependentImages.empty());
}

TEST(DeepskyImages, EmptyFileIsAnEmptyCatalogWithoutAMessage) {
  Catalog catalog("");
  DebugCapture debug;
  EXPECT_EQ(catalog.images().GetFirst(), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST(DeepskyImages, ByteOrderMarkCarriageReturnsAndAMissingLastLineEndAreNoDamage) {
  Catalog catalog(
      "\xEF\xBB\xBF! comment\r\n1 10 0 0 0 0 1 0 0.5 2\r\n\r\n  \t \r\n2\t10\t0\t0\t0 \t0 1 0 0.5 3");
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{1u, 2u}));
  EXPECT_EQ(catalog.images().Find(kGalaxy, 1)->brightness, 2.0);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 2)->brightness, 3.0);
}

TEST(DeepskyImages, LastLineThatWasCutOffIsNamedByFileAndLine) {
  for (const char* cut : {"2", "2 10 0 0 0 0 1", "2 10 0 0 0 0 1 0 "}) {
    DebugCapture debug;
    Catalog catalog(std::string("1 10 0 0 0 0 1 0 0.5\n! a comment\n") + cut);
    catalog.images();
    ASSERT_EQ(debug.lines.size(), 1u) << cut;
    EXPECT_NE(debug.lines[0].find("dsoimagestrue.txt:3: the line was cut off"), std::string::npos)
        << debug.lines[0];
    EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{1u, 2u}));
  }
  DebugCapture debug;
  for (const char* whole : {"2 10 0 0 0 0 1 0 0.5", "! comment", " \t", "2 1\n"}) {
    Catalog catalog(whole);
    catalog.images();
    EXPECT_TRUE(debug.lines.empty()) << whole;
  }
}

TEST(DeepskyImages, ShortLineKeepsTheDefaultsOfWhatIsMissing) {
  Catalog catalog("31 10\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_EQ(image.direction[0], 1.0);
  EXPECT_EQ(image.aspectRatio, 1.0);
  EXPECT_NEAR(image.halfDiagonal, 0.00290888209 * std::sqrt(2.0), 1e-9);
}

TEST(DeepskyImages, FieldThatIsNoNumberKeepsItsDefaultAndTheNextOnesTheirColumns) {
  Catalog catalog("31 wide 90 x -12.5 flag 0.5 layer 0.25 2\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_EQ(image.size, 0.0f);
  EXPECT_NEAR(image.direction[1], 1.0, 1e-15);
  EXPECT_NEAR(image.direction[2], 0.0, 1e-15);
  EXPECT_EQ(image.rotation, -12.5);
  EXPECT_EQ(image.flags, 0);
  EXPECT_EQ(image.aspectRatio, 0.5);
  EXPECT_EQ(image.layer, 0);
  EXPECT_EQ(image.blackPoint, 0.25);
  EXPECT_EQ(image.brightness, 2.0);
}

// 0.5 degrees of right ascension and -0.25 of declination.
TEST(DeepskyImages, AnglesMayBeginWithTheirPoint) {
  Catalog catalog("31 1 .5 -.25 0\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_NEAR(image.direction[0], 0.999952404, 1e-9);
  EXPECT_NEAR(image.direction[1], 0.008726452, 1e-9);
  EXPECT_NEAR(image.direction[2], -0.004363309, 1e-9);
}

TEST(DeepskyImages, WhatClingsToANumberGoesWithIt) {
  Catalog catalog("31 10x5 90.0y 0 7.5z7 2,3 0.5\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_NEAR(image.size, 0.00290888209, 1e-9);
  EXPECT_NEAR(image.direction[1], 1.0, 1e-15);
  EXPECT_EQ(image.rotation, 7.5);
  EXPECT_EQ(image.flags, 2);
  EXPECT_EQ(image.aspectRatio, 0.5);
}

TEST(DeepskyImages, LineWithoutAReadableFieldIsNoPicture) {
  Catalog catalog("no picture at all\n");
  EXPECT_EQ(catalog.images().GetFirst(), nullptr);
}

TEST(DeepskyImages, NumbersWithAPlusAreRead) {
  Catalog catalog("31 +10 +90 +30 +5 +2 +0.5 0 0\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_NEAR(image.direction[2], 0.5, 1e-15);
  EXPECT_EQ(image.rotation, 5.0);
  EXPECT_EQ(image.flags, 2);
  EXPECT_EQ(image.aspectRatio, 0.5);
}

TEST(DeepskyImages, AspectRatioThatIsNotPositiveCountsAsOne) {
  Catalog catalog("1 10 0 0 0 0 0\n2 10 0 0 0 0 -2\n");
  EXPECT_EQ(catalog.images().Find(kGalaxy, 1)->aspectRatio, 1.0);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 2)->aspectRatio, 1.0);
}

TEST(DeepskyImages, NumbersBeyondTheRangeOfDoublesKeepTheirDefaults) {
  Catalog catalog("1 1e999 0 0 1e999 0 1e999 0 1e999 1e999\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_EQ(image.size, 0.0f);
  EXPECT_EQ(image.rotation, 0.0);
  EXPECT_EQ(image.aspectRatio, 1.0);
  EXPECT_EQ(image.brightness, 1.0);
}

TEST(DeepskyImages, RemarkBehindTheFieldsIsNoField) {
  Catalog catalog("1 10 0 0 0 0 1 ! 7 0.25 9\n");
  EXPECT_EQ(Only(catalog).layer, 0);
  EXPECT_EQ(Only(catalog).blackPoint, 0.0);
  EXPECT_EQ(Only(catalog).brightness, 1.0);
}

TEST(DeepskyImages, LongLineIsReadWhole) {
  Catalog catalog("1" + std::string(5000, ' ') + "10 0 0 0 0 1 0 0.5 7\n2 10\n");
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{1u, 2u}));
  EXPECT_EQ(catalog.images().Find(kGalaxy, 1)->brightness, 7.0);
}

TEST(DeepskyImages, ZeroByteEndsItsLineOnly) {
  Catalog catalog(std::string("1 10 0 0 0 2\0 0.5\n2 10\n", 22));
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{1u, 2u}));
  EXPECT_EQ(catalog.images().Find(kGalaxy, 1)->flags, 2);
}

TEST(DeepskyImages, PictureAtAPoleHasFiniteCorners) {
  Catalog catalog("1 10 0 90 30 0 1\n2 10 12h -90 30 0 1\n");
  for (auto image = catalog.images().GetFirst(); image; image = catalog.images().GetNext()) {
    double corners[12];
    DSOImages::CalcCorners(image->direction, 0.5f, image->size, image->size, corners);
    for (const double value : corners) EXPECT_TRUE(std::isfinite(value));
  }
}

}  // namespace
