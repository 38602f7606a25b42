// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/camera.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/status_strings.h"
#include "skydata/strings/samples.h"

namespace skydata {
namespace {

using CommonInterfaces::Camera;

// Julian day numbers, at noon: 5 March 2024, and 17 March of the astronomical years 0 and -43.
constexpr int kMarch2024 = 2460375, kMarchOfYear0 = 1721134, kMarchOfYearMinus43 = 1705428;

void AddClock(const std::string& identifiers, const std::string& use, int day, int timeKind, bool isSummer,
              TextSamples& samples) {
  Camera camera(1);
  CommonInterfaces::_Date time;
  time.day = day;
  time.fraction = -0.125;  // 9:00 in the morning
  time.type = timeKind;
  camera.SetUniversalTime(time);
  camera.GetDST()->IsDST = isSummer;
  camera.GetDST()->FirstDay = day;
  camera.GetDST()->LastDay = day;
  std::string clockCaption, dateCaption;
  const std::string clock = GetTimeString(&camera, clockCaption);
  const std::string date = GetDateString(&camera, dateCaption);
  samples.push_back({identifiers, use + ": caption, clock", clockCaption + ":" + clock});
  samples.push_back({identifiers, use + ": caption, date", dateCaption + ": " + date});
}

void AddMonths(TextSamples& samples) {
  for (int month = 1; month <= 12; ++month) {
    samples.push_back({std::to_string(970 + month) + " 40830", "long date",
                       CommonInterfaces::GetDateString(2024, month, month)});
  }
  for (int month = 1; month <= 12; ++month) {
    samples.push_back({std::to_string(970 + month) + " " + std::to_string(1970 + month), "name of a month",
                       CommonInterfaces::GetMonth(month)});
  }
}

void AddNumbersOfDays(TextSamples& samples) {
  for (const int number : {0, 1, 2, 4, 5, 11, 14, 20, 21, 22, 25, 101, 111}) {
    const char* const word = CommonInterfaces::GetNumberDays(number);
    samples.push_back(
        {"13063 130631 130632", "number of days", std::to_string(number) + " " + (word ? word : "")});
  }
}

}  // namespace

void AddTimeSamples(TextSamples& samples) {
  using namespace CommonInterfaces;
  AddClock("7200 7203", "local time", kMarch2024, kLocalTime, false, samples);
  AddClock("7200 7203 7228", "local time with daylight saving", kMarch2024, kLocalTime, true, samples);
  AddClock("7201 7203", "Universal Time", kMarch2024, kUniversalTime, false, samples);
  AddClock("7201 7203", "Universal Time, year 0", kMarchOfYear0, kUniversalTime, false, samples);
  AddClock("7201 7204", "Universal Time, year -43", kMarchOfYearMinus43, kUniversalTime, false, samples);
  AddClock("7202 7207", "third kind of time", kMarch2024, kThirdTime, false, samples);
  AddMonths(samples);
  samples.push_back({"20560", "date in digits", getDate(kMarch2024)});
  AddNumbersOfDays(samples);
}

}  // namespace skydata
