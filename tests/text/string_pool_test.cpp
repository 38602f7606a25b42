// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_pool.h"

#include <string>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

TEST(StringPool, PacksTextsOneAfterTheOther) {
  char block[8];
  StringPool pool(block, sizeof block);
  EXPECT_EQ(pool.Add("abc"), block);
  EXPECT_EQ(pool.Add("def"), block + 4);
  EXPECT_EQ(std::string(block, 8), std::string("abc\0def\0", 8));
}

TEST(StringPool, EscapesAreResolvedAndTheirRoomIsUsedAgain) {
  char block[8];
  StringPool pool(block, sizeof block);
  EXPECT_STREQ(pool.Add("a\\nb"), "a\nb");
  EXPECT_EQ(pool.Add("cde"), block + 4);
  EXPECT_EQ(pool.Add(""), nullptr);
}

TEST(StringPool, TextThatJustFits) {
  char block[4];
  StringPool pool(block, sizeof block);
  EXPECT_STREQ(pool.Add("abc"), "abc");
}

TEST(StringPool, TextThatDoesNotFitWritesNothing) {
  char block[4] = {'#', '#', '#', '#'};
  StringPool pool(block, 3);
  EXPECT_EQ(pool.Add("abc"), nullptr);
  EXPECT_EQ(std::string(block, 4), "####");
  EXPECT_STREQ(pool.Add("ab"), "ab");
  EXPECT_EQ(block[3], '#');
}

TEST(StringPool, EmptyBlockTakesNothing) {
  char byte = '#';
  StringPool pool(&byte, 0);
  EXPECT_EQ(pool.Add(""), nullptr);
  EXPECT_EQ(byte, '#');
}

}  // namespace
}  // namespace CommonInterfaces
