// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/file_presence.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace {

using test_support::TempDir;

TEST(FilePresence, OfFilesFoldersAndNothing) {
  const TempDir dir;
  EXPECT_EQ(GetFilePresence(dir.Write("f", "1").c_str()), FilePresence::kPresent);
  EXPECT_EQ(GetFilePresence(dir.Path().c_str()), FilePresence::kFolder);
  EXPECT_EQ(GetFilePresence(dir.Path("none").c_str()), FilePresence::kAbsent);
  EXPECT_EQ(GetFilePresence(dir.Path("none/f").c_str()), FilePresence::kAbsent);
  EXPECT_EQ(GetFilePresence(dir.Path("f/below").c_str()), FilePresence::kAbsent) << "f is no folder";
  EXPECT_EQ(GetFilePresence(""), FilePresence::kAbsent);
  EXPECT_EQ(GetFilePresence(nullptr), FilePresence::kAbsent);
}

TEST(CreateEmptyFile, MakesOneWhereNoneIs) {
  const TempDir dir;
  EXPECT_TRUE(CreateEmptyFile(dir.Path("f").c_str()));
  EXPECT_TRUE(std::filesystem::is_regular_file(dir.Path("f")));
  EXPECT_FALSE(CreateEmptyFile(dir.Path("none/f").c_str()));
  EXPECT_FALSE(CreateEmptyFile(""));
  EXPECT_FALSE(CreateEmptyFile(nullptr));
}

TEST(CreateEmptyFile, NeverTouchesWhatIsThere) {
  const TempDir dir;
  EXPECT_FALSE(CreateEmptyFile(dir.Write("f", "old").c_str()));
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_FALSE(CreateEmptyFile(dir.Path().c_str()));
}

}  // namespace
