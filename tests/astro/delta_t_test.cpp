// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/delta_t.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "astro/julian_date.h"
#include "helpers/measure.h"
#include "helpers/tsv.h"

using astro_test::JulianDateOfYear;
using astro_test::Largest;
using astro_test::ReadTable;

namespace {

const std::string kTables = ASTRO_TABLES;
const std::string kData = ASTRO_TEST_DATA;

constexpr double kFirstObserved = 2326267.5;  // 1657-01-01
constexpr double kFirstIers = 2441684.5;      // 1973-01-02
constexpr double kLastObserved = 2460194.5;   // 2023-09-07

double DeltaT(double julianDate) {
  const int day = static_cast<int>(std::floor(julianDate));
  return ET_UT::Get(day, julianDate - day);
}

double StartOfYear(int year) {
  CalendarDate date;
  date.year = year;
  int day;
  double fraction;
  DJ(date, day, fraction);
  return day + fraction;
}

// Years of the calendar: 1657.5 is the middle of 1657.
double JulianDateOfCalendarYear(double year) {
  const int whole = static_cast<int>(year);
  return StartOfYear(whole) + (year - whole) * (StartOfYear(whole + 1) - StartOfYear(whole));
}

double Parabola(double year) { return -320.0 + 32.5 * std::pow((year - 1825.0) / 100.0, 2); }

}  // namespace

TEST(DeltaT, HistoricRowsAreMetExactly) {
  Largest difference("USNO historic table, compiled rows", "second");
  for (const auto& row : ReadTable(kTables + "usno_historic_1657_1984.tsv")) {
    const double julianDate = JulianDateOfCalendarYear(row[0]);
    if (julianDate < kFirstIers - 30.0) difference.Note(DeltaT(julianDate) - row[1], row[0]);
  }
  difference.Expect(1e-9);
}

TEST(DeltaT, IersRowsAreMetExactly) {
  Largest difference("IERS table", "second");
  for (const auto& row : ReadTable(kTables + "iers_daily_every30d_1973_2023.tsv")) {
    difference.Note(DeltaT(std::round(row[0]) + (row[0] < std::round(row[0]) ? -0.5 : 0.5)) - row[1], row[0]);
  }
  difference.Expect(1e-9);
}

TEST(DeltaT, HistoricTableWithinOneSecondFrom1700) {
  Largest difference("USNO historic table 1700 to 1984, every row", "second");
  for (const auto& row : ReadTable(kTables + "usno_historic_1657_1984.tsv")) {
    if (row[0] >= 1700.0) difference.Note(DeltaT(JulianDateOfCalendarYear(row[0])) - row[1], row[0]);
  }
  difference.Expect(0.02);
}

// These rows are not compiled: they test the interpolation between the IERS rows.
TEST(DeltaT, MonthlyTableOfTheNavalObservatory) {
  Largest difference("USNO monthly table 1973 to 2019, every row", "second");
  for (const auto& row : ReadTable(kData + "usno_monthly_1973_2019.tsv")) {
    difference.Note(DeltaT(row[3]) - row[4], row[0]);
  }
  difference.Expect(0.01);
}

// TDB - UT of another service; TDB is within 0.002 s of TT. It follows other reductions of the early
// observations (1.2 s from the observatory's table in 1907, 7 s in 1700), and after 2023 it is a constant.
TEST(DeltaT, HorizonsWithinOneSecondFrom1925To2022) {
  Largest difference("JPL Horizons 1925 to 2022, yearly", "second");
  for (const auto& row : ReadTable(kData + "horizons_tdb_ut_yearly.tsv")) {
    if (row[0] >= 1925 && row[0] <= 2022) difference.Note(DeltaT(row[3]) - row[4], row[0]);
  }
  difference.Expect(1.0);
}

TEST(DeltaT, SplineBeforeTheObservations) {
  Largest difference("spline of 2020, evaluated, -720 to 1540", "second");
  for (const auto& row : ReadTable(kData + "smh_2020_evaluated.tsv")) {
    if (row[0] <= 1556.0) difference.Note(DeltaT(JulianDateOfYear(row[0])) - row[1], row[0]);
  }
  difference.Expect(0.002);  // the printed coefficients are rounded to 0.001, the pieces are closed
}

TEST(DeltaT, ParabolaFarFromTheObservations) {
  for (const double year : {-30000.0, -4800.0, -1721.0, 2324.0, 2500.0, 9999.0}) {
    EXPECT_NEAR(DeltaT(JulianDateOfYear(year)), Parabola(year), 1e-6) << year;
  }
}

TEST(DeltaT, FadesBetweenTheSources) {
  const double beforeSpline = DeltaT(JulianDateOfYear(-1220.0)) - Parabola(-1220.0);
  EXPECT_LT(beforeSpline, 0.0);
  EXPECT_GT(beforeSpline, 20371.848 - Parabola(-720.0));
  const double year = 2000.0 + (kLastObserved - 2451545.0) / 365.25;
  const double atEnd = DeltaT(kLastObserved) - Parabola(year);
  double last = atEnd;
  for (double later = year + 1.0; later < year + 300.0; later += 1.0) {
    const double offset = DeltaT(JulianDateOfYear(later)) - Parabola(later);
    EXPECT_LT(offset, last) << later;
    EXPECT_GT(offset, 0.0) << later;
    last = offset;
  }
}

TEST(DeltaT, BeginsTheFutureWithTheSlopeOfTenYears) {
  const double tenYears = 3652.5;
  const double observed = (DeltaT(kLastObserved) - DeltaT(kLastObserved - tenYears)) / 10.0;
  const double expected = (DeltaT(kLastObserved + 36.525) - DeltaT(kLastObserved)) / 0.1;
  EXPECT_NEAR(expected, observed, 0.005);
}

TEST(DeltaT, MeetsItselfWhereSourcesMeet) {
  Largest jump("jump within 2 s of time at a joint", "second");
  const double years[] = {-1720, -720, -100, 400, 1000, 1150, 1300, 1500, 1600, 1650};
  const double second = 1.0 / 86400.0;
  const auto check = [&](double julianDate) {
    jump.Note(DeltaT(julianDate + second) - DeltaT(julianDate - second), julianDate);
  };
  for (const double year : years) check(JulianDateOfYear(year));
  for (const double date : {kFirstObserved - 36525.0, kFirstObserved, kFirstIers, kLastObserved}) check(date);
  check(kLastObserved + 300.0 * 365.25);
  jump.Expect(5e-6);  // 25 s a year, the steepest, is 1.6e-6 s in that time
}

TEST(DeltaT, NoJumpOnAnyDayFromMinus3000To3000) {
  Largest bend("bend from one day to the next", "second");
  const int last = static_cast<int>(JulianDateOfYear(3000));
  int day = static_cast<int>(JulianDateOfYear(-3000));
  double before = ET_UT::Get(day - 1, 0.0);
  double here = ET_UT::Get(day, 0.0);
  for (; day < last; ++day) {
    const double after = ET_UT::Get(day + 1, 0.0);
    bend.Note((after - here) - (here - before), day);
    before = here;
    here = after;
  }
  bend.Expect(0.004);  // the oldest rows are whole seconds; elsewhere a thousandth of it
}

TEST(DeltaT, FractionCountsAndWhatIsNotFiniteDoesNot) {
  EXPECT_DOUBLE_EQ(ET_UT::Get(2451545, 10.25), ET_UT::Get(2451555, 0.25));
  EXPECT_DOUBLE_EQ(ET_UT::Get(0, 2451545.5), ET_UT::Get(2451545, 0.5));
  EXPECT_NE(ET_UT::Get(2451545, 10.25), ET_UT::Get(2451545, 0.0));
  EXPECT_DOUBLE_EQ(ET_UT::Get(2451545, std::numeric_limits<double>::quiet_NaN()), ET_UT::Get(2451545, 0.0));
  EXPECT_DOUBLE_EQ(ET_UT::Get(2451545, std::numeric_limits<double>::infinity()), ET_UT::Get(2451545, 0.0));
}

TEST(DeltaT, EveryDayNumberGivesANumber) {
  for (const int day : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0}) {
    EXPECT_TRUE(std::isfinite(ET_UT::Get(day, 0.0))) << day;
  }
}
