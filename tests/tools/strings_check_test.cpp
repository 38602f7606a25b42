// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/strings_check.h"

#include <gtest/gtest.h>

#include "tests/tools/source_text.h"

namespace skydata {
namespace {

class StringsCheck : public testing::Test {
 protected:
  std::string Message(const std::string& text) {
    return tools_test::MessageOf(m_Dir, [&] { CheckStrings(m_Dir.Write("s.txt", text)); });
  }
  test_support::TempDir m_Dir;
};

TEST_F(StringsCheck, AGoodTableIsHandedOnByteForByte) {
  const std::string text = "\xEF\xBB\xBF comment\r\n\r\n7200\tLocal time\tnote\r\n\tstar\t\tStar\n";
  EXPECT_EQ(CheckStrings(m_Dir.Write("s.txt", text)), text);
}
TEST_F(StringsCheck, AnIdentifierStandsOnce) {
  EXPECT_EQ(Message("7200\ta\n\n07200\tb\n"), "s.txt:3: its identifier stands in line 1 already");
}
TEST_F(StringsCheck, ACodeAndItsNumberAreOneIdentifier) {
  EXPECT_EQ(Message("star\ta\n1937006962\tb\n"), "s.txt:2: its identifier stands in line 1 already");
}
TEST_F(StringsCheck, ATabWithoutAnEntryIsRefused) {
  const std::string wants = ": has a tab but is no entry: wants identifier, tab, text";
  EXPECT_EQ(Message("abc\ttext\n"), "s.txt:1" + wants);
  EXPECT_EQ(Message("\n\ttext\n"), "s.txt:2" + wants);
}
TEST_F(StringsCheck, ALineLongerThanTheLibraryReadsIsRefused) {
  EXPECT_EQ(Message("1\t" + std::string(4093, 'x') + "\n"), "");
  EXPECT_EQ(Message("1\t" + std::string(4094, 'x') + "\n"), "s.txt:1: is longer than 4095 bytes");
}

}  // namespace
}  // namespace skydata
