// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <set>

#include "skydata/build/catalog_files.h"
#include "skydata/build/object_numbers.h"

namespace skydata {
namespace {

enum ObservationColumn { kKind, kNumber, kComet, kYear, kMonth, kDay, kHour };

const std::vector<std::string> kColumns = {"Kind", "Number", "Comet", "Year", "Month", "Day", "Hour_UT"};

constexpr int kFirstYear = -4712, kLastYear = 9999;
constexpr double kHours = 24.0;
// What the reader holds for every year.
constexpr int kEveryYear = -1;

int CountDays(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isGregorian = year > 1582;
  const bool isLeap = year % 4 == 0 && (!isGregorian || year % 100 != 0 || year % 400 == 0);
  return month == 2 && (isLeap || year == kEveryYear) ? 29 : kDays[month - 1];
}

// The calendar went from 4 to 15 October.
bool IsLeftOut(int year, int month, int day) { return year == 1582 && month == 10 && day > 4 && day < 15; }

}  // namespace

std::string MakeObservationTimes(const std::filesystem::path& source) {
  const SourceTable table(source / "comets" / "observation_times.tsv", kColumns);
  const ObjectNumbers numbers(source);
  std::set<std::pair<int, int>> seen;  // number and year
  std::string bytes;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    if (table.GetText(row, kKind) != "comt")
      table.Fail(row, kKind, "'" + table.GetText(row, kKind) + "' is not comt");
    const int number = numbers.Resolve(table, row, kKind, kNumber).number;
    const int year = table.GetInteger(row, kYear, kFirstYear, kLastYear);
    const int month = table.GetInteger(row, kMonth, 1, 12);
    const int day = table.GetInteger(row, kDay, 1, CountDays(year, month));
    if (IsLeftOut(year, month, day)) table.Fail(row, kDay, "October 1582 has no day " + std::to_string(day));
    const double hour = table.GetNumber(row, kHour, 0.0, kHours);
    if (hour >= kHours) table.Fail(row, kHour, "24 hours are the next day");
    if (!seen.emplace(number, year).second)
      table.Fail(row, kYear, "comet " + std::to_string(number) + " has a time of this year above already");
    char date[64];
    std::snprintf(date, sizeof date, "%d/%d/%d %s", day, month, year, table.GetText(row, kHour).c_str());
    bytes += "comt\t" + std::to_string(number) + '\t' + date + '\n';
  }
  return bytes;
}

}  // namespace skydata
