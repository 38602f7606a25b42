// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/characters.h"

#include <string>

#include <gtest/gtest.h>

namespace {

// The characters of that kind, in their order.
template <class Is>
std::string AllOf(Is is) {
  std::string all;
  for (int c = 0; c < 256; ++c) {
    if (is(static_cast<char>(c))) all.push_back(static_cast<char>(c));
  }
  return all;
}

TEST(Characters, EachKindHasItsCharactersAndNoOthers) {
  EXPECT_EQ(AllOf(IsBlank), "\t\n\r ");
  EXPECT_EQ(AllOf(IsWhiteSpace), "\t\n\v\f\r ");
  EXPECT_EQ(AllOf(IsDigit), "0123456789");
  EXPECT_EQ(AllOf(IsLetter), "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
}

TEST(Characters, OnlyWhatStandsInFrontIsSkipped) {
  std::string_view text = " \t\v a ";
  SkipBlanks(text);
  EXPECT_EQ(text, "\v a ");
  SkipWhiteSpace(text);
  EXPECT_EQ(text, "a ");
  text = " \r\n";
  SkipBlanks(text);
  EXPECT_EQ(text, "");
  SkipWhiteSpace(text);
  EXPECT_EQ(text, "");
}

}  // namespace
