// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/record_lines.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "text/record_lines_inside.h"

namespace {

using CommonInterfaces::record_lines::ForgetNearTableForTests;
using CommonInterfaces::record_lines::NearTable;
using test_support::DebugCapture;
using test_support::LoadStrings;

// Windows-1252: E9 e acute, E8 e grave, C0 A grave; DF sharp s, E6 ae.
constexpr char kTables[] = "14000\t\xE9\xE8\xC0\n14001\teeA\n14002\t\xDF\xE6\n14003\tssae\n";

class StringToNearTest : public testing::Test {
 protected:
  StringToNearTest() { ForgetNearTableForTests(); }
  ~StringToNearTest() override { ForgetNearTableForTests(); }

  // Both forms, the first in a buffer of exactly 256 bytes.
  static std::string Near(const std::string& text) {
    const std::unique_ptr<char[]> buffer(new char[256]);
    std::memset(buffer.get(), 'x', 256);
    StringToNear(buffer.get(), text.c_str());
    EXPECT_EQ(StringToNear(text), buffer.get());
    return buffer.get();
  }

  test_support::TempRoots m_Roots;
};

TEST_F(StringToNearTest, SingleCharactersAreReplacedByPosition) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(Near("B\xE9t\xE8lgeuse \xC0"), "Betelgeuse A");
}

TEST_F(StringToNearTest, FurtherCharactersBecomeTwo) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(Near("Stra\xDF"
                 "e \xE6"),
            "Strasse ae");
}

TEST_F(StringToNearTest, PlainLatinTextIsUnchanged) {
  LoadStrings(m_Roots, kTables);
  std::string plain;
  for (int byte = 1; byte <= 0x7F; ++byte) plain += static_cast<char>(byte);
  EXPECT_EQ(Near(plain), plain);
}

TEST_F(StringToNearTest, EmptyTextStaysEmpty) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(Near(""), "");
}

TEST_F(StringToNearTest, NullTextIsEmpty) {
  LoadStrings(m_Roots, kTables);
  char out[256] = "left over";
  StringToNear(out, nullptr);
  EXPECT_STREQ(out, "");
}

TEST_F(StringToNearTest, CharactersInNoTableStay) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(Near("\xFF\xA0"), "\xFF\xA0");
}

TEST_F(StringToNearTest, ByteEightyIsCopiedEvenWhenATableHasIt) {
  LoadStrings(m_Roots, "14000\t\x80\x81\n14001\tab\n14002\t\x80\x82\n14003\tccdd\n");
  EXPECT_EQ(Near("\x80\x81\x82"),
            "\x80"
            "bdd");
}

TEST_F(StringToNearTest, PlainCharactersInATableAreNotReplaced) {
  LoadStrings(m_Roots, "14000\ta\xE9\n14001\tXe\n14002\tb\xDF\n14003\tYYss\n");
  EXPECT_EQ(Near("ab\xE9\xDF"), "abess");
}

TEST_F(StringToNearTest, SingleReplacementGoesBeforeTheFurtherOne) {
  LoadStrings(m_Roots, "14000\t\xE4\n14001\ta\n14002\t\xE4\n14003\tae\n");
  EXPECT_EQ(Near("\xE4"), "a");
}

TEST_F(StringToNearTest, FirstPlaceOfARepeatedCharacterCounts) {
  LoadStrings(m_Roots, "14000\t\xE9\xE9\n14001\tab\n14002\t\xDF\xDF\n14003\tssSS\n");
  EXPECT_EQ(Near("\xE9\xDF"), "ass");
}

TEST_F(StringToNearTest, MinusAtTheStartOf14000CopiesUnchanged) {
  const DebugCapture debug;
  LoadStrings(m_Roots, "14000\t-\xE9\n14001\te\n14002\t\xDF\n14003\tss\n");
  EXPECT_EQ(Near("\xE9\xDF"), "\xE9\xDF");
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(StringToNearTest, MinusElsewhereDoesNot) {
  LoadStrings(m_Roots, "14000\t\xE9-\n14001\te-\n14002\t-\xDF\n14003\t--ss\n");
  EXPECT_EQ(Near("\xE9\xDF-"), "ess-");
}

TEST_F(StringToNearTest, TablesAreFetchedOnceAndKeptBeyondAChangeOfLanguage) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(Near("\xE9"), "e");
  LoadStrings(m_Roots, "14000\t\xE9\n14001\tX\n14002\t\xDF\n14003\tYY\n");  // the texts of before are freed
  EXPECT_EQ(Near("\xE9\xDF"), "ess");
  ForgetNearTableForTests();
  EXPECT_EQ(Near("\xE9\xDF"), "XYY");
}

TEST_F(StringToNearTest, ShortSingleReplacementsLeaveTheRestAloneAndAreReportedOnce) {
  LoadStrings(m_Roots, "14000\t\xE9\xE8\xC0\n14001\te\n14002\t\xDF\n14003\tss\n");
  const DebugCapture debug;
  EXPECT_EQ(Near("\xE9\xE8\xC0\xDF"), "e\xE8\xC0ss");
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0],
            "Strings 14000 and 14001 do not match: 3 characters, replacements of 1 bytes in place of 3\n");
}

TEST_F(StringToNearTest, ShortFurtherReplacementsLeaveTheRestAloneAndAreReportedOnce) {
  LoadStrings(m_Roots, "14000\t\xE9\n14001\te\n14002\t\xDF\xE6\n14003\tssa\n");
  const DebugCapture debug;
  EXPECT_EQ(Near("\xE9\xDF\xE6"), "ess\xE6");
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0],
            "Strings 14002 and 14003 do not match: 2 characters, replacements of 3 bytes in place of 4\n");
}

TEST_F(StringToNearTest, LongReplacementsAreReportedAndTheirExcessIgnored) {
  LoadStrings(m_Roots, "14000\t\xE9\n14001\teXX\n14002\t\xDF\n14003\tssXX\n");
  const DebugCapture debug;
  EXPECT_EQ(Near("\xE9\xDF"), "ess");
  EXPECT_EQ(debug.lines.size(), 2u);
}

TEST_F(StringToNearTest, CharacterWithoutItsSingleReplacementMayHaveAFurtherOne) {
  LoadStrings(m_Roots, "14000\t\xE9\xE4\n14001\te\n14002\t\xE4\n14003\tae\n");
  const DebugCapture debug;
  EXPECT_EQ(Near("\xE4"), "ae");
  EXPECT_EQ(debug.lines.size(), 1u);
}

TEST_F(StringToNearTest, MissingTablesAreReportedOnceAndReplaceNothing) {
  LoadStrings(m_Roots, "14000\t\xE9\n14002\t\xDF\n");
  const DebugCapture debug;
  EXPECT_EQ(Near("\xE9\xDF"), "\xE9\xDF");
  ASSERT_EQ(debug.lines.size(), 2u);
  EXPECT_EQ(debug.lines[0], "String with ID = 14001 not found in file qxstrings.txt\n");
  EXPECT_EQ(debug.lines[1], "String with ID = 14003 not found in file qxstrings.txt\n");
}

TEST_F(StringToNearTest, WithoutAnyTableTheTextIsUnchanged) {
  const DebugCapture debug;
  LoadStrings(m_Roots, "");
  EXPECT_EQ(Near("Stra\xDF"
                 "e"),
            "Stra\xDF"
            "e");
  EXPECT_EQ(debug.lines.size(), 4u);
}

TEST_F(StringToNearTest, LongTextIsCutTo255BytesAndReported) {
  LoadStrings(m_Roots, kTables);
  const DebugCapture debug;
  const std::unique_ptr<char[]> buffer(new char[256]);
  StringToNear(buffer.get(), std::string(200, '\xDF').c_str());
  EXPECT_EQ(buffer.get(), std::string(255, 's'));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "A text of 400 bytes is cut to 255\n");
}

TEST_F(StringToNearTest, StringFormCutsNothing) {
  LoadStrings(m_Roots, kTables);
  EXPECT_EQ(StringToNear(std::string(200, '\xDF')), std::string(400, 's'));
}

TEST_F(StringToNearTest, TextMayBeConvertedInPlace) {
  LoadStrings(m_Roots, kTables);
  char text[256] =
      "Stra\xDF"
      "e \xE6";
  StringToNear(text, text);
  EXPECT_STREQ(text, "Strasse ae");
}

TEST(NearTable, EveryByteWithoutTablesStaysItself) {
  const NearTable table("", "", "", "");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(table.Convert(text), text) << byte;
  }
}

TEST(NearTable, EveryHighByteCanBeReplaced) {
  std::string characters, replacements;
  for (int byte = 0x81; byte < 256; ++byte) {
    characters += static_cast<char>(byte);
    replacements += static_cast<char>('a' + byte % 26);
  }
  const NearTable table(characters.c_str(), replacements.c_str(), "", "");
  EXPECT_EQ(table.Convert(characters), replacements);
}

}  // namespace
