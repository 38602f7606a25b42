// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A disk that takes new files and none of their bytes.
#include <gtest/gtest.h>

#include <sstream>

#include "skyview/commands/skyview.h"
#include "support/file_size_limit_posix.h"
#include "support/temp_dir.h"

namespace program_tests {
namespace {

using test_support::TempDir;

std::string AddOnFullDisk(const TempDir& dir) {
  std::ostringstream output, errors;
  const test_support::FileSizeLimit full(0);
  const int code = skyview::Run(
      {"favourites", "add", "Sirius", "--data", CI_BUILT_DATA, "--work", dir.Path()}, "", output, errors);
  EXPECT_EQ(code, 1);
  return errors.str();
}

}  // namespace

TEST(FullDisk, LeavesNoEmptyListOfFavourites) {
  const TempDir dir;
  EXPECT_EQ(AddOnFullDisk(dir), "skyview: " + dir.Path("catalogs/favourites.txt") +
                                    ": the list of favourites cannot be written there\n");
  EXPECT_FALSE(std::filesystem::exists(dir.Path("catalogs/favourites.txt")));
}

TEST(FullDisk, LeavesTheListOfFavouritesAsItWas) {
  const TempDir dir;
  dir.Write("catalogs/favourites.txt", "Rigel\t1937006962\t1713\n");
  AddOnFullDisk(dir);
  EXPECT_EQ(dir.Read("catalogs/favourites.txt"), "Rigel\t1937006962\t1713\n");
}

}  // namespace program_tests
