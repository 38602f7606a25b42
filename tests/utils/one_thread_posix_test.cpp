// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "utils/one_thread.h"

namespace {

void UseByTwoThreads() {
  int object = 0;
  const CheckedUse<true> first(&object, "Thing", "First");
  std::thread([&] { const CheckedUse<true> second(&object, "Thing", "Second"); }).join();
}

TEST(OneThreadDeathTest, BreachEndsTheProcessWithItsLine) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_EXIT(UseByTwoThreads(), testing::KilledBySignal(SIGABRT),
              "Thing 0x[0-9a-f]+ is used by two threads at once");
}

}  // namespace
