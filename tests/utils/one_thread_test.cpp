// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/one_thread.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <string>
#include <thread>
#include <type_traits>

#include "companions/utils/program_platform.h"
#include "support/breach_capture.h"

namespace {

using Changes = CheckedUse<true>;
using Reads = CheckedUse<false>;
using test_support::BreachCapture;

template <class Action>
void OnAnotherThread(Action action) {
  std::thread(action).join();
}

class OneThread : public testing::Test {
 protected:
  BreachCapture breaches;
  int object = 0, another = 0;
};

TEST_F(OneThread, ChangeDuringAChangeOnAnotherThreadIsABreach) {
  const Changes first(&object, "Thing", "First");
  OnAnotherThread([this] { const Changes second(&object, "Thing", "Second"); });
  EXPECT_EQ(breaches.GetCount(), 1);
}

TEST_F(OneThread, ChangeDuringAReadingIsABreach) {
  const Reads first(&object, "Thing", "First");
  OnAnotherThread([this] { const Changes second(&object, "Thing", "Second"); });
  EXPECT_EQ(breaches.GetCount(), 1);
}

TEST_F(OneThread, ReadingDuringAChangeIsABreach) {
  const Changes first(&object, "Thing", "First");
  OnAnotherThread([this] { const Reads second(&object, "Thing", "Second"); });
  EXPECT_EQ(breaches.GetCount(), 1);
}

TEST_F(OneThread, LineNamesClassObjectBothThreadsAndBothOperations) {
  const Changes first(&object, "Thing", "First");
  unsigned long other = 0;
  OnAnotherThread([&] {
    other = utils_internal::GetThreadNumber();
    const Changes second(&object, "Thing", "Second");
  });
  char address[32];
  std::snprintf(address, sizeof address, "%p", static_cast<void*>(&object));
  ASSERT_EQ(breaches.lines.size(), 1u);
  EXPECT_EQ(breaches.lines[0], "Thing " + std::string(address) + " is used by two threads at once: thread " +
                                   std::to_string(utils_internal::GetThreadNumber()) +
                                   " is in First, thread " + std::to_string(other) + " calls Second\n");
  EXPECT_NE(other, utils_internal::GetThreadNumber());
}

TEST_F(OneThread, OperationIsNamedAfterTheFunctionThatSaysIt) {
  const Changes first(&object, "Thing");
  OnAnotherThread([this] { const Changes second(&object, "Thing", "Second"); });
  ASSERT_EQ(breaches.lines.size(), 1u);
  EXPECT_NE(breaches.lines[0].find(" is in TestBody, "), std::string::npos) << breaches.lines[0];
}

TEST_F(OneThread, ReadingByTwoThreadsIsNone) {
  const Reads first(&object, "Thing", "First");
  OnAnotherThread([this] { const Reads second(&object, "Thing", "Second"); });
  EXPECT_EQ(breaches.GetCount(), 0);
  EXPECT_TRUE(breaches.lines.empty());
}

TEST_F(OneThread, DifferentObjectsAreNone) {
  const Changes first(&object, "Thing", "First");
  OnAnotherThread([this] { const Changes second(&another, "Thing", "Second"); });
  EXPECT_EQ(breaches.GetCount(), 0);
}

TEST_F(OneThread, NestedUsesOfOneThreadAreNone) {
  const Reads outer(&object, "Thing", "Outer");
  const Changes inner(&object, "Thing", "Inner");
  const Reads innermost(&object, "Thing", "Innermost");
  EXPECT_EQ(breaches.GetCount(), 0);
}

TEST_F(OneThread, HandingOverIsNone) {
  for (int i = 0; i < 100; ++i) {
    { const Changes here(&object, "Thing", "Here"); }
    OnAnotherThread([this] { const Changes there(&object, "Thing", "There"); });
  }
  EXPECT_EQ(breaches.GetCount(), 0);
}

TEST_F(OneThread, OuterUseLastsBeyondAnInnerOne) {
  const Changes outer(&object, "Thing", "Outer");
  { const Changes inner(&object, "Thing", "Inner"); }
  OnAnotherThread([this] { const Reads second(&object, "Thing", "Second"); });
  ASSERT_EQ(breaches.lines.size(), 1u);
  EXPECT_NE(breaches.lines[0].find(" is in Outer, "), std::string::npos) << breaches.lines[0];
}

TEST_F(OneThread, ReaderThatGoesOnToChangeDisturbsOtherReaders) {
  const Reads first(&object, "Thing", "First");
  OnAnotherThread([this] {
    const Reads second(&object, "Thing", "Second");
    EXPECT_EQ(breaches.GetCount(), 0);
    const Changes third(&object, "Thing", "Third");
    EXPECT_EQ(breaches.GetCount(), 1);
  });
}

TEST_F(OneThread, AnOperationIsReportedOnceWithAllThatItCalls) {
  const Reads outer(&object, "Thing", "Outer");
  const Reads inner(&object, "Thing", "Inner");
  OnAnotherThread([this] {
    const Changes second(&object, "Thing", "Second");
    const Changes partOfIt(&object, "Thing", "PartOfIt");
    const Reads anotherPart(&object, "Thing", "AnotherPart");
  });
  ASSERT_EQ(breaches.lines.size(), 1u);
  EXPECT_NE(breaches.lines[0].find(" is in Outer, "), std::string::npos) << breaches.lines[0];
  EXPECT_NE(breaches.lines[0].find(" calls Second\n"), std::string::npos) << breaches.lines[0];
}

TEST_F(OneThread, UseThatBeganFirstMayEndFirst) {
  std::optional<Changes> first(std::in_place, &object, "Thing", "First");
  const Changes second(&another, "Thing", "Second");
  first.reset();
  OnAnotherThread([this] { const Changes third(&object, "Thing", "Third"); });
  EXPECT_EQ(breaches.GetCount(), 0);
  OnAnotherThread([this] { const Changes fourth(&another, "Thing", "Fourth"); });
  EXPECT_EQ(breaches.GetCount(), 1);
}

// Four threads, each with an object of its own, enter and leave as fast as they can.
TEST_F(OneThread, ManyThreadsWithObjectsOfTheirOwnAreNone) {
  std::vector<std::thread> threads;
  std::vector<int> objects(4);
  for (int& own : objects) {
    threads.emplace_back([&own] {
      for (int i = 0; i < 10000; ++i) {
        const Changes outer(&own, "Thing", "Outer");
        const Reads inner(&own, "Thing", "Inner");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(breaches.GetCount(), 0);
}

// What the classes of the library use is one of the two, and the unchecked one is nothing.
TEST(OneThreadUnchecked, IsEmptyAndDoesNothing) {
  static_assert(std::is_empty_v<UncheckedUse> && std::is_trivially_destructible_v<UncheckedUse>);
  static_assert(std::is_same_v<ChangesObject, UncheckedUse> == std::is_same_v<ReadsObject, UncheckedUse>);
  const BreachCapture breaches;
  int object = 0;
  const Changes first(&object, "Thing", "First");
  OnAnotherThread([&] { const UncheckedUse second(&object, "Thing"); });
  EXPECT_EQ(breaches.GetCount(), 0);
}

}  // namespace
