// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// An operation while memory runs out: each of its allocations fails once.
#pragma once

#include <new>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "support/allocation_counter.h"
#include "utils/debug.h"

namespace memory_tests {

// What an operation leaves that threw std::bad_alloc.
enum class Leaves {
  kAsItWas,  // the state from before, and the same call, made again, gives what it gives when nothing fails
  kAgain,    // anything, of which the same call, made again, gives what it gives when nothing fails
  kNothing,  // the same of an operation that changes nothing that can be read
  kValid,    // an object that can be read, used and destroyed
};

// Drops the diagnostic lines: to keep them takes memory.
class NoLines {
 public:
  NoLines() {
    SetDebugSink([](const char*, void*) {}, nullptr);
  }
  ~NoLines() { SetDebugSink(nullptr, nullptr); }
  NoLines(const NoLines&) = delete;
  NoLines& operator=(const NoLines&) = delete;
};

// Calls `call(object)` on what `prepare()` gives, a pointer that owns, again and again: first the first
// allocation in it fails, then the second, and so on, in steps that grow to a fiftieth of the way, until
// none does. `state(object)` is all that can be read of it, as text. A call that runs out of memory either
// throws std::bad_alloc, and leaves what `leaves` says, or it returns and has done its work or nothing.
// Everything that was allocated is freed with the object.
template <class Prepare, class Call, class State>
void FailEveryAllocation(Prepare prepare, Call call, State state, Leaves leaves = Leaves::kAsItWas) {
  constexpr long long kMostAllocations = 10'000'000;
  const NoLines quiet;
  const auto stateAfter = [&](int calls) {
    const auto object = prepare();
    for (int i = 0; i < calls; ++i) call(*object);
    return std::string(state(*object));
  };
  const std::string before = stateAfter(0), done = stateAfter(1);
  EXPECT_EQ(before == done, leaves == Leaves::kNothing) << before;
  int failed = 0;
  for (long long at = 0; !testing::Test::HasFailure(); at += 1 + at / 50) {
    ASSERT_LT(at, kMostAllocations) << "never done";
    SCOPED_TRACE("allocation " + std::to_string(at));
    const long long living = host_test::GetLivingCount();
    bool ranOut = false;
    {
      const auto object = prepare();
      bool threw = false;
      host_test::FailAllocationAfter(at);
      try {
        call(*object);
      } catch (const std::bad_alloc&) {
        threw = true;
      }
      ranOut = host_test::HasAllocationFailed();
      host_test::FailAllocationAfter(-1);
      const std::string now = state(*object);
      const bool mayDiffer = ranOut && leaves == Leaves::kAgain;
      if (!threw && !mayDiffer) {
        EXPECT_TRUE(now == done || (ranOut && now == before)) << now << "\ninstead of\n"
                                                              << done << "\nor\n"
                                                              << before;
      } else if (leaves != Leaves::kValid) {
        EXPECT_TRUE(now == before || mayDiffer) << now << "\ninstead of\n" << before;
        call(*object);
        EXPECT_EQ(std::string(state(*object)), done) << "the second time";
      }
    }
    if (testing::Test::HasFailure()) break;  // what it says takes memory
    EXPECT_EQ(host_test::GetLivingCount(), living) << "blocks that were not freed";
    if (!ranOut) break;
    ++failed;
  }
  EXPECT_GT(failed, 0) << "operations that allocate";
  static const testing::TestInfo* s_Test = nullptr;
  static int s_Failed = 0;  // in this test
  const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
  s_Failed = failed + (test == std::exchange(s_Test, test) ? s_Failed : 0);
  testing::Test::RecordProperty("allocations_failed", s_Failed);
}

}  // namespace memory_tests
