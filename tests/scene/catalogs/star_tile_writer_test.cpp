// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tile_writer.h"

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "scene/catalogs/star_tiles.h"
#include "support/temp_dir.h"

namespace {

using scene::StarTiles;
using scene::StarTileWriter;
using scene::TileStar;
using test_support::TempDir;

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(StarTileWriter, FaultsAreNamed) {
  const TileStar whole{1, 0.0, 0.0, 5.0};
  EXPECT_EQ(StarTileWriter::FindFault(whole), nullptr);
  TileStar star = whole;
  for (const double place : {kNoNumber, 2.0, -2.0, HUGE_VAL}) {
    star.dec = place;
    EXPECT_STREQ(StarTileWriter::FindFault(star), "its place is not on the sphere");
  }
  star = whole, star.ra = kNoNumber;
  EXPECT_STREQ(StarTileWriter::FindFault(star), "its place is not on the sphere");
  for (const double magnitude : {kNoNumber, 33.0, -33.0}) {
    star = whole, star.magnitude = magnitude;
    EXPECT_STREQ(StarTileWriter::FindFault(star), "its magnitude is not between -32 and 32");
  }
  star = whole, star.motionEast = 12000.0, star.motionNorth = -12000.0;
  EXPECT_STREQ(StarTileWriter::FindFault(star), "it moves by more than 16383 milliarcseconds a year");
  for (const int number : {0, -1}) {
    star = whole, star.number = number;
    EXPECT_STREQ(StarTileWriter::FindFault(star), "its number is not above 0");
  }
}

TEST(StarTileWriter, RefusedStarLeavesTheTargetAsItWas) {
  const TempDir dir;
  const std::string path = dir.Write("t.tiles", "old");
  StarTileWriter writer;
  ASSERT_TRUE(writer.Open(path.c_str(), ""));
  EXPECT_TRUE(writer.Add({1, 0.0, 0.0, 5.0}));
  EXPECT_FALSE(writer.Add({0, 0.0, 0.0, 5.0}));
  EXPECT_EQ(writer.GetError(), path + ": a star was refused: its number is not above 0");
  EXPECT_FALSE(writer.Add({2, 0.0, 0.0, 5.0}));
  EXPECT_FALSE(writer.Commit());
  EXPECT_EQ(dir.Read("t.tiles"), "old");
}

TEST(StarTileWriter, TargetThatCannotBeWrittenIsNamed) {
  const TempDir dir;
  const std::string path = dir.Path("no/such/folder/t.tiles");
  StarTileWriter writer;
  EXPECT_FALSE(writer.Open(path.c_str(), ""));
  EXPECT_EQ(writer.GetError().find(path + ": cannot be written: "), 0u) << writer.GetError();
}

TEST(StarTileWriter, GivenUpLeavesNothing) {
  const TempDir dir;
  {
    StarTileWriter writer(10);
    ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), ""));
    for (int i = 1; i <= 100; ++i) ASSERT_TRUE(writer.Add({i, 0.01 * i, 0.0, 5.0}));
  }
  EXPECT_TRUE(std::filesystem::is_empty(dir.Path()));
}

// Places are stored to 2^-32 turn: a turn more or less, and the last half unit before a whole turn.
TEST(StarTileWriter, RightAscensionIsTakenModuloATurn) {
  const TempDir dir;
  constexpr double kTurn = 2.0 * scene::kPi;
  StarTileWriter writer;
  ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), ""));
  const double places[] = {0.0, kTurn, -kTurn, kTurn * (1.0 - 1e-12), -1e-12, 0.25 * kTurn, -0.75 * kTurn};
  const std::uint32_t units[] = {0, 0, 0, 0, 0, 1u << 30, 1u << 30};
  int number = 0;
  for (const double ra : places) ASSERT_TRUE(writer.Add({++number, ra, 0.0, 5.0}));
  ASSERT_TRUE(writer.Commit());
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(dir.Path("t.tiles").c_str(), error)) << error;
  for (int i = 1; i <= number; ++i) EXPECT_EQ(tiles.FindNumber(i)[0].GetRAUnits(), units[i - 1]) << i;
}

TEST(StarTileWriter, PolesAndLimitsCanBeStored) {
  const TempDir dir;
  StarTileWriter writer;
  ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), ""));
  ASSERT_TRUE(writer.Add({1, 1.0, scene::kPi / 2.0, 32.0, 32.0, 16383.0, 0.0}));
  ASSERT_TRUE(writer.Add({2147483647, 1.0, -scene::kPi / 2.0, -32.0, -33.0, 0.0, -16383.0}));
  ASSERT_TRUE(writer.Commit());
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(dir.Path("t.tiles").c_str(), error)) << error;
  const auto north = tiles.FindNumber(1), south = tiles.FindNumber(2147483647);
  ASSERT_EQ(north.GetCount(), 1u);
  ASSERT_EQ(south.GetCount(), 1u);
  EXPECT_DOUBLE_EQ(north[0].GetDirection().v[2], 1.0);
  EXPECT_DOUBLE_EQ(south[0].GetDirection().v[2], -1.0);
  EXPECT_EQ(north[0].GetMillimagnitudes(), 32000);
  EXPECT_EQ(south[0].GetMillimagnitudes(), -32000);
  EXPECT_EQ(north[0].GetColour(), 32.0f);
  EXPECT_TRUE(std::isnan(south[0].GetColour())) << "impossible";
}

// Many stars of one place: the grid of their band becomes as fine as its size allows, and no finer.
TEST(StarTileWriter, CrowdedPlaceIsStored) {
  const TempDir dir;
  constexpr int kStars = 20000;
  StarTileWriter writer;
  ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), ""));
  for (int i = 1; i <= kStars; ++i) ASSERT_TRUE(writer.Add({i, 1.0 + 1e-9 * i, 0.5, 9.5}));
  ASSERT_TRUE(writer.Commit());
  StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(dir.Path("t.tiles").c_str(), error)) << error;
  EXPECT_EQ(tiles.GetBandCount(), 1);
  EXPECT_EQ(tiles.GetBand(0).order, 5) << "12288 cells";
  for (int i = 1; i <= kStars; i += 999) EXPECT_EQ(tiles.FindNumber(i).GetCount(), 1u);
}

// docs/formats/star_tiles.md shows these bytes.
TEST(StarTileWriter, MakesTheBytesOfThePage) {
  const TempDir dir;
  StarTileWriter writer;
  constexpr double kDegree = scene::kRadiansPerDegree;
  ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), "Two stars"));
  ASSERT_TRUE(writer.Add({1000001, 45.0 * kDegree, -30.0 * kDegree, 9.1, 0.482}));
  ASSERT_TRUE(
      writer.Add({1087937, 269.452 * kDegree, 4.6935 * kDegree, 9.54, TileStar::kUnknown, -798.5, 10328.0}));
  ASSERT_TRUE(writer.Commit());
  std::ifstream page(CI_STAR_TILES_PAGE);
  std::string wanted;
  for (std::string line; std::getline(page, line);) {
    const bool isDump = line.size() > 6 && line.substr(3, 2) == "  " &&
                        line.find_first_not_of("0123456789ABCDEF \r") == std::string::npos;
    std::istringstream bytes(isDump ? line.substr(5) : "");
    for (int byte; bytes >> std::hex >> byte;) wanted += static_cast<char>(byte);
  }
  EXPECT_EQ(wanted.size(), 341u);
  EXPECT_EQ(dir.Read("t.tiles"), wanted);
}

TEST(StarTileWriter, ProgressRisesToTheEnd) {
  const TempDir dir;
  StarTileWriter writer(50000);
  ASSERT_TRUE(writer.Open(dir.Path("t.tiles").c_str(), ""));
  for (int i = 1; i <= 200000; ++i) ASSERT_TRUE(writer.Add({i, 1e-5 * i, std::sin(i) * 1.5, 9.5}));
  double last = 0.0;
  int calls = 0;
  EXPECT_TRUE(writer.Commit([&](double share) {
    EXPECT_GT(share, last);
    last = share;
    ++calls;
  }));
  EXPECT_LE(last, 1.0);
  EXPECT_EQ(calls, 200000 / 65536);
}

}  // namespace
