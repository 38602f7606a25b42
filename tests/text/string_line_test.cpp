// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_line.h"

#include <clocale>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

using Entry = std::pair<unsigned, std::string>;

std::optional<Entry> Parse(std::string line) {
  StringLine entry;
  if (!ParseStringLine(line.data(), entry)) return std::nullopt;
  return Entry{entry.identifier, entry.text};
}

std::optional<unsigned> Scan(const char* text) {
  unsigned value = 0;
  return ScanUnsigned(text, value) ? std::optional(value) : std::nullopt;
}

TEST(StringLine, DecimalIdentifier) { EXPECT_EQ(Parse("7200\tLocal time"), Entry(7200, "Local time")); }

TEST(StringLine, FourCharacterIdentifierHasItsFirstCharacterInTheTopByte) {
  EXPECT_EQ(Parse("star\tStar"), Entry(0x73746172, "Star"));
  EXPECT_EQ(Parse("plnt\tPlanet"), Entry(0x706C6E74, "Planet"));
}

TEST(StringLine, CharactersBehindAFourCharacterIdentifierAreIgnored) {
  EXPECT_EQ(Parse("stars\tStar"), Entry(0x73746172, "Star"));
}

TEST(StringLine, DigitsBehindALetterDoNotMakeANumber) {
  EXPECT_EQ(Parse("a123\tText"), Entry(0x61313233, "Text"));
}

TEST(StringLine, IdentifierOfThreeLettersIsNoEntry) { EXPECT_EQ(Parse("abc\tText"), std::nullopt); }

TEST(StringLine, NumberEndsAtTheFirstNonDigit) { EXPECT_EQ(Parse("12ab\tText"), Entry(12, "Text")); }

TEST(StringLine, BytesAbove127MakeACodeWithoutSignExtension) {
  EXPECT_EQ(Parse("\xFF\x80\x81\xFE\tText"), Entry(0xFF8081FE, "Text"));
  EXPECT_EQ(Parse("a\x80z\xFF\tText"), Entry(0x61807AFF, "Text"));
}

TEST(StringLine, CodeKeepsItsBlanks) {
  EXPECT_EQ(Parse("  ab\tText"), Entry(0x20206162, "Text"));
  EXPECT_EQ(Parse("-abc\tText"), Entry(0x2D616263, "Text"));
  EXPECT_EQ(Parse("    \tText"), Entry(0x20202020, "Text"));
}

TEST(StringLine, TabsBeforeTheIdentifierAreSkipped) { EXPECT_EQ(Parse("\t\t7\tText"), Entry(7, "Text")); }

TEST(StringLine, SeveralTabsSeparateAsOneDoes) { EXPECT_EQ(Parse("7\t\t\tText"), Entry(7, "Text")); }

TEST(StringLine, TextBehindASecondTabIsIgnored) { EXPECT_EQ(Parse("7\tText\tnote"), Entry(7, "Text")); }

TEST(StringLine, BlanksAroundTheTextAreRemoved) {
  EXPECT_EQ(Parse("1234\t  a text  "), Entry(1234, "a text"));
  EXPECT_EQ(Parse("1234\ta text\r"), Entry(1234, "a text"));
}

TEST(StringLine, EscapesAreLeftForThePool) { EXPECT_EQ(Parse("7\tone\\ntwo"), Entry(7, "one\\ntwo")); }

TEST(StringLine, TextOfBlanksIsAnEmptyText) { EXPECT_EQ(Parse("7\t   "), Entry(7, "")); }

TEST(StringLine, LineWithoutATextIsNoEntry) {
  EXPECT_EQ(Parse(""), std::nullopt);
  EXPECT_EQ(Parse("7"), std::nullopt);
  EXPECT_EQ(Parse("7\t"), std::nullopt);
  EXPECT_EQ(Parse("7\t\t\t"), std::nullopt);
  EXPECT_EQ(Parse("7\t\n"), std::nullopt);
  EXPECT_EQ(Parse("\t\t\t"), std::nullopt);
  EXPECT_EQ(Parse("! a comment, or so it looks"), std::nullopt);
}

TEST(StringLine, LineWithoutAnEntryLeavesTheOutputAlone) {
  std::string line = "abc\tText";
  char untouched[] = "old";
  StringLine entry{5, untouched};
  EXPECT_FALSE(ParseStringLine(line.data(), entry));
  EXPECT_EQ(entry.identifier, 5U);
  EXPECT_EQ(entry.text, untouched);
}

TEST(StringLine, NonAsciiTextIsKeptByteForByte) {
  EXPECT_EQ(Parse("7\t\xC3\xA4\xFF\x80"), Entry(7, "\xC3\xA4\xFF\x80"));
}

TEST(ScanUnsigned, WhiteSpaceAndSignAreAccepted) {
  EXPECT_EQ(Scan(" \n\v\f\r 42"), 42U);
  EXPECT_EQ(Scan("+42"), 42U);
  EXPECT_EQ(Scan("-1"), 0xFFFFFFFFU);
  EXPECT_EQ(Scan("-5"), 0xFFFFFFFBU);
}

TEST(ScanUnsigned, WithoutADigitThereIsNoNumber) {
  EXPECT_EQ(Scan(""), std::nullopt);
  EXPECT_EQ(Scan("+"), std::nullopt);
  EXPECT_EQ(Scan("- 1"), std::nullopt);
  EXPECT_EQ(Scan("--1"), std::nullopt);
  EXPECT_EQ(Scan("x1"), std::nullopt);
}

TEST(ScanUnsigned, PrefixOfAHexadecimalNumberIsZero) { EXPECT_EQ(Scan("0x12"), 0U); }

TEST(ScanUnsigned, LargestNumber) { EXPECT_EQ(Scan("4294967295"), 0xFFFFFFFFU); }

TEST(ScanUnsigned, OverflowWrapsModulo2To32) {
  EXPECT_EQ(Scan("4294967296"), 0U);
  EXPECT_EQ(Scan("4294967299"), 3U);
  EXPECT_EQ(Scan("18446744073709551617"), 1U);  // 2^64 + 1
  EXPECT_EQ(Scan("-4294967297"), 0xFFFFFFFFU);
}

TEST(ScanUnsigned, BytesAbove127AreNeitherBlankNorDigitInAnyLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"C", "", "C.UTF-8"}) {
    if (!std::setlocale(LC_ALL, locale)) continue;
    EXPECT_EQ(Scan("\xA0"
                   "12"),
              std::nullopt)
        << locale;
    EXPECT_EQ(Scan("1\xB2"), 1U) << locale;
  }
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace CommonInterfaces
