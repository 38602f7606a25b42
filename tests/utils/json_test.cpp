// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/json.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(Json, PlainTextStandsBetweenQuotes) {
  EXPECT_EQ(JsonString(""), "\"\"");
  EXPECT_EQ(JsonString("star 5/7"), "\"star 5/7\"");
}

TEST(Json, QuotesAndBackslashesAreEscaped) { EXPECT_EQ(JsonString("a\"b\\c"), R"("a\"b\\c")"); }

TEST(Json, ControlCharactersAreEscaped) {
  EXPECT_EQ(JsonString("a\n\r\tb\x01\x1F\x7F"s), R"("a\n\r\tb\u0001\u001f\u007f")");
  EXPECT_EQ(JsonString("\u0080\u009B\u009F\u00A0"), "\"\\u0080\\u009b\\u009f\u00A0\"");
  EXPECT_EQ(JsonString("a\0b"s), R"("a\u0000b")");
}

TEST(Json, CharactersOfUtf8StayAsTheyAre) {
  const std::string text =
      "Gr\xC3\xB6\xC3\x9F"
      "e \xE2\x88\x92 \xF0\x9F\x8C\x9F";
  EXPECT_EQ(JsonString(text), '"' + text + '"');
}

TEST(Json, EveryByteThatIsNoUtf8BecomesTheReplacementCharacter) {
  EXPECT_EQ(JsonString("a\xFF"
                       "b\xC3"),
            "\"a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\"");
  EXPECT_EQ(JsonString("\xC0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");  // an overlong zero
}

TEST(Json, MembersOfAnObjectStandOnOneLine) {
  EXPECT_EQ(JsonObject({}), "{}");
  EXPECT_EQ(JsonObject({{"a", "1"}}), "{\"a\": 1}");
  EXPECT_EQ(JsonObject({{"a\"b", "1"}, {"", JsonString("x")}}), R"({"a\"b": 1, "": "x"})");
}

TEST(Json, ElementsOfAnArrayHaveALineEach) {
  EXPECT_EQ(JsonArray({}), "[]\n");
  EXPECT_EQ(JsonArray({"1"}), "[\n 1\n]\n");
  EXPECT_EQ(JsonArray({"1", "{}"}, "\t"), "[\n\t1,\n\t{}\n]\n");
}

}  // namespace
