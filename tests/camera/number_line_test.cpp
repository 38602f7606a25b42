// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/number_line.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

using CommonInterfaces::FormatFixed;
using CommonInterfaces::FormatGeneral;
using CommonInterfaces::NumberLine;

TEST(NumberLineTest, TakesNumbersFromTheLeft) {
  NumberLine line(" 3 -4\t+5 1.5e2 -.25");
  int a = 0, b = 0, c = 0;
  double d = 0, e = 0;
  EXPECT_TRUE(line.Read(a) && line.Read(b) && line.Read(c) && line.Read(d) && line.Read(e));
  EXPECT_EQ(a, 3);
  EXPECT_EQ(b, -4);
  EXPECT_EQ(c, 5);
  EXPECT_EQ(d, 150.0);
  EXPECT_EQ(e, -0.25);
  EXPECT_FALSE(line.Read(a));
  EXPECT_EQ(a, 3);
}

TEST(NumberLineTest, WhatIsNoNumberIsRefused) {
  for (const char* text : {"", " ", "x", "1x", "+-1", "- 1", "2147483648", "1.5", "0x10", "1,5"}) {
    int value = 7;
    EXPECT_FALSE(NumberLine(text).Read(value)) << text;
    EXPECT_EQ(value, 7) << text;
  }
  for (const char* text : {"", "x", "1,5", "1e400", "nan", "inf", "-inf", "1.5.5"}) {
    double value = 7;
    EXPECT_FALSE(NumberLine(text).Read(value)) << text;
    EXPECT_EQ(value, 7) << text;
  }
}

TEST(NumberLineTest, GeneralHasSixDigits) {
  EXPECT_EQ(FormatGeneral(0.0), "0");
  EXPECT_EQ(FormatGeneral(0.65), "0.65");
  EXPECT_EQ(FormatGeneral(149597870.7), "1.49598e+08");
  EXPECT_EQ(FormatGeneral(-0.872664626), "-0.872665");
  EXPECT_EQ(FormatGeneral(1e-7), "1e-07");
}

TEST(NumberLineTest, FixedHasEightDecimalsAndBlanksInFront) {
  EXPECT_EQ(FormatFixed(1.5, 14), "    1.50000000");
  EXPECT_EQ(FormatFixed(-0.123456789, 14), "   -0.12345679");
  EXPECT_EQ(FormatFixed(1e10, 14), "10000000000.00000000");
  EXPECT_EQ(FormatFixed(1e308, 18).size(), 318u);
}

TEST(NumberLineTest, WhatIsNotFiniteIsWrittenAsZero) {
  using Limits = std::numeric_limits<double>;
  for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
    EXPECT_EQ(FormatGeneral(value), "0");
    EXPECT_EQ(FormatFixed(value, 14), "    0.00000000");
  }
}

}  // namespace
