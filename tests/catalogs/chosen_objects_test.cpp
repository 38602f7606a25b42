// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_lists.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "catalogs/object_lists_fixture.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using namespace object_lists;

using Chosen = ObjectLists;

TEST_F(Chosen, ALineHasAFourthNumber) {
  EXPECT_EQ(ReadChosen("M 31\t1734437985\t31\t-5\n"), Lines{"M 31|1734437985|31|0|-5"});
}

TEST_F(Chosen, LinesWithoutTheFourthNumberAreSkipped) {
  EXPECT_EQ(ReadChosen("a\t1\t2\nb\t1\t2\tx\nc\t1\t2\t\nd\t1\t2\t3\n"), Lines{"d|1|2|0|3"});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Chosen, AMissingFileIsMadeEmpty) {
  ChoosingObjectsFile chosen;
  std::vector<SSO_ID> out = {Object(1, 2, "kept")};
  EXPECT_FALSE(chosen.GetObjects(out));
  EXPECT_EQ(Texts(out), Lines{"kept|1|2|0|0"});
  EXPECT_TRUE(std::filesystem::exists(roots.dir.Path(kChosenFile)));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Chosen, SaveWritesAllFourFields) {
  ChoosingObjectsFile chosen("catalogs:mine.txt");
  SSO_ID object = Object(1937006962, 7001, "Ve\tga");
  object.third = 8;
  object.fourth = 2147483647;
  EXPECT_TRUE(chosen.SetObjects({object, SSO_ID()}));
  EXPECT_TRUE(chosen.Save());
  EXPECT_EQ(roots.dir.Read("work/catalogs/mine.txt"), "Ve ga\t1937006962\t7001\t2147483647\n\t-1\t-1\t0\n");
  std::vector<SSO_ID> out;
  EXPECT_TRUE(ChoosingObjectsFile("catalogs:mine.txt").GetObjects(out));
  EXPECT_EQ(Texts(out), (Lines{"Ve ga|1937006962|7001|0|2147483647", "|-1|-1|0|0"}));
}

TEST_F(Chosen, TheLongestNameAndNumbersCanBeReadAgain) {
  SSO_ID object = Object(-2147483647 - 1, -2147483647 - 1, std::string(79, 'n').c_str());
  object.fourth = -2147483647 - 1;
  ChoosingObjectsFile chosen;
  chosen.SetObjects({object});
  EXPECT_TRUE(chosen.Save());
  std::vector<SSO_ID> out;
  EXPECT_TRUE(ChoosingObjectsFile().GetObjects(out));
  EXPECT_EQ(Texts(out), Lines{std::string(79, 'n') + "|-2147483648|-2147483648|0|-2147483648"});
}

TEST_F(Chosen, SaveFailsWithoutAPlaceToWrite) {
  std::filesystem::create_directories(roots.dir.Path(kChosenFile));
  ChoosingObjectsFile chosen;
  chosen.SetObjects({Object(1, 2)});
  EXPECT_FALSE(chosen.Save());
  EXPECT_FALSE(ChoosingObjectsFile(nullptr).Save());
}

}  // namespace
