// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What this kind of system does below files and their replacement: names that it refuses, devices, folders
// that somebody else has locked.
#include "companions/utils/files/file_platform.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "companions/utils/files/file_owner_posix.h"
#include "companions/utils/files/replace_file_platform.h"
#include "companions/utils/zones/zone_folders.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/file.h"
#include "utils/file_presence.h"
#include "utils/mapped_file.h"
#include "utils/path.h"
#include "utils/replace_file.h"
#include "utils/whole_file.h"

namespace {

using test_support::TempDir;
using utils_internal::TargetLock;

// The variable of the environment has this value, none for null, until the end of the scope.
class Variable {
 public:
  Variable(const char* name, const char* value) : m_Name(name) {
    if (const char* const old = std::getenv(name)) m_Old = old;
    Set(value);
  }
  ~Variable() { Set(m_Old ? m_Old->c_str() : nullptr); }

 private:
  void Set(const char* value) { value ? setenv(m_Name, value, 1) : unsetenv(m_Name); }

  const char* m_Name;
  std::optional<std::string> m_Old;
};

TEST(TemporaryFolder, IsTheFirstThatTheEnvironmentNames) {
  const TempDir one, other;
  const Variable first("TMPDIR", ""), second("TMP", nullptr), fourth("TEMPDIR", other.Path().c_str());
  for (const std::string& third : {one.Path(), other.Path()}) {
    const Variable named("TEMP", third.c_str());
    EXPECT_EQ(GetTemporaryFolder(), third);
  }
  const Variable third("TEMP", nullptr);
  EXPECT_EQ(GetTemporaryFolder(), other.Path());
  const Variable none("TEMPDIR", nullptr);
  EXPECT_EQ(GetTemporaryFolder(), "/tmp");
  const Variable noFolder("TMP", "/dev/null");
  EXPECT_EQ(GetTemporaryFolder(), "");
}

TEST(TooLongName, IsThereForAllThatOneKnowsAndCannotBeReplaced) {
  const TempDir dir;
  const std::string path = dir.Path(std::string(300, 'x'));
  EXPECT_EQ(GetFilePresence(path.c_str()), FilePresence::kUnknown);
  EXPECT_FALSE(CreateEmptyFile(path.c_str()));
  std::string reason;
  EXPECT_FALSE(ReplaceFileContent(path.c_str(), "x", reason));
  EXPECT_EQ(reason, "File name too long");
}

TEST(Device, IsNoBoundedFile) {
  std::string reason;
  EXPECT_FALSE(IsBoundedFile("/dev/null", reason));
  EXPECT_EQ(reason, "is no regular file");
  EXPECT_EQ(GetFilePresence("/dev/null"), FilePresence::kPresent);
  EXPECT_FALSE(IsRegularFile("/dev/null"));
}

TEST(MappedFilePosix, FileThatTheSystemDoesNotMapIsRefusedWithItsReason) {
  const char kMadeByTheSystem[] = "/sys/kernel/mm/transparent_hugepage/enabled";
  if (access(kMadeByTheSystem, R_OK) != 0) GTEST_SKIP() << "no such file here";
  MappedFile file;
  std::string reason;
  EXPECT_FALSE(file.Open(kMadeByTheSystem, reason));
  EXPECT_EQ(reason, "No such device");
}

// The current folder, until the end of the scope.
class CurrentFolder {
 public:
  explicit CurrentFolder(const std::string& path) : m_Old(open(".", O_RDONLY | O_DIRECTORY)) {
    EXPECT_EQ(chdir(path.c_str()), 0);
  }
  ~CurrentFolder() {
    EXPECT_EQ(fchdir(m_Old), 0);
    close(m_Old);
  }

 private:
  int m_Old;
};

TEST(AbsolutePath, BeginsAtTheCurrentFolder) {
  const TempDir dir;
  {
    const CurrentFolder root("/");
    EXPECT_EQ(GetAbsolutePath("a/b"), "/a/b");
  }
  const std::string removed = dir.Path("removed");
  std::filesystem::create_directory(removed);
  const CurrentFolder gone(removed);
  EXPECT_EQ(GetAbsolutePath("a"), removed + "/a");
  std::filesystem::remove(removed);
  EXPECT_EQ(GetAbsolutePath("a"), "a") << "it has no name any more";
}

// Another system's: here it is a name without folders.
TEST(WorkPath, PathWithADriveNeedsNoFolder) {
  EXPECT_EQ(ZentharPath::GetWorkPath("q:\\name", false, true), "q:\\name");
}

// No character of the plain locale. What is printed instead is the format.
TEST(Formats, TextThatCannotBeFormattedIsNoneAndSpoilsTheFile) {
  const test_support::DebugCapture debug;
  const TempDir dir;
  const std::string path = dir.Write("f", "old");
  MTextFile file(false, '!', '}', 100);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  EXPECT_FALSE(file.Write("<%ls>", L"\x4E00"));
  EXPECT_FALSE(file.Close());
  EXPECT_EQ(dir.Read("f"), "old");
  PrintDebugString("<%ls>\n", L"\x4E00");
  EXPECT_EQ(debug.lines.back(), "<%ls>\n");
}

TEST(ZoneFolders, TheOneThatTheEnvironmentNamesComesFirst) {
  const Variable none("TZDIR", nullptr);
  const auto usual = utils_internal::GetZoneFolders();
  EXPECT_EQ(usual.front(), "/usr/share/zoneinfo");
  const Variable empty("TZDIR", "");
  EXPECT_EQ(utils_internal::GetZoneFolders(), usual);
  const Variable named("TZDIR", "/my/zones");
  const auto folders = utils_internal::GetZoneFolders();
  EXPECT_EQ(folders.front(), "/my/zones");
  EXPECT_EQ(folders.size(), usual.size() + 1);
}

TEST(FolderOf, EndsWithItsSeparator) {
  EXPECT_EQ(utils_internal::FolderOf("a/b/c"), "a/b/");
  EXPECT_EQ(utils_internal::FolderOf("/c"), "/");
  EXPECT_EQ(utils_internal::FolderOf("c"), "");
}

TEST(TargetLockPosix, WaitsForTheOneWhoHoldsTheFolder) {
  const TempDir dir;
  auto first = std::make_unique<TargetLock>(dir.Path("f"));
  std::atomic<bool> isReleased = false;
  std::thread holder([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    isReleased = true;
    first.reset();
  });
  const TargetLock second(dir.Path("other"));
  EXPECT_TRUE(isReleased);
  holder.join();
}

TEST(TargetLockPosix, FolderThatIsNotThereIsNotWaitedFor) {
  const TempDir dir;
  const auto begin = std::chrono::steady_clock::now();
  const TargetLock one(dir.Path("no/f")), two(dir.Path("no/f"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

// A program may have been started without standard input: then the folder has its number.
TEST(TargetLockPosix, LeavesNothingOpenWhateverItsNumber) {
  const int kept = dup(0);
  close(0);
  { const TargetLock lock("file of the current folder"); }
  const bool isOpen = fcntl(0, F_GETFD) != -1;
  if (kept >= 0) {
    dup2(kept, 0);
    close(kept);
  }
  EXPECT_FALSE(isOpen);
}

}  // namespace
