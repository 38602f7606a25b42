// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/name_digest.h"

#include <gtest/gtest.h>

namespace {

using thread::MakeNameDigest;

// Test vectors of the algorithm's authors (Fowler, Noll & Vo, test suite of FNV-1a) for the first half.
TEST(NameDigest, BeginsWithThePublishedHash) {
  EXPECT_EQ(MakeNameDigest("").substr(0, 16), "cbf29ce484222325");
  EXPECT_EQ(MakeNameDigest("a").substr(0, 16), "af63dc4c8601ec8c");
  EXPECT_EQ(MakeNameDigest("foobar").substr(0, 16), "85944171f73967e8");
}

TEST(NameDigest, SecondHalfIsAnotherHashOfTheName) {
  EXPECT_EQ(MakeNameDigest("").substr(16), "9ae16a3b2f90404f");
  EXPECT_EQ(MakeNameDigest("foobar").size(), 32u);
  EXPECT_NE(MakeNameDigest("foobar").substr(16), MakeNameDigest("fooba").substr(16));
  EXPECT_NE(MakeNameDigest("\xFF"), MakeNameDigest("\x7F"));
}

}  // namespace
