// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/record_lines.h"
#include "support/comma_locale.h"
#include "support/debug_capture.h"

namespace {

using test_support::DebugCapture;

struct Written {
  float value;
  std::string text;
};

// Both forms, from an odd address into a buffer of exactly 256 bytes.
template <class T>
Written Write(unsigned type, T value) {
  const std::unique_ptr<char[]> unaligned(new char[sizeof value + 1]), buffer(new char[256]);
  std::memcpy(unaligned.get() + 1, &value, sizeof value);
  std::strcpy(buffer.get(), "left alone");
  std::string text = "left alone";
  const float returned = MakeCorrectString(buffer.get(), type, unaligned.get() + 1);
  const float again = MakeCorrectString(text, type, unaligned.get() + 1);
  EXPECT_TRUE(returned == again || (std::isnan(returned) && std::isnan(again)));
  EXPECT_EQ(text, buffer.get());
  return {returned, buffer.get()};
}

template <class T>
void ExpectWritten(unsigned type, T value, float returned, const char* text) {
  const Written written = Write(type, value);
  EXPECT_EQ(written.value, returned) << type;
  EXPECT_EQ(written.text, text) << type;
}

TEST(MakeCorrectString, TypeZeroIsSignedEightBits) {
  ExpectWritten<std::int8_t>(0, -128, -128.0f, "-128");
  ExpectWritten<std::int8_t>(0, 127, 127.0f, "127");
}

TEST(MakeCorrectString, TypesOneAndEightAreUnsignedEightBits) {
  for (unsigned type : {1u, 8u}) {
    ExpectWritten<std::uint8_t>(type, 255, 255.0f, "255");
    ExpectWritten<std::uint8_t>(type, 0, 0.0f, "0");
  }
}

TEST(MakeCorrectString, TypeTwoIsSignedSixteenBits) {
  ExpectWritten<std::int16_t>(2, -32768, -32768.0f, "-32768");
  ExpectWritten<std::int16_t>(2, 32767, 32767.0f, "32767");
}

TEST(MakeCorrectString, TypeThreeIsSignedToo) {
  ExpectWritten<std::uint16_t>(3, 65535, -1.0f, "-1");
  ExpectWritten<std::uint16_t>(3, 32768, -32768.0f, "-32768");
}

TEST(MakeCorrectString, TypeFourIsThirtyTwoBits) {
  ExpectWritten<std::int32_t>(4, std::numeric_limits<std::int32_t>::min(), -2147483648.0f, "-2147483648");
  ExpectWritten<std::int32_t>(4, 2147483647, 2147483648.0f, "2147483647");
}

TEST(MakeCorrectString, TypeFiveIsWrittenSignedAndReturnedUnsigned) {
  ExpectWritten<std::uint32_t>(5, 4294967295u, 4294967296.0f, "-1");
  ExpectWritten<std::uint32_t>(5, 2147483648u, 2147483648.0f, "-2147483648");
  ExpectWritten<std::uint32_t>(5, 7u, 7.0f, "7");
}

TEST(MakeCorrectString, TypeSixIsAFloatWithSixDecimals) {
  ExpectWritten(6, 1.5f, 1.5f, "1.500000");
  ExpectWritten(6, -0.1f, -0.1f, "-0.100000");
  ExpectWritten(6, -0.0f, 0.0f, "-0.000000");
}

TEST(MakeCorrectString, TypeSevenIsADoubleWithSixDecimals) {
  ExpectWritten(7, 2.5, 2.5f, "2.500000");
  ExpectWritten(7, 0.0000005, 0.0000005f, "0.000000");  // the double lies below its decimal
  ExpectWritten(7, 123456789.123456789, 123456792.0f, "123456789.123457");
}

TEST(MakeCorrectString, InfinityAndNotANumber) {
  ExpectWritten(7, std::numeric_limits<double>::infinity(), std::numeric_limits<float>::infinity(), "inf");
  ExpectWritten(6, -std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(), "-inf");
  const Written written = Write(7, std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(std::isnan(written.value));
  EXPECT_EQ(written.text, "nan");
}

TEST(MakeCorrectString, WhatIsNotANumberHasNoSign) {
  EXPECT_EQ(Write(7, std::copysign(std::numeric_limits<double>::quiet_NaN(), -1.0)).text, "nan");
  EXPECT_EQ(Write(6, std::copysign(std::numeric_limits<float>::quiet_NaN(), -1.0f)).text, "nan");
}

TEST(MakeCorrectString, DoubleBeyondFloatIsReturnedInfinite) {
  const Written written = Write(7, 1e100);
  EXPECT_EQ(written.value, std::numeric_limits<float>::infinity());
  EXPECT_EQ(written.text.size(), 108u);  // 101 digits, point, six decimals
}

TEST(MakeCorrectString, LongestDoubleIsCutTo255BytesAndReported) {
  const DebugCapture debug;
  const std::unique_ptr<char[]> buffer(new char[256]);
  const double value = -std::numeric_limits<double>::max();
  MakeCorrectString(buffer.get(), 7, &value);
  EXPECT_EQ(std::strlen(buffer.get()), 255u);
  EXPECT_EQ(std::string(buffer.get(), 18), "-17976931348623157");
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "A text of 317 bytes is cut to 255\n");
}

TEST(MakeCorrectString, StringFormHoldsTheLongestDouble) {
  const DebugCapture debug;
  std::string text;
  const double value = -std::numeric_limits<double>::max();
  MakeCorrectString(text, 7, &value);
  EXPECT_EQ(text.size(), 317u);
  EXPECT_TRUE(debug.lines.empty());
}

TEST(MakeCorrectString, OtherTypesWriteNothingAndReturnZero) {
  for (unsigned type : {9u, 10u, 255u, 0x80000000u, 0xFFFFFFFFu})
    ExpectWritten(type, 1.0, 0.0f, "left alone");
}

TEST(MakeCorrectString, TextIsThatOfPrintf) {
  std::mt19937_64 random(8);
  for (int i = 0; i < 50000; ++i) {
    const unsigned long long bits = random();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    if (!(std::abs(value) < 1e200)) continue;
    char expected[256];
    std::snprintf(expected, sizeof expected, "%f", value);
    std::string text;
    MakeCorrectString(text, 7, &value);
    ASSERT_EQ(text, expected);
    const float single = static_cast<float>(std::fmod(value, 1e9));
    std::snprintf(expected, sizeof expected, "%f", static_cast<double>(single));
    MakeCorrectString(text, 6, &single);
    ASSERT_EQ(text, expected);
  }
}

TEST(MakeCorrectString, PointIsThePointInALocaleWithAComma) {
  const test_support::CommaLocale locale;
  if (!locale.IsSet())
    GTEST_SKIP() << "no locale with a decimal comma here; record_lines_locale checks the sources";
  ExpectWritten(6, 1.5f, 1.5f, "1.500000");
  ExpectWritten(7, 2.5, 2.5f, "2.500000");
}

}  // namespace
