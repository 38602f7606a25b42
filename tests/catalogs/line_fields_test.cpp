// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/line_fields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::ForEachLine;
using CommonInterfaces::ReadKind;
using CommonInterfaces::ReadNumber;
using CommonInterfaces::ScanNumber;

std::vector<std::string> LinesOf(const std::string& content) {
  test_support::TempDir dir;
  std::vector<std::string> lines;
  EXPECT_TRUE(
      ForEachLine(dir.Write("lines.txt", content), [&lines](const char* line) { lines.push_back(line); }));
  return lines;
}

// What a field reads as, and whether it does; 77 stands in the value before.
struct Scanned {
  bool read;
  int value;
  bool operator==(const Scanned&) const = default;
};
Scanned Number(const std::string& field) {
  Scanned scanned{false, 77};
  scanned.read = ReadNumber(field, scanned.value);
  return scanned;
}

TEST(LineFields, NumbersReadAsDecimalConversionsDo) {
  EXPECT_EQ(Number("12"), (Scanned{true, 12}));
  EXPECT_EQ(Number("-12"), (Scanned{true, -12}));
  EXPECT_EQ(Number("+12"), (Scanned{true, 12}));
  EXPECT_EQ(Number(" \t 12 and more"), (Scanned{true, 12}));
  EXPECT_EQ(Number("007"), (Scanned{true, 7}));
  EXPECT_EQ(Number("2147483647"), (Scanned{true, 2147483647}));
  EXPECT_EQ(Number("-2147483648"), (Scanned{true, -2147483647 - 1}));
}

TEST(LineFields, WhatIsNoNumberLeavesTheValue) {
  for (const char* field : {"", " ", "x", "-", "+", "+-1", "- 1", "x1", ".5",
                            "\xEF\xBB\xBF"
                            "1"}) {
    EXPECT_EQ(Number(field), (Scanned{false, 77})) << field;
  }
}

TEST(LineFields, NumbersThatNoIntHoldsAreNone) {
  for (const char* field : {"2147483648", "-2147483649", "99999999999999999999999"}) {
    EXPECT_EQ(Number(field), (Scanned{false, 77})) << field;
  }
}

TEST(LineFields, RealNumbersLeaveTheTextBehindThem) {
  const char* text = " +6.25/7";
  double value = 0.0;
  EXPECT_TRUE(ScanNumber(text, value));
  EXPECT_EQ(value, 6.25);
  EXPECT_STREQ(text, "/7");
}

TEST(LineFields, RealNumbersAreFinite) {
  for (const char* field : {"nan", "inf", "-inf", "1e999", ""}) {
    const char* text = field;
    double value = 77.0;
    EXPECT_FALSE(ScanNumber(text, value)) << field;
    EXPECT_EQ(value, 77.0);
    EXPECT_EQ(text, field);
  }
}

TEST(LineFields, KindsAreNumbersOrCodes) {
  int kind = 0;
  EXPECT_TRUE(ReadKind("1937006962", kind));
  EXPECT_EQ(kind, FourCC("star"));
  EXPECT_TRUE(ReadKind("gala", kind));
  EXPECT_EQ(kind, FourCC("gala"));
  EXPECT_TRUE(ReadKind("Ori ", kind));
  EXPECT_EQ(kind, FourCC("Ori "));
  for (const char* field : {"", "sta", "stars", " star"}) EXPECT_FALSE(ReadKind(field, kind)) << field;
}

TEST(LineFields, CodesThatBeginWithADigitReadAsNumbers) {
  int kind = 0;
  EXPECT_TRUE(ReadKind("3abc", kind));
  EXPECT_EQ(kind, 3);
}

TEST(LineFields, NamesAreCutToTheirField) {
  SSO_ID object;
  CommonInterfaces::SetName(std::string(200, 'n'), object);
  EXPECT_EQ(std::string(object.name), std::string(79, 'n'));
  CommonInterfaces::SetName("short", object);
  EXPECT_STREQ(object.name, "short");
  EXPECT_EQ(object.name[6], '\0') << "nothing of the longer name is left";
}

TEST(LineFields, LinesComeWithoutTheirEnds) {
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                    "one\r\n\ntwo\nthree"),
            (std::vector<std::string>{"one", "", "two", "three"}));
  EXPECT_EQ(LinesOf(""), std::vector<std::string>{});
}

TEST(LineFields, TheRestOfALongLineIsDropped) {
  EXPECT_EQ(LinesOf(std::string(300, 'a') + "\nnext\n"),
            (std::vector<std::string>{std::string(255, 'a'), "next"}));
}

TEST(LineFields, NoCharacterBeginsAComment) {
  EXPECT_EQ(LinesOf("#a\n;b\n!c\n}d\n"), (std::vector<std::string>{"#a", ";b", "!c", "}d"}));
}

TEST(LineFields, AMissingFileIsSaid) {
  test_support::TempDir dir;
  EXPECT_FALSE(ForEachLine(dir.Path("missing"), [](const char*) { ADD_FAILURE(); }));
  EXPECT_FALSE(ForEachLine("", [](const char*) { ADD_FAILURE(); }));
}

}  // namespace
