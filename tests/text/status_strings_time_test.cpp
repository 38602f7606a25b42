// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/status_strings_fixture.h"

namespace {

using namespace CommonInterfaces;
using namespace test_support;

constexpr char kTable[] =
    "7200\tLocal\n7201\tUniversal\n7202\tHidden\n7203\tAD\n7204\tBC\n7207\tNo date\n7228\tDST\n";

class StatusTime : public StatusTextTest {
 protected:
  StatusTime() { Load(kTable); }
  void SetZone(const char* zone) {
    camera.SetTimeZoneName(zone, true);
    camera.UpdateLocUTCDeltaFromTimeZone();
  }
  void SetDaylightSaving(bool isOn, double first, double last) {
    DaylightSavingsData rule;
    rule.IsDST = isOn;
    rule.FirstDay = first;
    rule.LastDay = last;
    camera.SetDST(&rule);
  }
};

TEST_F(StatusTime, UniversalTimeBeginsWithABlankAndHasNoOffset) {
  SetZone("Etc/GMT-3");
  SetTime({2024, 3, 5, 7, 5, 0.0}, kUniversalTime);
  EXPECT_EQ(Time(), " 07:05|Universal");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusTime, LocalTimeHasTheCamerasOffset) {
  SetTime({2024, 3, 5, 7, 5, 0.0}, kLocalTime);
  EXPECT_EQ(Time(), " 07:05|Local");
  SetZone("Etc/GMT-3");  // three hours east
  EXPECT_EQ(Time(), " 10:05|Local");
}

TEST_F(StatusTime, LocalTimeCrossesMidnightBothWays) {
  SetTime({2024, 2, 29, 22, 30, 0.0}, kLocalTime);
  SetZone("Etc/GMT-3");
  EXPECT_EQ(Time() + Date(), " 01:30|Local01/03/2024 AD|Local");
  SetTime({2024, 1, 1, 1, 30, 0.0}, kLocalTime);
  SetZone("Etc/GMT+3");
  EXPECT_EQ(Time() + Date(), " 22:30|Local31/12/2023 AD|Local");
}

TEST_F(StatusTime, MidnightAndTheLastMinuteOfTheDay) {
  SetTime({2024, 3, 5, 0, 0, 0.0}, kUniversalTime);
  EXPECT_EQ(Time() + Date(), " 00:00|Universal05/03/2024 AD|Universal");
  SetTime({2024, 3, 5, 23, 59, 0.0}, kUniversalTime);
  EXPECT_EQ(Time() + Date(), " 23:59|Universal05/03/2024 AD|Universal");
}

TEST_F(StatusTime, MinutesAreFullOnes) {
  SetTime({2024, 3, 5, 7, 5, 59.99}, kUniversalTime);
  EXPECT_EQ(Time(), " 07:05|Universal");
}

TEST_F(StatusTime, NeitherSixtyMinutesNorTwentyFourHoursAppear) {
  for (int minute = 0; minute < 24 * 60; ++minute) {
    // A rounding error short of the full minute counts as the minute.
    camera.SetUniversalTime({2460375, minute / 1440.0 - 0.5 - 1e-13, kUniversalTime});
    char wanted[16];
    std::snprintf(wanted, sizeof wanted, " %02d:%02d", minute / 60, minute % 60);
    ASSERT_EQ(GetTimeString(&camera), wanted);
  }
}

TEST_F(StatusTime, ARoundingErrorShortOfMidnightIsTheNextDayInTimeAndDate) {
  SetTime({2024, 12, 31, 23, 59, 59.99999}, kUniversalTime);
  EXPECT_EQ(Time() + Date(), " 00:00|Universal01/01/2025 AD|Universal");
}

TEST_F(StatusTime, ThirdKindHasACaptionAndNoClock) {
  SetTime({2024, 3, 5, 7, 5, 0.0}, kThirdTime);
  EXPECT_EQ(Time(), "|Hidden");
  EXPECT_EQ(Date(), "No date|Hidden");
}

TEST_F(StatusTime, AnUnknownKindHasNeitherTextNorCaption) {
  for (const int kind : {-1, 3, 1000, -2147483647}) {
    SetTime({2024, 3, 5, 7, 5, 0.0}, kind);
    EXPECT_EQ(Time() + Date(), "||") << kind;
  }
}

// 2024-03-05 is the Julian day 2460375.
TEST_F(StatusTime, DaylightSavingMarkFromTheFirstToTheLastDayInclusive) {
  SetTime({2024, 3, 5, 12, 0, 0.0}, kLocalTime);
  const std::pair<double, double> without[] = {{2460376, 2460400}, {2460300, 2460374}};
  for (const auto& [first, last] : without) {
    SetDaylightSaving(true, first, last);
    EXPECT_EQ(Time(), " 12:00|Local") << first;
  }
  const std::pair<double, double> with[] = {{2460375, 2460400}, {2460300, 2460375}, {2460375, 2460375}};
  for (const auto& [first, last] : with) {
    SetDaylightSaving(true, first, last);
    EXPECT_EQ(Time(), " 12:00 DST|Local") << first;
  }
}

TEST_F(StatusTime, DaylightSavingDayIsTheCivilDayAfterTheLocalOffset) {
  SetDaylightSaving(true, 2460376, 2460376);  // 6 March
  SetTime({2024, 3, 5, 22, 30, 0.0}, kLocalTime);
  EXPECT_EQ(Time(), " 22:30|Local");
  SetZone("Etc/GMT-3");
  EXPECT_EQ(Time(), " 01:30 DST|Local");
  // The civil day begins at midnight, not at noon.
  SetDaylightSaving(true, 2460375, 2460375);
  SetZone("");
  SetTime({2024, 3, 5, 0, 0, 0.0}, kLocalTime);
  EXPECT_EQ(Time(), " 00:00 DST|Local");
}

TEST_F(StatusTime, NoMarkWhileTheRuleIsOffOrHasNoDays) {
  SetTime({2024, 3, 5, 12, 0, 0.0}, kLocalTime);
  SetDaylightSaving(false, 2460000, 2461000);
  EXPECT_EQ(Time(), " 12:00|Local");
  for (const auto& [first, last] :
       {std::pair{-1.0, -1.0}, std::pair{-1.0, 2461000.0}, std::pair{2460000.0, -1.0}}) {
    SetDaylightSaving(true, first, last);
    EXPECT_EQ(Time(), " 12:00|Local") << first << ' ' << last;
  }
  // Nor on the day that "none" is written as.
  SetDaylightSaving(true, -1.0, -1.0);
  camera.SetUniversalTime({-1, 0.0, kLocalTime});
  EXPECT_EQ(Time(), " 12:00|Local");
}

TEST_F(StatusTime, NoMarkInUniversalTime) {
  SetTime({2024, 3, 5, 12, 0, 0.0}, kUniversalTime);
  SetDaylightSaving(true, 2460000, 2461000);
  EXPECT_EQ(Time(), " 12:00|Universal");
}

TEST_F(StatusTime, AMissingMarkIsLeftOutQuietly) {
  Load("7200\tLocal\n");
  SetTime({2024, 3, 5, 12, 0, 0.0}, kLocalTime);
  SetDaylightSaving(true, 2460000, 2461000);
  EXPECT_EQ(Time(), " 12:00|Local");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(StatusTime, AMissingCaptionIsEmptyAndReported) {
  Load("7200\tLocal\n");
  SetTime({2024, 3, 5, 12, 0, 0.0}, kUniversalTime);
  std::string caption = "before";
  EXPECT_EQ(GetTimeString(&camera, caption), " 12:00");
  EXPECT_EQ(caption, "");
  EXPECT_EQ(debug.lines, Lines{"String with ID = 7201 not found in file qxstrings.txt\n"});
}

TEST_F(StatusTime, PercentSignsInACaptionStandForThemselves) {
  Load("7201\t100%s%n\n7203\t%d\n");
  SetTime({2024, 3, 5, 7, 5, 0.0}, kUniversalTime);
  EXPECT_EQ(Time(), " 07:05|100%s%n");
  EXPECT_EQ(Date(), "05/03/2024 %d|100%s%n");
}

TEST_F(StatusTime, DateWithItsEra) {
  SetTime({987, 6, 5, 7, 5, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "05/06/0987 AD|Universal");
  SetTime({12024, 12, 31, 7, 5, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "31/12/12024 AD|Universal");
}

TEST_F(StatusTime, YearMinus44ShowsItsMagnitude) {
  SetTime({-44, 3, 15, 12, 0, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "15/03/0044 BC|Universal");
}

TEST_F(StatusTime, YearsAroundZeroAreDeliberatelyNotShifted) {
  SetTime({-1, 3, 15, 12, 0, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "15/03/0001 BC|Universal");
  SetTime({0, 3, 15, 12, 0, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "15/03/0000 AD|Universal");
  SetTime({1, 3, 15, 12, 0, 0.0}, kUniversalTime);
  EXPECT_EQ(Date(), "15/03/0001 AD|Universal");
}

TEST_F(StatusTime, AMissingEraLeavesTheBlankBeforeIt) {
  Load("7201\tUniversal\n");
  SetTime({2024, 3, 5, 7, 5, 0.0}, kUniversalTime);
  EXPECT_EQ(GetDateString(&camera), "05/03/2024 ");
}

TEST_F(StatusTime, DateOfTheThirdKindIsAFormatWithoutArguments) {
  Load("7202\tHidden\n7207\t100%% hidden\n");
  SetTime({2024, 3, 5, 7, 5, 0.0}, kThirdTime);
  EXPECT_EQ(Date(), "100% hidden|Hidden");
  Load("7202\tHidden\n7207\thidden %d\n");
  EXPECT_EQ(GetDateString(&camera), "");
  EXPECT_EQ(debug.lines,
            Lines{"String with ID = 7207 does not fit its use: conversion 1, %d, has no argument\n"});
}

TEST_F(StatusTime, AnyMomentGivesAText) {
  for (const int day : {-2147483647 - 1, -1, 0, 2147483647}) {
    for (const double fraction : {-1e300, 0.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
      camera.SetUniversalTime({day, fraction, kLocalTime});
      EXPECT_EQ(GetTimeString(&camera).size(), 6u) << day << ' ' << fraction;
      EXPECT_GE(GetDateString(&camera).size(), 13u) << day << ' ' << fraction;
    }
  }
}

TEST_F(StatusTime, WithoutATextBufferTheCaptionStaysUntouchedToo) {
  GuardedText caption;
  GetTimeString(&camera, nullptr, caption.Get());
  GetDateString(&camera, nullptr, caption.Get());
  EXPECT_TRUE(caption.IsUntouched());
}

TEST_F(StatusTime, TheCaptionBufferMayBeLeftOut) {
  SetTime({2024, 3, 5, 7, 5, 0.0}, kUniversalTime);
  GuardedText text;
  GetTimeString(&camera, text.Get(), nullptr);
  EXPECT_EQ(text.Read(), " 07:05");
  GetDateString(&camera, text.Get(), nullptr);
  EXPECT_EQ(text.Read(), "05/03/2024 AD");
}

TEST_F(StatusTime, NoCameraGivesEmptyTexts) {
  GuardedText text, caption;
  GetTimeString(nullptr, text.Get(), caption.Get());
  EXPECT_EQ(text.Read() + caption.Read(), "");
  std::string captionText = "before";
  EXPECT_EQ(GetDateString(nullptr, captionText), "");
  EXPECT_EQ(captionText, "");
}

}  // namespace
