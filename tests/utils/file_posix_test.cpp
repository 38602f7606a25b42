// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What only this kind of system has: file size limits, permissions, links, devices.
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/file_size_limit_posix.h"
#include "support/temp_dir.h"
#include "utils/file.h"

namespace {

using test_support::DebugCapture;
using test_support::FileSizeLimit;
using test_support::TempDir;

bool WriteWhole(const std::string& path, const std::string& text) {
  MTextFile file(false, '!', '}', 4096);
  return file.Open(path.c_str(), true) && file.Write("%s", text.c_str()) && file.Close();
}

mode_t GetMode(const std::string& path) {
  struct stat info;
  return lstat(path.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
}

bool IsOnlyFile(const TempDir& dir) {
  auto files = std::filesystem::directory_iterator(dir.Path());
  return std::distance(begin(files), end(files)) == 1;
}

TEST(FullDisk, OldTextIsKeptAndOneLineSaysSo) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.txt", "old");
  MTextFile file(false, '!', '}', 4096);
  {
    FileSizeLimit full(1000);
    ASSERT_TRUE(file.Open(path.c_str(), true));
    bool written = true;
    for (int i = 0; i < 1000; ++i)
      written = file.Write("%s", "a hundred lines would fit no disk of this size\n") && written;
    EXPECT_FALSE(written);
    EXPECT_FALSE(file.Close());
  }
  EXPECT_EQ(dir.Read("f.txt"), "old");
  EXPECT_TRUE(IsOnlyFile(dir));
  EXPECT_EQ(capture.lines,
            std::vector<std::string>{"File " + path + " could not be written and is left as it was\n"});
}

// Little enough to stay in the stream's buffer: only Close meets the limit.
TEST(FullDisk, IsNoticedByCloseToo) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.txt", "old");
  MTextFile file(false, '!', '}', 4096);
  {
    FileSizeLimit full(2);
    ASSERT_TRUE(file.Open(path.c_str(), true));
    EXPECT_TRUE(file.Write("abc"));
    EXPECT_FALSE(file.Close());
  }
  EXPECT_EQ(dir.Read("f.txt"), "old");
  EXPECT_TRUE(IsOnlyFile(dir));
  EXPECT_EQ(capture.lines.size(), 1u);
}

// A write that failed is not made good by later ones that succeed.
TEST(FullDisk, FailedWriteSpoilsTheFileForGood) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.txt", "old");
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  {
    FileSizeLimit full(1000);
    EXPECT_FALSE(file.Write("%s", std::string(100000, 'x').c_str()));
  }
  EXPECT_FALSE(file.Write("more"));
  EXPECT_FALSE(file.Close());
  EXPECT_EQ(dir.Read("f.txt"), "old");
  EXPECT_EQ(capture.lines.size(), 1u);
}

TEST(FullDisk, MFileReportsWhenItCloses) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.data", "SREV");
  {
    FileSizeLimit full(6);
    MFile file;
    ASSERT_TRUE(file.Open(path.c_str(), MFile::kWrite));
    ASSERT_TRUE(file.Seek(2, 0));
    EXPECT_EQ(file.Write("12345678", 8), 8u);  // held back
    EXPECT_FALSE(file.Close());
  }
  EXPECT_EQ(dir.Read("f.data").substr(0, 4), "SREV");
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Not everything could be written to " + path + "\n"});
}

TEST(FullDisk, MFileReportsWhenALaterOperationMeetsIt) {
  TempDir dir;
  DebugCapture capture;
  const std::string path = dir.Write("f.data", "SREV");
  MFile file;
  ASSERT_TRUE(file.Open(path.c_str(), MFile::kWrite));
  {
    FileSizeLimit full(4);
    ASSERT_TRUE(file.Seek(2, 0));
    EXPECT_EQ(file.Write("1234", 4), 4u);  // held back
    char byte;
    EXPECT_TRUE(file.Seek(0, 0));
    EXPECT_EQ(file.Read(&byte, 1), 0u);
    EXPECT_FALSE(file.Close());
  }
  EXPECT_EQ(dir.Read("f.data"), "SREV");
  EXPECT_EQ(capture.lines.size(), 1u);
}

// Asking for the length writes out what is held back.
TEST(FullDisk, MFileReportsWhenItsLengthMetIt) {
  TempDir dir;
  DebugCapture capture;
  MFile file;
  ASSERT_TRUE(file.Open(dir.Path("f.data").c_str(), MFile::kWrite));
  {
    FileSizeLimit full(4);
    EXPECT_EQ(file.Write("12345678", 8), 8u);
    EXPECT_EQ(file.GetLength(), 4);
  }
  EXPECT_FALSE(file.Close());
  EXPECT_TRUE(file.Close());  // nothing is open any more
  EXPECT_EQ(capture.lines.size(), 1u);
}

TEST(Permissions, OfTheTargetAreKept) {
  TempDir dir;
  const std::string path = dir.Write("f.txt", "old");
  for (mode_t mode : {0600u, 0640u, 0755u, 0666u}) {
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    ASSERT_TRUE(WriteWhole(path, "new"));
    EXPECT_EQ(GetMode(path), mode);
  }
}

TEST(Permissions, OfANewFileFollowTheProcess) {
  TempDir dir;
  const mode_t old = umask(027);
  const bool written = WriteWhole(dir.Path("f.txt"), "new");
  umask(old);
  ASSERT_TRUE(written);
  EXPECT_EQ(GetMode(dir.Path("f.txt")), 0640u);
}

// While it is written, the text of a private file is as private as the file.
TEST(Permissions, NewTextOfAPrivateFileIsPrivateFromTheStart) {
  TempDir dir;
  const std::string path = dir.Write("f.txt", "old");
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  MTextFile file(false, '!', '}', 4096);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path())) {
    EXPECT_EQ(GetMode(entry.path().string()), 0600u);
    ++files;
  }
  EXPECT_EQ(files, 2);
  EXPECT_TRUE(file.Close());
}

TEST(Permissions, OwnerIsKeptWhereTheSystemAllowsIt) {
  if (geteuid() != 0) GTEST_SKIP() << "only a privileged process may give files away";
  TempDir dir;
  const std::string path = dir.Write("f.txt", "old");
  ASSERT_EQ(chown(path.c_str(), 12345, 54321), 0);
  ASSERT_TRUE(WriteWhole(path, "new"));
  struct stat info;
  ASSERT_EQ(stat(path.c_str(), &info), 0);
  EXPECT_EQ(info.st_uid, 12345u);
  EXPECT_EQ(info.st_gid, 54321u);
}

// In a child that is no privileged user, whom no permission would stop.
TEST(PermissionsDeathTest, WriteProtectedTargetIsRefused) {
  TempDir dir;
  const std::string path = dir.Write("f.txt", "old");
  ASSERT_EQ(chmod(dir.Path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  const auto refuse = [&] {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
    MTextFile file(false, '!', '}', 4096);
    _exit(file.Open(path.c_str(), true) ? 1 : 0);
  };
  EXPECT_EXIT(refuse(), testing::ExitedWithCode(0), "");
  EXPECT_TRUE(IsOnlyFile(dir));
}

TEST(Links, WhatTheyLeadToIsReplacedAndTheyStay) {
  TempDir dir;
  dir.Write("real/f.txt", "old");
  std::filesystem::create_directory(dir.Path("links"));
  std::filesystem::create_symlink("../real/f.txt", dir.Path("links/relative"));
  std::filesystem::create_symlink(dir.Path("links/relative"), dir.Path("chain"));
  ASSERT_TRUE(WriteWhole(dir.Path("chain"), "new"));
  EXPECT_EQ(dir.Read("real/f.txt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("chain")));
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("links/relative")));
}

TEST(Links, ThatLeadNowhereGetTheirFile) {
  TempDir dir;
  std::filesystem::create_symlink("later.txt", dir.Path("link"));
  ASSERT_TRUE(WriteWhole(dir.Path("link"), "new"));
  EXPECT_EQ(dir.Read("later.txt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir.Path("link")));
}

TEST(Links, InACircleAreRefused) {
  TempDir dir;
  std::filesystem::create_symlink("b", dir.Path("a"));
  std::filesystem::create_symlink("a", dir.Path("b"));
  MTextFile file(false, '!', '}', 4096);
  EXPECT_FALSE(file.Open(dir.Path("a").c_str(), true));
  EXPECT_FALSE(file.Open(dir.Path("a").c_str(), false));
}

TEST(Devices, AreNeverReplaced) {
  TempDir dir;
  ASSERT_EQ(mkfifo(dir.Path("pipe").c_str(), 0600), 0);
  MTextFile file(false, '!', '}', 4096);
  EXPECT_FALSE(file.Open(dir.Path("pipe").c_str(), true));
  EXPECT_FALSE(file.Open("/dev/null", true));
}

}  // namespace
