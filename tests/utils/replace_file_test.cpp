// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/replace_file.h"

#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "utils/file.h"

namespace {

using test_support::TempDir;

std::size_t CountFiles(const TempDir& dir) {
  const auto files = std::filesystem::directory_iterator(dir.Path());
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(ReplaceFile, NewFileIsMade) {
  const TempDir dir;
  std::string reason = "untouched";
  EXPECT_TRUE(ReplaceFileContent(dir.Path("f").c_str(), std::string("a\0\r\n", 4), reason));
  EXPECT_EQ(dir.Read("f"), std::string("a\0\r\n", 4));
  EXPECT_EQ(CountFiles(dir), 1u);
  EXPECT_EQ(reason, "untouched");
}

TEST(ReplaceFile, OldContentGoesWhole) {
  const TempDir dir;
  const std::string path = dir.Write("f", "much longer than the new content");
  std::string reason;
  EXPECT_TRUE(ReplaceFileContent(path.c_str(), "new", reason));
  EXPECT_EQ(dir.Read("f"), "new");
  EXPECT_TRUE(ReplaceFileContent(path.c_str(), "", reason));
  EXPECT_EQ(dir.Read("f"), "");
  EXPECT_EQ(CountFiles(dir), 1u);
}

TEST(ReplaceFile, NameInUtf8) {
  const TempDir dir;
  const std::string path = dir.Path() + "/\xCE\xB1.bin";
  std::string reason;
  EXPECT_TRUE(ReplaceFileContent(path.c_str(), "1234", reason)) << reason;
  EXPECT_EQ(MFile::GetLength(path.c_str()), 4);
}

TEST(ReplaceFile, PiecesBecomeTheFileWithCommit) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  FileReplacement file;
  EXPECT_FALSE(file.IsOpen());
  ASSERT_TRUE(file.Open(path.c_str()));
  EXPECT_TRUE(file.IsOpen());
  EXPECT_TRUE(file.Write("one"));
  EXPECT_TRUE(file.Write({}));
  EXPECT_TRUE(file.Write(" 2 " + std::string(100000, 'x')));
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_EQ(CountFiles(dir), 2u);
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(dir.Read("f"), "one 2 " + std::string(100000, 'x'));
  EXPECT_EQ(CountFiles(dir), 1u);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(file.GetReason(), "");
}

// As a caller does that checks the finished content before it takes the place of the old one.
TEST(ReplaceFile, NewFileCanBeReadBeforeCommit) {
  const TempDir dir;
  FileReplacement file;
  EXPECT_EQ(file.GetNewPath(), "");
  ASSERT_TRUE(file.Open(dir.Write("f", "old").c_str()));
  ASSERT_TRUE(file.Write("12345"));
  ASSERT_TRUE(file.Flush());
  EXPECT_EQ(MFile::GetLength(file.GetNewPath().c_str()), 5);
  EXPECT_EQ(std::filesystem::path(file.GetNewPath()).parent_path(),
            std::filesystem::path(dir.Path("f")).parent_path());
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(file.GetNewPath(), "");
  EXPECT_EQ(dir.Read("f"), "12345");
}

TEST(ReplaceFile, DiscardAndDestructionKeepTheOldFile) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  {
    FileReplacement file;
    ASSERT_TRUE(file.Open(path.c_str()));
    EXPECT_TRUE(file.Write("new"));
    file.Discard();
    EXPECT_EQ(CountFiles(dir), 1u);
    ASSERT_TRUE(file.Open(path.c_str()));
    EXPECT_TRUE(file.Write("new"));
  }
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_EQ(CountFiles(dir), 1u);
}

TEST(ReplaceFile, CallerMaySpoilTheContent) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Write("f", "old").c_str()));
  EXPECT_FALSE(file.Fail("its text is wrong"));
  EXPECT_FALSE(file.Write("new"));
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(file.GetReason(), "its text is wrong");
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_EQ(CountFiles(dir), 1u);
}

TEST(ReplaceFile, SecondOpenDiscardsTheFirst) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Path("one").c_str()));
  ASSERT_TRUE(file.Open(dir.Path("two").c_str()));
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(CountFiles(dir), 1u);
  EXPECT_TRUE(std::filesystem::exists(dir.Path("two")));
}

TEST(ReplaceFile, NothingOpenFailsWithAReason) {
  FileReplacement file;
  EXPECT_FALSE(file.Write("x"));
  EXPECT_NE(file.GetReason(), "");
  EXPECT_FALSE(file.Flush());
  EXPECT_FALSE(file.Commit());
  file.Discard();
}

// A failed Open is no burden for the next one.
TEST(ReplaceFile, FoldersAndMissingFoldersAreRefused) {
  const TempDir dir;
  FileReplacement file;
  for (const std::string& path : {dir.Path(), dir.Path("no/such/folder"), std::string()}) {
    EXPECT_FALSE(file.Open(path.c_str())) << path;
    EXPECT_FALSE(file.IsOpen());
    EXPECT_NE(file.GetReason(), "") << path;
    EXPECT_EQ(file.GetReason().find('\n'), std::string::npos) << path;
    std::string reason;
    EXPECT_FALSE(ReplaceFileContent(path.c_str(), "x", reason));
    EXPECT_EQ(reason, file.GetReason());
  }
  EXPECT_FALSE(file.Open(nullptr));
  EXPECT_EQ(CountFiles(dir), 0u);
  ASSERT_TRUE(file.Open(dir.Path("f").c_str()));
  EXPECT_EQ(file.GetReason(), "");
  EXPECT_TRUE(file.Commit());
}

TEST(ReplaceFile, FileWithoutANameIsRefusedBeforeOneIsMade) {
  FileReplacement file;
  for (const char* const path : {"", static_cast<const char*>(nullptr)}) {
    EXPECT_FALSE(file.Open(path));
    EXPECT_EQ(file.GetReason(), "it has no name");
    EXPECT_EQ(file.GetNewPath(), "");
  }
}

#if !defined(__wasi__)  // which has no permissions

TEST(ReplaceFile, ReadOnlyTargetIsRefused) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  constexpr auto kWriting = std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                            std::filesystem::perms::others_write;
  std::filesystem::permissions(path, kWriting, std::filesystem::perm_options::remove);
  std::string reason;
  EXPECT_FALSE(ReplaceFileContent(path.c_str(), "new", reason));
  EXPECT_EQ(reason, "it is write-protected");
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_EQ(CountFiles(dir), 1u);
  std::filesystem::permissions(path, kWriting, std::filesystem::perm_options::add);
}

#endif

TEST(ReplaceFile, TargetThatBecameAFolderStays) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str()));
  dir.Write("f/inside", "x");
  EXPECT_FALSE(file.Commit());
  EXPECT_NE(file.GetReason(), "");
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(CountFiles(dir), 1u);
  EXPECT_EQ(dir.Read("f/inside"), "x");
}

TEST(ReplaceFile, NameOfAnotherWriterIsNeverTaken) {
  const TempDir dir;
  FileReplacement one, two;
  ASSERT_TRUE(one.Open(dir.Path("f").c_str()));
  ASSERT_TRUE(two.Open(dir.Path("f").c_str()));
  EXPECT_NE(one.GetNewPath(), two.GetNewPath());
  EXPECT_TRUE(one.Write("first"));
  EXPECT_TRUE(two.Write("second"));
  two.Discard();
  EXPECT_TRUE(one.Commit());
  EXPECT_EQ(dir.Read("f"), "first");
  EXPECT_EQ(CountFiles(dir), 1u);
}

#if !defined(__wasi__)  // which has no threads

// Whoever reads meanwhile sees one content or the other, never a mixture, a part or nothing.
TEST(ReplaceFile, TwoThreadsLeaveOneOfTheTwoWhole) {
  constexpr int kRounds = 100;
  const TempDir dir;
  const std::string path = dir.Path("f");
  const std::string contents[2] = {std::string(70000, 'a'), std::string(90000, 'b')};
  for (int round = 0; round < kRounds; ++round) {
    std::string reasons[2];
    bool replaced[2] = {};
    std::vector<std::thread> writers;
    for (int i = 0; i < 2; ++i) {
      writers.emplace_back(
          [&, i] { replaced[i] = ReplaceFileContent(path.c_str(), contents[i], reasons[i]); });
    }
    for (std::thread& writer : writers) writer.join();
    ASSERT_TRUE(replaced[0]) << reasons[0];
    ASSERT_TRUE(replaced[1]) << reasons[1];
    const std::string found = dir.Read("f");
    ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes in round " << round;
    ASSERT_EQ(CountFiles(dir), 1u);
  }
}

#endif

TEST(ReplaceFileCommitOver, TakesThePlaceOfWhatIsExpectedOnly) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  const std::string_view old = "old", longer = "older", shorter = "ol";
  for (const std::string_view* wrong : {&longer, &shorter, static_cast<const std::string_view*>(nullptr)}) {
    FileReplacement file;
    ASSERT_TRUE(file.Open(path.c_str()) && file.Write("new"));
    EXPECT_FALSE(file.CommitOver(wrong));
    EXPECT_TRUE(file.IsOvertaken());
    EXPECT_EQ(dir.Read("f"), "old");
    EXPECT_EQ(CountFiles(dir), 1u);
  }
  FileReplacement file;
  ASSERT_TRUE(file.Open(path.c_str()) && file.Write("new"));
  EXPECT_TRUE(file.CommitOver(&old));
  EXPECT_FALSE(file.IsOvertaken());
  EXPECT_EQ(dir.Read("f"), "new");
  EXPECT_EQ(CountFiles(dir), 1u);
}

TEST(ReplaceFileCommitOver, OfANewFileWantsNone) {
  const TempDir dir;
  const std::string_view old = "old", empty;
  for (const std::string_view* wrong : {&old, &empty}) {
    FileReplacement file;
    ASSERT_TRUE(file.Open(dir.Path("f").c_str()) && file.Write("new"));
    EXPECT_FALSE(file.CommitOver(wrong));
    EXPECT_TRUE(file.IsOvertaken());
    EXPECT_EQ(CountFiles(dir), 0u);
  }
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str()) && file.Write("new"));
  EXPECT_TRUE(file.CommitOver(nullptr));
  EXPECT_EQ(dir.Read("f"), "new");
  EXPECT_FALSE(file.CommitOver(nullptr)) << "nothing is open";
  EXPECT_FALSE(file.IsOvertaken());
}

}  // namespace
