// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/dates.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

namespace CommonInterfaces {
namespace {

using Lines = std::vector<std::string>;
using Years = std::pair<int, int>;

Years g_LimitsAtStart = {0, 0};

class AtStart : public testing::Environment {
  void SetUp() override { g_LimitsAtStart = {GetMinimumYear(), GetMaximumYear()}; }
};
const testing::Environment* const g_AtStart = testing::AddGlobalTestEnvironment(new AtStart);

// No limits, none of them current: the next question reads the file of this test.
void ForgetLimits() {
  SetMinimumYear(-1);
  SetMaximumYear(-1);
}

class DatesLimits : public testing::Test {
 protected:
  DatesLimits() { ForgetLimits(); }
  ~DatesLimits() override { ForgetLimits(); }

  void Write(const std::string& content) { roots.dir.Write("data/media/time_interval.ini", content); }
  static Years Limits() { return {GetMinimumYear(), GetMaximumYear()}; }
  // The message with the path as the resolver gives it.
  static std::string NoYear(int line) {
    return "File " + ZentharPath::GetPath("media:time_interval.ini") + " has no year in line " +
           std::to_string(line) + "\n";
  }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(DatesLimits, ThereAreNoneAtStart) { EXPECT_EQ(g_LimitsAtStart, Years(-1, -1)); }

TEST_F(DatesLimits, FirstQuestionReadsTheFile) {
  Write("-4712\n9999\n");
  EXPECT_EQ(GetMaximumYear(), 9999);
  EXPECT_EQ(GetMinimumYear(), -4712);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLimits, FileOfTheWorkAreaHidesTheOneOfTheDataRoot) {
  Write("-4712\n9999\n");
  roots.dir.Write("work/media/time_interval.ini", "1900\n2100\n");
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, FileIsReadOnce) {
  Write("1900\n2100\n");
  ASSERT_EQ(Limits(), Years(1900, 2100));
  Write("1800\n2200\n");
  ReadLimitYears(false);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, ForceReadsTheFileAgain) {
  Write("1900\n2100\n");
  ASSERT_EQ(Limits(), Years(1900, 2100));
  Write("1800\n2200\n");
  ReadLimitYears(true);
  EXPECT_EQ(Limits(), Years(1800, 2200));
}

TEST_F(DatesLimits, MissingFileLeavesNoLimitsAndIsNotReported) {
  EXPECT_EQ(Limits(), Years(-1, -1));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLimits, MissingFileCountsAsRead) {
  ASSERT_EQ(Limits(), Years(-1, -1));
  Write("1900\n2100\n");
  EXPECT_EQ(Limits(), Years(-1, -1));
  ReadLimitYears(true);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, FolderInPlaceOfTheFileCountsAsMissing) {
  std::filesystem::create_directories(roots.dir.Path("data/media/time_interval.ini"));
  EXPECT_EQ(Limits(), Years(-1, -1));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLimits, ForceWithoutAFileKeepsTheLimits) {
  SetMinimumYear(1900);
  SetMaximumYear(2100);
  ReadLimitYears(true);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, BothLimitsSetAreKept) {
  Write("-4712\n9999\n");
  SetMinimumYear(1900);
  SetMaximumYear(2100);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, OneLimitSetAloneIsReplacedByTheFile) {
  Write("-4712\n9999\n");
  SetMinimumYear(1900);
  EXPECT_EQ(Limits(), Years(-4712, 9999));
  ForgetLimits();
  SetMaximumYear(2100);
  EXPECT_EQ(Limits(), Years(-4712, 9999));
}

TEST_F(DatesLimits, OneLimitSetAloneStaysWithoutAFile) {
  SetMinimumYear(1900);
  EXPECT_EQ(Limits(), Years(1900, -1));
}

TEST_F(DatesLimits, LimitSetAfterTheFileWasReadStays) {
  Write("-4712\n9999\n");
  ASSERT_EQ(Limits(), Years(-4712, 9999));
  SetMinimumYear(1900);
  EXPECT_EQ(Limits(), Years(1900, 9999));
  SetMaximumYear(2100);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, MinimumOfMinusOneBringsBackBothValuesOfTheFile) {
  Write("-4712\n9999\n");
  SetMinimumYear(1900);
  SetMaximumYear(2100);
  SetMinimumYear(-1);
  EXPECT_EQ(Limits(), Years(-4712, 9999));
}

TEST_F(DatesLimits, MaximumOfMinusOneBringsBackBothValuesOfTheFile) {
  Write("-4712\n9999\n");
  SetMinimumYear(1900);
  SetMaximumYear(2100);
  SetMaximumYear(-1);
  EXPECT_EQ(Limits(), Years(-4712, 9999));
}

TEST_F(DatesLimits, MaximumSetWhileTheMinimumIsMinusOneIsNotCurrent) {
  Write("-4712\n9999\n");
  SetMinimumYear(-1);
  SetMaximumYear(2100);
  EXPECT_EQ(Limits(), Years(-4712, 9999));
}

TEST_F(DatesLimits, MinusOneInTheFileIsNoLimitAndCurrent) {
  Write("-1\n2100\n");
  ASSERT_EQ(Limits(), Years(-1, 2100));
  Write("1900\n2000\n");
  EXPECT_EQ(Limits(), Years(-1, 2100));
}

// There are no lines of notes, and none that ends the file.
TEST_F(DatesLimits, LineIsTheYearsWhateverItBeginsWith) {
  Write("! first and last year\n1900\n2100\n");
  EXPECT_EQ(Limits(), Years(-1, 1900));
  EXPECT_EQ(debug.lines, Lines{NoYear(1)});
  ForgetLimits();
  debug.lines.clear();
  Write("}\n1900\n");
  EXPECT_EQ(Limits(), Years(-1, 1900));
  EXPECT_EQ(debug.lines, Lines{NoYear(1)});
}

TEST_F(DatesLimits, BlanksNotesAndOtherLineEndsAreAllowed) {
  Write("\xEF\xBB\xBF  -4712 first year\r\n\t+9999! last year\r\n!\n1\n");
  EXPECT_EQ(Limits(), Years(-4712, 9999));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLimits, MinimumAfterMaximumIsTakenAsItIs) {
  Write("2100\n1900\n");
  EXPECT_EQ(Limits(), Years(2100, 1900));
}

TEST_F(DatesLimits, EmptyFileIsReportedAndKeepsTheLimits) {
  Write("");
  EXPECT_EQ(Limits(), Years(-1, -1));
  EXPECT_EQ(debug.lines, (Lines{NoYear(1), NoYear(2)}));
}

TEST_F(DatesLimits, MissingSecondLineIsReportedAndKeepsTheMaximum) {
  Write("1900\n");
  EXPECT_EQ(Limits(), Years(1900, -1));
  EXPECT_EQ(debug.lines, Lines{NoYear(2)});
}

TEST_F(DatesLimits, TextInPlaceOfTheMinimumIsReportedAndTheMaximumIsRead) {
  Write("from 1900\n2100\n");
  EXPECT_EQ(Limits(), Years(-1, 2100));
  EXPECT_EQ(debug.lines, Lines{NoYear(1)});
}

TEST_F(DatesLimits, TextInPlaceOfTheMaximumIsReported) {
  Write("1900\n! 2100\n");
  EXPECT_EQ(Limits(), Years(1900, -1));
  EXPECT_EQ(debug.lines, Lines{NoYear(2)});
}

TEST_F(DatesLimits, BlankLineIsNoYear) {
  Write("\n1900\n2100\n");
  EXPECT_EQ(Limits(), Years(-1, 1900));
  EXPECT_EQ(debug.lines, Lines{NoYear(1)});
}

TEST_F(DatesLimits, NumberThatNoYearHasIsReported) {
  for (const char* number : {"32768", "-32769", "70000", "2147483648", "99999999999999999999"}) {
    ForgetLimits();
    debug.lines.clear();
    Write(std::string("-99999999999999999999\n") + number + "\n");
    EXPECT_EQ(Limits(), Years(-1, -1)) << number;
    EXPECT_EQ(debug.lines, (Lines{NoYear(1), NoYear(2)})) << number;
  }
}

TEST_F(DatesLimits, WidestYearsAreRead) {
  Write("-32768\n32767\n");
  EXPECT_EQ(Limits(), Years(-32768, 32767));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLimits, DamagedFileThatIsForcedKeepsTheLimits) {
  SetMinimumYear(1900);
  SetMaximumYear(2100);
  Write("x\ny\n");
  ReadLimitYears(true);
  EXPECT_EQ(Limits(), Years(1900, 2100));
}

TEST_F(DatesLimits, DamagedFileIsReportedOnce) {
  Write("x\n2100\n");
  Limits();
  Limits();
  EXPECT_EQ(debug.lines.size(), 1u);
}

TEST_F(DatesLimits, AYearTooWideForTheInterfaceIsReportedOnce) {
  Write("1900\n40000\n");
  EXPECT_EQ(Limits(), Years(1900, -1));
  EXPECT_EQ(Limits(), Years(1900, -1));
  ReadLimitYears(false);
  EXPECT_EQ(debug.lines, Lines{NoYear(2)});
}

TEST_F(DatesLimits, LongLinesAndZeroBytesAreHarmless) {
  Write(std::string(100000, '1') + "\n" + std::string("2100\0\0", 6) + "\n");
  EXPECT_EQ(Limits(), Years(-1, 2100));
  EXPECT_EQ(debug.lines, Lines{NoYear(1)});
}

}  // namespace
}  // namespace CommonInterfaces
