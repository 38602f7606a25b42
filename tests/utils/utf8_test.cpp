// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, TheFirstCharacterOfEachLengthIsTaken) {
  EXPECT_EQ(DecodeUtf8("\xC2\x80", 0, nullptr), 0x80);
  EXPECT_EQ(DecodeUtf8("\xE0\xA0\x80", 0, nullptr), 0x800);
  EXPECT_EQ(DecodeUtf8("\xF0\x90\x80\x80", 0, nullptr), 0x10000);
}

TEST(Utf8, CharactersBeyondTheLastAreRefused) {
  EXPECT_EQ(DecodeUtf8("\xF4\x8F\xBF\xBF", 0, nullptr), 0x10FFFF);
  EXPECT_EQ(DecodeUtf8("\xF4\x90\x80\x80", 0, nullptr), -1);
  for (const char* first : {"\xF5\x80\x80\x80", "\xF8\x88\x80\x80", "\xFE", "\xFF"})
    EXPECT_EQ(DecodeUtf8(first, 0, nullptr), -1);
}

TEST(Utf8, DecodingSaysHowManyBytesACharacterHas) {
  int length = 0;
  const std::string text = "a\u00E4\u20AC\U0001F52D\x80";
  EXPECT_EQ(DecodeUtf8(text, 0, &length), 'a');
  EXPECT_EQ(length, 1);
  EXPECT_EQ(DecodeUtf8(text, 1, &length), 0xE4);
  EXPECT_EQ(length, 2);
  EXPECT_EQ(DecodeUtf8(text, 3, &length), 0x20AC);
  EXPECT_EQ(length, 3);
  EXPECT_EQ(DecodeUtf8(text, 6, &length), 0x1F52D);
  EXPECT_EQ(length, 4);
  EXPECT_EQ(DecodeUtf8(text, 10, &length), -1);
  EXPECT_EQ(length, 1);
}

TEST(Utf8, CharactersBesideTheSurrogatesAreTaken) {
  EXPECT_EQ(DecodeUtf8("\xED\x9F\xBF", 0, nullptr), 0xD7FF);
  EXPECT_EQ(DecodeUtf8("\xED\xA0\x80", 0, nullptr), -1);
  EXPECT_EQ(DecodeUtf8("\xED\xBF\xBF", 0, nullptr), -1);
  EXPECT_EQ(DecodeUtf8("\xEE\x80\x80", 0, nullptr), 0xE000);
}

TEST(Utf8, OnlyBytesBehindTheFirstContinueACharacter) {
  for (const char byte : {'\x80', '\xBF'}) EXPECT_TRUE(ContinuesCharacter(byte));
  for (const char byte : {'\0', 'a', '\x7F', '\xC0', '\xF4', '\xFF'}) EXPECT_FALSE(ContinuesCharacter(byte));
}

TEST(Utf8, CharactersAreCountedNotBytes) {
  EXPECT_EQ(CountCharacters(""), 0);
  EXPECT_EQ(CountCharacters("Gr\u00F6\u00DFe \u00B0"), 7);
  EXPECT_EQ(CountCharacters("\u20AC\U0001F52D"), 2);
}

TEST(Utf8, NothingFitsByHalves) {
  const std::string text = "a\u00E4\u20AC\U0001F52D";  // characters begin at 0, 1, 3 and 6
  const std::size_t whole[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
  for (std::size_t bytes = 0; bytes < std::size(whole); ++bytes) {
    EXPECT_EQ(FitUtf8(text, bytes), text.substr(0, whole[bytes])) << bytes;
  }
  EXPECT_EQ(FitUtf8("", 0), "");
  EXPECT_EQ(FitUtf8("\x80\x80\x80", 2), "");  // the beginning is missing
}

}  // namespace
