// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/record_lines.h"
#include "support/comma_locale.h"
#include "support/record_line.h"

namespace {

using test_support::Line;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The result, the value and what is left of the line; the value is 77 where none was stored.
template <class T>
struct Taken {
  int result;
  T value;
  std::string rest;

  bool operator==(const Taken& other) const {
    return result == other.result && value == other.value && rest == other.rest;
  }
};

template <class T>
void PrintTo(const Taken<T>& taken, std::ostream* out) {
  *out << taken.result << ", " << taken.value << ", \"" << taken.rest << "\"";
}

Taken<int> Long(std::string_view text) {
  Line line(text);
  int value = 77;
  const int result = GetLong1(line.cursor, value);
  return {result, value, line.GetRest()};
}

Taken<double> Double(std::string_view text) {
  Line line(text);
  double value = 77;
  const int result = GetDouble(line.cursor, value);
  return {result, value, line.GetRest()};
}

Taken<int> Sign(std::string_view text) {
  Line line(text);
  const int sign = GetSign(line.cursor);
  return {sign, 0, line.GetRest()};
}

using L = Taken<int>;
using D = Taken<double>;

bool IsStop(int byte) { return byte == 0 || std::strchr(" \t\r\n;!", byte); }
bool IsPart(int byte) { return byte != 0 && std::strchr("0123456789.eE-", byte); }

TEST(GetSign, MinusIsTakenWithTheBlanksBehindIt) {
  EXPECT_EQ(Sign("- \t\r\n5"), (L{-1, 0, "5"}));
  EXPECT_EQ(Sign("-"), (L{-1, 0, ""}));
}

TEST(GetSign, OnlyOneMinusIsTaken) { EXPECT_EQ(Sign("--5"), (L{-1, 0, "-5"})); }

TEST(GetSign, AnythingElseIsPositiveAndStays) {
  EXPECT_EQ(Sign("5"), (L{1, 0, "5"}));
  EXPECT_EQ(Sign("+5"), (L{1, 0, "+5"}));
  EXPECT_EQ(Sign(" -5"), (L{1, 0, " -5"}));
  EXPECT_EQ(Sign(""), (L{1, 0, ""}));
}

TEST(GetLong1, TakesTheRunOfDigits) {
  EXPECT_EQ(Long("4565C 2"), (L{1, 4565, "C 2"}));
  EXPECT_EQ(Long("007"), (L{1, 7, ""}));
  EXPECT_EQ(Long("12.5"), (L{1, 12, ".5"}));
}

TEST(GetLong1, SignIsNotRead) {
  EXPECT_EQ(Long("-5"), (L{1, 0, "-5"}));
  EXPECT_EQ(Long("+5"), (L{1, 0, "+5"}));
}

TEST(GetLong1, FailsOnEveryNumberStopAndKeepsTheValue) {
  for (const char* text : {"", " 5", "\t5", "\r5", "\n5", ";5", "!5"})
    EXPECT_EQ(Long(text), (L{0, 77, text}));
}

TEST(GetLong1, FirstCharacterThatIsNeitherStopNorDigitGivesZeroAndStays) {
  EXPECT_EQ(Long("abc"), (L{1, 0, "abc"}));
  EXPECT_EQ(Long(",5"), (L{1, 0, ",5"}));
}

TEST(GetLong1, MoreThanAnIntHoldsGivesTheLargestInt) {
  EXPECT_EQ(Long("2147483646"), (L{1, 2147483646, ""}));
  EXPECT_EQ(Long("2147483647"), (L{1, 2147483647, ""}));
  EXPECT_EQ(Long("2147483648"), (L{1, 2147483647, ""}));
  EXPECT_EQ(Long("4294967296"), (L{1, 2147483647, ""}));
  EXPECT_EQ(Long("99999999999999999999999999;"), (L{1, 2147483647, ";"}));
}

TEST(GetLong1, RunOfAnyLengthIsTakenWhole) {
  for (std::size_t length : {149u, 150u, 151u, 152u, 1000u, 100000u}) {
    EXPECT_EQ(Long(std::string(length, '9') + "x"), (L{1, 2147483647, "x"})) << length;
    EXPECT_EQ(Long(std::string(length, '0') + "42;"), (L{1, 42, ";"})) << length;
  }
}

TEST(GetLong1, EveryByteAsFirstCharacter) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string(1, static_cast<char>(byte)) + "5";
    const bool isDigit = byte >= '0' && byte <= '9';
    const L expected = IsStop(byte) ? L{0, 77, text}
                       : isDigit    ? L{1, (byte - '0') * 10 + 5, ""}
                                    : L{1, 0, text};
    EXPECT_EQ(Long(text), expected) << byte;
  }
}

TEST(GetDouble, TakesARealNumber) {
  EXPECT_EQ(Double("15.9 12"), (D{1, 15.9, " 12"}));
  EXPECT_EQ(Double("-0.25;"), (D{1, -0.25, ";"}));
  EXPECT_EQ(Double("6.02e23"), (D{1, 6.02e23, ""}));
  EXPECT_EQ(Double("1E-3x"), (D{1, 0.001, "x"}));
  EXPECT_EQ(Double("12h"), (D{1, 12.0, "h"}));
  EXPECT_EQ(Double("5."), (D{1, 5.0, ""}));
  EXPECT_EQ(Double(".5"), (D{1, 0.5, ""}));
  EXPECT_EQ(Double("-.5"), (D{1, -0.5, ""}));
}

TEST(GetDouble, FailsOnEveryNumberStopAndKeepsTheValue) {
  for (const char* text : {"", " 5", "\t5", "\r5", "\n5", ";5", "!5"}) {
    EXPECT_EQ(Double(text), (D{0, 77, text}));
  }
}

TEST(GetDouble, PlusIsNotAccepted) {
  EXPECT_EQ(Double("+5"), (D{1, 0.0, "+5"}));
  EXPECT_EQ(Double("1e+5"), (D{1, 1.0, "+5"}));
}

TEST(GetDouble, FirstCharacterThatIsNoPartOfANumberGivesZeroAndStays) {
  EXPECT_EQ(Double("abc"), (D{1, 0.0, "abc"}));
  EXPECT_EQ(Double(",5"), (D{1, 0.0, ",5"}));
}

TEST(GetDouble, WordsInfAndNanAndHexadecimalAreNoNumbers) {
  EXPECT_EQ(Double("inf"), (D{1, 0.0, "inf"}));
  EXPECT_EQ(Double("nan"), (D{1, 0.0, "nan"}));
  EXPECT_EQ(Double("-inf"), (D{1, 0.0, "inf"}));
  EXPECT_EQ(Double("0x10"), (D{1, 0.0, "x10"}));
}

TEST(GetDouble, WholeRunIsTakenButOnlyItsStartCounts) {
  EXPECT_EQ(Double("1e5-3 x"), (D{1, 100000.0, " x"}));
  EXPECT_EQ(Double("1-2"), (D{1, 1.0, ""}));
  EXPECT_EQ(Double("1.2.3"), (D{1, 1.2, ""}));
  EXPECT_EQ(Double("1e2e3"), (D{1, 100.0, ""}));
  EXPECT_EQ(Double("1e2.5"), (D{1, 100.0, ""}));
  EXPECT_EQ(Double("7eE-;"), (D{1, 7.0, ";"}));
}

TEST(GetDouble, RunWithoutANumberIsZeroAndTaken) {
  for (const char* text : {"--", ".", "e", "E5", "-", "-e", "-.", "..5", ".e5", "--5", "-.e1", "e-"}) {
    EXPECT_EQ(Double(std::string(text) + ";"), (D{1, 0.0, ";"})) << text;
  }
}

TEST(GetDouble, WordThatBeginsWithEIsTakenInPart) { EXPECT_EQ(Double("east"), (D{1, 0.0, "ast"})); }

TEST(GetDouble, ExponentWithoutDigitsDoesNotCount) {
  EXPECT_EQ(Double("3e"), (D{1, 3.0, ""}));
  EXPECT_EQ(Double("3e-"), (D{1, 3.0, ""}));
  EXPECT_EQ(Double("3e--2"), (D{1, 3.0, ""}));
  EXPECT_EQ(Double("3e.2"), (D{1, 3.0, ""}));
}

TEST(GetDouble, OverflowIsInfiniteWithItsSign) {
  EXPECT_EQ(Double("1e309"), (D{1, kInfinity, ""}));
  EXPECT_EQ(Double("-1e309"), (D{1, -kInfinity, ""}));
  EXPECT_EQ(Double("1e99999999999999999999"), (D{1, kInfinity, ""}));
  EXPECT_EQ(Double("0.001e400"), (D{1, kInfinity, ""}));
  EXPECT_EQ(Double("1.7976931348623159e308"), (D{1, kInfinity, ""}));
  EXPECT_EQ(Double(std::string(400, '9')), (D{1, kInfinity, ""}));
  EXPECT_EQ(Double("1.7976931348623157e308"), (D{1, std::numeric_limits<double>::max(), ""}));
}

TEST(GetDouble, UnderflowIsZeroOrDenormalWithItsSign) {
  EXPECT_EQ(Double("1e-400"), (D{1, 0.0, ""}));
  EXPECT_FALSE(std::signbit(Double("1e-400").value));
  EXPECT_TRUE(std::signbit(Double("-1e-400").value));
  EXPECT_EQ(Double("1e-99999999999999999999"), (D{1, 0.0, ""}));
  EXPECT_EQ(Double("1000e-400"), (D{1, 0.0, ""}));
  EXPECT_EQ(Double("5e-324"), (D{1, std::numeric_limits<double>::denorm_min(), ""}));
  EXPECT_EQ(Double("2e-310"), (D{1, 2e-310, ""}));
  EXPECT_EQ(Double("0." + std::string(400, '0') + "1"), (D{1, 0.0, ""}));
}

TEST(GetDouble, ZeroStaysZeroWithAnyExponent) {
  EXPECT_EQ(Double("0e999999999999"), (D{1, 0.0, ""}));
  EXPECT_EQ(Double("0e-999999999999"), (D{1, 0.0, ""}));
  EXPECT_EQ(Double("0.000000000000000000000e400"), (D{1, 0.0, ""}));
  EXPECT_TRUE(std::signbit(Double("-0").value));
  EXPECT_TRUE(std::signbit(Double("-0.0e999").value));
}

TEST(GetDouble, RunOfAnyLengthIsTakenWholeAndConvertedRight) {
  for (std::size_t length : {149u, 150u, 151u, 152u, 1000u, 100000u}) {
    const std::string zeros(length, '0');
    EXPECT_EQ(Double(zeros + "42;"), (D{1, 42.0, ";"})) << length;
    EXPECT_EQ(Double("4.2" + zeros + ";"), (D{1, 4.2, ";"})) << length;
    EXPECT_EQ(Double("5" + std::string(length, '-') + ";"), (D{1, 5.0, ";"})) << length;
    EXPECT_EQ(Double("0." + zeros + "42e" + std::to_string(length + 1)), (D{1, 4.2, ""})) << length;
    EXPECT_EQ(Double("42" + zeros + "e-" + std::to_string(length + 1)), (D{1, 4.2, ""})) << length;
  }
}

TEST(GetDouble, SixteenAndMoreDigitsAreRoundedCorrectly) {
  // 2^53 + 1 lies between two doubles and goes to the even one; a digit far behind decides.
  EXPECT_EQ(Double("9007199254740993").value, 9007199254740992.0);
  EXPECT_EQ(Double("9007199254740993." + std::string(200, '0') + "1").value, 9007199254740994.0);
  EXPECT_EQ(Double("0.1000000000000000055511151231257827").value, 0.1);
  EXPECT_EQ(Double("1e23").value, 1e23);
}

TEST(GetDouble, DigitsThatWrapSixtyFourBitsAreNotTakenForASmallNumber) {
  EXPECT_EQ(Double("18446744073709551617").value, 18446744073709551616.0);  // 2^64 + 1
  EXPECT_EQ(Double("000018446744073709551623e-3").value, 18446744073709552.0);
}

TEST(GetDouble, ProductWithAPowerOfTenIsRoundedOnce) {
  // In registers of 80 bits the product is rounded twice, and wrong.
  EXPECT_EQ(Double("82098987075e13").value, 82098987075e13);
  EXPECT_EQ(Double("0000901992162e22").value, 901992162e22);
  EXPECT_EQ(Double("00000000000000087144378352187e12").value, 87144378352187e12);
}

TEST(GetDouble, EveryByteAsFirstCharacter) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string(1, static_cast<char>(byte)) + "5x";
    D expected = {1, 0.0, text};
    if (IsStop(byte)) expected = {0, 77, text};
    if (IsPart(byte)) expected.rest = "x";
    if (byte >= '0' && byte <= '9') expected.value = (byte - '0') * 10 + 5;
    if (byte == '.') expected.value = 0.5;
    if (byte == '-') expected.value = -5.0;
    EXPECT_EQ(Double(text), expected) << byte;
  }
}

// The C library in its "C" locale is the measure: atof of the run.
TEST(GetDouble, RandomRunsGiveWhatTheCLibraryGives) {
  ASSERT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  std::mt19937 random(5);
  const char parts[] = "0123456789012345678901234567890123456789..eE-";
  for (int i = 0; i < 200000; ++i) {
    std::string run;
    for (auto length = 1 + random() % (i % 10 == 0 ? 160 : 24); length != 0; --length) {
      run += parts[random() % (sizeof parts - 1)];
    }
    const D taken = Double(run);
    const double expected = std::atof(run.c_str());
    ASSERT_EQ(taken, (D{1, expected, ""})) << run;
    ASSERT_EQ(std::signbit(taken.value), std::signbit(expected)) << run;
  }
}

TEST(GetDouble, EveryDoubleIsReadBackFromItsShortestText) {
  std::mt19937_64 random(6);
  for (int i = 0; i < 200000; ++i) {
    const unsigned long long bits = random();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general).ptr;
    std::string shortest(text, end);
    // The reader knows no "+".
    if (const auto plus = shortest.find('+'); plus != std::string::npos) shortest.erase(plus, 1);
    ASSERT_EQ(Double(shortest), (D{1, value, ""})) << shortest;
  }
}

TEST(GetDouble, PointIsThePointInALocaleWithAComma) {
  const test_support::CommaLocale locale;
  if (!locale.IsSet())
    GTEST_SKIP() << "no locale with a decimal comma here; record_lines_locale checks the sources";
  EXPECT_EQ(Double("15.9 x"), (D{1, 15.9, " x"}));
  EXPECT_EQ(Double("1,5"), (D{1, 1.0, ",5"}));
  EXPECT_EQ(Double("0.1000000000000000055511151231257827").value, 0.1);
  EXPECT_EQ(Double("1e309").value, kInfinity);
  EXPECT_EQ(Double("2.5e-310").value, 2.5e-310);
}

// docs/formats/record_lines.md
TEST(RecordLines, WorkedExampleOfTheFormatPage) {
  Line line(
      "4565C 15.9 12h36m20.8s 25\xB0"
      "59'16\" 135.5 2 0.15\r");
  int number = 0, flags = 0;
  double size = 0, ra = 0, dec = 0, rotation = 0, ratio = 0;
  const auto at = [&] { return line.cursor - line.GetText(); };
  EXPECT_TRUE(GetLong1(line.cursor, number) && at() == 4 && number == 4565);
  EXPECT_EQ(*line.cursor++, 'C');
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, size) && at() == 10 && size == 15.9);
  EXPECT_TRUE(GetRaOrDec(line.cursor, ra) && at() == 22);
  EXPECT_DOUBLE_EQ(ra, (12 + 36 / 60.0 + 20.8 / 3600) * 15);
  EXPECT_TRUE(GetRaOrDec(line.cursor, dec) && at() == 32);
  EXPECT_DOUBLE_EQ(dec, 25 + 59 / 60.0 + 16 / 3600.0);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, rotation) && at() == 38 &&
              rotation == 135.5);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetLong1(line.cursor, flags) && at() == 40 && flags == 2);
  EXPECT_TRUE(RemoveLeading(line.cursor) && GetDouble(line.cursor, ratio) && at() == 45 && ratio == 0.15);
  EXPECT_FALSE(RemoveLeading(line.cursor));
  EXPECT_EQ(at(), 46);
}

int GetMonthLength(int year, int month) {
  if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// Every civil day as catalogs write it: signed year, month, day, and its number with a fraction.
TEST(RecordLines, EveryDayOfFifteenThousandYearsIsReadBack) {
  double number = -32268.5;  // any number will do; it grows by one
  char text[64];
  for (int year = -4800; year <= 9999; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= GetMonthLength(year, month); ++day, number += 1.0) {
        char* end = std::to_chars(text, text + sizeof text, year).ptr;
        *end++ = ';';
        end = std::to_chars(end, text + sizeof text, month).ptr;
        *end++ = ' ';
        end = std::to_chars(end, text + sizeof text, day).ptr;
        *end++ = '\t';
        end = std::to_chars(end, text + sizeof text, number, std::chars_format::fixed, 2).ptr;
        *end = '\0';
        char* cursor = text;
        int y = 0, m = 0, d = 0;
        double n = 0.0;
        const int sign = GetSign(cursor);
        ASSERT_TRUE(GetLong1(cursor, y) && RemoveTrail(cursor) && GetLong1(cursor, m) &&
                    RemoveTrail(cursor) && GetLong1(cursor, d) && RemoveTrail(cursor) && GetDouble(cursor, n))
            << text;
        ASSERT_TRUE(sign * y == year && m == month && d == day && n == number && cursor == end) << text;
      }
    }
  }
}

}  // namespace
