// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/sky_images.h"

#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/debug_capture.h"
#include "tests/support/temp_dir.h"

using CommonInterfaces::CSTLImageDesc;
using CommonInterfaces::CSTLImages;
using CommonInterfaces::MWayImages;
using test_support::DebugCapture;
using test_support::TempRoots;

namespace {

constexpr char kConstellations[] = "data/media/skyobjects/constell_images/constell.dat";
constexpr char kMilkyWay[] = "data/media/skyobjects/mway_images/mway.dat";

std::string BigEndian(int value) {
  const auto bits = static_cast<unsigned>(value);
  return {static_cast<char>(bits >> 24), static_cast<char>(bits >> 16), static_cast<char>(bits >> 8),
          static_cast<char>(bits)};
}

// The corners (ra, ra + 1 degree, ...) are as good as any.
std::string Record(const std::string& id, int ra, int dec) {
  std::string record = id;
  for (int k = 0; k < 4; ++k) record += BigEndian(ra + k * 100000) + BigEndian(dec - k * 100000);
  return record;
}

std::string Count(int n) { return {static_cast<char>(n >> 8), static_cast<char>(n)}; }

int CountOf(const CSTLImages& images) { return static_cast<int>(images.GetEnd() - images.GetBegin()); }

TEST(SkyImages, ImagesComeInTheOrderOfTheFile) {
  TempRoots roots;
  roots.dir.Write(kConstellations,
                  Count(2) + Record("Ori ", 8000000, 500000) + Record("And ", 100000, 4000000));
  const CSTLImages images;
  ASSERT_EQ(CountOf(images), 2);
  EXPECT_EQ(std::memcmp(&images.GetBegin()[0]->id, "Ori ", 4), 0);
  EXPECT_EQ(std::memcmp(&images.GetBegin()[1]->id, "And ", 4), 0);
}

TEST(SkyImages, IdentifierStaysAsItsFourBytesStand) {
  TempRoots roots;
  const std::string id("\x01\x00\xFE\x7F", 4);
  roots.dir.Write(kConstellations, Count(1) + Record(id, 0, 0));
  const CSTLImages images;
  ASSERT_EQ(CountOf(images), 1);
  EXPECT_EQ(std::memcmp(&(*images.GetBegin())->id, id.data(), 4), 0);
}

// 0x0089544F is 9000015: 90.00015 degrees.
TEST(SkyImages, CornersAreHundredThousandthsOfDegreesBigEndian) {
  TempRoots roots;
  const std::string coordinate("\x00\x89\x54\x4F", 4);
  std::string record = "Xyz ";
  record += coordinate + BigEndian(-4500000);
  record += BigEndian(36000000) + BigEndian(9000000);
  record += BigEndian(1) + BigEndian(-1);
  record += BigEndian(0) + BigEndian(-9000000);
  roots.dir.Write(kConstellations, Count(1) + record);
  const CSTLImages images;
  ASSERT_EQ(CountOf(images), 1);
  const auto& corners = (*images.GetBegin())->corners;
  EXPECT_NEAR(corners[0].ra, 1.570798944788, 1.2e-7f);
  EXPECT_NEAR(corners[0].dec, -0.785398163397, 6e-8f);
  EXPECT_NEAR(corners[1].ra, 6.283185307180, 5e-7f);
  EXPECT_NEAR(corners[1].dec, 1.570796326795, 1.2e-7f);
  EXPECT_NEAR(corners[2].ra, 1.745329252e-7, 2e-14f);
  EXPECT_NEAR(corners[2].dec, -1.745329252e-7, 2e-14f);
  EXPECT_EQ(corners[3].ra, 0.0f);
  EXPECT_NEAR(corners[3].dec, -1.570796326795, 1.2e-7f);
}

// 12345677 does not fit a float (it becomes 12345677 exactly, below 2^24; 33554433 becomes 33554432).
TEST(SkyImages, DegreesAreFormedInSinglePrecision) {
  TempRoots roots;
  std::string record = "Xyz " + BigEndian(33554433);
  for (int i = 0; i < 7; ++i) record += BigEndian(33554432);
  roots.dir.Write(kConstellations, Count(1) + record);
  const CSTLImages images;
  ASSERT_EQ(CountOf(images), 1);
  const auto& corners = (*images.GetBegin())->corners;
  EXPECT_EQ(corners[0].ra, corners[0].dec);
}

TEST(SkyImages, CountOfZeroIsAnEmptyList) {
  TempRoots roots;
  roots.dir.Write(kConstellations, Count(0) + Record("Ori ", 0, 0));
  const CSTLImages images;
  EXPECT_EQ(CountOf(images), 0);
}

TEST(SkyImages, MissingFileIsNoListAndNoMessage) {
  TempRoots roots;
  DebugCapture debug;
  const CSTLImages images;
  const MWayImages pieces;
  EXPECT_EQ(images.GetBegin(), images.GetEnd());
  EXPECT_EQ(pieces.GetBegin(), pieces.GetEnd());
  EXPECT_TRUE(debug.lines.empty());
}

TEST(SkyImages, EmptyFileAndOneByteFileAreEmptyLists) {
  for (const std::string bytes : {"", "\x01"}) {
    TempRoots roots;
    roots.dir.Write(kConstellations, bytes);
    const CSTLImages images;
    EXPECT_EQ(CountOf(images), 0) << bytes.size();
  }
}

TEST(SkyImages, CountThatPromisesTooMuchGivesTheWholeRecords) {
  TempRoots roots;
  const std::string two = Record("Ori ", 8000000, 0) + Record("And ", 100000, 0);
  roots.dir.Write(kConstellations, Count(65535) + two + std::string(35, 'x'));
  const CSTLImages images;
  EXPECT_EQ(CountOf(images), 2);
}

TEST(SkyImages, BytesBehindTheCountedRecordsAreLeftAlone) {
  TempRoots roots;
  roots.dir.Write(kConstellations, Count(1) + Record("Ori ", 0, 0) + Record("And ", 0, 0) + "tail");
  const CSTLImages images;
  EXPECT_EQ(CountOf(images), 1);
}

TEST(SkyImages, CountIsBigEndianAndUnsigned) {
  TempRoots roots;
  std::string bytes = Count(0x0102);
  for (int i = 0; i < 300; ++i) bytes += Record("Ori ", i, i);
  roots.dir.Write(kConstellations, bytes);
  const CSTLImages images;
  EXPECT_EQ(CountOf(images), 258);
}

TEST(SkyImages, InstancesShareOneListUntilTheLastGoes) {
  TempRoots roots;
  roots.dir.Write(kConstellations, Count(1) + Record("Ori ", 0, 0));
  auto first = std::make_unique<CSTLImages>();
  const CSTLImageDesc* const image = *first->GetBegin();
  roots.dir.Write(kConstellations, Count(2) + Record("And ", 0, 0) + Record("Tau ", 0, 0));
  auto second = std::make_unique<CSTLImages>();
  auto copy = std::make_unique<CSTLImages>(*second);
  EXPECT_EQ(*second->GetBegin(), image);
  EXPECT_EQ(CountOf(*second), 1);
  first.reset();
  second.reset();
  ASSERT_EQ(CountOf(*copy), 1);
  EXPECT_EQ(*copy->GetBegin(), image);
  copy.reset();
  const CSTLImages again;
  EXPECT_EQ(CountOf(again), 2);
}

TEST(SkyImages, MilkyWayPiecesAreAListOfTheirOwn) {
  TempRoots roots;
  roots.dir.Write(kConstellations, Count(1) + Record("Ori ", 0, 0));
  roots.dir.Write(kMilkyWay, Count(2) + Record("MW01", 1000000, 2000000) + Record("MW02", 0, 0));
  const MWayImages pieces;
  const CSTLImages images;
  ASSERT_EQ(pieces.GetEnd() - pieces.GetBegin(), 2);
  EXPECT_EQ(std::memcmp(&(*pieces.GetBegin())->id, "MW01", 4), 0);
  EXPECT_NEAR((*pieces.GetBegin())->corners[0].dec, 0.349065850399, 3e-8f);
  EXPECT_EQ(CountOf(images), 1);
}

TEST(SkyImages, WithoutInstancesTheListIsGone) {
  TempRoots roots;
  roots.dir.Write(kMilkyWay, Count(1) + Record("MW01", 0, 0));
  { const MWayImages pieces; }
  std::filesystem::remove(roots.dir.Path(kMilkyWay));
  const MWayImages pieces;
  EXPECT_EQ(pieces.GetBegin(), pieces.GetEnd());
}

TEST(SkyImages, FolderInPlaceOfTheFileHasNoImages) {
  TempRoots roots;
  std::filesystem::create_directories(roots.dir.Path(kConstellations));
  std::filesystem::create_directories(roots.dir.Path(kMilkyWay));
  EXPECT_EQ(CountOf(CSTLImages()), 0);
  const MWayImages none;
  EXPECT_EQ(none.GetBegin(), none.GetEnd());
}

// A copy is one more instance: it keeps the images when the one that it was made from goes.
TEST(SkyImages, CopiesShareTheImagesOfTheMilkyWay) {
  TempRoots roots;
  roots.dir.Write(kMilkyWay, Count(2) + Record("0001", 0, 0) + Record("0002", 100000, 0));
  auto first = std::make_unique<MWayImages>();
  const MWayImages copy(*first);
  EXPECT_EQ(copy.GetBegin(), first->GetBegin());
  first.reset();
  ASSERT_EQ(copy.GetEnd() - copy.GetBegin(), 2);
  EXPECT_EQ(std::memcmp(&copy.GetBegin()[1]->id, "0002", 4), 0);
}

}  // namespace
