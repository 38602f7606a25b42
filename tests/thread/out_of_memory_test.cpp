// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Objects made while memory runs out: every allocation of each constructor fails once. A program of its own,
// because the operators new are replaced.
#include <gtest/gtest.h>

#include <string>

#include "common_interfaces/thread.h"
#include "support/allocation_counter.h"
#include "thread/own_name.h"

namespace {

using thread_tests::Own;

// Calls `make` again and again, each time with one allocation more that succeeds, until none failed; returns
// how many calls met a failure. Each of those must throw an Error of that text and nothing else.
template <class Error, class Make>
int FailEachAllocation(const char* message, Make make) {
  constexpr int kFarTooMany = 10'000;
  for (int allocations = 0; allocations < kFarTooMany; ++allocations) {
    const char* thrown = "";
    host_test::FailAllocationAfter(allocations);
    try {
      make();
    } catch (const Error& error) {
      thrown = error.what();
    } catch (const std::exception&) {
      thrown = "another exception";
    }
    const bool failed = host_test::HasAllocationFailed();
    host_test::FailAllocationAfter(-1);
    EXPECT_STREQ(thrown, failed ? message : "") << "after " << allocations << " allocations";
    if (!failed || testing::Test::HasFailure()) return allocations;
  }
  ADD_FAILURE() << "never done";
  return 0;
}

template <class Make>
int FailSemaphore(const char* message, Make make) {
  return FailEachAllocation<thread::Semaphore::Error>(message, make);
}

template <class Make>
int FailEvent(const char* message, Make make) {
  return FailEachAllocation<thread::SyncEvent::Error>(message, make);
}

// The desktop system makes semaphores and events without allocating here: then there is nothing to fail, and
// only that they are made is tested.
#ifdef _WIN32
constexpr int kFewest = 0;
#else
constexpr int kFewest = 1;
#endif

TEST(OutOfMemory, SemaphoreIsNotCreated) {
  EXPECT_GE(FailSemaphore("Can't create semaphore.", [] { thread::Semaphore semaphore; }), kFewest);
}

TEST(OutOfMemory, NamedSemaphoreIsNotCreatedAndItsNameStaysFree) {
  const char* const name = Own("semaphore without memory");
  const auto make = [name] { thread::Semaphore semaphore(1, name); };
  EXPECT_GE(FailSemaphore("Can't create semaphore.", make), kFewest);
}

TEST(OutOfMemory, SemaphoreIsNotOpened) {
  const char* const name = Own("semaphore opened without memory");
  const thread::Semaphore made(1, name);
  const auto open = [name] { thread::Semaphore semaphore(name); };
  EXPECT_GE(FailSemaphore("Can't open existing semaphore.", open), kFewest);
}

TEST(OutOfMemory, EventIsNotCreated) {
  EXPECT_GE(FailEvent("Can't create event.", [] { thread::SyncEvent event; }), kFewest);
}

TEST(OutOfMemory, NamedEventIsNotCreatedAndItsNameStaysFree) {
  const char* const name = Own("event without memory");
  const auto make = [name] { thread::SyncEvent event(false, true, name); };
  EXPECT_GE(FailEvent("Can't create event.", make), kFewest);
}

TEST(OutOfMemory, EventIsNotOpened) {
  const char* const name = Own("event opened without memory");
  const thread::SyncEvent made(false, true, name);
  const auto open = [name] { thread::SyncEvent event(name); };
  EXPECT_GE(FailEvent("Can't open existing event.", open), kFewest);
}

TEST(OutOfMemory, CriticalSectionIsNotCreated) {
  const auto make = [] { thread::CritSect section; };
  EXPECT_EQ(FailEachAllocation<thread::CritSect::Error>("Can't create critical section.", make), 1);
}

TEST(OutOfMemory, ThreadIsNotCreated) {
  const auto make = [] { thread::Thread worker; };
  EXPECT_GE(FailEachAllocation<thread::Thread::Error>("Can't create thread.", make), 1);
}

}  // namespace
