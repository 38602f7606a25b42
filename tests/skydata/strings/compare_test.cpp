// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/check.h"
#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

using skydata_test::Strings;

class StringsCompare : public skydata_test::StringsTest {
 protected:
  // The findings about an English and a German table with these lines.
  Strings Compare(const std::string& english, const std::string& german) {
    return Lines(CompareStrings({Read(english, "en"), Read(german, "de")}));
  }
};

TEST_F(StringsCompare, TablesWithTheSameIdentifiersHaveNoFindings) {
  EXPECT_EQ(Compare("900500\tDay\n34\tCloud\n", "34\tWolke\n900500\tTag\n"), Strings{});
}

TEST_F(StringsCompare, AnIdentifierThatOneLanguageLacksIsReportedThere) {
  const Strings found = Compare("900500\tDay\n900501\tNight\n", "a comment\n900500\tTag\n");
  EXPECT_EQ(found, Strings{"2 error untranslated: 900501 is missing, " + m_Dir.Path("en/s.txt") + " has it"});
}

TEST_F(StringsCompare, TheEnglishTableMayLackATextToo) {
  const Strings found = Compare("900500\tDay\n", "900500\tTag\n37\tWolke\n");
  EXPECT_EQ(found, Strings{"1 error untranslated: 37 is missing, " + m_Dir.Path("de/s.txt") + " has it"});
}

TEST_F(StringsCompare, ATextThatTheLibraryRequiresIsNotReportedTwice) {
  EXPECT_EQ(Compare("7200\tLocal time\n", ""), Strings{});  // "missing" of CheckStrings says it
}

TEST_F(StringsCompare, AFormatOfAnApplicationGetsTheArgumentsOfTheEnglishOne) {
  EXPECT_EQ(Compare("900500\t%s: %.1f of %d\n", "900500\t%d Wolken\n"),
            Strings{"1 error format: 900500: conversion 1, %d, gets a text"});
  EXPECT_EQ(Compare("900500\t%s: %.1f%% of %d\n", "900500\t%-8s: %g\n"), Strings{});  // leaves one out
  EXPECT_EQ(Compare("900500\t%d of them\n", "900500\t%d von %d\n"),
            Strings{"1 error format: 900500: conversion 2, %d, has no argument"});
}

TEST_F(StringsCompare, TheDataOfAShowerAreTheSameInEveryLanguage) {
  EXPECT_EQ(Compare("6101\tLyrids;16;4;22;4;27;4;LYR;C/1861 G1 (Thatcher);18;9;+33\n",
                    "6101\tLyriden;16;4;23;4;27;4;LYR;C/1861 G1;18;9;+33\n"),
            Strings{"1 error shower: 6101: field 4 is '23', in " + m_Dir.Path("en/s.txt") + " '22'"});
}

TEST_F(StringsCompare, OneTableAloneHasNothingToCompareWith) {
  EXPECT_EQ(Lines(CompareStrings({Read("900500\tDay\n")})), Strings{});
  EXPECT_EQ(Lines(CompareStrings({})), Strings{});
}

}  // namespace
}  // namespace skydata
