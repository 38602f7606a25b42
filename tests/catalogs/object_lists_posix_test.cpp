// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lists on a full disk.
#include <filesystem>

#include <gtest/gtest.h>

#include "common_interfaces/object_lists.h"
#include "support/debug_capture.h"
#include "support/file_size_limit_posix.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::ChoosingObjectsFile;
using CommonInterfaces::FavouriteObjectsFile;
using CommonInterfaces::SelectedObjectsFile;
using test_support::FileSizeLimit;

constexpr int kMany = 1000;  // lines of at least 4 bytes

class ListsOnAFullDisk : public testing::Test {
 protected:
  std::string LeftAsItWas(const std::string& name) const {
    return "File " + roots.dir.Path("work") + "/catalogs/" + name +
           " could not be written and is left as it was\n";
  }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(ListsOnAFullDisk, FavouritesKeepTheOldFile) {
  roots.dir.Write("work/catalogs/favourites.txt", "old\t1\t2\n");
  FavouriteObjectsFile favourites;
  for (int number = 0; number < kMany; ++number) favourites.AddObject({1, number});
  {
    const FileSizeLimit full(1000);
    favourites.Write();
  }
  EXPECT_EQ(roots.dir.Read("work/catalogs/favourites.txt"), "old\t1\t2\n");
  EXPECT_EQ(debug.lines, std::vector<std::string>{LeftAsItWas("favourites.txt")});
  favourites.Write();
  FavouriteObjectsFile again;
  again.Read();
  EXPECT_EQ(again.GetSize(), kMany) << "with room on the disk the list is written";
}

TEST_F(ListsOnAFullDisk, SaveOfASelectionFailsAndKeepsTheOldFile) {
  roots.dir.Write("work/catalogs/selection.txt", "old\t1\t2\n");
  SelectedObjectsFile selection("catalogs:selection.txt");
  selection.SetObjects(std::vector<CommonInterfaces::ObjectDesc>(kMany, {"name", 3, 4}));
  {
    const FileSizeLimit full(1000);
    EXPECT_FALSE(selection.Save());
  }
  EXPECT_EQ(roots.dir.Read("work/catalogs/selection.txt"), "old\t1\t2\n");
  EXPECT_TRUE(selection.Save());
}

TEST_F(ListsOnAFullDisk, SaveOfChosenObjectsFailsAndKeepsTheOldFile) {
  roots.dir.Write("work/catalogs/observationobjects.txt", "old\t1\t2\t3\n");
  ChoosingObjectsFile chosen;
  chosen.SetObjects(std::vector<SSO_ID>(kMany, SSO_ID(3, 4)));
  {
    const FileSizeLimit full(1000);
    EXPECT_FALSE(chosen.Save());
  }
  EXPECT_EQ(roots.dir.Read("work/catalogs/observationobjects.txt"), "old\t1\t2\t3\n");
  EXPECT_EQ(debug.lines, std::vector<std::string>{LeftAsItWas("observationobjects.txt")});
}

// A circle of links: there is something, and the system does not tell what.
TEST_F(ListsOnAFullDisk, WhatTheSystemDoesNotTellAboutIsNeitherMadeNorReplaced) {
  const std::string link = roots.dir.Path("work/list.txt");
  std::filesystem::create_symlink("list.txt", link);
  ChoosingObjectsFile chosen("list.txt");
  chosen.SetObjects({SSO_ID(3, 4)});
  EXPECT_FALSE(chosen.Save());
  SelectedObjectsFile selection("list.txt");
  selection.SetObjects({{"name", 3, 4}});
  EXPECT_FALSE(selection.Save());
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(debug.lines.size(), 2u);
}

TEST_F(ListsOnAFullDisk, SaveOfFavouritesTells) {
  FavouriteObjectsFile favourites;
  for (int number = 0; number < kMany; ++number) favourites.AddObject({1, number});
  {
    const FileSizeLimit full(1000);
    EXPECT_FALSE(favourites.Save());
  }
  EXPECT_TRUE(favourites.Save());
}

}  // namespace
