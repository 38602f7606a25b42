// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string_view>

#include <gtest/gtest.h>

#include "common_interfaces/record_lines.h"
#include "support/record_line.h"

namespace {

using test_support::Line;

struct Colours {
  int result = 0;
  short r = 7, g = 7, b = 7;
};

Colours Rgb(std::string_view text) {
  Line line(text);
  Colours c;
  c.result = GetRGB(line.GetText(), c.r, c.g, c.b);
  return c;
}

void ExpectColours(std::string_view text, int result, short r, short g, short b) {
  const Colours c = Rgb(text);
  EXPECT_EQ(c.result, result) << text;
  EXPECT_EQ(c.r, r) << text;
  EXPECT_EQ(c.g, g) << text;
  EXPECT_EQ(c.b, b) << text;
}

TEST(GetRGB, ThreeNumbersWithBlanksBefore) {
  ExpectColours("255 128 0", 1, 255, 128, 0);
  ExpectColours(" \t1\r\n2\t 3 4", 1, 1, 2, 3);
}

TEST(GetRGB, MissingNumberFailsAndStoresNothing) {
  for (const char* text : {"", "255", "255 128", "255 128 ", "255 128 ;", "255;128 0", "! 1 2 3"}) {
    ExpectColours(text, 0, 7, 7, 7);
  }
}

TEST(GetRGB, OnlyBlanksSeparate) {
  ExpectColours("255,128,0", 1, 255, 0, 0);
  ExpectColours("-1 2 3", 1, 0, 0, 0);
}

TEST(GetRGB, LowSixteenBitsAreStored) {
  ExpectColours("32767 32768 65535", 1, 32767, -32768, -1);
  ExpectColours("65536 65537 2147483647", 1, 0, 1, -1);
  ExpectColours("99999999999 0 0", 1, -1, 0, 0);
}

}  // namespace
