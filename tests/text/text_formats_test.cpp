// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/text_formats.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;
using test_support::LoadStrings;
using Lines = std::vector<std::string>;

TEST(TextUses, AreAscendingAndNeverOverlap) {
  int count = 0;
  const TextUse* uses = GetTextUses(&count);
  ASSERT_GT(count, 0);
  for (int i = 0; i < count; ++i) {
    EXPECT_LE(uses[i].first, uses[i].last) << i;
    if (i > 0) {
      EXPECT_LT(uses[i - 1].last, uses[i].first) << i;
    }
    EXPECT_GT(uses[i].maxLength, 0) << i;
    EXPECT_STRNE(uses[i].use, "") << i;
  }
  EXPECT_EQ(GetTextUses(nullptr), uses);
}

TEST(TextUses, EveryIdentifierIsFoundInItsRow) {
  int count = 0;
  const TextUse* uses = GetTextUses(&count);
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(FindTextUse(uses[i].first), &uses[i]) << i;
    EXPECT_EQ(FindTextUse(uses[i].last), &uses[i]) << i;
    EXPECT_EQ(FindTextUse(uses[i].first + (uses[i].last - uses[i].first) / 2), &uses[i]) << i;
  }
}

TEST(TextUses, AnIdentifierBetweenRowsAndBehindThemHasNone) {
  for (const unsigned identifier :
       {256u, 964u, 969u, 1126u, 1168u, 5015u, 7205u, 130633u, 0x75000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(FindTextUse(identifier), nullptr) << identifier;
  }
}

TEST(TextUses, NameEveryTextOfTheLibrary) {
  std::set<unsigned> identifiers = {0,     1125,  1127,  1131,  1132,  1141,   1142,  1152, 1157,
                                    1158,  1159,  3007,  6101,  7200,  7201,   7202,  7203, 7204,
                                    7207,  7211,  7212,  7214,  7215,  7219,   7220,  7227, 7228,
                                    13063, 14300, 15400, 20560, 40830, 130631, 130632};
  const auto addRange = [&identifiers](unsigned first, unsigned last) {
    for (unsigned identifier = first; identifier <= last; ++identifier) identifiers.insert(identifier);
  };
  addRange(965, 968);
  addRange(971, 982);
  addRange(1971, 1982);
  addRange(1160, 1167);
  addRange(5011, 5014);
  addRange(14000, 14003);
  addRange(20261, 20266);
  for (const char* code : {"astr", "comt", "pldw", "plnt", "scft", "star", "moon"}) {
    identifiers.insert(static_cast<unsigned>(GetFOURCC(code)));
  }
  for (const unsigned identifier : identifiers) EXPECT_NE(FindTextUse(identifier), nullptr) << identifier;
}

TEST(TextUses, ArgumentsOfTheFormats) {
  const std::pair<unsigned, const char*> formats[] = {
      {7207, ""},         {7211, "fs"},     {7212, "fs"},     {7214, "s"},     {7215, "s"},
      {7219, "d"},        {7220, "f"},      {7227, "ss"},     {3007, "s"},     {7208, "ddfcddfc"},
      {7209, "ddfcddfc"}, {7216, "ddfddf"}, {7217, "ddfddf"}, {7218, "ddfddf"}};
  for (const auto& [identifier, arguments] : formats) {
    ASSERT_NE(FindTextUse(identifier), nullptr) << identifier;
    EXPECT_STREQ(FindTextUse(identifier)->arguments, arguments) << identifier;
  }
  for (const unsigned identifier : {0u, 1160u, 7200u, 7203u, 7228u, 14000u, 14300u, 15400u, 5011u, 6101u}) {
    EXPECT_EQ(FindTextUse(identifier)->arguments, nullptr) << identifier;
  }
}

TEST(TextUses, OptionalTextsAreThoseWithAStandInOrAnEnd) {
  for (const unsigned identifier : {7228u, 14300u, 6101u}) EXPECT_FALSE(FindTextUse(identifier)->isRequired);
  for (const unsigned identifier : {7200u, 13063u, 130632u, 40830u})
    EXPECT_TRUE(FindTextUse(identifier)->isRequired);
}

TEST(FormatFault, FormatsThatFit) {
  EXPECT_EQ(FindFormatFault("", ""), "");
  EXPECT_EQ(FindFormatFault("plain \xB0 100%%", ""), "");
  EXPECT_EQ(FindFormatFault("%d %i %u %x %X %o", "dddddd"), "");
  EXPECT_EQ(FindFormatFault("%e %E %f %F %g %G %a %A", "ffffffff"), "");
  EXPECT_EQ(FindFormatFault("%le %lE %lf %lF %lg %lG %la %lA", "ffffffff"), "");
  EXPECT_EQ(FindFormatFault("%s%c", "sc"), "");
  EXPECT_EQ(FindFormatFault("%-+ #0999.999f|%.f|%5.d", "ffd"), "");
}

TEST(FormatFault, ArgumentsAtTheEndMayBeLeftOut) {
  EXPECT_EQ(FindFormatFault("%d", "dds"), "");
  EXPECT_EQ(FindFormatFault("", "fs"), "");
}

TEST(FormatFault, OneConversionTooMany) {
  EXPECT_EQ(FindFormatFault("%d %s", "d"), "conversion 2, %s, has no argument");
  EXPECT_EQ(FindFormatFault("%%%d", ""), "conversion 1, %d, has no argument");
}

TEST(FormatFault, AnotherType) {
  EXPECT_EQ(FindFormatFault("%d %s", "dd"), "conversion 2, %s, gets an int");
  EXPECT_EQ(FindFormatFault("%5d", "f"), "conversion 1, %5d, gets a double");
  EXPECT_EQ(FindFormatFault("%.2f", "s"), "conversion 1, %.2f, gets a text");
  EXPECT_EQ(FindFormatFault("%d", "c"), "conversion 1, %d, gets a character");
  EXPECT_EQ(FindFormatFault("%c", "d"), "conversion 1, %c, gets an int");
  EXPECT_EQ(FindFormatFault("%s", "c"), "conversion 1, %s, gets a character");
}

TEST(FormatFault, StoringAndArgumentWidthsAreNeverAllowed) {
  EXPECT_EQ(FindFormatFault("%n", "d"), "conversion 1, %n, is not allowed");
  EXPECT_EQ(FindFormatFault("%d%n", "dd"), "conversion 2, %n, is not allowed");
  EXPECT_EQ(FindFormatFault("%*d", "dd"), "conversion 1, %*, is not allowed");
  EXPECT_EQ(FindFormatFault("%.*f", "df"), "conversion 1, %.*, is not allowed");
  EXPECT_EQ(FindFormatFault("%1$d", "d"), "conversion 1, %1$, is not allowed");
}

TEST(FormatFault, AnIntMayBeWrittenWithALength) {
  for (const char* format : {"%hd", "%hhd", "%ld", "%hi", "%hhu", "%lx", "%-5.3hX", "%+lo"})
    EXPECT_EQ(FindFormatFault(format, "d"), "") << format;
  EXPECT_EQ(FindFormatFault("%ld", "f"), "conversion 1, %ld, gets a double");
  EXPECT_EQ(FindFormatFault("%lf", "f"), "");
}

TEST(FormatFault, LengthsOfOtherTypesAreNotAllowed) {
  EXPECT_EQ(FindFormatFault("%hf", "f"), "conversion 1, %hf, is not allowed");
  EXPECT_EQ(FindFormatFault("%hs", "s"), "conversion 1, %hs, is not allowed");
  EXPECT_EQ(FindFormatFault("%hhc", "c"), "conversion 1, %hhc, is not allowed");
  EXPECT_EQ(FindFormatFault("%hhhd", "d"), "conversion 1, %hhh, is not allowed");
  EXPECT_EQ(FindFormatFault("%hld", "d"), "conversion 1, %hl, is not allowed");
  EXPECT_EQ(FindFormatFault("%ls", "s"), "conversion 1, %ls, is not allowed");
  EXPECT_EQ(FindFormatFault("%lc", "c"), "conversion 1, %lc, is not allowed");
  for (const char* format : {"%lld", "%llf", "%Lf", "%zd", "%jd", "%td", "%I64d", "%p", "%S", "%C", "%m",
                             "%'d", "%l%", "%5%", "% %", "%b"}) {
    EXPECT_NE(FindFormatFault(format, "d"), "") << format;
    EXPECT_NE(FindFormatFault(format, "f"), "") << format;
  }
}

TEST(FormatFault, NumbersOfMoreThanThreeDigits) {
  EXPECT_EQ(FindFormatFault("%999999d", "d"), "conversion 1, %9999, has a number of more than three digits");
  EXPECT_EQ(FindFormatFault("%.1000f", "f"), "conversion 1, %.1000, has a number of more than three digits");
  EXPECT_EQ(FindFormatFault("%00001d", "d"), "");  // the zeros are flags
}

TEST(FormatFault, CutOffConversion) {
  for (const char* format : {"%", "100 %", "%-", "%05", "%.", "%5.", "%.3", "%l", "%5.2l", "%h", "%hh"}) {
    EXPECT_NE(FindFormatFault(format, "df").find("is cut off"), std::string::npos) << format;
  }
}

TEST(FormatFault, ALineBreakInAConversionIsNotHandedOn) {
  EXPECT_EQ(FindFormatFault("%\n", "d"), "conversion 1, %?, is not allowed");
}

TEST(FormatFault, ALongRunOfFlagsIsShownInPart) {
  const std::string fault = FindFormatFault(("%" + std::string(3000, '-') + "n").c_str(), "d");
  EXPECT_EQ(fault, "conversion 1, %" + std::string(23, '-') + "..., is not allowed");
  EXPECT_EQ(FindFormatFault(("%" + std::string(3000, '-') + "d").c_str(), "d"), "");
}

TEST(FormatFault, NullIsEmpty) {
  EXPECT_EQ(FindFormatFault(nullptr, "d"), "");
  EXPECT_EQ(FindFormatFault("text", nullptr), "");
  EXPECT_EQ(FindFormatFault("%d", nullptr), "conversion 1, %d, has no argument");
}

class LocalizedText : public testing::Test {
 protected:
  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(LocalizedText, FormatsTheTextOfTheTable) {
  LoadStrings(roots, "7211\tHeight %.1f %s\n");
  EXPECT_EQ(FormatLocalizedText(7211, {12.34, "km"}), "Height 12.3 km");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(LocalizedText, LoadsTheTable) {
  LoadStrings(roots, "");
  roots.dir.Write("data/qxstrings.txt", "7\tloaded\n");
  QX4Strings::StartLocaleUpdate();
  EXPECT_EQ(FormatLocalizedText(7, {}), "loaded");
  QX4Strings::FinishLocaleUpdate();
}

TEST_F(LocalizedText, MissingTextIsEmptyAndReportedOnce) {
  LoadStrings(roots, "1\tx\n");
  EXPECT_EQ(FormatLocalizedText(7211, {1.0}), "");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 7211 not found in file qxstrings.txt\n"});
}

TEST_F(LocalizedText, MisfitIsEmptyAndReportedInOneLineWithItsIdentifier) {
  LoadStrings(roots, "7211\tHeight %s\n");
  EXPECT_EQ(FormatLocalizedText(7211, {1.0, "km"}), "");
  EXPECT_EQ(debug.lines,
            Lines{"String with ID = 7211 does not fit its use: conversion 1, %s, gets a double\n"});
}

TEST_F(LocalizedText, PercentSignsOfTheMisfitNeverReachTheDiagnosticAsAFormat) {
  LoadStrings(roots, "7211\t%s%s%s%n\n");
  EXPECT_EQ(FormatLocalizedText(7211, {"a"}), "");
  EXPECT_EQ(debug.lines,
            Lines{"String with ID = 7211 does not fit its use: conversion 2, %s, has no argument\n"});
}

TEST_F(LocalizedText, ALongFormatIsFormattedWhole) {
  LoadStrings(roots, "7\t" + std::string(4000, 'x') + "%d\n");
  EXPECT_EQ(FormatLocalizedText(7, {5}), std::string(4000, 'x') + "5");
}

}  // namespace
