// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every day from the first of -4800 to the last of 9999, against a calendar that is counted day by day here.
#include <cstdlib>
#include <string>

#include "astro/julian_date.h"
#include "text/dates_fixture.h"

namespace CommonInterfaces {
namespace {

using test_support::kMonthTexts;

// One day after the other, 4 October 1582 followed by the 15th, with leap years by the rule of the calendar
// in use.
class CountedDay {
 public:
  int number = -32142;  // 1 January -4800: 88 years with 22 leap days before day 0, 1 January -4712
  int year = -4800, month = 1, day = 1;

  void Advance() {
    ++number;
    ++day;
    if (year == 1582 && month == 10 && day == 5) day = 15;
    if (day <= DaysInMonth()) return;
    day = 1;
    if (++month <= 12) return;
    month = 1;
    ++year;
  }

  int DaysInMonth() const {
    if (month == 2) return IsLeapYear() ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
  }

 private:
  bool IsLeapYear() const {
    if (year < 1583) return year % 4 == 0;
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  }
};

// Every day is looked at where the code is optimised, under the sanitizers every 13th; by the forms that
// share their calendar with getDate every fifth of those. Both steps meet each weekday and each day of the
// months.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kStep = 13;
#else
constexpr int kStep = 1;
#endif
constexpr int kWideStep = 5 * kStep;
constexpr int kDays = 5405627;  // of the counted range

template <class Check>
void ForEveryDay(int step, Check check) {
  CountedDay counted;
  int days = 0;
  for (; counted.year <= 9999; counted.Advance(), ++days) {
    if (days % step != 0) continue;
    ASSERT_TRUE(check(counted)) << counted.year << ' ' << counted.month << ' ' << counted.day;
  }
  EXPECT_EQ(days, kDays);
  EXPECT_EQ(counted.number, 5373485);  // 1 January 10000
}

void AppendDigits(std::string& text, int number, int width) {
  char digits[8];
  int length = 0;
  for (int rest = std::abs(number); length < width || rest > 0; rest /= 10) {
    digits[length++] = static_cast<char>('0' + rest % 10);
  }
  while (length > 0) text += digits[--length];
}

class DatesEveryDay : public test_support::DatesTest {};

TEST_F(DatesEveryDay, JulianDateInDigitsIsThatDayAndLeadsBack) {
  Load("20560\t2\n");
  std::string expected;
  ForEveryDay(kStep, [&expected](const CountedDay& counted) {
    expected.clear();
    if (counted.year < 0) expected += '-';  // counts as one of the four places
    AppendDigits(expected, counted.year, counted.year < 0 ? 3 : 4);
    expected += '/';
    AppendDigits(expected, counted.month, 2);
    expected += '/';
    AppendDigits(expected, counted.day, 2);
    const std::string text = getDate(counted.number);
    if (text != expected) return false;

    CalendarDate date;
    char* rest;
    date.year = static_cast<int>(std::strtol(text.c_str(), &rest, 10));
    date.month = static_cast<int>(std::strtol(rest + 1, &rest, 10));
    date.day = static_cast<int>(std::strtol(rest + 1, &rest, 10));
    date.hour = 12;
    int day = 0;
    double fraction = 1.0;
    DJ(date, day, fraction);
    return day == counted.number && fraction == 0.0;
  });
}

TEST_F(DatesEveryDay, MomentInWordsIsThatDay) {
  Load(std::string(kMonthTexts) + "40830\td-m-yyyy\n");
  const std::string names[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};
  std::string expected;
  ForEveryDay(kWideStep, [&](const CountedDay& counted) {
    expected.clear();
    AppendDigits(expected, counted.day, 1);
    expected += ' ' + names[counted.month - 1];
    std::string year = counted.year < 0 ? "-" : "";
    AppendDigits(year, counted.year, 1);
    expected.append(year.size() < 4 ? 5 - year.size() : 1, ' ');
    expected += year;
    return GetDateString(_Date{counted.number, 0.25, kLocalTime}) == expected;
  });
}

TEST_F(DatesEveryDay, MonthsAreAsLongAsTheGregorianCalendarHasThem) {
  ForEveryDay(1, [](const CountedDay& counted) {
    if (counted.day != 1 || counted.year < 1583) return true;
    return GetDaysInMonth(counted.month, counted.year) == counted.DaysInMonth();
  });
}

TEST_F(DatesEveryDay, ShortDateInDigitsIsThatDay) {
  SetDateFormat("dd/mm/yyyy");
  std::string expected;
  ForEveryDay(kWideStep, [&expected](const CountedDay& counted) {
    expected.clear();
    AppendDigits(expected, counted.day, 2);
    expected += '/';
    AppendDigits(expected, counted.month, 2);
    expected += counted.year < 0 ? "/-" : "/";
    AppendDigits(expected, counted.year, counted.year < 0 ? 3 : 4);
    const short date[] = {static_cast<short>(counted.day), static_cast<short>(counted.month),
                          static_cast<short>(counted.year)};
    char text[256];
    return GetDateString(text, date) && expected == text;
  });
}

}  // namespace
}  // namespace CommonInterfaces
