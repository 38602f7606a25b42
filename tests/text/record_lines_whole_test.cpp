// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Colours and whole lines.
#include <cmath>
#include <cstring>
#include <string>

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

// docs/formats/record_lines.md
TEST(RecordLines, WorkedExampleOfTheFormatPage) {
  Line line(
      "4565C 15.9 12h36m20.8s 25\xB0"
      "59'16\" 135.5 2 0.15\r");
  int number = 0, flags = 0;
  double size = 0, ra = 0, dec = 0, rotation = 0, ratio = 0;
  const auto at = [&] { return line.cursor - line.GetText(); };
  EXPECT_TRUE(GetLong1(line.cursor, number) && at() == 4 && number == 4565);
  EXPECT_EQ(*line.cursor++, 'C');
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, size) && at() == 10 && size == 15.9);
  EXPECT_TRUE(GetRaOrDec(line.cursor, ra) && at() == 22);
  EXPECT_DOUBLE_EQ(ra, (12 + 36 / 60.0 + 20.8 / 3600) * 15);
  EXPECT_TRUE(GetRaOrDec(line.cursor, dec) && at() == 32);
  EXPECT_DOUBLE_EQ(dec, 25 + 59 / 60.0 + 16 / 3600.0);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, rotation) && at() == 38 &&
              rotation == 135.5);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetLong1(line.cursor, flags) && at() == 40 && flags == 2);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, ratio) && at() == 45 && ratio == 0.15);
  EXPECT_FALSE(RemoveLeading(line.cursor));
  EXPECT_EQ(at(), 46);
}

int GetMonthLength(int year, int month) {
  if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// Every civil day as catalogs write it: signed year, month, day, and its number with a fraction.
TEST(RecordLines, EveryDayOfFifteenThousandYearsIsReadBack) {
  double number = -32268.5;  // any number will do; it grows by one
  char text[64];
  for (int year = -4800; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= GetMonthLength(year, month); ++day, number += 1.0) {
        char* end = std::to_chars(text, text + sizeof text, year).ptr;
        *end++ = ';';
        end = std::to_chars(end, text + sizeof text, month).ptr;
        *end++ = ' ';
        end = std::to_chars(end, text + sizeof text, day).ptr;
        *end++ = '\t';
        end = std::to_chars(end, text + sizeof text, number, std::chars_format::fixed, 2).ptr;
        *end = '\0';
        char* cursor = text;
        int y = 0, m = 0, d = 0;
        double n = 0.0;
        const int sign = GetSign(cursor);
        ASSERT_TRUE(GetLong1(cursor, y) && RemoveTrail(cursor) && GetLong1(cursor, m) &&
                    RemoveTrail(cursor) && GetLong1(cursor, d) && RemoveTrail(cursor) && GetDouble(cursor, n))
            << text;
        ASSERT_TRUE(sign * y == year && m == month && d == day && n == number && cursor == end) << text;
      }
    }
  }
}

}  // namespace
