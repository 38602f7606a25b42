// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/import.h"

#include <sstream>

#include <gtest/gtest.h>

#include "scene/catalogs/star_tile_writer.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/command_line.h"
#include "support/temp_dir.h"
#include "tests/skydata/stars/fits_index.h"

namespace skydata {
namespace {

using test_support::TempDir;

constexpr double kDegree = scene::kRadiansPerDegree;

// A data root of one bright star at (10, 20), which moves by 3.7" a year to the west, and one tile star at
// (30, -40).
std::string MakeRoot(const TempDir& dir) {
  dir.Write("root/catalogs/stars.txt",
            "# one\nNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tPropMotionRA:f32\tPropMotionDec:f32\n"
            "1\t0.17453292519943295\t0.3490658503988659\t5\t-3700\t0\n");
  scene::StarTileWriter writer;
  EXPECT_TRUE(writer.Open(dir.Path("root/catalogs/stars.tiles").c_str(), ""));
  EXPECT_TRUE(writer.Add({scene::kHipparcosNumbers + 9, 30.0 * kDegree, -40.0 * kDegree, 8.0}));
  EXPECT_TRUE(writer.Commit());
  return dir.Path("root");
}

struct Ran {
  int code;
  std::string output, errors;
};
Ran Import(const std::vector<std::string>& arguments) {
  std::vector<std::string> all = {"stars", "import"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::ostringstream output, errors;
  const int code = Run(all, output, errors);
  return {code, output.str(), errors.str()};
}

TEST(ImportStars, WhatIsDrawnAlreadyIsLeftOut) {
  const TempDir dir;
  const std::string root = MakeRoot(dir);
  const std::string table = dir.Write("t.csv",
                                      "RA,Dec,Mag\n"
                                      "10.0095,20,5.1\n"   // where the bright star stood in 1991.25
                                      "30.0003,-40,8.1\n"  // the tile star
                                      "30.004,-40,8.2\n"   // beside it, which has its own
                                      "200,10,9\n");
  const Ran ran = Import({table, "--data", root});
  const std::string made = dir.Path("root/catalogs/deep_stars.tiles");
  EXPECT_EQ(ran.code, 0) << ran.errors;
  EXPECT_EQ(ran.output, (std::filesystem::path(root) / "catalogs" / "deep_stars.tiles").string() +
                            ": 2 stars of 4, 2 are drawn already\n");
  EXPECT_EQ(ran.errors, "") << "no progress where nobody watches";
  scene::StarTiles tiles;
  std::string error;
  ASSERT_TRUE(tiles.Open(made.c_str(), error)) << error;
  EXPECT_EQ(tiles.GetCount(), 2u);
  EXPECT_EQ(tiles.FindNumber(scene::kImportedNumbers + 3).GetCount(), 1u);
  EXPECT_EQ(tiles.FindNumber(scene::kImportedNumbers + 4).GetCount(), 1u);
  EXPECT_EQ(tiles.GetOrigin(), "t.csv");
}

TEST(ImportStars, SameAgainMakesTheSameFile) {
  const TempDir dir;
  const std::string root = MakeRoot(dir);
  const std::string table = dir.Write("t.csv", "RA,Dec,Mag\n200,10,9\n201,10,9\n");
  const std::string made = dir.Path("w/x/deep_stars.tiles");  // in folders that are not there yet
  ASSERT_EQ(Import({table, "--data", root, "--output", made}).code, 0);
  const std::string first = dir.Read("w/x/deep_stars.tiles");
  ASSERT_EQ(Import({table, "--data", root, "--output", made}).code, 0);
  EXPECT_EQ(dir.Read("w/x/deep_stars.tiles"), first);
}

TEST(ImportStars, FailureLeavesTheOldFileAndNothingElse) {
  const TempDir dir;
  const std::string root = MakeRoot(dir);
  const std::string made = dir.Write("out/deep_stars.tiles", "old");
  const std::string table = dir.Write("t.csv", "RA,Dec,Mag\n200,10,9\n201,10,x\n");
  const Ran ran = Import({table, "--data", root, "--output", made});
  EXPECT_EQ(ran.code, 1);
  EXPECT_EQ(ran.errors, table + ":3: Magnitude: 'x' is no number\n");
  EXPECT_EQ(dir.Read("out/deep_stars.tiles"), "old");
  const auto files = std::filesystem::directory_iterator(dir.Path("out"));
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
  const Ran missing = Import({dir.Path("none"), "--data", root});
  EXPECT_EQ(missing.code, 1);
  EXPECT_EQ(missing.errors, dir.Path("none") + ": no such file\n");
}

TEST(ImportStars, IndexFileIsKnownByItsBytes) {
  const TempDir dir;
  const std::string root = MakeRoot(dir);
  const skydata_test::FitsIndex index({{30.0, -40.0, 8.0f}, {0.0, 0.0, 1.9f}, {100.0, 5.0, 11.0f}});
  const Ran ran = Import({dir.Write("some.file", index.Make()), "--data", root});
  EXPECT_EQ(ran.code, 0) << ran.errors;
  EXPECT_NE(ran.output.find(": 1 stars of 2, 1 are drawn already; 1 more without a place\n"),
            std::string::npos)
      << ran.output;
}

}  // namespace
}  // namespace skydata
