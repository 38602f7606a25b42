// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/locale.h"

#include <gtest/gtest.h>

namespace {

// Runs before main, while other libraries set themselves up: the locale must be there already.
const bool s_EnglishAtStartUp = std::string(GetSystemLocale()) == "en";

struct RestoredLocale {
  ~RestoredLocale() { SetSystemLocale("en"); }
};

TEST(SystemLocale, IsEnglishUntilItIsSet) { EXPECT_TRUE(s_EnglishAtStartUp); }

TEST(SystemLocale, KeepsACopy) {
  RestoredLocale restored;
  char text[] = "de";
  SetSystemLocale(text);
  text[0] = 'x';
  EXPECT_STREQ(GetSystemLocale(), "de");
}

TEST(SystemLocale, NullSetsTheEmptyText) {
  RestoredLocale restored;
  SetSystemLocale(nullptr);
  EXPECT_STREQ(GetSystemLocale(), "");
}

TEST(SystemLocale, CanBeSetToItself) {
  RestoredLocale restored;
  SetSystemLocale("a-language-name-too-long-for-any-short-buffer");
  SetSystemLocale(GetSystemLocale());
  EXPECT_STREQ(GetSystemLocale(), "a-language-name-too-long-for-any-short-buffer");
}

}  // namespace
