// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <utility>

#include "common_interfaces/thread.h"
#include "thread/descriptor_posix.h"
#include "thread/message_of.h"
#include "thread/timespec_posix.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// Calls `action` on a thread that is sent a signal every millisecond; returns how long it took.
template <class Action>
steady_clock::duration UnderSignals(Action action) {
  struct sigaction handler {};
  handler.sa_handler = [](int) {};  // without SA_RESTART: system calls are interrupted
  sigaction(SIGUSR1, &handler, nullptr);
  std::atomic<bool> ended{false};
  steady_clock::duration took{};
  std::thread worker([&] {
    const auto start = steady_clock::now();
    action();
    took = steady_clock::now() - start;
    ended = true;
  });
  while (!ended) {
    pthread_kill(worker.native_handle(), SIGUSR1);
    std::this_thread::sleep_for(milliseconds(1));
  }
  worker.join();
  return took;
}

TEST(Signals, DoNotShortenATimeOut) {
  thread::Semaphore semaphore(0);
  EXPECT_GE(UnderSignals([&] { EXPECT_EQ(semaphore.lock(60), thread::kTimedOut); }), milliseconds(59));
}

TEST(Signals, DoNotLengthenATimeOut) {
  thread::SyncEvent event;
  EXPECT_LT(UnderSignals([&] { EXPECT_EQ(event.wait(60), thread::kTimedOut); }), milliseconds(2000));
}

TEST(Signals, DoNotShortenASleep) {
  EXPECT_GE(UnderSignals([] { thread::sleep(60); }), milliseconds(59));
}

// In a process of its own, because it gives its privileges away.
TEST(PriorityDeathTest, RaisingWithoutPrivilegeIsRefusedAndChangesNothing) {
  const auto tryToRaise = [] {
    constexpr uid_t kNobody = 65534;
    const bool privileged = geteuid() == 0 && setuid(kNobody) != 0;
    thread::Thread worker;
    const std::string message =
        thread_tests::MessageOf<thread::Thread::Error>([&] { worker.setPriority(thread::Thread::kHighest); });
    _exit(!privileged && message == "Can't set priority." && worker.getPriority() == thread::Thread::kNormal
              ? 7
              : 1);
  };
  EXPECT_EXIT(tryToRaise(), testing::ExitedWithCode(7), "");
}

TEST(TimeOfTheSystem, HasLessThanASecondOfNanoseconds) {
  const auto read = [](auto time) {
    const timespec system = thread::ToTimespec(time);
    return std::pair<long long, long>(system.tv_sec, system.tv_nsec);
  };
  using Pair = std::pair<long long, long>;
  EXPECT_EQ(read(milliseconds(0)), Pair(0, 0));
  EXPECT_EQ(read(std::chrono::nanoseconds(999'999'999)), Pair(0, 999'999'999));
  EXPECT_EQ(read(std::chrono::nanoseconds(1'000'000'000)), Pair(1, 0));
  EXPECT_EQ(read(milliseconds(4'294'967'294)), Pair(4'294'967, 294'000'000)) << "the longest time-out";
}

TEST(Descriptor, IsClosedOnce) {
  thread::Descriptor descriptor(dup(2));
  ASSERT_TRUE(descriptor.IsOpen());
  descriptor.Close();
  EXPECT_FALSE(descriptor.IsOpen());
  EXPECT_EQ(descriptor.Get(), -1) << "another may have got the number";
}

}  // namespace
