// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "text/dates_fixture.h"

namespace CommonInterfaces {
namespace {

using test_support::kMonthTexts;
using test_support::kRussianMonthTexts;
using test_support::Lines;

class DatesLong : public test_support::DatesTest {
 protected:
  void LoadPattern(const std::string& pattern) { Load(kMonthTexts + ("40830\t" + pattern + "\n")); }
};

TEST_F(DatesLong, DayMonthYearPadsTheDay) {
  for (const char* pattern : {"dd/mm/yyyy", "dd-mm-yyyy"}) {
    LoadPattern(pattern);
    EXPECT_EQ(GetDateString(2024, 3, 5), " 5 March 2024") << pattern;
    EXPECT_EQ(GetDateString(2024, 12, 31), "31 December 2024") << pattern;
  }
}

TEST_F(DatesLong, PointsPutAPointBehindTheDay) {
  LoadPattern("dd.mm.yyyy");
  EXPECT_EQ(GetDateString(2024, 3, 5), " 5. March 2024");
  EXPECT_EQ(GetDateString(2024, 12, 31), "31. December 2024");
}

TEST_F(DatesLong, SingleLettersDoNotPad) {
  LoadPattern("d-m-yyyy");
  EXPECT_EQ(GetDateString(2024, 3, 5), "5 March 2024");
}

TEST_F(DatesLong, MonthFirstBeginsWithABlank) {
  LoadPattern("m/d/yyyy");
  EXPECT_EQ(GetDateString(2024, 3, 5), " March 5, 2024");
  EXPECT_EQ(GetDateString(2024, 12, 31), " December 31, 2024");
}

TEST_F(DatesLong, YearFirstPadsTheDayUnlessThePatternHasSingleLetters) {
  LoadPattern("yyyy/mm/dd");
  EXPECT_EQ(GetDateString(2024, 3, 5), "2024 March  5");
  LoadPattern("yyyy/m/d");
  EXPECT_EQ(GetDateString(2024, 3, 5), "2024 March 5");
}

TEST_F(DatesLong, AnyOtherPatternHasTheYearFirst) {
  for (const char* pattern : {"mm/dd/yyyy", "dd/mm/yyyy.", "DD/MM/YYYY", "d/m/yyyy", "%s%n", "1"}) {
    LoadPattern(pattern);
    EXPECT_EQ(GetDateString(2024, 3, 5), "2024 March  5") << pattern;
  }
}

TEST_F(DatesLong, MissingPatternHasTheYearFirstAndIsNotReported) {
  Load(kMonthTexts);
  EXPECT_EQ(GetDateString(2024, 3, 5), "2024 March  5");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLong, YearIsPaddedToFourWithBlanks) {
  LoadPattern("dd/mm/yyyy");
  EXPECT_EQ(GetDateString(837, 4, 10), "10 April  837");
  EXPECT_EQ(GetDateString(0, 4, 10), "10 April    0");
  EXPECT_EQ(GetDateString(-44, 3, 15), "15 March  -44");
  EXPECT_EQ(GetDateString(-4712, 1, 1), " 1 January -4712");
  EXPECT_EQ(GetDateString(12345, 1, 1), " 1 January 12345");
}

TEST_F(DatesLong, MonthOutOfRangeHasNoName) {
  LoadPattern("dd/mm/yyyy");
  for (const int month : {0, -1, 13, INT_MIN, INT_MAX}) {
    EXPECT_EQ(GetDateString(2024, month, 5), " 5  2024") << month;
  }
}

TEST_F(DatesLong, MissingMonthHasNoNameAndIsNotReported) {
  Load("40830\tdd/mm/yyyy\n971\tJanuary\n");
  EXPECT_EQ(GetDateString(2024, 1, 5), " 5 January 2024");
  EXPECT_EQ(GetDateString(2024, 2, 5), " 5  2024");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesLong, EmptyTableIsHarmless) { EXPECT_EQ(GetDateString(2024, 3, 5), "2024   5"); }

TEST_F(DatesLong, ExtremeNumbersAreWrittenWhole) {
  LoadPattern("m/d/yyyy");
  EXPECT_EQ(GetDateString(INT_MIN, 1, INT_MIN), " January -2147483648, -2147483648");
}

TEST_F(DatesLong, PercentSignsInANameAreText) {
  Load("40830\tdd/mm/yyyy\n971\t%s%n 100%\n");
  EXPECT_EQ(GetDateString(2024, 1, 5), " 5 %s%n 100% 2024");
}

TEST_F(DatesLong, NameLongerThanABufferIsKeptWhole) {
  const std::string name(4000, 'x');
  Load("40830\tdd/mm/yyyy\n971\t" + name + "\n");
  EXPECT_EQ(GetDateString(2024, 1, 5), " 5 " + name + " 2024");
}

TEST_F(DatesLong, RussianDatesUseTheNamesThatADateAsksFor) {
  SetSystemLocale("ru");
  Load(kRussianMonthTexts + std::string("40830\tdd.mm.yyyy\n"));
  EXPECT_EQ(GetDateString(2024, 3, 5), " 5. marta 2024");
  EXPECT_EQ(GetMonth(3), "mart");
}

TEST_F(DatesLong, NamesAreTakenAgainUnderAnotherLocale) {
  LoadPattern("dd/mm/yyyy");
  ASSERT_EQ(GetDateString(2024, 3, 5), " 5 March 2024");
  SetSystemLocale("ru");
  Load(kRussianMonthTexts + std::string("40830\tdd/mm/yyyy\n"));
  EXPECT_EQ(GetDateString(2024, 3, 5), " 5 marta 2024");
}

TEST_F(DatesLong, ReloadUnderTheSameLocaleKeepsTheNamesAndTakesThePattern) {
  LoadPattern("dd/mm/yyyy");
  ASSERT_EQ(GetDateString(2024, 3, 5), " 5 March 2024");
  Load("40830\tyyyy/m/d\n973\tMarz\n");
  EXPECT_EQ(GetDateString(2024, 3, 5), "2024 March 5");
}

TEST_F(DatesLong, MomentIsTheCivilDay) {
  LoadPattern("dd/mm/yyyy");
  EXPECT_EQ(GetDateString(_Date{2451545, 0.0, kUniversalTime}), " 1 January 2000");
  EXPECT_EQ(GetDateString(_Date{2451545, -0.5, kUniversalTime}), " 1 January 2000");
  EXPECT_EQ(GetDateString(_Date{2451545, 0.49, kUniversalTime}), " 1 January 2000");
  EXPECT_EQ(GetDateString(_Date{2451545, 0.5, kUniversalTime}), " 2 January 2000");
  EXPECT_EQ(GetDateString(_Date{2451545, 31.0, kUniversalTime}), " 1 February 2000");
}

TEST_F(DatesLong, KindOfTimeDoesNotMatter) {
  LoadPattern("dd/mm/yyyy");
  for (const int kind : {0, 1, 2, 77}) {
    EXPECT_EQ(GetDateString(_Date{2451545, 0.0, kind}), " 1 January 2000") << kind;
  }
}

TEST_F(DatesLong, FourthOfOctober1582IsFollowedByTheFifteenth) {
  LoadPattern("dd/mm/yyyy");
  EXPECT_EQ(GetDateString(_Date{2299160, 0.0, kUniversalTime}), " 4 October 1582");
  EXPECT_EQ(GetDateString(_Date{2299161, 0.0, kUniversalTime}), "15 October 1582");
}

}  // namespace
}  // namespace CommonInterfaces
