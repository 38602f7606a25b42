// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the system refuses for a reason that counts, or again and again.
#include <sys/stat.h>

#include <cerrno>
#include <set>

#include "injection/every_call.h"
#include "utils/file.h"
#include "utils/file_presence.h"
#include "utils/mapped_file.h"
#include "utils/program.h"
#include "utils/replace_file.h"
#include "utils/whole_file.h"

namespace test_support {
namespace {

// Each of these calls fails with that error.
auto All(std::set<std::string_view> calls, int error) {
  return [calls = std::move(calls), error](std::string_view call) { return calls.count(call) ? error : 0; };
}

class Refusals : public testing::Test {
 protected:
  // "" when the file holds the new content.
  std::string Replace(std::function<int(std::string_view)> error) {
    std::string reason;
    FaultInjection fault(std::move(error));
    const bool replaced = ReplaceFileContent(path.c_str(), "new", reason);
    fault.Stop();
    EXPECT_EQ(dir.Read("f"), replaced ? "new" : "old");
    if (replaced) dir.Write("f", "old");
    return reason;
  }
  unsigned GetMode() const {
    struct stat info {};
    EXPECT_EQ(stat(path.c_str(), &info), 0);
    return info.st_mode & 07777u;
  }

  TempDir dir;
  const std::string path = dir.Write("f", "old");
};

// Whoever saves then owns the file, which is not to run with the rights of its old owner.
TEST_F(Refusals, FileThatCannotBeGivenAwayLosesTheRightsOfItsOwner) {
  ASSERT_EQ(chmod(path.c_str(), 06755), 0);
  EXPECT_EQ(Replace(All({"fchown"}, EPERM)), "");
  EXPECT_EQ(GetMode(), 0755u);
}

TEST_F(Refusals, ModeThatCannotBeSetIsNoFailureWhereTheFileHasIt) {
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  EXPECT_EQ(Replace(All({"fchmod"}, EPERM)), "");
  EXPECT_EQ(GetMode(), 0600u);
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  EXPECT_EQ(Replace(All({"fchmod"}, EPERM)), "Operation not permitted");
  ASSERT_EQ(chmod(path.c_str(), 0600), 0);
  EXPECT_EQ(Replace(All({"fchmod", "fstat"}, EPERM)), "Operation not permitted") << "nobody knows";
}

TEST_F(Refusals, FileThatMayNotBeWrittenIsWriteProtected) {
  const std::string isProtected = Replace(All({"access"}, EACCES));
  EXPECT_NE(isProtected.find("write-protected"), std::string::npos) << isProtected;
  EXPECT_EQ(Replace(All({"access"}, EROFS)), isProtected);
  EXPECT_EQ(Replace(All({"access"}, EIO)), "Input/output error");
}

TEST_F(Refusals, FileSystemThatHoldsNothingBackNeedsNoFlush) {
  EXPECT_EQ(Replace(All({"fsync"}, EINVAL)), "");
  EXPECT_EQ(Replace(All({"fsync"}, EIO)), "Input/output error");
}

TEST_F(Refusals, NameBesideTheFileIsLookedForAThousandTimesTen) {
  int tries = 0;
  const auto taken = [&](std::string_view call) { return call == "open" ? ++tries, EEXIST : 0; };
  EXPECT_EQ(Replace(taken), "File exists");
  EXPECT_EQ(tries, 10'000);
}

TEST_F(Refusals, FlushThatFailsSpoilsTheContent) {
  FileReplacement file;
  ASSERT_TRUE(file.Open(path.c_str()));
  EXPECT_TRUE(file.Write("new"));
  EXPECT_TRUE(file.Flush());
  {
    const FaultInjection fault(0, "fflush");
    EXPECT_FALSE(file.Flush());
  }
  EXPECT_EQ(file.GetReason(), "Input/output error");
  EXPECT_FALSE(file.Flush()) << "for good";
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(dir.Read("f"), "old");
}

// Two seconds are 2000 looks with a pause behind each; the pauses take no time here.
TEST_F(Refusals, FolderThatSomebodyKeepsLockedIsNotWaitedForForGood) {
  int looks = 0;
  const auto busy = [&looks](std::string_view call) {
    if (call == "flock") return ++looks, EWOULDBLOCK;
    return call == "nanosleep" ? EINTR : 0;
  };
  const std::string_view old = "old";
  FileReplacement file;
  ASSERT_TRUE(file.Open(path.c_str()) && file.Write("new"));
  const FaultInjection fault(busy);
  EXPECT_TRUE(file.CommitOver(&old));
  EXPECT_EQ(looks, 2000);
  EXPECT_EQ(dir.Read("f"), "new");
}

TEST_F(Refusals, LockThatASignalInterruptsIsAskedForAgain) {
  int looks = 0;
  const std::string_view old = "old";
  FileReplacement file;
  ASSERT_TRUE(file.Open(path.c_str()) && file.Write("new"));
  const FaultInjection fault(
      [&looks](std::string_view call) { return call == "flock" && ++looks < 3 ? EINTR : 0; });
  EXPECT_TRUE(file.CommitOver(&old));
  EXPECT_EQ(looks, 3);
}

TEST_F(Refusals, FileThatCannotBeMappedIsRefusedWithItsReason) {
  const std::string tooLarge = "it is too large for the memory that a process can address";
  const struct {
    const char* call;
    int error;
    std::string reason;
  } kCases[] = {{"mmap", ENOMEM, tooLarge},
                {"fstat", EOVERFLOW, tooLarge},
                {"open", EACCES, "Permission denied"},
                {"fstat", EIO, "Input/output error"}};
  for (const auto& given : kCases) {
    MappedFile file;
    std::string reason;
    const FaultInjection fault(All({given.call}, given.error));
    EXPECT_FALSE(file.Open(path.c_str(), reason));
    EXPECT_EQ(reason, given.reason);
    EXPECT_EQ(file.GetSize(), 0u);
  }
}

TEST_F(Refusals, ErrorWhileAWholeFileIsReadIsTold) {
  std::string content = "before", reason;
  const FaultInjection fault(0, "fread");
  EXPECT_FALSE(ReadWholeFile(path.c_str(), content, reason));
  EXPECT_EQ(content, "");
  EXPECT_EQ(reason, "cannot be read");
}

TEST_F(Refusals, PlaceThatCannotBeReachedIsNotWritten) {
  MFile file;
  ASSERT_TRUE(file.Open(path.c_str(), MFile::kWrite));
  {
    const FaultInjection fault(0, "fseek");
    EXPECT_EQ(file.Write("new", 3), 0u);
  }
  EXPECT_FALSE(file.HasReadFailed());
  EXPECT_EQ(file.Write("new", 3), 3u) << "where it stands";
  EXPECT_TRUE(file.Close());
  EXPECT_EQ(dir.Read("f"), "new");
}

TEST_F(Refusals, EndThatIsNotKnownIsNoPlace) {
  MFile file;
  ASSERT_TRUE(file.Open(path.c_str(), MFile::kRead));
  ASSERT_TRUE(file.Seek(0, 1));
  const FaultInjection fault(0, "fstat");
  EXPECT_FALSE(file.Seek(2, 2));
  EXPECT_EQ(file.Tell(), 1);
}

TEST_F(Refusals, CurrentFolderWithoutANameLeavesPathsAsTheyAre) {
  const FaultInjection fault(All({"getcwd"}, EACCES));
  EXPECT_EQ(GetAbsolutePath("a"), "a");
}

TEST(ProgramFolder, IsNoneWhereTheSystemDoesNotTell) {
  EXPECT_NE(GetProgramFolder(), "");
  const FaultInjection fault(All({"readlink"}, EACCES));
  EXPECT_EQ(GetProgramFolder(), "");
}

}  // namespace
}  // namespace test_support
