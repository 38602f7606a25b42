// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Who holds a name on Linux: processes of the other word size, forked children; and what happens when a
// holder cannot be looked for.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "common_interfaces/thread.h"
#include "thread/child_process.h"
#include "thread/message_of.h"
#include "thread/name_digest.h"
#include "thread/own_name.h"

namespace {

using thread::Semaphore;
using thread::SyncEvent;
using thread_tests::MessageOf;
using thread_tests::Own;

std::string SemaphoreFailure(const char* name) {
  return MessageOf<Semaphore::Error>([&] { Semaphore semaphore(1, name); });
}

std::string EventFailure(const char* name) {
  return MessageOf<SyncEvent::Error>([&] { SyncEvent event(false, false, name); });
}

void ExpectTakenBySemaphoreOfOtherWordSize(const char* name) {
  EXPECT_EQ(SemaphoreFailure(name), "Semaphore already exists.");
  EXPECT_EQ(EventFailure(name), "Can't create event.");
  EXPECT_EQ(MessageOf<Semaphore::Error>([&] { Semaphore opened(name); }), "Can't open existing semaphore.");
  EXPECT_EQ(MessageOf<SyncEvent::Error>([&] { SyncEvent opened(name); }), "Can't open existing event.");
}

// The descriptor by which this process holds `name`.
std::filesystem::path HeldDescriptor(const char* name) {
  const std::string digest = thread::MakeNameDigest(name);
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code ignored;  // the folder's own descriptor comes and goes
    const std::string target = std::filesystem::read_symlink(entry.path(), ignored).string();
    if (target.starts_with("/memfd:") && target.find(digest) != target.npos) return entry.path();
  }
  return {};
}

// The memory of a semaphore as a process of another word size or another version would write it, in a file of
// the same name. Header: 8 bytes of signature, word size, size of the object's part; at 64 that part, which
// begins with the kind; then the name.
class OtherLayout {
 public:
  // `partSize` 0: that of this process.
  OtherLayout(const char* name, std::uint32_t wordSize, std::uint32_t partSize) {
    const Semaphore model(1, name);
    const std::string path = HeldDescriptor(name).string();
    char link[256] = {};
    EXPECT_GT(readlink(path.c_str(), link, sizeof link - 1), 0);
    const std::string target(link);
    const std::string fileName =
        target.substr(std::strlen("/memfd:"), target.find(' ') - std::strlen("/memfd:"));

    char start[64 + 4];
    const int own = open(path.c_str(), O_RDONLY);
    EXPECT_EQ(pread(own, start, sizeof start, 0), static_cast<ssize_t>(sizeof start));
    close(own);
    if (partSize == 0) std::memcpy(&partSize, start + 12, 4);
    std::string record(start, sizeof start);
    std::memcpy(record.data() + 8, &wordSize, 4);
    std::memcpy(record.data() + 12, &partSize, 4);
    record.resize(64 + partSize);
    record.append(name, std::strlen(name) + 1);
    m_File = memfd_create(fileName.c_str(), 0);
    EXPECT_EQ(write(m_File, record.data(), record.size()), static_cast<ssize_t>(record.size()));
  }
  ~OtherLayout() { close(m_File); }
  OtherLayout(const OtherLayout&) = delete;
  OtherLayout& operator=(const OtherLayout&) = delete;

 private:
  int m_File = -1;
};

TEST(NameOfOtherWordSize, WrittenByHandIsTakenAndCannotBeOpened) {
  const char* const name = Own("other word size by hand");
  constexpr std::uint32_t kOwn = sizeof(void*), kOther = kOwn == 8 ? 4 : 8;
  for (const auto& [wordSize, partSize] :
       {std::pair(kOther, kOther == 4 ? 40u : 64u), {kOther, 0u}, {kOwn, 96u}}) {
    {
      const OtherLayout record(name, wordSize, partSize);
      ExpectTakenBySemaphoreOfOtherWordSize(name);
    }
    EXPECT_EQ(SemaphoreFailure(name), "");
  }
}

TEST(NameOfOtherWordSize, HeldByAnotherProcessIsTakenAndCannotBeOpened) {
  if (std::strlen(THREAD_PEER_OF_OTHER_WORD_SIZE) == 0) {
    GTEST_SKIP() << "this machine builds or runs no programs of the other word size";
  }
  const char* const name = Own("other word size");
  ChildProcess peer({THREAD_PEER_OF_OTHER_WORD_SIZE, "hold-new-semaphore", name});
  ASSERT_EQ(peer.ReadLine(), "holding");
  ExpectTakenBySemaphoreOfOtherWordSize(name);
  peer.Kill();
  EXPECT_EQ(SemaphoreFailure(name), "");
}

TEST(NameOfOtherWordSize, HeldHereIsTakenThere) {
  if (std::strlen(THREAD_PEER_OF_OTHER_WORD_SIZE) == 0) {
    GTEST_SKIP() << "this machine builds or runs no programs of the other word size";
  }
  const char* const name = Own("other word size there");
  const Semaphore made(1, name);
  ChildProcess creator({THREAD_PEER_OF_OTHER_WORD_SIZE, "create-semaphore", name});
  EXPECT_EQ(creator.ReadLine(), "Semaphore already exists.");
  ChildProcess opener({THREAD_PEER_OF_OTHER_WORD_SIZE, "unlock-semaphore", name});
  EXPECT_EQ(opener.ReadLine(), "Can't open existing semaphore.");
}

TEST(NameOfForkedChild, StaysTakenUntilTheChildHasEnded) {
  const char* const name = Own("forked");
  auto made = std::make_unique<Semaphore>(1, name);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    for (;;) pause();
  }
  made.reset();
  EXPECT_EQ(SemaphoreFailure(name), "Semaphore already exists.");
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_EQ(SemaphoreFailure(name), "");
}

TEST(NameThatIsGone, LeavesNoMemoryMapped) {
  const char* const name = Own("mapped");
  const auto isMapped = [name] {
    std::ifstream file("/proc/self/maps");
    const std::string maps{std::istreambuf_iterator<char>(file), {}};
    return maps.find(thread::MakeNameDigest(name)) != maps.npos;
  };
  {
    const Semaphore made(1, name), opened(name);
    EXPECT_TRUE(isMapped());
  }
  EXPECT_FALSE(isMapped());
}

// How a second semaphore of that name fails when at most `left` descriptors are free.
std::string FailureWithDescriptorsLeft(const char* name, rlim_t left) {
  const int lowestFree = dup(STDIN_FILENO);
  EXPECT_GE(lowestFree, 0);
  close(lowestFree);
  rlimit before{};
  EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit few{static_cast<rlim_t>(lowestFree) + left, before.rlim_max};
  EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  const std::string failure = SemaphoreFailure(name);
  EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  return failure;
}

// Without a descriptor to look with, a name may be taken for all one knows.
TEST(NameWithoutDescriptors, TakenOneIsNeverMadeASecondTime) {
  const char* const name = Own("no descriptors");
  const Semaphore made(1, name);
  for (rlim_t left = 0; left < 4; ++left) {
    EXPECT_EQ(FailureWithDescriptorsLeft(name, left), "Can't create semaphore.") << left;
  }
  EXPECT_EQ(FailureWithDescriptorsLeft(name, 64), "Semaphore already exists.");
}

}  // namespace
