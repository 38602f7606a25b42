// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What only this kind of system has: file size limits, modes, links, pipes, processes that are forked. The
// rest of these rules is tested through MTextFile, in file_posix_test.cpp.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "support/file_size_limit_posix.h"
#include "support/temp_dir.h"
#include "utils/replace_file.h"

namespace {

using test_support::FileSizeLimit;
using test_support::TempDir;

bool IsOnlyFile(const TempDir& dir) {
  auto files = std::filesystem::directory_iterator(dir.Path());
  return std::distance(begin(files), end(files)) == 1;
}

std::string Replace(const std::string& path, const std::string& content) {
  std::string reason;
  return ReplaceFileContent(path.c_str(), content, reason) ? "done" : reason;
}

TEST(ReplaceFilePosix, FullDiskKeepsTheOldFileAndSaysWhy) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  for (const std::size_t size : {3u, 100000u}) {  // met while flushing, and while writing
    const FileSizeLimit full(2);
    EXPECT_EQ(Replace(path, std::string(size, 'x')), "File too large");
  }
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_TRUE(IsOnlyFile(dir));
}

TEST(ReplaceFilePosix, WhatFailedOnceFailsForGoodAndKeepsItsReason) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Write("f", "old").c_str()));
  {
    const FileSizeLimit full(1000);
    EXPECT_FALSE(file.Write(std::string(100000, 'x')));
  }
  EXPECT_FALSE(file.Write("more"));
  EXPECT_FALSE(file.Flush());
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(file.GetReason(), "File too large");
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_TRUE(IsOnlyFile(dir));
}

TEST(ReplaceFilePosix, NameWithoutAFolderIsOneOfTheCurrentFolder) {
  const TempDir dir;
  dir.Write("f", "old");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(dir.Path());
  EXPECT_EQ(Replace("f", "new"), "done");
  std::filesystem::current_path(before);
  EXPECT_EQ(dir.Read("f"), "new");
  EXPECT_TRUE(IsOnlyFile(dir));
}

TEST(ReplaceFilePosix, ModeIsKept) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  for (const mode_t mode : {0600u, 0640u, 0755u, 0622u}) {
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    ASSERT_EQ(Replace(path, "new"), "done");
    struct stat info;
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, mode);
  }
}

// The administrator too: the mode is what the owner asked for.
TEST(ReplaceFilePosix, FileItsOwnerMayNotWriteIsRefused) {
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  ASSERT_EQ(chmod(path.c_str(), 0466), 0);
  EXPECT_EQ(Replace(path, "new"), "it is write-protected");
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_TRUE(IsOnlyFile(dir));
}

TEST(ReplaceFilePosix, LinkStaysAndItsFileIsReplaced) {
  const TempDir dir;
  dir.Write("real/f", "old");
  std::filesystem::create_symlink("real/f", dir.Path("link"));
  ASSERT_EQ(Replace(dir.Path("link"), "new"), "done");
  EXPECT_EQ(dir.Read("real/f"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("link")));
}

TEST(ReplaceFilePosix, LinkThatLeadsNowhereGetsItsFile) {
  const TempDir dir;
  std::filesystem::create_symlink("later", dir.Path("link"));
  ASSERT_EQ(Replace(dir.Path("link"), "new"), "done");
  EXPECT_EQ(dir.Read("later"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("link")));
  std::filesystem::create_symlink("no/folder", dir.Path("lost"));
  EXPECT_EQ(Replace(dir.Path("lost"), "new"), "No such file or directory");
}

TEST(ReplaceFilePosix, CirclesOfLinksAndPipesAreRefused) {
  const TempDir dir;
  std::filesystem::create_symlink("b", dir.Path("a"));
  std::filesystem::create_symlink("a", dir.Path("b"));
  EXPECT_EQ(Replace(dir.Path("a"), "new"), "its links lead in a circle");
  ASSERT_EQ(mkfifo(dir.Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(Replace(dir.Path("pipe"), "new"), "it is no regular file");
  EXPECT_EQ(Replace("/dev/null", "new"), "it is no regular file");
}

TEST(ReplaceFilePosix, TwoProcessesLeaveOneOfTheTwoWhole) {
  constexpr int kRounds = 100;
  const TempDir dir;
  const std::string path = dir.Write("f", std::string(50000, 'a'));
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  const std::string own(child == 0 ? 60000 : 50000, child == 0 ? 'b' : 'a');
  bool whole = true;
  for (int round = 0; round < kRounds; ++round) {
    whole = Replace(path, own) == "done" && whole;
    const std::string found = dir.Read("f");
    whole = whole && (found == std::string(50000, 'a') || found == std::string(60000, 'b'));
  }
  if (child == 0) _exit(whole ? 0 : 1);
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(whole);
  EXPECT_TRUE(IsOnlyFile(dir));
}

// Names that a process of the same number left behind, which was stopped in the middle.
TEST(ReplaceFilePosix, NamesThatAreTakenArePassedOver) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Path("f").c_str()));
  const std::string name = file.GetNewPath();
  file.Discard();
  const std::size_t dash = name.rfind('-');
  const unsigned count = static_cast<unsigned>(std::stoul(name.substr(dash + 1)));
  for (unsigned i = 1; i <= 5; ++i) {
    const std::string taken = name.substr(0, dash + 1) + std::to_string(count + i) + ".tmp";
    dir.Write(std::filesystem::path(taken).filename().string(), "left behind");
  }
  ASSERT_EQ(Replace(dir.Path("f"), "new"), "done");
  EXPECT_EQ(dir.Read("f"), "new");
  const std::string first = name.substr(0, dash + 1) + std::to_string(count + 1) + ".tmp";
  EXPECT_EQ(dir.Read(std::filesystem::path(first).filename().string()), "left behind");
}

}  // namespace
