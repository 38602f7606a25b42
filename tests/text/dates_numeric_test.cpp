// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "text/dates_fixture.h"

namespace CommonInterfaces {
namespace {

using test_support::Lines;

constexpr short kDate[] = {5, 3, 2024};
// Julian date of 2024-03-05, 00:00: 8830 days after 2000-01-01, 00:00 (2451544.5).
constexpr double kMarchFifth = 2451544.5 + 24 * 365 + 6 + 31 + 29 + 4;

int g_FormatAtStart = -1;

class AtStart : public testing::Environment {
  void SetUp() override { g_FormatAtStart = GetDateFormat(); }
};
const testing::Environment* const g_AtStart = testing::AddGlobalTestEnvironment(new AtStart);

class DatesNumeric : public test_support::DatesTest {};

int FormatOf(const char* pattern) {
  SetDateFormat(pattern);
  return GetDateFormat();
}

TEST_F(DatesNumeric, FormatAtStartHasTheYearFirst) { EXPECT_EQ(g_FormatAtStart, 2); }

TEST_F(DatesNumeric, DayBeforeMonthBeforeYearIsFormat1) {
  for (const char* pattern : {"dd/mm/yyyy", "dd.mm.yyyy", "dd-mm-yyyy", "d-m-yyyy", "dmy"}) {
    EXPECT_EQ(FormatOf(pattern), 1) << pattern;
  }
}

TEST_F(DatesNumeric, MonthBeforeDayBeforeYearIsFormat0) {
  for (const char* pattern : {"m/d/yyyy", "mm/dd/yyyy", "mdy"}) EXPECT_EQ(FormatOf(pattern), 0) << pattern;
}

TEST_F(DatesNumeric, YearNotBehindBothOthersIsFormat2) {
  for (const char* pattern : {"yyyy/mm/dd", "yyyy/m/d", "yyyy/dd/mm", "dd/yyyy/mm", "mm/yyyy/dd"}) {
    SetDateFormat("dd/mm/yyyy");
    EXPECT_EQ(FormatOf(pattern), 2) << pattern;
  }
}

TEST_F(DatesNumeric, OnlyTheFirstOfEachLetterCounts) {
  EXPECT_EQ(FormatOf("day month year"), 2);  // the y of "day" stands before the m
  EXPECT_EQ(FormatOf("dd/mm/yyyy mm dd"), 1);
  EXPECT_EQ(FormatOf("mdydm"), 0);
}

TEST_F(DatesNumeric, MissingLettersStandBeforeAllOthers) {
  EXPECT_EQ(FormatOf("mm/yyyy"), 1);
  EXPECT_EQ(FormatOf("dd/yyyy"), 0);
  EXPECT_EQ(FormatOf("yyyy"), 0);  // both missing: the day is not before the month
  for (const char* pattern : {"dd/mm", "d", "m", ""}) EXPECT_EQ(FormatOf(pattern), 2) << pattern;
}

TEST_F(DatesNumeric, CapitalLettersAreNoLettersOfAPattern) { EXPECT_EQ(FormatOf("DD/MM/YYYY"), 2); }

TEST_F(DatesNumeric, NullPatternCountsAsEmpty) {
  SetDateFormat("dd/mm/yyyy");
  EXPECT_EQ(FormatOf(nullptr), 2);
}

TEST_F(DatesNumeric, ShortDateFollowsTheFormat) {
  char text[256];
  SetDateFormat("m/d/yyyy");
  EXPECT_TRUE(GetDateString(text, kDate));
  EXPECT_STREQ(text, "03/05/2024");
  SetDateFormat("dd/mm/yyyy");
  EXPECT_TRUE(GetDateString(text, kDate));
  EXPECT_STREQ(text, "05/03/2024");
  SetDateFormat("yyyy/mm/dd");
  EXPECT_TRUE(GetDateString(text, kDate));
  EXPECT_STREQ(text, "2024/03/05");
  EXPECT_EQ(GetDateString(kDate), "2024/03/05");
}

TEST_F(DatesNumeric, DayAndMonthFollowTheFormat) {
  char text[256];
  SetDateFormat("m/d/yyyy");
  EXPECT_TRUE(GetDayMonthString(text, kDate));
  EXPECT_STREQ(text, "03/05");
  SetDateFormat("dd/mm/yyyy");
  EXPECT_TRUE(GetDayMonthString(text, kDate));
  EXPECT_STREQ(text, "05/03");
  EXPECT_EQ(GetDayMonthString(kDate), "05/03");
}

TEST_F(DatesNumeric, YearFirstFormatShowsTheMonthBeforeTheDay) {
  char text[256];
  SetDateFormat("yyyy/m/d");
  EXPECT_TRUE(GetDayMonthString(text, kDate));
  EXPECT_STREQ(text, "03/05");
}

TEST_F(DatesNumeric, SeparatorOfThePatternIsNotTaken) {
  SetDateFormat("dd.mm.yyyy");
  EXPECT_EQ(GetDateString(kDate), "05/03/2024");
}

TEST_F(DatesNumeric, ShortDateOutOfRangeIsWrittenAsItIs) {
  const short low[] = {SHRT_MIN, SHRT_MIN, SHRT_MIN};
  EXPECT_EQ(GetDateString(low), "-32768/-32768/-32768");
  const short early[] = {0, 13, -44};
  EXPECT_EQ(GetDateString(early), "-044/13/00");
}

TEST_F(DatesNumeric, NullBufferAndNullDateAreRefused) {
  char text[256] = "untouched";
  const short* const none = nullptr;
  EXPECT_FALSE(GetDateString(text, none));
  EXPECT_FALSE(GetDayMonthString(text, none));
  EXPECT_STREQ(text, "untouched");
  EXPECT_FALSE(GetDateString(static_cast<char*>(nullptr), kDate));
  EXPECT_FALSE(GetDayMonthString(nullptr, kDate));
  EXPECT_EQ(GetDateString(none), "");
  EXPECT_EQ(GetDayMonthString(none), "");
}

TEST_F(DatesNumeric, JulianDateFollowsTheFormatOfTheLanguage) {
  Load("20560\t1\n");
  EXPECT_EQ(getDate(kMarchFifth), "05/03/2024");
  Load("20560\t0\n");
  EXPECT_EQ(getDate(kMarchFifth), "03/05/2024");
  for (const char* other : {"2", "3", "-1", "99999999999999999999", "-99999999999999999999", "4294967297"}) {
    Load(std::string("20560\t") + other + "\n");
    EXPECT_EQ(getDate(kMarchFifth), "2024/03/05") << other;
  }
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesNumeric, FormatOfTheLanguageAndOfTheProcessAreKeptApart) {
  Load("20560\t1\n40830\tm/d/yyyy\n973\tMarch\n");
  SetDateFormat("yyyy/mm/dd");
  EXPECT_EQ(getDate(kMarchFifth), "05/03/2024");
  EXPECT_EQ(GetDateString(kDate), "2024/03/05");
  EXPECT_EQ(GetDateString(2024, 3, 5), " March 5, 2024");
}

TEST_F(DatesNumeric, NumberOfTheFormatEndsAtTheFirstOtherCharacter) {
  Load("20560\t +1 day first\n");
  EXPECT_EQ(getDate(kMarchFifth), "05/03/2024");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesNumeric, SeparatorIsAPointInGermanAlone) {
  Load("20560\t1\n");
  SetSystemLocale("de");
  EXPECT_EQ(getDate(kMarchFifth), "05.03.2024");
  for (const char* locale : {"de-AT", "de_DE", "DE", "d", "", "ru"}) {
    SetSystemLocale(locale);
    EXPECT_EQ(getDate(kMarchFifth), "05/03/2024") << locale;
  }
  SetSystemLocale("de");
  Load("20560\t0\n");
  EXPECT_EQ(getDate(kMarchFifth), "03.05.2024");
  Load("20560\t2\n");
  EXPECT_EQ(getDate(kMarchFifth), "2024.03.05");
}

TEST_F(DatesNumeric, MissingFormatOfTheLanguageIsReportedAndTheYearComesFirst) {
  Load("7\tseven\n");
  EXPECT_EQ(getDate(kMarchFifth), "2024/03/05");
  EXPECT_EQ(debug.lines, Lines{"Date format not defined in QXStrings.txt (id = 20560)\n"});
}

TEST_F(DatesNumeric, FormatOfTheLanguageThatIsNoNumberIsReportedAndTheYearComesFirst) {
  for (const char* text : {"dd/mm/yyyy", " ", "-", "x1"}) {
    Load(std::string("20560\t") + text + "\n");
    debug.lines.clear();
    EXPECT_EQ(getDate(kMarchFifth), "2024/03/05") << text;
    EXPECT_EQ(debug.lines, Lines{"Date format not defined in QXStrings.txt (id = 20560)\n"}) << text;
  }
}

TEST_F(DatesNumeric, CivilDayBeginsAtMidnight) {
  Load("20560\t2\n");
  EXPECT_EQ(getDate(kMarchFifth - 0.001), "2024/03/04");
  EXPECT_EQ(getDate(kMarchFifth), "2024/03/05");
  EXPECT_EQ(getDate(kMarchFifth + 0.999), "2024/03/05");
}

// Published pairs: Meeus, Astronomical Algorithms (2nd edition, 1998), chapter 7; his year -122 is
// astronomical too.
TEST_F(DatesNumeric, PublishedJulianDates) {
  Load("20560\t2\n");
  EXPECT_EQ(getDate(2451545.0), "2000/01/01");
  EXPECT_EQ(getDate(2436116.31), "1957/10/04");
  EXPECT_EQ(getDate(2026871.8), "0837/04/10");
  EXPECT_EQ(getDate(1676497.5), "-122/01/01");
  EXPECT_EQ(getDate(0.0), "-4712/01/01");
}

TEST_F(DatesNumeric, FourthOfOctober1582IsFollowedByTheFifteenth) {
  Load("20560\t2\n");
  EXPECT_EQ(getDate(2299159.5), "1582/10/04");
  EXPECT_EQ(getDate(2299160.499), "1582/10/04");
  EXPECT_EQ(getDate(2299160.5), "1582/10/15");
  EXPECT_EQ(getDate(2299161.0), "1582/10/15");
}

TEST_F(DatesNumeric, JulianDateThatIsNoNumberCountsAsZero) {
  Load("20560\t2\n");
  EXPECT_EQ(getDate(std::numeric_limits<double>::quiet_NaN()), "-4712/01/01");
  EXPECT_EQ(getDate(std::numeric_limits<double>::infinity()), "-4712/01/01");
}

TEST_F(DatesNumeric, JulianDateFarAwayIsTheLastDayOfTheCalendar) {
  Load("20560\t2\n");
  EXPECT_EQ(getDate(1e300), "32767/12/31");
  EXPECT_EQ(getDate(-1e300), "-32768/01/01");
}

}  // namespace
}  // namespace CommonInterfaces
