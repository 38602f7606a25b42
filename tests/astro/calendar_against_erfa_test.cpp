// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The Gregorian calendar against liberfa (eraCal2jd, eraJd2cal).
#include <erfa.h>
#include <gtest/gtest.h>

#include "astro/julian_date.h"

TEST(CalendarAgainstErfa, EveryDayFrom1582To9999) {
  const int first = 2299161;
  const int last = 5373484;  // 9999-12-31
  int wrong = 0;
  for (int day = first; day <= last; ++day) {
    int year, month, dayOfMonth;
    double rest;
    if (eraJd2cal(day, 0.0, &year, &month, &dayOfMonth, &rest) != 0) ++wrong;
    CalendarDate date;
    JD(day, 0.0, date);
    if (date.year != year || date.month != month || date.day != dayOfMonth) ++wrong;
    double zero, modified;
    if (eraCal2jd(year, month, dayOfMonth, &zero, &modified) != 0) ++wrong;
    int back;
    double fraction;
    DJ(date, back, fraction);
    if (back != zero + modified + 0.5) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
  CalendarDate date;
  JD(last, 0.0, date);
  EXPECT_EQ(date.year, 9999);
  EXPECT_EQ(date.day, 31);
}
