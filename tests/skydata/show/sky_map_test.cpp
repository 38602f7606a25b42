// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include <gtest/gtest.h>

#include "scene/catalogs/sky_map.h"
#include "skydata/command_line.h"
#include "support/temp_dir.h"

namespace skydata {
namespace {

// What the program prints; its exit code in front.
std::string Show(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "show");
  std::ostringstream output, errors;
  const int code = skydata::Run(arguments, output, errors);
  return std::to_string(code) + "\n" + output.str() + errors.str();
}

}  // namespace

// Two cells to a side, those of negative x 0: on the meridian of x 0 half of the others, beyond it what the
// splines leave of them.
TEST(ShowSkyMap, HoursAndDeclinations) {
  const test_support::TempDir dir;
  const std::string cells("\0\xC8\0\xC8", 4);
  dir.Write("milkyway.map", scene::MakeSkyMap(2, cells, "Half a sky"));
  const std::string shown = Show({dir.Path("milkyway.map")});
  EXPECT_EQ(shown.find("0\n2 x 2 cells\nHalf a sky\n"
                       "RA [h]     90     75     60     45     30     15      0    -15"),
            0u)
      << shown;
  EXPECT_NE(shown.find("\n     6  100.0  100.0  100.0  100.0  100.0  100.0  100.0"), std::string::npos)
      << shown;
  const std::string json = Show({dir.Path("milkyway.map"), "--json"});
  EXPECT_EQ(json.find("0\n[\n {\"RA [h]\": 0, \"90\": 100.0, "), 0u) << json;
}

TEST(ShowSkyMap, WhatIsNoMapIsNamed) {
  const test_support::TempDir dir;
  dir.Write("milkyway.map", "x");
  EXPECT_EQ(Show({dir.Path("milkyway.map")}),
            "1\n" + dir.Path("milkyway.map") + ": it is no map of the sky\n");
}

}  // namespace skydata
