// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/messages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(FormatText, IsAsPrintf) {
  EXPECT_EQ(FormatText("%s: %d of %05.1f%%", "sky", -3, 2.25), "sky: -3 of 002.2%");
}

TEST(FormatText, LongTextIsCutAt511Bytes) {
  const std::string longText(600, 'x');
  EXPECT_EQ(FormatText("%s", longText.c_str()), longText.substr(0, 511));
  EXPECT_EQ(FormatText("%s", longText.substr(0, 511).c_str()).size(), 511u);
}

TEST(MakePrintable, TextOfPeopleStaysAsItIs) {
  const std::string text = "\u03B1 Ori\t7\n\u20AC \U0001F315 \u00A0~";
  EXPECT_EQ(MakePrintable(text), text);
  EXPECT_EQ(MakePrintable(""), "");
}

TEST(MakePrintable, ControlsAndBytesOfNoCharacterAreEscaped) {
  EXPECT_EQ(MakePrintable("a\x1B[2J\r\a\x7F"), "a\\x1B[2J\\x0D\\x07\\x7F");
  EXPECT_EQ(MakePrintable(std::string("\0b", 2)), "\\x00b");
  EXPECT_EQ(MakePrintable("\u009B\u0080\u009F"), "\\xC2\\x9B\\xC2\\x80\\xC2\\x9F");
  EXPECT_EQ(MakePrintable("\xFF\xC3(\xED\xA0\x80\xE2\x82"), "\\xFF\\xC3(\\xED\\xA0\\x80\\xE2\\x82");
}

TEST(MakeOneLine, LineFeedsAreBlanksInsideAndNothingAtTheEnd) {
  EXPECT_EQ(MakeOneLine("Conflict\nOld: a\nNew: b\n"), "Conflict Old: a New: b");
  EXPECT_EQ(MakeOneLine("\na\n\n"), " a");
  EXPECT_EQ(MakeOneLine("\n"), "");
  EXPECT_EQ(MakeOneLine(""), "");
}

TEST(JoinNames, CommasStandBetween) {
  EXPECT_EQ(JoinNames({"A", "B", "C"}), "A, B, C");
  EXPECT_EQ(JoinNames({"A"}), "A");
  EXPECT_EQ(JoinNames({}), "");
}

}  // namespace
