// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/whole_file.h"

#include <gtest/gtest.h>

#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

int CountFiles(const std::filesystem::path& folder) {
  int count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
  return count;
}

TEST(SourceFiles, LinesAreNumberedFromOneAndLoseTheirEnds) {
  const test_support::TempDir dir;
  const auto lines = ReadLines(dir.Write("a.txt",
                                         "\xEF\xBB\xBF"
                                         "a \t\r\n\nb"));
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].text, "a");
  EXPECT_EQ(lines[1].text, "");
  EXPECT_EQ(lines[2].text, "b");
  EXPECT_EQ(lines[2].number, 3);
}
TEST(SourceFiles, ReplacingMakesFoldersAndLeavesNothingBeside) {
  const test_support::TempDir dir;
  ReplaceFile(dir.Path("a/b/c.bin"), std::string("x\0y", 3));
  ReplaceFile(dir.Path("a/b/c.bin"), std::string("z\n", 2));
  EXPECT_EQ(dir.Read("a/b/c.bin"), "z\n");
  EXPECT_EQ(CountFiles(dir.Path("a/b")), 1);
}
TEST(SourceFiles, AFolderInTheWayIsAnErrorAndStays) {
  const test_support::TempDir dir;
  dir.Write("c.bin/kept.txt", "kept");
  const std::string message = skydata_test::MessageOf(dir, [&] { ReplaceFile(dir.Path("c.bin"), "x"); });
  EXPECT_EQ(message.substr(0, 26), "c.bin: cannot be replaced:");
  EXPECT_EQ(dir.Read("c.bin/kept.txt"), "kept");
  EXPECT_EQ(CountFiles(dir.Path()), 1);
}
TEST(SourceFiles, AFileWhereAFolderShouldBeIsAnError) {
  const test_support::TempDir dir;
  dir.Write("a", "file");
  EXPECT_EQ(skydata_test::MessageOf(dir, [&] { ReplaceFile(dir.Path("a/b.bin"), "x"); }),
            "a/b.bin: cannot be written");
}
TEST(SourceFiles, AFolderCannotBeReadAsAFile) {
  const test_support::TempDir dir;
  dir.Write("folder/file", "x");
  const std::string message = skydata_test::MessageOf(dir, [&] { ReadFile(dir.Path("folder")); });
  EXPECT_EQ(message.substr(0, 15), "folder: cannot ");  // be opened, or be read: that is the system's choice
}
TEST(SourceFiles, WhatTheLastLookThrowsKeepsTheFileAsItWas) {
  const test_support::TempDir dir;
  dir.Write("c.bin", "old");
  const auto refuse = [&dir](const std::filesystem::path& beside) {
    EXPECT_EQ(ReadFile(beside), "new");
    throw SourceError(dir.Path("c.bin"), 0, "refused");
  };
  EXPECT_EQ(skydata_test::MessageOf(dir, [&] { ReplaceFile(dir.Path("c.bin"), "new", refuse); }),
            "c.bin: refused");
  EXPECT_EQ(dir.Read("c.bin"), "old");
  EXPECT_EQ(CountFiles(dir.Path()), 1);
}
TEST(SourceFiles, AScratchFileIsRemoved) {
  const test_support::TempDir dir;
  std::filesystem::path path;
  {
    const ScratchFile scratch(dir.Path());
    path = scratch.GetPath();
    dir.Write(path.filename().string(), "x");
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace skydata
