// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The priority of a thread that ends: Linux knows threads by numbers that it gives out again.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include "common_interfaces/thread.h"
#include "thread/message_of.h"

namespace {

std::function<void(int)> s_OnSetPriority;  // called with the value of who sets one, before the system is

}  // namespace

// Stands in for the C library's, and does the same.
extern "C" int setpriority(__priority_which_t which, id_t who, int value) noexcept {
  if (s_OnSetPriority) s_OnSetPriority(value);
  return static_cast<int>(syscall(SYS_setpriority, which, who, value));
}

namespace {

using thread_tests::MessageOf;

class PriorityHook {
 public:
  explicit PriorityHook(std::function<void(int)> action) { s_OnSetPriority = std::move(action); }
  ~PriorityHook() { s_OnSetPriority = nullptr; }
  PriorityHook(const PriorityHook&) = delete;
  PriorityHook& operator=(const PriorityHook&) = delete;
};

// Tells its number and runs until it may end. Nothing else is handed over with that, so that ThreadSanitizer
// sees whether what a thread does at its end is guarded by itself.
class Waiter : public thread::Runnable {
 public:
  void run() override {
    m_Number = syscall(SYS_gettid);
    while (!m_MayEnd.load(std::memory_order_relaxed)) thread::sleep(1);
  }

  void LetEnd() { m_MayEnd.store(true, std::memory_order_relaxed); }

  // Before it runs it is none of the process's threads.
  bool Exists() const { return access(("/proc/self/task/" + std::to_string(m_Number)).c_str(), F_OK) == 0; }

 private:
  std::atomic<bool> m_MayEnd{false};
  std::atomic<long> m_Number{0};
};

void SleepUntil(const std::function<bool()>& condition) {
  for (int i = 0; i < 10'000 && !condition(); ++i) thread::sleep(1);
  ASSERT_TRUE(condition());
}

// The system may refuse some of them.
TEST(Priority, IsANicenessOfTheSystem) {
  Waiter waiter;
  thread::Thread worker(&waiter);
  worker.start();
  std::vector<int> asked;
  {
    const PriorityHook hook([&](int value) { asked.push_back(value); });
    for (unsigned priority = 0; priority < 6; ++priority) {
      MessageOf<thread::Thread::Error>(
          [&] { worker.setPriority(static_cast<thread::Thread::Priority>(priority)); });
    }
  }
  EXPECT_EQ(asked, (std::vector<int>{10, 5, 0, -5, -10, -20}));
  waiter.LetEnd();
  worker.waitForEnd();
}

TEST(EndedThread, SystemIsNotAskedToSetThePriorityOfItsNumber) {
  Waiter waiter;
  thread::Thread worker(&waiter);
  worker.start();
  SleepUntil([&] { return waiter.Exists(); });
  waiter.LetEnd();
  SleepUntil([&] { return !waiter.Exists(); });
  int asked = 0;
  const PriorityHook hook([&](int) { ++asked; });
  EXPECT_EQ(MessageOf<thread::Thread::Error>([&] { worker.setPriority(thread::Thread::kLowest); }),
            "Can't set priority.");
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(worker.getPriority(), thread::Thread::kNormal);
  worker.waitForEnd();
}

TEST(EndedThread, ForkedChildLeavesItsParentsThreadAlone) {
  Waiter waiter;
  thread::Thread worker(&waiter);
  worker.start();
  SleepUntil([&] { return waiter.Exists(); });
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const std::string message =
        MessageOf<thread::Thread::Error>([&] { worker.setPriority(thread::Thread::kLowest); });
    _exit(message == "Can't set priority." ? 7 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7);
  waiter.LetEnd();
  worker.waitForEnd();
}

TEST(EndedThread, KeepsItsNumberWhileItsPriorityIsBeingSet) {
  Waiter waiter;
  thread::Thread worker(&waiter);
  worker.start();
  SleepUntil([&] { return waiter.Exists(); });
  bool existed = false;
  const PriorityHook hook([&](int) {
    waiter.LetEnd();
    thread::sleep(50);  // time enough to end
    existed = waiter.Exists();
  });
  worker.setPriority(thread::Thread::kLowest);
  EXPECT_TRUE(existed);
  worker.waitForEnd();
}

}  // namespace
