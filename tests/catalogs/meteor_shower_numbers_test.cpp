// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// A shower with each of its numbers spoiled in turn: it is left out, one line says so, and the next one is
// kept.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common_interfaces/meteor_showers.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"

using CommonInterfaces::ReadMeteorShowers;
using CommonInterfaces::SHOWER;

TEST(MeteorShowerNumbers, NoneMayBeAnythingElse) {
  const std::vector<std::string> whole = {"a", "26", "7", "13", "8", "20", "8", "PER", "b", "3", "12", "+57"};
  int spoiled = 0;
  for (std::size_t field = 0; field < whole.size(); ++field) {
    if (field == 0 || field == 7 || field == 8) continue;  // texts
    for (const char* bad : {"x", "", "40000", "-40000"}) {
      std::string text;
      for (std::size_t i = 0; i < whole.size(); ++i)
        text += (i > 0 ? ";" : "") + (i == field ? bad : whole[i]);
      const test_support::TempRoots roots;
      const test_support::DebugCapture debug;
      test_support::LoadStrings(roots, "6101\t" + text + "\n6102\tkept;1;2;3;4;5;6;b;c;7;8;9\n");
      std::vector<SHOWER> showers;
      ReadMeteorShowers(&showers);
      ASSERT_EQ(showers.size(), 1u) << text;
      EXPECT_STREQ(showers[0].name, "kept");
      ASSERT_EQ(debug.lines.size(), 1u) << text;
      EXPECT_EQ(debug.lines[0], "Bad string for meteor shower " + text + "\n");
      ++spoiled;
    }
  }
  EXPECT_EQ(spoiled, 9 * 4);
}
