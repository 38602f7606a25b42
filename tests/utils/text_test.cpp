// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/text.h"

#include <gtest/gtest.h>

namespace {

using Pieces = std::vector<std::string>;

TEST(GetTokens, KeepsEmptyPieces) {
  EXPECT_EQ(GetTokens("a\t\tb", "\t"), (Pieces{"a", "", "b"}));
  EXPECT_EQ(GetTokens("\ta\t", "\t"), (Pieces{"", "a", ""}));
  EXPECT_EQ(GetTokens("\t", "\t"), (Pieces{"", ""}));
}

TEST(GetTokens, EveryCharacterOfTheSetDelimits) {
  EXPECT_EQ(GetTokens("1:2;3,4", ";:"), (Pieces{"1", "2", "3,4"}));
}

TEST(GetTokens, EmptyOrNullTextGivesNoPiece) {
  EXPECT_TRUE(GetTokens("", "\t").empty());
  EXPECT_TRUE(GetTokens(nullptr, "\t").empty());
}

TEST(GetTokens, WithoutDelimitersTheTextIsOnePiece) {
  EXPECT_EQ(GetTokens("a b", ""), Pieces{"a b"});
  EXPECT_EQ(GetTokens("a b", nullptr), Pieces{"a b"});
}

TEST(GetSubStrings, KeepsTheEmptyPieceAfterTheLastDelimiter) {
  EXPECT_EQ(GetSubStrings("a;", ';'), (Pieces{"a", ""}));
  EXPECT_EQ(GetSubStrings("Perseids;17;;24", ';'), (Pieces{"Perseids", "17", "", "24"}));
}

TEST(GetSubStrings, EmptyOrNullTextGivesNoPiece) {
  EXPECT_TRUE(GetSubStrings("", ';').empty());
  EXPECT_TRUE(GetSubStrings(nullptr, ';').empty());
}

std::string Trimmed(std::string text) {
  DeleteBorderSpace(text.data());
  return text.c_str();
}

TEST(DeleteBorderSpace, RemovesAllFourBlanksAtBothEnds) {
  EXPECT_EQ(Trimmed(" \t\r\nAlpha Centauri \t\r\n"), "Alpha Centauri");
}

TEST(DeleteBorderSpace, TextOfBlanksBecomesEmpty) {
  EXPECT_EQ(Trimmed(" \t "), "");
  EXPECT_EQ(Trimmed(""), "");
}

TEST(DeleteBorderSpace, BytesAbove127AreNoBlanks) { EXPECT_EQ(Trimmed(" \xC2\xA0 "), "\xC2\xA0"); }

TEST(DeleteBorderSpace, NullIsLeftAlone) { DeleteBorderSpace(nullptr); }

struct Parsed {
  explicit Parsed(const std::string& source) : buffer(source.size() + 1, '#') {
    count = ParseString2(source.c_str(), buffer.data());
    text = buffer.substr(0, static_cast<std::size_t>(count));
  }
  std::string buffer, text;
  int count;
};

TEST(ParseString2, ResolvesTheFourEscapes) { EXPECT_EQ(Parsed(R"(a\nb\tc\\d\"e)").text, "a\nb\tc\\d\"e"); }

TEST(ParseString2, BackslashBeforeAnotherCharacterStandsForItself) {
  EXPECT_EQ(Parsed(R"(\d\r\N)").text, R"(\d\r\N)");
}

TEST(ParseString2, BackslashAtTheEndStandsForItself) { EXPECT_EQ(Parsed("a\\").text, "a\\"); }

TEST(ParseString2, ResolvedBackslashBeginsNoEscape) { EXPECT_EQ(Parsed(R"(\\n)").text, "\\n"); }

TEST(ParseString2, WritesNoTerminator) {
  const Parsed parsed(R"(a\n)");
  EXPECT_EQ(parsed.count, 2);
  EXPECT_EQ(parsed.buffer, "a\n##");
}

TEST(ParseString2, WorksInPlace) {
  std::string text = R"(\t\\\"end)";
  const int count = ParseString2(text.data(), text.data());
  EXPECT_EQ(text.substr(0, static_cast<std::size_t>(count)), "\t\\\"end");
}

TEST(ParseString2, NeverWritesMoreThanItReads) {
  for (const char* source : {"", "a", "\\", "\\\\", "\\n\\n", "\\x", "\\\""}) {
    EXPECT_LE(Parsed(source).count, static_cast<int>(std::string(source).size())) << source;
  }
}

TEST(ParseString2, NullWritesNothing) {
  char buffer[] = "x";
  EXPECT_EQ(ParseString2(nullptr, buffer), 0);
  EXPECT_EQ(ParseString2("y", nullptr), 0);
  EXPECT_STREQ(buffer, "x");
}

TEST(IsEmptyString, OnlyBlanksCountAsEmpty) {
  EXPECT_TRUE(IsEmptyString(nullptr));
  EXPECT_TRUE(IsEmptyString(""));
  EXPECT_TRUE(IsEmptyString(" \t\r\n"));
  EXPECT_FALSE(IsEmptyString(" 0 "));
}

TEST(GetFourcc, FirstCharacterIsTheMostSignificantByte) {
  EXPECT_EQ(GetFOURCC("plnt"), 0x706C6E74);
  EXPECT_EQ(GetFOURCC("star"), 0x73746172);
}

TEST(GetFourcc, OnlyFourCharactersAreACode) {
  EXPECT_EQ(GetFOURCC(nullptr), -1);
  EXPECT_EQ(GetFOURCC(""), -1);
  EXPECT_EQ(GetFOURCC("sta"), -1);
  EXPECT_EQ(GetFOURCC("stars"), -1);
}

TEST(GetFourcc, BytesAbove127AreUnsigned) {
  EXPECT_EQ(static_cast<unsigned>(GetFOURCC("\xCE\xB1zz")), 0xCEB17A7Au);
}

TEST(FourCc, LiteralGivesTheSameCode) {
  static_assert(FourCC("plnt") == 0x706C6E74);
  EXPECT_EQ(FourCC("comt"), GetFOURCC("comt"));
}

}  // namespace
