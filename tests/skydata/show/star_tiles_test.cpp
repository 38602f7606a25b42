// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include <gtest/gtest.h>

#include "scene/catalogs/star_tile_writer.h"
#include "scene/view/directions.h"
#include "skydata/command_line.h"
#include "support/temp_dir.h"

namespace skydata {
namespace {

class ShowStarTiles : public testing::Test {
 protected:
  ShowStarTiles() {
    constexpr double kDegree = scene::kRadiansPerDegree;
    scene::StarTileWriter writer;
    EXPECT_TRUE(writer.Open(m_Path.c_str(), "Two stars"));
    EXPECT_TRUE(writer.Add({1000001, 45.0 * kDegree, -30.0 * kDegree, 9.1, 0.482}));
    EXPECT_TRUE(
        writer.Add({1000002, 46.5 * kDegree, -30.0 * kDegree, 9.3, scene::TileStar::kUnknown, 12.5, -3.0}));
    EXPECT_TRUE(writer.Commit());
  }

  // What the program prints; its exit code in front.
  std::string Show(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "show");
    arguments.push_back(m_Path);
    std::ostringstream output, errors;
    const int code = skydata::Run(arguments, output, errors);
    return std::to_string(code) + "\n" + output.str() + errors.str();
  }

  test_support::TempDir m_Dir;
  std::string m_Path = m_Dir.Path("stars.tiles");
};

TEST_F(ShowStarTiles, HeaderAndBands) {
  EXPECT_EQ(Show({}),
            "0\n2 stars, numbers 1000001 to 1000002\nTwo stars\n"
            "band  order  cells  stars  brightest [mag]  faintest [mag]  motion [mas/yr]\n"
            "   0      0     12      2            9.100           9.300             13.0\n");
}

TEST_F(ShowStarTiles, StarsOfACell) {
  EXPECT_EQ(
      Show({"--cell", "0:8", "--json"}),
      "0\n[\n {\"number\": 1000001, \"RA [h]\": 3.0000000, \"Dec [deg]\": -30.000000, \"V [mag]\": 9.100, "
      "\"B-V [mag]\": 0.482, \"motion east [mas/yr]\": null, \"motion north [mas/yr]\": null},\n"
      " {\"number\": 1000002, \"RA [h]\": 3.1000000, \"Dec [deg]\": -30.000000, \"V [mag]\": 9.300, "
      "\"B-V [mag]\": null, \"motion east [mas/yr]\": 12.5, \"motion north [mas/yr]\": -3.0}\n]\n");
}

TEST_F(ShowStarTiles, CellsThatAreNotThere) {
  EXPECT_EQ(Show({"--cell", "0:12", "--json"}), "1\n" + m_Path + ": it has no cell 12 of a band 0\n");
  EXPECT_EQ(Show({"--cell", "1:0", "--json"}), "1\n" + m_Path + ": it has no cell 0 of a band 1\n");
  for (const char* cell : {"8", "0:x", "0:-1", ":", "0:8:9"})
    EXPECT_EQ(Show({"--cell", cell, "--json"}), "2\nskydata: --cell: wants BAND:CELL (skydata --help)\n")
        << cell;
}

TEST_F(ShowStarTiles, WhatIsNoTileCatalogIsNamed) {
  m_Dir.Write("stars.tiles", "nothing");
  EXPECT_EQ(Show({}), "1\n" + m_Path + ": it is no star tile catalog\n");
}

}  // namespace
}  // namespace skydata
