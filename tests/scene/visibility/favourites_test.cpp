// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/favourites.h"

#include <gtest/gtest.h>

#include <string>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

using namespace scene;
using CommonInterfaces::SettingsData;

namespace {

constexpr unsigned kOwner = 1, kBlock = FourCC("FLTR");
constexpr int kStar = FourCC("star");

class FavouritesTest : public testing::Test {
 protected:
  // The bytes of a file with two favourite stars in the block.
  std::string FileWithTwo(unsigned id) {
    SettingsData settings(id, kBlock, "");
    AddFavourite(settings, kStar, 7);
    AddFavourite(settings, kStar, 2491);
    settings.Write(roots.dir.Path("two.data").c_str());
    return roots.dir.Read("two.data");
  }
  int Take(const std::string& bytes) { return TakeFavourites(roots.dir.Write("some.data", bytes), into); }

  test_support::TempRoots roots;
  test_support::DebugCapture diagnostics;
  SettingsData into{kOwner, kBlock, ""};
};

TEST_F(FavouritesTest, AreTakenOnceFromTheOwnBlock) {
  EXPECT_EQ(Take(FileWithTwo(kOwner)), 2);
  EXPECT_EQ(into.GetFieldCount(), 2);
  EXPECT_EQ(Take(FileWithTwo(kOwner)), 0) << "both are there";
}

TEST_F(FavouritesTest, NoneAreTakenFromAnotherBlockOrNoFile) {
  EXPECT_EQ(Take(FileWithTwo(kOwner + 1)), 0);
  EXPECT_EQ(TakeFavourites(roots.dir.Path("missing.data"), into), 0);
  EXPECT_EQ(TakeFavourites("", into), 0);
  EXPECT_EQ(into.GetFieldCount(), 0);
}

// Header and key have 8 bytes each; then come the count of sections, the section of 13 bytes, the count of
// fields, the first one and the second.
TEST_F(FavouritesTest, ThoseBeforeACutAreTaken) {
  const std::string whole = FileWithTwo(kOwner);
  constexpr std::size_t kFields = 8 + 8 + 2 + 13 + 4;
  const std::size_t one = (whole.size() - kFields) / 2;
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    SettingsData fresh(kOwner, kBlock, "");
    const int expected = size < kFields + one ? 0 : size < whole.size() ? 1 : 2;
    EXPECT_EQ(TakeFavourites(roots.dir.Write("cut.data", whole.substr(0, size)), fresh), expected) << size;
    EXPECT_EQ(fresh.GetFieldCount(), expected) << size;
  }
}

}  // namespace
