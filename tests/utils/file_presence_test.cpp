// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/file_presence.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

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

TEST(IsRegularFile, OfFilesFoldersAndNothing) {
  const TempDir dir;
  EXPECT_TRUE(IsRegularFile(dir.Write("f", "1").c_str()));
  for (const char* const name : {"", "none", "none/f", "f/below"}) {
    EXPECT_FALSE(IsRegularFile(dir.Path(name).c_str())) << name;
  }
  EXPECT_FALSE(IsRegularFile(""));
  EXPECT_FALSE(IsRegularFile(nullptr));
}

TEST(ListFolder, NamesWhatLiesInIt) {
  const TempDir dir;
  EXPECT_TRUE(ListFolder(dir.Path().c_str()).empty());
  dir.Write("b", "");
  dir.Write("a/below", "");
  ASSERT_TRUE(CreateEmptyFile((dir.Path() + "/\xC3\xA4.txt").c_str()));
  std::vector<std::string> names = ListFolder(dir.Path().c_str());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"a", "b", "\xC3\xA4.txt"}));
}

TEST(ListFolder, WhatIsNoFolderHoldsNothing) {
  const TempDir dir;
  EXPECT_TRUE(ListFolder(dir.Write("f", "1").c_str()).empty());
  EXPECT_TRUE(ListFolder(dir.Path("none").c_str()).empty());
  EXPECT_TRUE(ListFolder("").empty());
  EXPECT_TRUE(ListFolder(nullptr).empty());
}

TEST(GetAbsolutePath, StandsBelowTheCurrentFolder) {
  const TempDir dir;
  const std::string absolute = dir.Path("f");
  EXPECT_EQ(GetAbsolutePath(absolute.c_str()), absolute);
  const std::filesystem::path here = std::filesystem::current_path();
  EXPECT_EQ(std::filesystem::path(GetAbsolutePath("no/such")), here / "no" / "such");
  for (const char* const path : {".", "", static_cast<const char*>(nullptr)}) {
    EXPECT_TRUE(std::filesystem::equivalent(GetAbsolutePath(path), here));
  }
}

TEST(GetTemporaryFolder, IsTheOneThatTheStandardLibraryKnows) {
  EXPECT_EQ(std::filesystem::path(GetTemporaryFolder()), std::filesystem::temp_directory_path());
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
