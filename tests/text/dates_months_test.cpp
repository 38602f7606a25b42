// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <climits>
#include <filesystem>
#include <string>
#include <vector>

#include "common_interfaces/string_table.h"
#include "text/dates_fixture.h"

namespace CommonInterfaces {
namespace {

using test_support::kMonthTexts;
using test_support::kRussianMonthTexts;
using test_support::Lines;

class DatesMonths : public test_support::DatesTest {};

const std::vector<std::string> kEnglish = {"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};

TEST_F(DatesMonths, TwelveNamesFromJanuaryOn) {
  Load(kMonthTexts);
  EXPECT_EQ(GetMonthList(), kEnglish);
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(GetMonth(month), kEnglish[static_cast<std::size_t>(month - 1)]);
  }
}

TEST_F(DatesMonths, MonthZeroIsJanuaryAndThirteenIsDecember) {
  Load(kMonthTexts);
  EXPECT_EQ(GetMonth(0), "January");
  EXPECT_EQ(GetMonth(13), "December");
  EXPECT_EQ(GetMonth(INT_MIN), "January");
  EXPECT_EQ(GetMonth(INT_MAX), "December");
}

TEST_F(DatesMonths, RussianNamesStandAlone) {
  SetSystemLocale("ru");
  Load(kRussianMonthTexts);
  EXPECT_EQ(GetMonth(5), "may");
  EXPECT_EQ(GetMonth(8), "avgust");
  EXPECT_EQ(GetMonthList()[11], "dekabr");
}

TEST_F(DatesMonths, LocaleMustBeRussianExactly) {
  Load(kRussianMonthTexts);
  for (const char* locale : {"ru-RU", "RU", "r", "", "uk"}) {
    SetSystemLocale(locale);
    EXPECT_EQ(GetMonth(8), "avgusta") << locale;
  }
}

TEST_F(DatesMonths, NamesAreTakenAgainUnderAnotherLocale) {
  Load(kMonthTexts);
  ASSERT_EQ(GetMonth(1), "January");
  SetSystemLocale("de");
  Load("971\tJanuar\n");
  EXPECT_EQ(GetMonth(1), "Januar");
  EXPECT_EQ(GetMonth(2), "");
}

TEST_F(DatesMonths, ReloadUnderTheSameLocaleKeepsTheNames) {
  Load(kMonthTexts);
  ASSERT_EQ(GetMonth(1), "January");
  Load("971\tFirst\n");
  EXPECT_EQ(GetMonth(1), "January");
}

TEST_F(DatesMonths, LocaleThatChangesBeforeTheReloadKeepsTheOldNames) {
  Load(kMonthTexts);
  SetSystemLocale("de");
  ASSERT_EQ(GetMonth(1), "January");
  Load("971\tJanuar\n");
  EXPECT_EQ(GetMonth(1), "January");
}

TEST_F(DatesMonths, NamesAreCopiesThatOutliveTheirTable) {
  Load(kMonthTexts);
  ASSERT_EQ(GetMonth(1), "January");
  QX4Strings::StartLocaleUpdate();
  QX4Strings::
      FinishLocaleUpdate();  // frees the texts; a name that pointed there would now be read after its end
  EXPECT_EQ(GetMonthList(), kEnglish);
}

TEST_F(DatesMonths, NamesOfTheTwoUsesAreKeptApart) {
  Load(kMonthTexts);
  ASSERT_EQ(GetMonth(1), "January");
  Load("971\tJan\n");
  EXPECT_EQ(GetDateString(2024, 1, 5), "2024 Jan  5");
  EXPECT_EQ(GetMonth(1), "January");
}

TEST_F(DatesMonths, MissingNamesAreEmptyAndAreNotReported) {
  Load("971\tJanuary\n982\tDecember\n");
  EXPECT_EQ(GetMonth(1), "January");
  EXPECT_EQ(GetMonth(6), "");
  EXPECT_EQ(GetMonthList(), (Lines{"January", "", "", "", "", "", "", "", "", "", "", "December"}));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(DatesMonths, TableWithoutAnyNameIsLookedIntoAgain) {
  EXPECT_EQ(GetMonthList(), Lines(12));
  EXPECT_EQ(GetMonth(1), "");
  Load(kMonthTexts);
  EXPECT_EQ(GetMonth(1), "January");
  EXPECT_EQ(GetDateString(2024, 1, 5), "2024 January  5");
}

TEST_F(DatesMonths, MissingTableIsReportedByTheTableAlone) {
  std::filesystem::remove(roots.dir.Path("data/qxstrings.txt"));
  QX4Strings::StartLocaleUpdate();
  QX4Strings::FinishLocaleUpdate();
  EXPECT_EQ(GetMonth(1), "");
  EXPECT_EQ(debug.lines, Lines{"File qxstrings.txt not found\n"});
}

}  // namespace
}  // namespace CommonInterfaces
