// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Dates in the languages that ship, from their sources (UTF-8), with the language changed while the program
// runs.
#include <gtest/gtest.h>

#include <string>

#include "common_interfaces/dates.h"
#include "common_interfaces/string_table.h"
#include "utils/locale.h"
#include "utils/path.h"

namespace {

using namespace CommonInterfaces;

constexpr _Date kMarchFifth2024 = {2460375, 0.0, kUniversalTime};

class ShippedDates : public testing::Test {
 protected:
  ~ShippedDates() override {
    SetSystemLocale("en");
    ZentharPath::SetRoots(nullptr, nullptr);
  }

  static void ChangeTo(const std::string& language) {
    QX4Strings::StartLocaleUpdate();
    ZentharPath::SetRoots((CI_DATA_SOURCE "/strings/" + language).c_str(), nullptr);
    SetSystemLocale(language.c_str());
    const QX4Strings strings;
    QX4Strings::FinishLocaleUpdate();
  }
};

TEST_F(ShippedDates, InEnglish) {
  ChangeTo("en");
  EXPECT_EQ(GetDateString(kMarchFifth2024), "5 March 2024");
  EXPECT_EQ(getDate(kMarchFifth2024.day), "05/03/2024");
  EXPECT_EQ(GetMonth(3), "March");
}

TEST_F(ShippedDates, InGermanThePointSeparatesAndStandsBehindTheDay) {
  ChangeTo("de");
  EXPECT_EQ(GetDateString(kMarchFifth2024), " 5. März 2024");
  EXPECT_EQ(getDate(kMarchFifth2024.day), "05.03.2024");
  EXPECT_EQ(GetMonth(3), "März");
}

TEST_F(ShippedDates, InRussianTheMonthOfADateIsInTheGenitive) {
  ChangeTo("ru");
  EXPECT_EQ(GetDateString(kMarchFifth2024), "5 марта 2024");
  EXPECT_EQ(getDate(kMarchFifth2024.day), "05/03/2024");
  EXPECT_EQ(GetMonth(3), "март");
  EXPECT_EQ(GetMonthList()[7], "август");
}

TEST_F(ShippedDates, FollowEveryChangeOfTheLanguage) {
  for (int round = 0; round < 2; ++round) {
    ChangeTo("de");
    EXPECT_EQ(GetMonth(12), "Dezember");
    EXPECT_EQ(GetDateString(2024, 1, 31), "31. Januar 2024");
    ChangeTo("ru");
    EXPECT_EQ(GetMonth(12), "декабрь");
    EXPECT_EQ(GetDateString(2024, 1, 31), "31 января 2024");
    ChangeTo("en");
    EXPECT_EQ(GetMonth(12), "December");
    EXPECT_EQ(GetDateString(2024, 1, 31), "31 January 2024");
  }
}

}  // namespace
