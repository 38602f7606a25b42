// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/code_page.h"

#include <gtest/gtest.h>

#include "tests/utils/code_page_tables.h"
#include "utils/utf8.h"

namespace {

constexpr CodePage kPages[] = {CodePage::kCyrillic, CodePage::kWestern, CodePage::kGreek};

char16_t GetExpected(CodePage page, int byte) {
  if (byte < 128) return static_cast<char16_t>(byte);
  if (page == CodePage::kCyrillic) return utils_test::kCyrillicUpperHalf[byte - 128];
  return page == CodePage::kGreek ? utils_test::kGreekUpperHalf[byte - 128]
                                  : utils_test::kWesternUpperHalf[byte - 128];
}

// The only character of the text; -2 when it has another number of them.
int OnlyCharacter(const std::string& utf8) {
  int length = 0;
  const int c = utf8.empty() ? -2 : DecodeUtf8(utf8, 0, &length);
  return length == static_cast<int>(utf8.size()) ? c : -2;
}

// Where the conversion to the western page stops; -1 when it does not.
int BadByteOf(const std::string& utf8, CodePage page = CodePage::kWestern) {
  std::string text = "unchanged";
  int badByte = -1;
  const bool isDone = Utf8ToCodePage(page, utf8, &text, &badByte);
  EXPECT_EQ(isDone, badByte == -1);
  if (!isDone) {
    EXPECT_EQ(text, "");
  }
  return badByte;
}

TEST(CodePage, EveryByteOfEveryPageIsTheCharacterOfTheTable) {
  for (const CodePage page : kPages) {
    for (int byte = 0; byte < 256; ++byte) {
      const std::string text(1, static_cast<char>(byte));
      EXPECT_EQ(OnlyCharacter(CodePageToUtf8(page, text)), static_cast<int>(GetExpected(page, byte)))
          << static_cast<int>(page) << ' ' << byte;
    }
  }
}

TEST(CodePage, EveryDefinedByteSurvivesTheRoundTrip) {
  for (const CodePage page : kPages) {
    std::string defined;
    for (int byte = 0; byte < 256; ++byte)
      if (GetExpected(page, byte) != 0xFFFD) defined += static_cast<char>(byte);
    std::string back;
    ASSERT_TRUE(Utf8ToCodePage(page, CodePageToUtf8(page, defined), &back, nullptr));
    EXPECT_EQ(back, defined);
  }
}

TEST(CodePage, PagesLeaveAsManyBytesUndefinedAsTheirTablesSay) {
  const int expected[] = {1, 5, 17};  // counted in the Unicode Consortium's mapping tables, 1998
  for (int i = 0; i < 3; ++i) {
    int count = 0;
    for (int byte = 0; byte < 256; ++byte) {
      count += CodePageToUtf8(kPages[i], std::string(1, static_cast<char>(byte))) == "\uFFFD";
    }
    EXPECT_EQ(count, expected[i]) << i;
  }
}

TEST(CodePage, AnUndefinedByteBecomesTheReplacementCharacterWhichNoPageHas) {
  EXPECT_EQ(CodePageToUtf8(CodePage::kCyrillic, "a\x98z"), "a\uFFFDz");
  for (const CodePage page : kPages) EXPECT_EQ(BadByteOf("a\uFFFD", page), 1);
}

TEST(CodePage, AWordOfEachPage) {
  std::string text;
  ASSERT_TRUE(Utf8ToCodePage(CodePage::kCyrillic, "Луна", &text, nullptr));
  EXPECT_EQ(text, "\xCB\xF3\xED\xE0");
  ASSERT_TRUE(Utf8ToCodePage(CodePage::kWestern, "Größe 5°", &text, nullptr));
  EXPECT_EQ(text,
            "Gr\xF6\xDF"
            "e 5\xB0");
  ASSERT_TRUE(Utf8ToCodePage(CodePage::kGreek, "α Ω", &text, nullptr));
  EXPECT_EQ(text, "\xE1 \xD9");
}

TEST(CodePage, ACharacterThatThePageLacksIsNamedByItsFirstByte) {
  EXPECT_EQ(BadByteOf("ab\u0434"), 2);
  EXPECT_EQ(BadByteOf("\u00E4", CodePage::kCyrillic), 0);
  EXPECT_EQ(BadByteOf("\u20AC\u4E2D"), 3);  // the euro sign has three bytes
  EXPECT_EQ(BadByteOf("\U0001F52D"), 0);    // beyond 16 bits
  EXPECT_EQ(BadByteOf("\U000100E4"), 0);    // its low 16 bits alone would fit
}

TEST(CodePage, OverlongFormsAreRefused) {
  EXPECT_EQ(BadByteOf("a\xC0\xAF"), 1);         // '/' in two bytes
  EXPECT_EQ(BadByteOf("\xC1\xBF"), 0);          // 0x7F in two bytes
  EXPECT_EQ(BadByteOf("\xE0\x83\xA4"), 0);      // U+00E4 in three bytes
  EXPECT_EQ(BadByteOf("\xF0\x80\x83\xA4"), 0);  // and in four
}

TEST(CodePage, SurrogatesAreRefused) {
  EXPECT_EQ(BadByteOf("\xED\xA0\x80"), 0);
  EXPECT_EQ(BadByteOf("\xED\xBF\xBF"), 0);
}

TEST(CodePage, TruncatedCharactersAreRefused) {
  for (const char* text : {"\xC3", "\xE2", "\xE2\x82", "\xF0\x9F\x94"}) EXPECT_EQ(BadByteOf(text), 0);
  for (const char* text : {"\xC3z", "\xE2\x82z", "\xE2z\xAC", "\xF0\x9F\x94z"}) EXPECT_EQ(BadByteOf(text), 0);
  EXPECT_EQ(BadByteOf("\xC3\xC3\xA4"), 0);  // a first byte in place of a continuation
}

TEST(CodePage, AContinuationByteAloneIsRefused) {
  EXPECT_EQ(BadByteOf("ab\x80"), 2);
  EXPECT_EQ(BadByteOf("\u00E4\xA4"), 2);
}

TEST(CodePage, NullOutputsAreAllowed) {
  EXPECT_TRUE(Utf8ToCodePage(CodePage::kWestern, "ä", nullptr, nullptr));
  EXPECT_FALSE(Utf8ToCodePage(CodePage::kWestern, "д", nullptr, nullptr));
}

TEST(CodePage, ZeroBytesAndEmptyTextsPass) {
  const std::string zero("a\0b", 3);
  std::string text;
  ASSERT_TRUE(Utf8ToCodePage(CodePage::kWestern, zero, &text, nullptr));
  EXPECT_EQ(text, zero);
  EXPECT_EQ(CodePageToUtf8(CodePage::kWestern, zero), zero);
  ASSERT_TRUE(Utf8ToCodePage(CodePage::kWestern, "", &text, nullptr));
  EXPECT_EQ(text, "");
}

TEST(CodePage, EveryLanguageHasItsPage) {
  EXPECT_EQ(GetCodePageOf("ru"), CodePage::kCyrillic);
  EXPECT_EQ(GetCodePageOf("el"), CodePage::kGreek);
  for (const char* language : {"en", "de", "", "xx", "rus"})
    EXPECT_EQ(GetCodePageOf(language), CodePage::kWestern) << language;
  EXPECT_EQ(GetCodePageOf(nullptr), CodePage::kWestern);
}

}  // namespace
