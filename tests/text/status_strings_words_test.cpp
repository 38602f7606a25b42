// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>

#include "text/status_strings_fixture.h"

namespace {

using namespace CommonInterfaces;
using namespace test_support;

std::string Compact(int degrees, int minutes, float seconds) {
  const M_DMSTag angle = {static_cast<short>(degrees), static_cast<short>(minutes), seconds};
  const std::string text = FRomDMS2String(angle);
  GuardedText buffer;
  FRomDMS2String(buffer.Get(), angle);
  EXPECT_EQ(buffer.Read(), text);
  return text;
}

TEST(CompactAngle, TenDegreesAndMoreAreWhole) {
  EXPECT_EQ(Compact(10, 59, 59.0f), "10\xC2\xB0");
  EXPECT_EQ(Compact(359, 30, 0.0f), "359\xC2\xB0");
}

TEST(CompactAngle, FewerDegreesHaveMinutes) {
  EXPECT_EQ(Compact(9, 59, 59.0f),
            "9\xC2\xB0"
            "59'");
  EXPECT_EQ(Compact(1, 0, 0.0f),
            "1\xC2\xB0"
            "0'");
}

TEST(CompactAngle, DegreeSignHasTwoBytesUnlikeThatOfTheFieldOfView) {
  EXPECT_EQ(Compact(45, 0, 0.0f), std::string("45\xC2\xB0", 4));
}

TEST(CompactAngle, TenMinutesAndMoreAreWhole) {
  EXPECT_EQ(Compact(0, 10, 59.0f), "10'");
  EXPECT_EQ(Compact(0, 59, 59.99f), "59'");
}

TEST(CompactAngle, FewerMinutesHaveSeconds) {
  EXPECT_EQ(Compact(0, 9, 30.4f), "9'30\"");
  EXPECT_EQ(Compact(0, 1, 0.0f), "1'0\"");
}

TEST(CompactAngle, LessThanAMinuteHasSecondsAlone) {
  EXPECT_EQ(Compact(0, 0, 12.6f), "13\"");
  EXPECT_EQ(Compact(0, 0, 0.0f), "0\"");
}

TEST(CompactAngle, SecondsAreRoundedDeliberatelyWithoutACarry) {
  EXPECT_EQ(Compact(0, 0, 59.6f), "60\"");
  EXPECT_EQ(Compact(0, 5, 59.6f), "5'60\"");
}

TEST(CompactAngle, DegreesOfZeroOrLessAreLeftOutWithTheirSign) {
  EXPECT_EQ(Compact(-5, 30, 10.0f), "30'");
  EXPECT_EQ(Compact(-5, 0, 10.0f), "10\"");
  EXPECT_EQ(Compact(0, -30, 10.0f), "10\"");
}

TEST(CompactAngle, ExtremeFieldsAreWritten) {
  EXPECT_EQ(Compact(32767, 32767, 0.0f), "32767\xC2\xB0");
  EXPECT_EQ(Compact(1, -32768, 0.0f), "1\xC2\xB0-32768'");
  EXPECT_EQ(Compact(0, 0, 1e10f), "10000000000\"");
}

TEST(CompactAngle, NullBufferDoesNothing) { FRomDMS2String(nullptr, M_DMSTag{1, 2, 3.0f}); }

class NumberDays : public StatusTextTest {
 protected:
  NumberDays() { Load("13063\tone\n130631\tfew\n130632\tmany\n"); }
};

TEST_F(NumberDays, FormsByTheNumber) {
  EXPECT_STREQ(GetNumberDays(1), "one");
  EXPECT_STREQ(GetNumberDays(2), "few");
  EXPECT_STREQ(GetNumberDays(5), "many");
  EXPECT_STREQ(GetNumberDays(11), "many");
  EXPECT_STREQ(GetNumberDays(21), "one");
  EXPECT_STREQ(GetNumberDays(22), "few");
}

TEST_F(NumberDays, EveryNumberUpToThirty) {
  const std::string forms = "mofffmmmmmmmmmmmmmmmmofffmmmmmm";
  for (int number = 0; number <= 30; ++number) {
    EXPECT_EQ(GetNumberDays(number)[0], forms[static_cast<std::size_t>(number)]) << number;
  }
}

TEST_F(NumberDays, TheTeensOfHigherHundredsDeliberatelyFollowTheirLastDigit) {
  EXPECT_STREQ(GetNumberDays(111), "one");
  EXPECT_STREQ(GetNumberDays(112), "few");
  EXPECT_STREQ(GetNumberDays(114), "few");
  EXPECT_STREQ(GetNumberDays(115), "many");
  EXPECT_STREQ(GetNumberDays(INT_MAX), "many");  // 2147483647
}

TEST_F(NumberDays, NegativeNumbersFollowTheirMagnitude) {
  EXPECT_STREQ(GetNumberDays(-1), "one");
  EXPECT_STREQ(GetNumberDays(-3), "few");
  EXPECT_STREQ(GetNumberDays(-12), "many");
  EXPECT_STREQ(GetNumberDays(INT_MIN), "many");  // 2147483648
}

TEST_F(NumberDays, AMissingFormIsQuietlyThatOfOne) {
  Load("13063\tone\n");
  EXPECT_STREQ(GetNumberDays(2), "one");
  EXPECT_STREQ(GetNumberDays(5), "one");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(NumberDays, WithoutAnyFormNullAndTheUsualReport) {
  Load("1\tx\n");
  EXPECT_EQ(GetNumberDays(2), nullptr);
  EXPECT_EQ(GetNumberDays(1), nullptr);
  const std::string report = "String with ID = 13063 not found in file qxstrings.txt\n";
  EXPECT_EQ(debug.lines, (Lines{report, report}));
}

TEST(GreekName, ANameWithoutTheMarkIsReturnedAsItIs) {
  EXPECT_EQ(FormatGreekName(""), "");
  EXPECT_EQ(FormatGreekName("Sirius"), "Sirius");
  EXPECT_EQ(FormatGreekName("\xE1 CMa"), "\xE1 CMa");
}

TEST(GreekName, TheMarkBecomesABlankAndTheLetterBehindItGreek) {
  EXPECT_EQ(FormatGreekName("&a CMa"), " \xE1 CMa");
  EXPECT_EQ(FormatGreekName("58 &b Ori"), "58  \xE2 Ori");
}

// Code page 1253: alpha is 0xE1, rho 0xF1, final sigma 0xF2, sigma 0xF3, omega 0xF9; capitals are 32 lower.
TEST(GreekName, TheFinalSigmaIsSkipped) {
  EXPECT_EQ(FormatGreekName("&q"), " \xF1");
  EXPECT_EQ(FormatGreekName("&r"), " \xF3");
  EXPECT_EQ(FormatGreekName("&s"), " \xF4");
  EXPECT_EQ(FormatGreekName("&x"), " \xF9");
}

TEST(GreekName, CapitalsFollowTheSameRuleByTheSamePlace) {
  EXPECT_EQ(FormatGreekName("&A"), " \xC1");
  EXPECT_EQ(FormatGreekName("&Q"), " \xD1");
  EXPECT_EQ(FormatGreekName("&R"), " \xD3");
  EXPECT_EQ(FormatGreekName("&X"), " \xD9");
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const char capital = static_cast<char>(letter - 32);
    const auto low = static_cast<unsigned char>(FormatGreekName(std::string("&") + letter)[1]);
    const auto high = static_cast<unsigned char>(FormatGreekName(std::string("&") + capital)[1]);
    EXPECT_EQ(low - high, 32) << letter;
  }
}

TEST(GreekName, OnlyTheFirstMarkCounts) { EXPECT_EQ(FormatGreekName("&a &b"), " \xE1 &b"); }

TEST(GreekName, AMarkAtTheEndBecomesABlank) {
  EXPECT_EQ(FormatGreekName("&"), " ");
  EXPECT_EQ(FormatGreekName("name&"), "name ");
}

TEST(GreekName, WhatIsNoLetterStays) {
  EXPECT_EQ(FormatGreekName("a & b"), "a   b");
  EXPECT_EQ(FormatGreekName("&1&"), " 1&");
  EXPECT_EQ(FormatGreekName("&\xE1"), " \xE1");
  for (const char* name : {"@", "[", "`", "{"})  // right before and behind the letters
    EXPECT_EQ(FormatGreekName("&" + std::string(name)), " " + std::string(name));
}

}  // namespace
