// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/star_table_input.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "scene/catalogs/star_tile_record.h"
#include "skydata/files/source_error.h"
#include "support/temp_dir.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

constexpr double kDegree = scene::kRadiansPerDegree;

std::vector<scene::TileStar> Read(const std::string& text) {
  const test_support::TempDir dir;
  StarTableInput input(dir.Write("t.tsv", text));
  std::vector<scene::TileStar> stars;
  for (scene::TileStar star; input.Take(star);) stars.push_back(star);
  EXPECT_GE(input.GetShare(), 1.0);
  return stars;
}

std::string MessageOf(const std::string& text) {
  const test_support::TempDir dir;
  return skydata_test::MessageOf(dir, [&] {
    StarTableInput input(dir.Write("t.tsv", text));
    for (scene::TileStar star; input.Take(star);) continue;
  });
}

TEST(StarTableInput, TabsAndColumnsInAnyOrder) {
  const auto stars = Read(
      "# made by hand\n\nname\tV_mag\tDEC\tra_deg\tB-V\tpmRA\tpmDec\tNumber\n"
      "a\t9.5\t-20.25\t10.5\t1.1\t-100\t50.5\t7\n"
      "\n# between\nb\t10\t20\t350\t\t\t\t3\n");
  ASSERT_EQ(stars.size(), 2u);
  EXPECT_DOUBLE_EQ(stars[0].ra, 10.5 * kDegree);
  EXPECT_DOUBLE_EQ(stars[0].dec, -20.25 * kDegree);
  EXPECT_EQ(stars[0].magnitude, 9.5);
  EXPECT_EQ(stars[0].colour, 1.1);
  EXPECT_EQ(stars[0].motionEast, -100.0);
  EXPECT_EQ(stars[0].motionNorth, 50.5);
  EXPECT_EQ(stars[0].number, scene::kImportedNumbers + 7);
  EXPECT_EQ(stars[1].number, scene::kImportedNumbers + 3);
  EXPECT_TRUE(std::isnan(stars[1].colour));
  EXPECT_TRUE(std::isnan(stars[1].motionEast));
}

TEST(StarTableInput, CommasQuotesByteOrderMarkAndCarriageReturns) {
  const auto stars = Read("\xEF\xBB\xBFName,RA,Dec,Mag\r\n\"a, \"\"b\"\"\",10,20,5\r\n c , 11 ,21,6");
  ASSERT_EQ(stars.size(), 2u);
  EXPECT_DOUBLE_EQ(stars[0].ra, 10.0 * kDegree);
  EXPECT_DOUBLE_EQ(stars[1].ra, 11.0 * kDegree);
  EXPECT_EQ(stars[1].magnitude, 6.0);
  EXPECT_EQ(stars[0].number, scene::kImportedNumbers + 1);
  EXPECT_EQ(stars[1].number, scene::kImportedNumbers + 2);
}

// Ten years at 3.6" a year along the meridian: 0.01 degree.
TEST(StarTableInput, PlacesAreBroughtToTheEpoch2000) {
  const auto stars =
      Read("RA,Dec,Mag,pmRA,pmDec,Epoch\n10,20,5,0,3600,1990\n10,20,5,,,1990\n10,60,5,3600,0,2010\n");
  EXPECT_NEAR(stars[0].dec / kDegree, 20.01, 1e-8);
  EXPECT_NEAR(stars[1].dec / kDegree, 20.0, 1e-12);
  EXPECT_NEAR(stars[2].ra / kDegree, 10.0 - 0.02, 1e-7);
}

TEST(StarTableInput, WhatIsWrongIsNamedWithItsLine) {
  EXPECT_EQ(MessageOf(""), "t.tsv: it has no line with the names of columns");
  EXPECT_EQ(MessageOf("RA\tMag\n"), "t.tsv:1: it has no column Dec");
  EXPECT_EQ(MessageOf("RA,Dec,Mag,V_mag\n"), "t.tsv:1: two columns are Magnitude");
  const std::string head = "RA,Dec,Mag,Number,pmRA,pmDec,Epoch\n";
  EXPECT_EQ(MessageOf(head + "1,2,3,1\n\n1,x,3,2\n"), "t.tsv:4: Dec: 'x' is no number");
  EXPECT_EQ(MessageOf(head + "1,2,,1\n"), "t.tsv:2: Magnitude is missing");
  EXPECT_EQ(MessageOf(head + "1,2\n"), "t.tsv:2: Number is missing");
  EXPECT_EQ(MessageOf(head + "1,2,3,1,5\n"), "t.tsv:2: it has only one of pmRA and pmDec");
  EXPECT_EQ(MessageOf(head + "1,2,3,1\n1,2,3,1\n"), "t.tsv:3: Number: 1 stands above already");
  EXPECT_EQ(MessageOf(head + "1,2,3,1.5\n"), "t.tsv:2: Number is no whole number from 1 to 2047483647");
  EXPECT_EQ(MessageOf(head + "1,2,3,2047483648\n"),
            "t.tsv:2: Number is no whole number from 1 to 2047483647");
  EXPECT_EQ(MessageOf(head + "1,91,3,1\n"), "t.tsv:2: its place is not on the sphere");
  EXPECT_EQ(MessageOf(head + "1,2,99,1\n"), "t.tsv:2: its magnitude is not between -32 and 32");
  EXPECT_EQ(MessageOf(head + "1,2,3,1,1,1,99\n"), "t.tsv:2: Epoch is no year from 1800 to 2200");
  EXPECT_EQ(MessageOf(head + "\"1,2,3,1\n"), "t.tsv:2: a double quote is not closed");
  EXPECT_EQ(MessageOf(head + std::string(70000, '1') + "\n"), "t.tsv:2: the line is longer than 65536 bytes");
}

TEST(StarTableInput, BeginsAgain) {
  const test_support::TempDir dir;
  StarTableInput input(dir.Write("t.csv", "RA,Dec,Mag,Number\n1,2,3,4\n"));
  scene::TileStar star;
  for (int round = 0; round < 3; ++round) {
    ASSERT_TRUE(input.Take(star));
    EXPECT_EQ(star.number, scene::kImportedNumbers + 4);
    EXPECT_FALSE(input.Take(star));
    input.Rewind();
  }
}

}  // namespace
}  // namespace skydata
