// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/numbers.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "support/comma_locale.h"

namespace {

// What was taken, and what stayed.
template <class T>
struct Taken {
  std::optional<T> value;
  std::string rest;
  bool operator==(const Taken&) const = default;
};

template <class T, class Take>
Taken<T> TakeFrom(std::string_view text, Take take) {
  T value{77};
  Taken<T> taken;
  if (take(text, value)) {
    taken.value = value;
  } else {
    EXPECT_EQ(value, T{77}) << text;
  }
  taken.rest = text;
  return taken;
}

Taken<int> Integer(std::string_view text, int least = INT_MIN, int most = INT_MAX) {
  return TakeFrom<int>(text, [=](auto& from, int& to) { return TakeNumber(from, to, least, most); });
}
Taken<double> Real(std::string_view text) {
  return TakeFrom<double>(text, [](auto& from, double& to) { return TakeNumber(from, to); });
}
Taken<float> Single(std::string_view text) {
  return TakeFrom<float>(text, [](auto& from, float& to) { return TakeNumber(from, to); });
}
Taken<unsigned> Hexadecimal(std::string_view text) { return TakeFrom<unsigned>(text, TakeHexadecimal); }
Taken<unsigned> Modulo32(std::string_view text) { return TakeFrom<unsigned>(text, TakeModulo32); }

using Int = Taken<int>;
using Double = Taken<double>;
using Float = Taken<float>;
using Unsigned = Taken<unsigned>;

TEST(TakeNumber, TakesAnIntegerAndLeavesTheRest) {
  EXPECT_EQ(Integer("12"), (Int{12, ""}));
  EXPECT_EQ(Integer("-12/7"), (Int{-12, "/7"}));
  EXPECT_EQ(Integer("+12 "), (Int{12, " "}));
  EXPECT_EQ(Integer("007x"), (Int{7, "x"}));
  EXPECT_EQ(Integer("1.5"), (Int{1, ".5"}));
  EXPECT_EQ(Integer("-0"), (Int{0, ""}));
}

TEST(TakeNumber, WhatIsNoIntegerStays) {
  for (const char* text : {"", "x", "-", "+", "+-1", "-+1", "++1", "- 1", " 1", ".5",
                           "\xC2\xA0"
                           "1"}) {
    EXPECT_EQ(Integer(text), (Int{std::nullopt, text}));
  }
}

TEST(TakeNumber, IntegersEndAtTheBounds) {
  EXPECT_EQ(Integer("2147483647"), (Int{2147483647, ""}));
  EXPECT_EQ(Integer("-2147483648"), (Int{INT_MIN, ""}));
  for (const char* text : {"2147483648", "-2147483649", "99999999999999999999999"}) {
    EXPECT_EQ(Integer(text), (Int{std::nullopt, text}));
  }
  EXPECT_EQ(Integer("5", 1, 5), (Int{5, ""}));
  EXPECT_EQ(Integer("1", 1, 5), (Int{1, ""}));
  EXPECT_EQ(Integer("0", 1, 5), (Int{std::nullopt, "0"}));
  EXPECT_EQ(Integer("6", 1, 5), (Int{std::nullopt, "6"}));
}

TEST(TakeNumber, TheTextEndsWhereItsViewDoes) {
  EXPECT_EQ(Integer(std::string_view("1234").substr(0, 2)), (Int{12, ""}));
  EXPECT_EQ(Real(std::string_view("1.25").substr(0, 3)), (Double{1.2, ""}));
  EXPECT_EQ(Integer(std::string_view("1\0002", 3)), (Int{1, std::string("\0002", 2)}));
}

TEST(TakeNumber, TakesARealNumberAndLeavesTheRest) {
  EXPECT_EQ(Real("+6.25/7"), (Double{6.25, "/7"}));
  EXPECT_EQ(Real("-.5"), (Double{-0.5, ""}));
  EXPECT_EQ(Real("5."), (Double{5.0, ""}));
  EXPECT_EQ(Real("1e3x"), (Double{1000.0, "x"}));
  EXPECT_EQ(Real("1E-3"), (Double{0.001, ""}));
  EXPECT_EQ(Real("1e"), (Double{1.0, "e"}));
  EXPECT_EQ(Real("1,5"), (Double{1.0, ",5"}));
  EXPECT_EQ(Real("0x10"), (Double{0.0, "x10"}));
  EXPECT_EQ(Real("5e-324"), (Double{5e-324, ""}));
}

TEST(TakeNumber, WhatIsNoFiniteRealNumberStays) {
  for (const char* text :
       {"", ".", "e5", "+-1", "--1", " 1", "nan", "inf", "-inf", "infinity", "1e999", "-1e999", "1e-999"}) {
    EXPECT_EQ(Real(text), (Double{std::nullopt, text}));
  }
}

// Every double comes back from its shortest exact text of 17 digits.
TEST(TakeNumber, RealNumbersAreRoundedCorrectly) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t bits = random();
    double number;
    std::memcpy(&number, &bits, sizeof number);
    if (number != number || number - number != 0.0) continue;
    char text[40];
    std::snprintf(text, sizeof text, "%.16e", number);
    const Double taken = Real(text);
    ASSERT_EQ(taken, (Double{number, ""})) << text;
  }
}

// To its own type at once. 1 + 2^-24 lies in the middle between two of them, and a little more than it rounds
// up; the double nearest to that is the middle itself, which would go down to the even one.
TEST(TakeNumber, RealNumbersOfSinglePrecisionAreRoundedOnce) {
  EXPECT_EQ(Single("1.000000059604644775390625000001"), (Float{1.0000001192092896f, ""}));
  EXPECT_EQ(Single("1.000000059604644775390625"), (Float{1.0f, ""}));
  EXPECT_EQ(Single("+16777217/7"), (Float{16777216.0f, "/7"}));
  EXPECT_EQ(Single("1e-45"), (Float{1.4012985e-45f, ""}));
  for (const char* text : {"1e39", "-1e39", "1e-60", "nan", "inf", ".", "+-1"}) {
    EXPECT_EQ(Single(text), (Float{std::nullopt, text}));
  }
}

TEST(TakeNumber, TheLocaleDoesNotMatter) {
  const test_support::CommaLocale locale;
  if (!locale.IsSet()) GTEST_SKIP() << "this system has no locale with a decimal comma";
  EXPECT_EQ(Real("1.5"), (Double{1.5, ""}));
  EXPECT_EQ(Real("1,5"), (Double{1.0, ",5"}));
}

TEST(ParseNumber, TakesTheWholeTextOrNothing) {
  EXPECT_EQ(ParseNumber<double>("-12.5e1"), -125.0);
  EXPECT_EQ(ParseNumber<float>("+0.1"), 0.1f);
  EXPECT_EQ(ParseNumber<int>("+7"), 7);
  for (const char* text : {"", "+", "1 ", " 1", "1x", "+-1", "nan", "inf", "1e999"}) {
    EXPECT_EQ(ParseNumber<double>(text), std::nullopt) << text;
  }
  EXPECT_EQ(ParseNumber<int>("1.0"), std::nullopt);
}

TEST(ParseNumber, KeepsToItsBounds) {
  EXPECT_EQ(ParseNumber("2", 2, 5), 2);
  EXPECT_EQ(ParseNumber("5", 2, 5), 5);
  EXPECT_EQ(ParseNumber("1", 2, 5), std::nullopt);
  EXPECT_EQ(ParseNumber("6", 2, 5), std::nullopt);
  EXPECT_EQ(ParseNumber("5.0000000000000009", 2.0, 5.0), std::nullopt);
}

template <class T>
void ExpectBounds(T least, T most) {
  EXPECT_EQ(ParseNumber("2", least, most), least);
  EXPECT_EQ(ParseNumber("5", least, most), most);
  EXPECT_EQ(ParseNumber("1", least, most), std::nullopt);
  EXPECT_EQ(ParseNumber("6", least, most), std::nullopt);
}

TEST(ParseNumber, KeepsToItsBoundsInEveryType) {
  ExpectBounds(2, 5);
  ExpectBounds(2.0f, 5.0f);
  ExpectBounds(2.0, 5.0);
}

TEST(TakeHexadecimal, DigitsOfEitherCase) {
  EXPECT_EQ(Hexadecimal("1aF g"), (Unsigned{0x1AFu, " g"}));
  EXPECT_EQ(Hexadecimal("FFFFFFFF"), (Unsigned{0xFFFFFFFFu, ""}));
  EXPECT_EQ(Hexadecimal("000000001"), (Unsigned{1u, ""}));
  EXPECT_EQ(Hexadecimal("0x1"), (Unsigned{0u, "x1"}));
  for (const char* text : {"", "g", "+1", "-1", " 1", "100000000"}) {
    EXPECT_EQ(Hexadecimal(text), (Unsigned{std::nullopt, text}));
  }
}

TEST(TakeModulo32, WrapsHoweverLongItIs) {
  EXPECT_EQ(Modulo32("4294967295,"), (Unsigned{0xFFFFFFFFu, ","}));
  EXPECT_EQ(Modulo32("4294967297"), (Unsigned{1u, ""}));
  EXPECT_EQ(Modulo32("-1"), (Unsigned{0xFFFFFFFFu, ""}));
  EXPECT_EQ(Modulo32("+7"), (Unsigned{7u, ""}));
  EXPECT_EQ(Modulo32("100000000000000000000000000000000000"), (Unsigned{0u, ""}));
  for (const char* text : {"", "-", "+", "+-1", "x", " 1"}) {
    EXPECT_EQ(Modulo32(text), (Unsigned{std::nullopt, text}));
  }
}

}  // namespace
