// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lists in a work area that is named from the current folder.
#include <gtest/gtest.h>

#include <filesystem>

#include "common_interfaces/object_lists.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::ChoosingObjectsFile;
using CommonInterfaces::FavouriteObjectsFile;
using CommonInterfaces::ObjectDesc;
using CommonInterfaces::SelectedObjectsFile;

class ListsBelowARelativeRoot : public testing::Test {
 protected:
  ListsBelowARelativeRoot() : m_Before(std::filesystem::current_path()) {
    std::filesystem::current_path(roots.dir.Path());
    ZentharPath::SetRoots("data", "work");
  }
  ~ListsBelowARelativeRoot() override { std::filesystem::current_path(m_Before); }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;

 private:
  std::filesystem::path m_Before;
};

TEST_F(ListsBelowARelativeRoot, FavouritesThatAreThereAreKept) {
  roots.dir.Write("work/catalogs/favourites.txt", "Vega\t1937006962\t7001\n");
  FavouriteObjectsFile favourites;
  EXPECT_EQ(roots.dir.Read("work/catalogs/favourites.txt"), "Vega\t1937006962\t7001\n");
  favourites.Read();
  EXPECT_TRUE(favourites.ObjectIncluded({1937006962, 7001}));
  EXPECT_EQ(favourites.GetSize(), 1);
}

TEST_F(ListsBelowARelativeRoot, ChosenObjectsThatAreThereAreKept) {
  roots.dir.Write("work/catalogs/observationobjects.txt", "Vega\t1937006962\t7001\t5\n");
  std::vector<SSO_ID> objects;
  ASSERT_TRUE(ChoosingObjectsFile().GetObjects(objects));
  EXPECT_EQ(objects.at(0).fourth, 5);
  EXPECT_EQ(roots.dir.Read("work/catalogs/observationobjects.txt"), "Vega\t1937006962\t7001\t5\n");
}

TEST_F(ListsBelowARelativeRoot, MissingListsAreMadeThereAndWritten) {
  FavouriteObjectsFile favourites;
  favourites.AddObject({1937006962, 7001});
  favourites.Write();
  EXPECT_EQ(roots.dir.Read("work/catalogs/favourites.txt"), "\t1937006962\t7001\n");
  ChoosingObjectsFile chosen;
  EXPECT_TRUE(std::filesystem::exists(roots.dir.Path("work/catalogs/observationobjects.txt")));
  SelectedObjectsFile selection("catalogs:selection.txt");
  EXPECT_TRUE(selection.SetObjects({{"Vega", 1937006962, 7001}}));
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read("work/catalogs/selection.txt"), "Vega\t1937006962\t7001\n");
  EXPECT_TRUE(debug.lines.empty());
}

}  // namespace
