// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One test for each finding: a good table, one thing wrong.
#include "skydata/strings/check.h"

#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

using skydata_test::Strings;
using skydata_test::StringsText;

class StringsCheck : public skydata_test::StringsTest {
 protected:
  // The findings of the good table with a further line, without its number.
  Strings CheckLine(const std::string& line) {
    StringsText text;
    const std::string number = std::to_string(text.NextLine()) + ' ';
    return Shorten(Check(text.Append(line).Get()), number);
  }
  // The same with a line in the place of an entry.
  Strings CheckReplaced(const std::string& identifier, const std::string& line) {
    StringsText text;
    const std::string number = std::to_string(text.Replace(identifier, line)) + ' ';
    return Shorten(Check(text.Get()), number);
  }

 private:
  static Strings Shorten(Strings lines, const std::string& number) {
    for (std::string& line : lines)
      if (line.compare(0, number.size(), number) == 0) line.erase(0, number.size());
    return lines;
  }
};

TEST_F(StringsCheck, AGoodTableHasNoFindings) { EXPECT_EQ(Check(StringsText().Get()), Strings{}); }

TEST_F(StringsCheck, AByteThatIsNoUtf8IsNamed) {
  StringsText text;
  const int line = text.NextLine();
  const auto source = Read(text.Append("900500\tab\xE4z").Get(), "en", StringsEncoding::kUtf8);
  EXPECT_EQ(Lines(CheckStrings(source)),
            Strings{std::to_string(line) + " error encoding: byte 10 of the line is no character in UTF-8"});
}

TEST_F(StringsCheck, AByteThatTheCodePageLeavesUndefinedIsNamed) {
  const auto source = Read("900500\tab\x81z\n", "en", StringsEncoding::kCodePage);
  EXPECT_EQ(Lines(CheckStrings(source)).front(),
            "1 error encoding: byte 10 of the line is no character in windows-1252");
}

TEST_F(StringsCheck, ACharacterThatTheCodePageLacksIsNamed) {
  EXPECT_EQ(
      CheckLine("900500\tab\u0434z"),
      Strings{"error code-page: U+0434 '\u0434' is not in windows-1252, the code page of the language"});
}

TEST_F(StringsCheck, CommentsMayHoldAnyCharacter) { EXPECT_EQ(CheckLine("\u0434 \u4E2D"), Strings{}); }

TEST_F(StringsCheck, AZeroByteEndsTheLine) {
  EXPECT_EQ(CheckLine(std::string("900500\tab\0cd", 12)),
            Strings{"error zero-byte: ends for the library at its zero byte"});
}

TEST_F(StringsCheck, ALineLongerThanTheLibraryReadsIsNamed) {
  EXPECT_EQ(CheckLine("900500\t" + std::string(4088, 'x')), Strings{});
  EXPECT_EQ(CheckLine("900500\t" + std::string(4089, 'x')),
            Strings{"error long-line: has 4096 bytes, the library reads 4095 of a line"});
}

TEST_F(StringsCheck, TheLengthOfALineIsThatInTheCodePage) {
  std::string umlauts;
  for (int i = 0; i < 4088; ++i) umlauts += "\u00E4";
  EXPECT_EQ(CheckLine("900500\t" + umlauts), Strings{});
}

TEST_F(StringsCheck, ATabWithoutAnEntryIsNamed) {
  const Strings expected{"error no-entry: has a tab but is no entry: wants identifier, tab, text"};
  EXPECT_EQ(CheckLine("abc\ttext"), expected);
  EXPECT_EQ(CheckLine("\ttext"), expected);
  EXPECT_EQ(CheckLine("900500\t"), expected);
}

TEST_F(StringsCheck, AnIdentifierWithTheSameTextTwiceIsADuplicate) {
  StringsText text;
  const int first = text.NextLine();
  text.Append("900500\ta");
  EXPECT_EQ(Check(text.Append("0900500\ta\tnote").Get()),
            Strings{std::to_string(first + 1) + " error duplicate: 900500 stands in line " +
                    std::to_string(first) + " already"});
}

TEST_F(StringsCheck, AnIdentifierWithAnotherTextIsAConflict) {
  StringsText text;
  const std::string star = std::to_string(text.Replace("star", "star\tStar"));
  const std::string last = std::to_string(text.NextLine());
  EXPECT_EQ(Check(text.Append("1937006962\tSun").Get()),
            Strings{last + " error conflict: star stands in line " + star + " already, with another text"});
}

TEST_F(StringsCheck, AMissingTextIsReportedInTheLastLine) {
  StringsText text;
  text.Replace("7200", "");
  EXPECT_EQ(Check(text.Get()), Strings{std::to_string(text.NextLine() - 1) +
                                       " error missing: 7200 is missing (caption of local time)"});
}

TEST_F(StringsCheck, AnEmptyFileLacksEverythingInLineOne) {
  const Strings lines = Check("");
  ASSERT_GT(lines.size(), 100u);
  for (const std::string& line : lines) EXPECT_EQ(line.substr(0, 16), "1 error missing:");
}

TEST_F(StringsCheck, AnOptionalTextMayBeMissing) {
  StringsText text;
  text.Replace("7228", "");
  EXPECT_EQ(Check(text.Get()), Strings{});
}

TEST_F(StringsCheck, AnIdentifierThatNothingUsesIsAWarning) {
  EXPECT_EQ(CheckLine("8123\ttext"), Strings{"warning unused: nothing uses 8123"});
  EXPECT_EQ(CheckLine("quux\ttext"), Strings{"warning unused: nothing uses quux"});
}

TEST_F(StringsCheck, IdentifiersOfApplicationsAreNeverUnused) {
  EXPECT_EQ(CheckLine("900500\ttext"), Strings{});
  EXPECT_EQ(CheckLine("999999\ttext"), Strings{});
  EXPECT_EQ(CheckLine("1000000\ttext"), Strings{"warning unused: nothing uses 1000000"});
}

TEST_F(StringsCheck, AnEmptyTextIsNamed) {
  EXPECT_EQ(
      CheckReplaced("7200", "7200\t  "),
      (Strings{"warning blanks: the blanks at the ends of the text are lost; a no-break blank (U+00A0) stays",
               "error empty: 7200 has no text"}));
}

TEST_F(StringsCheck, AFormatThatDoesNotFitIsNamed) {
  EXPECT_EQ(CheckReplaced("7211", "7211\tHeight %s %s"),
            Strings{"error format: 7211: conversion 1, %s, gets a double"});
  EXPECT_EQ(CheckReplaced("7219", "7219\tSlope %d %d"),
            Strings{"error format: 7219: conversion 2, %d, has no argument"});
  EXPECT_EQ(CheckReplaced("7207", "7207\t%d").size(), 1u);
  EXPECT_EQ(CheckReplaced("7220", "7220\t%n").size(), 1u);
}

TEST_F(StringsCheck, AFormatMayLeaveOutArgumentsAtTheEnd) {
  EXPECT_EQ(CheckReplaced("7211", "7211\tHeight %.1f"), Strings{});
}

TEST_F(StringsCheck, APercentSignInATextThatIsNoFormatIsFine) {
  EXPECT_EQ(CheckReplaced("7200", "7200\t100 % local %s"), Strings{});
}

TEST_F(StringsCheck, ATextLongerThanItsUsersHaveRoomForIsNamed) {
  EXPECT_EQ(CheckReplaced("965", "965\tWest"),
            Strings{"error too-long: 965 has 4 bytes, there is room for 1"});
}

TEST_F(StringsCheck, TheLengthOfATextIsThatInTheCodePage) {
  EXPECT_EQ(CheckReplaced("966", "966\t\u00D6"), Strings{});  // two bytes of UTF-8
}

TEST_F(StringsCheck, AnEscapeThatMeansNothingIsAWarning) {
  const Strings expected{
      "warning escape: a backslash stands for itself unless n, t, \\ or \" follows: write it twice"};
  EXPECT_EQ(CheckLine("900500\ta\\qb"), expected);
  EXPECT_EQ(CheckLine("900500\ta\\"), expected);
  EXPECT_EQ(CheckLine("900500\ta\\\\qb\\n\\t\\\""), Strings{});
}

TEST_F(StringsCheck, BlanksThatAreLostAreAWarning) {
  const Strings expected{
      "warning blanks: the blanks at the ends of the text are lost; a no-break blank (U+00A0) stays"};
  EXPECT_EQ(CheckLine("900500\t text"), expected);
  EXPECT_EQ(CheckLine("900500\ttext "), expected);
  EXPECT_EQ(CheckLine("900500\ttext \tnote"), expected);
  EXPECT_EQ(CheckLine("900500\ttext\u00A0"), Strings{});
}

TEST_F(StringsCheck, AFindingThatQuotesTheEndOfALineIsOneLine) {
  const Strings findings = CheckReplaced("40830", "40830\tDD.MM\\nYY");
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].find('\n'), std::string::npos);
  EXPECT_NE(findings[0].find("'DD.MM\\nYY'"), std::string::npos) << findings[0];
}

TEST_F(StringsCheck, ADatePatternThatTheLibraryDoesNotKnowIsNamed) {
  EXPECT_EQ(CheckReplaced("40830", "40830\td.m.yyyy"),
            Strings{"error date-pattern: 'd.m.yyyy' is none of dd/mm/yyyy, dd-mm-yyyy, dd.mm.yyyy, d-m-yyyy, "
                    "m/d/yyyy, yyyy/mm/dd, yyyy/m/d"});
  for (const char* pattern :
       {"dd/mm/yyyy", "dd-mm-yyyy", "dd.mm.yyyy", "d-m-yyyy", "m/d/yyyy", "yyyy/mm/dd", "yyyy/m/d"})
    EXPECT_EQ(CheckReplaced("40830", std::string("40830\t") + pattern), Strings{});
}

TEST_F(StringsCheck, ADateOrderIsZeroOneOrTwo) {
  EXPECT_EQ(CheckReplaced("20560", "20560\t3"),
            Strings{"error date-order: '3' is none of 0 (month first), 1 (day first), 2 (year first)"});
  for (const char* order : {"0", "1", "2"})
    EXPECT_EQ(CheckReplaced("20560", std::string("20560\t") + order), Strings{});
}

TEST_F(StringsCheck, TablesOfTransliterationMatchInLength) {
  EXPECT_EQ(CheckReplaced("14001", "14001\tAAA"),
            Strings{"error transliteration: 14001 has 3 characters, wants 68: 1 for each of 14000"});
  EXPECT_EQ(CheckReplaced("14003", "14003\tAE"),
            Strings{"error transliteration: 14003 has 2 characters, wants 14: 2 for each of 14002"});
}

TEST_F(StringsCheck, ACharacterThatIsNeverTransliteratedIsAWarning) {
  EXPECT_EQ(CheckReplaced("14002", "14002\t\u00C6\u0152\u00DE\u00DF\u00E6\u0153x"),
            Strings{"warning transliteration: 'x' is never replaced: only bytes above 0x80 are"});
}

TEST_F(StringsCheck, TransliterationThatIsOffNeedsNoTables) {
  EXPECT_EQ(CheckReplaced("14000", "14000\t-"), Strings{});
}

TEST_F(StringsCheck, AMeteorShowerHasTwelveFields) {
  EXPECT_EQ(CheckReplaced("6107", "6107\tGeminids;7;11"),
            Strings{"error shower: 6107 has 3 fields, wants 12"});
  EXPECT_EQ(CheckReplaced("6107", "6107\tGeminids;7;11;14;12;25;dec;GEM;3200 Phaethon;7;;+32"),
            (Strings{"error shower: 6107: field 7, 'dec', is no whole number",
                     "error shower: 6107: field 11, '', is no whole number"}));
}

TEST_F(StringsCheck, AMeteorShowerBehindAGapIsNotRead) {
  EXPECT_EQ(CheckLine("6301\tUrsids;17;12;22;12;26;12;URS;8P/Tuttle;14;28;+75"),
            Strings{"error shower: 6301 is not read: 6300 is missing"});
}

}  // namespace
}  // namespace skydata
