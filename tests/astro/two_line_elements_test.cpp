// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "astro/satellite.h"
#include "helpers/measure.h"
#include "helpers/tsv.h"
#include "helpers/two_lines.h"

using astro_test::kDegree;
using astro_test::WithCheckSum;

namespace {

// The set with which the format is explained in most places: International Space Station, 2008. Its second
// line's checksum and the fields are worked out by hand below.
const std::string kLine1 = "1 25544U 98067A   08264.51782528 -.00002182  00000-0 -11606-4 0  2927";
const std::string kLine2 = "2 25544  51.6416 247.4627 0006703 130.5360 325.0288 15.72125391563537";

struct Parsed {
  bool isGood = false;
  OrbitalElements elements;
  int number = -7;
  std::string error;
};

Parsed Parse(const std::string& line1, const std::string& line2) {
  Parsed parsed;
  parsed.isGood = ParseTwoLineElements(line1, line2, parsed.elements, parsed.number, parsed.error);
  return parsed;
}

// A line with other text from a column on (counted from 1), and the checksum that it then has.
std::string Changed(const std::string& line, int column, const std::string& text) {
  std::string changed = line;
  changed.replace(static_cast<std::size_t>(column - 1), text.size(), text);
  return WithCheckSum(changed);
}

std::string ErrorOf(const std::string& line1, const std::string& line2) {
  const Parsed parsed = Parse(line1, line2);
  EXPECT_FALSE(parsed.isGood);
  EXPECT_EQ(parsed.number, -7);
  EXPECT_EQ(parsed.elements.tag, 0);
  EXPECT_EQ(parsed.error.find('\n'), std::string::npos);
  return parsed.error;
}

}  // namespace

TEST(TwoLineElements, EveryFieldOfAKnownSet) {
  const Parsed parsed = Parse(kLine1, kLine2);
  ASSERT_TRUE(parsed.isGood) << parsed.error;
  const OrbitalElements& e = parsed.elements;
  EXPECT_EQ(parsed.number, 25544);
  EXPECT_EQ(e.elementSet, kTwoLineElements);
  EXPECT_EQ(e.tag, kTwoLineTag);
  EXPECT_EQ(e.centralKind, FourCC("plnt"));
  EXPECT_EQ(e.centralNumber, 3);
  // 20 September 2008, 12:25:40 UT: Julian date 2454730.0 is its noon, day 264.5 of the leap year.
  EXPECT_NEAR(e.epoch, 2454730.01782528, 1e-9);
  EXPECT_DOUBLE_EQ(e.meanMotionDot, -0.00002182);
  EXPECT_EQ(e.meanMotionDotDot, 0.0);
  EXPECT_NEAR(e.dragTerm, -0.11606e-4, 1e-20);
  EXPECT_DOUBLE_EQ(e.i, 51.6416 * kDegree);
  EXPECT_DOUBLE_EQ(e.om, 247.4627 * kDegree);
  EXPECT_DOUBLE_EQ(e.e, 0.0006703);
  EXPECT_DOUBLE_EQ(e.w, 130.5360 * kDegree);
  EXPECT_DOUBLE_EQ(e.M0, 325.0288 * kDegree);
  EXPECT_DOUBLE_EQ(e.n, 15.72125391 * astro_test::kTurn / 1440.0);
  EXPECT_TRUE(parsed.error.empty());
}

// The column of the table that was computed elsewhere.
TEST(TwoLineElements, MeanMotionsOfTheVerificationSets) {
  int count = 0;
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "sgp4_ver_tle.tsv")) {
    const Parsed parsed = Parse(WithCheckSum(row[1]), WithCheckSum(row[2]));
    ASSERT_TRUE(parsed.isGood) << row[0] << ": " << parsed.error;
    EXPECT_EQ(parsed.number, std::stoi(row[0]));
    EXPECT_NEAR(parsed.elements.n / std::stod(row[4]), 1.0, 1e-8) << row[0];
    ++count;
  }
  EXPECT_EQ(count, 33);
}

// Three of the sets were made by hand, and nobody counted.
TEST(TwoLineElements, VerificationSetsWithWrongChecksumsAreRefused) {
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "sgp4_ver_tle.tsv")) {
    const bool isMadeByHand = row[0] == "33333" || row[0] == "33334" || row[0] == "33335";
    EXPECT_EQ(Parse(row[1], row[2]).isGood, !isMadeByHand) << row[0];
  }
}

TEST(TwoLineElements, YearsTurnAt57) {
  EXPECT_EQ(Parse(Changed(kLine1, 19, "57001.00000000"), kLine2).elements.epoch,
            2435839.5);  // 1 January 1957
  EXPECT_EQ(Parse(Changed(kLine1, 19, "56001.00000000"), kLine2).elements.epoch,
            2471998.5);  // 1 January 2056
  EXPECT_EQ(Parse(Changed(kLine1, 19, "00060.00000000"), kLine2).elements.epoch,
            2451603.5);  // 29 February 2000
  EXPECT_EQ(Parse(Changed(kLine1, 19, "00366.50000000"), kLine2).elements.epoch,
            2451910.0);  // 31 December 2000
}

TEST(TwoLineElements, BlanksBeforeTheDayAndTheYear) {
  EXPECT_EQ(Parse(Changed(kLine1, 19, "08  1.50000000"), kLine2).elements.epoch, 2454467.0);
  EXPECT_EQ(Parse(Changed(kLine1, 19, " 8001.50000000"), kLine2).elements.epoch, 2454467.0);
  EXPECT_EQ(Parse(Changed(kLine1, 19, "08 1.5        "), kLine2).elements.epoch, 2454467.0);
}

TEST(TwoLineElements, PowersOfTenWithoutAPoint) {
  const auto drag = [](const std::string& text) {
    const Parsed parsed = Parse(Changed(kLine1, 54, text), kLine2);
    EXPECT_TRUE(parsed.isGood) << text << ": " << parsed.error;
    return parsed.elements.dragTerm;
  };
  EXPECT_NEAR(drag(" 28098-4"), 0.28098e-4, 1e-20);
  EXPECT_NEAR(drag("+28098-4"), 0.28098e-4, 1e-20);
  EXPECT_NEAR(drag("-28098+1"), -2.8098, 1e-15);
  EXPECT_NEAR(drag(" 12345 2"), 12.345, 1e-14);
  EXPECT_NEAR(drag("   500-0"), 0.005, 1e-18);
  EXPECT_EQ(drag(" 00000-0"), 0.0);
  EXPECT_EQ(drag(" 00000+0"), 0.0);
  EXPECT_EQ(drag("        "), 0.0);
}

TEST(TwoLineElements, FirstDerivativeWithAndWithoutSign) {
  EXPECT_DOUBLE_EQ(Parse(Changed(kLine1, 34, "+.00002182"), kLine2).elements.meanMotionDot, 0.00002182);
  EXPECT_DOUBLE_EQ(Parse(Changed(kLine1, 34, " .25992681"), kLine2).elements.meanMotionDot, 0.25992681);
  EXPECT_EQ(Parse(Changed(kLine1, 34, "          "), kLine2).elements.meanMotionDot, 0.0);
}

TEST(TwoLineElements, BlanksInTheEccentricityAreZeros) {
  EXPECT_DOUBLE_EQ(Parse(kLine1, Changed(kLine2, 27, "   6703")).elements.e, 0.0006703);
  EXPECT_EQ(Parse(kLine1, Changed(kLine2, 27, "0000000")).elements.e, 0.0);
}

TEST(TwoLineElements, NumbersAbove99999HaveALetter) {
  const auto number = [](const std::string& text) {
    return Parse(Changed(kLine1, 3, text), Changed(kLine2, 3, text)).number;
  };
  EXPECT_EQ(number("A0001"), 100001);
  EXPECT_EQ(number("E8493"), 148493);
  EXPECT_EQ(number("H9999"), 179999);
  EXPECT_EQ(number("J0000"), 180000);  // I is left out
  EXPECT_EQ(number("N9999"), 229999);
  EXPECT_EQ(number("P0000"), 230000);  // and O
  EXPECT_EQ(number("Z9999"), 339999);
  EXPECT_EQ(number("    5"), 5);
  EXPECT_EQ(number("00005"), 5);
}

TEST(TwoLineElements, WhatIsNoCatalogueNumber) {
  for (const char* text : {"I0001", "O0001", "a0001", "A 001", "0A001", "     ", "12-45", "1 234"}) {
    EXPECT_EQ(ErrorOf(Changed(kLine1, 3, text), Changed(kLine2, 3, text)),
              "line 1, columns 3 to 7: is no catalogue number")
        << text;
  }
}

TEST(TwoLineElements, LinesOfTwoSatellitesAreRefused) {
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 3, "25545")),
            "line 2, columns 3 to 7: is another catalogue number than that of line 1");
}

TEST(TwoLineElements, ChecksumIsHeldAgainstTheLine) {
  std::string wrong = kLine1;
  wrong[68] = '8';
  EXPECT_EQ(ErrorOf(wrong, kLine2), "line 1, column 69: the checksum must be 7");
  wrong = kLine2;
  wrong[17] = '9';  // a 2 before: the sum grows by 7
  EXPECT_EQ(ErrorOf(kLine1, wrong), "line 2, column 69: the checksum must be 4");
  wrong = kLine2;
  wrong[68] = ' ';
  EXPECT_EQ(ErrorOf(kLine1, wrong), "line 2, column 69: the checksum must be 7");
}

TEST(TwoLineElements, LineThatIsTooShortNamesWhatIsMissing) {
  EXPECT_EQ(ErrorOf(kLine1.substr(0, 60), kLine2),
            "line 1, columns 61 to 69: missing: a line has 69 columns");
  EXPECT_EQ(ErrorOf(kLine1, kLine2.substr(0, 68)), "line 2, column 69: missing: a line has 69 columns");
  EXPECT_EQ(ErrorOf("", kLine2), "line 1, columns 1 to 69: missing: a line has 69 columns");
}

TEST(TwoLineElements, LinesInTheWrongOrderAreRefused) {
  EXPECT_EQ(ErrorOf(kLine2, kLine1), "line 1, column 1: must be the number of the line");
}

TEST(TwoLineElements, ShiftedLineIsNotReadAsAnother) {
  EXPECT_EQ(ErrorOf(kLine1, WithCheckSum("2 25544 " + kLine2.substr(7, 60) + "7")),
            "line 2, column 17: must be blank");
}

TEST(TwoLineElements, TextBehindABlankIsNotPartOfTheLine) {
  EXPECT_TRUE(Parse(kLine1 + "\r", kLine2 + " \r\n").isGood);
  EXPECT_TRUE(Parse(kLine1, kLine2 + "     0.00      4320.0        360.00").isGood);
  EXPECT_EQ(ErrorOf(kLine1 + "5", kLine2), "line 1, column 70: the line must end or go on with a blank");
}

TEST(TwoLineElements, NumbersThatAreNoneNameTheirColumns) {
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 9, " 51.64x6")), "line 2, columns 9 to 16: is no number");
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 9, "        ")), "line 2, columns 9 to 16: is no number");
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 18, "     nan")), "line 2, columns 18 to 25: is no number");
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 35, "     inf")), "line 2, columns 35 to 42: is no number");
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 53, "1.5e1      ")), "line 2, columns 53 to 63: is no number");
  EXPECT_EQ(ErrorOf(kLine1, Changed(kLine2, 27, "00.6703")), "line 2, columns 27 to 33: is no row of digits");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 54, "-11x06-4"), kLine2),
            "line 1, columns 55 to 59: is no row of digits");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 54, "-11606e4"), kLine2),
            "line 1, columns 54 to 61: is no number with a power of ten");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 45, " 00000-x"), kLine2),
            "line 1, columns 45 to 52: is no number with a power of ten");
}

TEST(TwoLineElements, DaysOutsideTheYearAreRefused) {
  EXPECT_EQ(ErrorOf(Changed(kLine1, 21, "000.99999999"), kLine2),
            "line 1, columns 21 to 32: is no day of the year");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 21, "367.00000000"), kLine2),
            "line 1, columns 21 to 32: is no day of the year");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 19, "-1"), kLine2), "line 1, columns 19 to 20: is no year");
}

TEST(TwoLineElements, FirstThingThatIsWrongIsNamed) {
  EXPECT_EQ(ErrorOf(Changed(Changed(kLine1, 21, "abc"), 54, "xxxxxxxx"), Changed(kLine2, 9, "x")),
            "line 1, columns 21 to 32: is no number");
}

TEST(TwoLineElements, SignsAreSignsAndYearsAreWhole) {
  EXPECT_EQ(ErrorOf(Changed(kLine1, 54, "x11606-4"), kLine2),
            "line 1, columns 54 to 61: is no number with a power of ten");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 54,
                            std::string("\0"
                                        "11606-4",
                                        8)),
                    kLine2),
            "line 1, columns 54 to 61: is no number with a power of ten");
  EXPECT_EQ(ErrorOf(Changed(kLine1, 54,
                            std::string(" 11606\0"
                                        "4",
                                        8)),
                    kLine2),
            "line 1, columns 54 to 61: is no number with a power of ten");
  EXPECT_TRUE(Parse(Changed(kLine1, 54, "+11606+0"), kLine2).isGood);
  EXPECT_EQ(ErrorOf(Changed(kLine1, 19, ".5"), kLine2), "line 1, columns 19 to 20: is no year");
}
