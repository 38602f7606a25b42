// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/year_limits.h"

#include <gtest/gtest.h>

#include "common_interfaces/dates.h"
#include "support/debug_capture.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

class YearLimits : public testing::Test {
 protected:
  std::string Message(const std::string& text) {
    return skydata_test::MessageOf(m_Dir, [&] { CheckYearLimits(m_Dir.Write("y.ini", text)); });
  }
  test_support::TempDir m_Dir;
};

TEST_F(YearLimits, AGoodFileIsHandedOnByteForByte) {
  for (const std::string text :
       {"-4712 first\r\n9999\r\nnote", "-1\n2100\n", "1900\n-1\n", "\xEF\xBB\xBF 5\n5"}) {
    EXPECT_EQ(CheckYearLimits(m_Dir.Write("y.ini", text)), text);
  }
}
TEST_F(YearLimits, BothLinesAreWanted) {
  EXPECT_EQ(Message("-4712\n"), "y.ini: wants two lines, the first and the last year");
  EXPECT_EQ(Message(""), "y.ini: wants two lines, the first and the last year");
}
TEST_F(YearLimits, ALineMustBeginWithAYear) {
  EXPECT_EQ(Message("first -4712\n9999\n"), "y.ini:1: wants a year from -32768 to 32767");
  EXPECT_EQ(Message("-4712\n\n9999\n"), "y.ini:2: wants a year from -32768 to 32767");
  EXPECT_EQ(Message("-4712\n32768\n"), "y.ini:2: wants a year from -32768 to 32767");
  EXPECT_EQ(Message("-99999999999999999999\n9\n"), "y.ini:1: wants a year from -32768 to 32767");
}
TEST_F(YearLimits, TheLastYearMustNotLieBeforeTheFirst) {
  EXPECT_EQ(Message("2100\n1900\n"), "y.ini:2: the last year lies before the first");
}
TEST_F(YearLimits, TheShippedOnesAreReadByTheLibrary) {
  const test_support::TempRoots roots;
  const test_support::DebugCapture debug;
  roots.dir.Write("data/media/time_interval.ini", CheckYearLimits(CI_DATA_SOURCE "/media/time_interval.ini"));
  CommonInterfaces::ReadLimitYears(true);
  EXPECT_EQ(CommonInterfaces::GetMinimumYear(), -4712);
  EXPECT_EQ(CommonInterfaces::GetMaximumYear(), 9999);
  EXPECT_TRUE(debug.lines.empty());
}

}  // namespace
}  // namespace skydata
