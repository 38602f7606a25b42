// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/contained_call.h"

#include <string>

#include <gtest/gtest.h>

namespace {

struct Told {
  CallEnd end;
  std::string what;
};

template <class Run>
Told Contain(Run run) {
  Told told{CallEnd::kReturned, "nothing"};
  told.end = RunContained(run, [&told](const char* what) { told.what = what; });
  return told;
}

TEST(RunContained, TellsThatACallReturned) {
  int calls = 0;
  const Told told = Contain([&calls] { ++calls; });
  EXPECT_EQ(told.end, CallEnd::kReturned);
  EXPECT_EQ(told.what, "nothing");
  EXPECT_EQ(calls, 1);
  EXPECT_TRUE(RunsThrough([&calls] { ++calls; }));
  EXPECT_EQ(calls, 2);
}

#if defined(__cpp_exceptions)

TEST(RunContained, MakesAValueOfLackOfMemory) {
  for (const Told& told : {Contain([] { throw std::bad_alloc(); }),
                           Contain([] { std::string().resize(std::string().max_size() + 1); })}) {
    EXPECT_EQ(told.end, CallEnd::kNoMemory);
    EXPECT_EQ(told.what, "nothing");
  }
  EXPECT_FALSE(RunsThrough([] { throw std::bad_alloc(); }));
}

TEST(RunContained, TellsWhatAnythingElseWasThrownFor) {
  const Told told = Contain([] { throw std::runtime_error("the disk is gone"); });
  EXPECT_EQ(told.end, CallEnd::kThrew);
  EXPECT_EQ(told.what, "the disk is gone");
  EXPECT_FALSE(RunsThrough([] { throw std::out_of_range("7"); }));
}

#endif

}  // namespace
