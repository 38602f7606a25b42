// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>

#include "astro/julian_date.h"
#include "common_interfaces/observation_times.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"

namespace skydata {
namespace {

constexpr int kEveryYear = -1, kLeapYear = 2000;
constexpr float kHoursPerDay = 24.0f;
constexpr int kDateFields = 4;

struct ObservationTime {
  int kind = 0, number = 0;
  int day = 0, month = 0, year = 0;
  float hour = 0.0f;
};
using Times = FirstLines<std::vector<int>>;

bool IsDate(int year, int month, int day) {
  CalendarDate date;
  date.year = year == kEveryYear ? kLeapYear : year;
  date.month = month;
  date.day = day;
  int julianDay = 0;
  double fraction = 0.0;
  CalendarDate same;
  DJ(date, julianDay, fraction);
  JD(julianDay, fraction, same);
  return same.year == date.year && same.month == month && same.day == day;
}

// Whether the reader takes the moment.
bool ReadMoment(const TextLine& line, const TextField& field, ObservationTime& time, LintReport& report) {
  int end = 0;
  const int count =
      std::sscanf(field.text.c_str(), "%d/%d/%d %f%n", &time.day, &time.month, &time.year, &time.hour, &end);
  if (count < kDateFields) {
    report.Add(LintCode::kNotANumber, line.number, field.column,
               "moment '" + field.text + "' is not day/month/year, a blank, hours");
    return false;
  }
  if (!IsBlankText(field.text.substr(static_cast<std::size_t>(end)))) {
    report.Add(LintCode::kNumberRest, line.number, field.column + end,
               "moment '" + field.text + "' has something behind the hours");
  }
  if (!IsDate(time.year, time.month, time.day)) {
    report.Add(LintCode::kBadDate, line.number, field.column, "there is no day '" + field.text + "'");
  }
  if (!(time.hour >= 0.0f && time.hour < kHoursPerDay)) {
    report.Add(LintCode::kOutOfRange, line.number, field.column,
               "hours of '" + field.text + "' are not from 0 to 24");
  }
  return true;
}

bool ReadTime(const TextLine& line, const LintRun& run, ObservationTime& time, LintReport& report) {
  const auto fields = SplitAtTabs(line);
  if (IsBlankText(line.text) || !HasFields(line, fields, 3, 3, report)) return false;
  const auto kind = ReadNumberOrKind({line, fields[0], "kind", report});
  const auto number = ReadInteger({line, fields[1], "number", report});
  if (!ReadMoment(line, fields[2], time, report) || !kind || !number) return false;
  time.kind = *kind;
  time.number = *number;
  CheckReference(run, *kind, *number, line.number, fields[1].column, report);
  return true;
}

void CheckRepeated(const ObservationTime& time, int line, Times& times, LintReport& report) {
  const std::string name = NameObject(time.kind, time.number);
  if (const int first = times.Note({time.kind, time.number, time.year}, line)) {
    report.Add(LintCode::kDuplicate, line, 1,
               name + " of that year stands in line " + std::to_string(first) + " already");
  }
}

// The library reads the table once in a process; only what it has then been given can be compared.
bool IsFirstTable(const std::string& bytes) {
  static const std::string s_First = bytes;
  return s_First == bytes;
}

void CompareTime(const ObservationTime& time, int line, LintReport& report) {
  CommonInterfaces::_Date date;
  const int year = time.year == kEveryYear ? kLeapYear : time.year;
  if (CommonInterfaces::GetObsTimeFromFile(&date, {time.kind, time.number}, year)) return;
  report.Add(LintCode::kReaderDiffers, line, 1,
             "the reader has no moment of " + NameObject(time.kind, time.number));
}

}  // namespace

void LintObservationTimes(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const TextLines lines = ReadLintLines(file.bytes, {}, report);
  const bool isReadHere = IsFirstTable(file.bytes);
  const ReaderWatch watch;
  Times times;
  for (const TextLine& line : lines) {
    ObservationTime time;
    if (!ReadTime(line, run, time, report)) continue;
    CheckRepeated(time, line.number, times, report);
    if (isReadHere) CompareTime(time, line.number, report);
  }
  AddMessages(watch, {}, report);
}

}  // namespace skydata
