// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/format_render.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/comma_locale.h"

namespace {

using CommonInterfaces::RenderFormat;

// The C library is the oracle: tests run in its "C" locale. By way of a pointer, because the formats are made
// up here.
using Printer = int (*)(char*, std::size_t, const char*, ...);
const Printer kPrint = std::snprintf;

template <class Value>
std::string Printed(const std::string& format, Value value) {
  std::vector<char> text(4096);
  kPrint(text.data(), text.size(), format.c_str(), value);
  return text.data();
}

// Every mixture of flags with these widths and precisions.
std::vector<std::string> MakeSpecifications() {
  std::vector<std::string> made;
  for (int flags = 0; flags < 32; ++flags) {
    std::string start = "%";
    for (int bit = 0; bit < 5; ++bit) {
      if (flags >> bit & 1) start += "-+ #0"[bit];
    }
    for (const char* width : {"", "1", "7", "30"}) {
      for (const char* precision : {"", ".", ".0", ".1", ".2", ".9", ".20"})
        made.push_back(start + width + precision);
    }
  }
  return made;
}

TEST(FormatRender, IntsAreWrittenAsTheCLibraryWritesThem) {
  for (const std::string& specification : MakeSpecifications()) {
    for (const char letter : std::string("diuxXo")) {
      for (const int value : {0, 1, -1, 7, 42, -305, INT_MAX, INT_MIN}) {
        // Where MinGW's library goes its own way: %#.0o of 0, and a blank before what has no sign.
        if (letter == 'o' && value == 0) continue;
        if (std::strchr("uxXo", letter) && specification.find(' ') != std::string::npos) continue;
        const std::string format = "<" + specification + letter + ">";
        ASSERT_EQ(RenderFormat(format.c_str(), {value}), Printed(format, value)) << format << ' ' << value;
      }
    }
  }
}

// The C library gets the value in the type that the length names: a long has 64 bits on some hosts.
TEST(FormatRender, AnIntWithALengthIsConvertedAsCDoes) {
  for (const int value :
       {0, 1, -1, 127, 128, 255, 256, -129, 32767, 32768, 65535, 65536, -32769, INT_MAX, INT_MIN}) {
    for (const char* format : {"%hhd", "%hhu", "%hd", "%hu", "%hx", "%hho", "%#hhX", "%+6hhi", "%-8.4hd|"})
      EXPECT_EQ(RenderFormat(format, {value}), Printed(format, value)) << format << ' ' << value;
    EXPECT_EQ(RenderFormat("%ld", {value}), Printed("%d", value));
    EXPECT_EQ(RenderFormat("%lu", {value}), Printed("%u", value));
    EXPECT_EQ(RenderFormat("%#lx", {value}), Printed("%#x", value));
  }
}

// C17 7.21.6.1: the flag speaks of signed conversions only.
TEST(FormatRender, BlankStandsBeforeSignedNumbersOnly) {
  EXPECT_EQ(RenderFormat("[% d|% i|% u|% x|% X|% o]", {1, 1, 1, 1, 1, 1}), "[ 1| 1|1|1|1|1]");
}

// C17 7.21.6.1: "if the value and precision are both 0, a single 0 is printed".
TEST(FormatRender, OctalZeros) {
  EXPECT_EQ(RenderFormat("%o|%#o|%.0o|%#.0o|%#.3o|%3o", {0, 0, 0, 0, 0, 0}), "0|0||0|000|  0");
}

TEST(FormatRender, DoublesAreWrittenAsTheCLibraryWritesThem) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const std::string& specification : MakeSpecifications()) {
    for (const std::string letter : {"f", "F", "e", "E", "g", "G", "lf", "le", "lG"}) {
      for (const double value :
           {0.0, -0.0, 1.0, 0.5, 2.5, -3.14159265358979, 59.995, 9.9999999, 99999.95, 0.0001, 0.00001234,
            123456789.0, 1e22, -1e100, DBL_MAX, DBL_MIN, 5e-324, infinity, -infinity}) {
        const std::string format = "<" + specification + letter + ">";
        ASSERT_EQ(RenderFormat(format.c_str(), {value}), Printed(format, value)) << format << ' ' << value;
      }
    }
  }
}

TEST(FormatRender, TextsAreWrittenAsTheCLibraryWritesThem) {
  for (const char* specification : {"%s", "%5s", "%-5s", "%.2s", "%.s", "%.0s", "%8.3s", "%-8.3s", "%2s"}) {
    for (const char* value : {"", "a", "abcdef", "\xC2\xB0"}) {
      ASSERT_EQ(RenderFormat(specification, {value}), Printed(specification, value)) << specification;
    }
  }
}

TEST(FormatRender, FlagsWithoutAMeaningForTextsAreLeftOut) {
  EXPECT_EQ(RenderFormat("[%05s|%+s|%# s]", {"ab", "cd", "ef"}), "[   ab|cd|ef]");
}

TEST(FormatRender, Characters) {
  EXPECT_EQ(RenderFormat("%c|%3c|%-3c|%.0c", {'N', 'E', 'W', 'S'}), "N|  E|W  |S");
  EXPECT_EQ(RenderFormat("%c", {'\xD1'}), "\xD1");
  EXPECT_EQ(RenderFormat("<%c>", {'\0'}), "<>");
}

// Worked out by hand: 1.5 = 1.8 / 16, 0.1 = 1.999999999999a / 2^4.
TEST(FormatRender, HexadecimalDoubles) {
  EXPECT_EQ(RenderFormat("%a|%A|%.1a|%12a|%012a", {1.5, -1.5, 1.5, 1.5, 1.5}),
            "0x1.8p+0|-0X1.8P+0|0x1.8p+0|    0x1.8p+0|0x00001.8p+0");
  EXPECT_EQ(RenderFormat("%a|%#a|%+a", {1.0, 1.0, 0.1}), "0x1p+0|0x1.p+0|+0x1.999999999999ap-4");
}

TEST(FormatRender, WhatIsNoNumberHasNoSign) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(RenderFormat("%f|%G|%06.1f|%+e", {nan, -nan, nan, nan}), "nan|NAN|   nan|+nan");
}

TEST(FormatRender, LongestNumberIsWhole) {
  const std::string text = RenderFormat("%999.999f", {-DBL_MAX});
  EXPECT_EQ(text.size(), 1u + 309u + 1u + 999u);
  EXPECT_EQ(text.substr(0, 9), "-17976931");
  EXPECT_EQ(RenderFormat("%999d", {1}).size(), 999u);
}

TEST(FormatRender, PercentSignsAndPlainTextStay) {
  EXPECT_EQ(RenderFormat("", {}), "");
  EXPECT_EQ(RenderFormat("100%% of %d%%", {7}), "100% of 7%");
  EXPECT_EQ(RenderFormat("\xB0\xFF\n", {}), "\xB0\xFF\n");
}

TEST(FormatRender, ArgumentsAtTheEndMayBeLeftOut) {
  EXPECT_EQ(RenderFormat("%d", {1, 2, 3}), "1");
  EXPECT_EQ(RenderFormat("none", {1.0, "x"}), "none");
}

TEST(FormatRender, WhatDoesNotFitGivesTheEmptyText) {
  EXPECT_EQ(RenderFormat("a %d b %d", {1}), "");
  EXPECT_EQ(RenderFormat("a %s", {1}), "");
  EXPECT_EQ(RenderFormat("a %n", {1}), "");
  EXPECT_EQ(RenderFormat("a %", {1}), "");
}

TEST(FormatRender, NullTextIsEmpty) {
  EXPECT_EQ(RenderFormat("<%s>", {static_cast<const char*>(nullptr)}), "<>");
}

// A host may have set the user's locale for its own purposes.
TEST(FormatRender, DecimalMarkDoesNotFollowTheLocale) {
  const test_support::CommaLocale locale;
  if (!locale.IsSet()) GTEST_SKIP() << "no locale with a decimal comma on this system";
  ASSERT_EQ(Printed("%.1f", 0.5), "0,5");
  EXPECT_EQ(RenderFormat("%.2f %g %#g %e", {1234.5, 0.5, 2.0, 2.5}), "1234.50 0.5 2.00000 2.500000e+00");
}

}  // namespace
