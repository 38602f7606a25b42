// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/shower_activity.h"

#include "astro/julian_date.h"

namespace scene {
namespace {

struct YearDay {
  int month, day;

  bool IsDate() const { return month >= 1 && month <= 12 && day >= 1 && day <= 31; }
  bool IsBefore(const YearDay& other) const {
    return month != other.month ? month < other.month : day < other.day;
  }
};

int GetDayNumber(int year, const YearDay& date) {
  int day = 0;
  double fraction = 0.0;
  DJ({year, date.month, date.day, 12, 0, 0.0}, day, fraction);
  return day;
}

}  // namespace

int GetCivilDay(const CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  time.fraction += camera.GetLocUTCdelta();
  Adjust_JD(time.day, time.fraction);
  return time.day;
}

// An activity that ends behind the new year may have begun in the year before.
std::optional<int> FindDaysToPeak(const CommonInterfaces::SHOWER& shower, int civilDay) {
  const YearDay begin = {shower.beginMonth, shower.beginDay}, end = {shower.endMonth, shower.endDay},
                peak = {shower.maximumMonth, shower.maximumDay};
  if (!begin.IsDate() || !end.IsDate() || !peak.IsDate()) return std::nullopt;
  CalendarDate today;
  JD(civilDay, 0.0, today);
  for (const int year : {today.year, today.year - 1}) {
    const int first = GetDayNumber(year, begin);
    const int last = GetDayNumber(end.IsBefore(begin) ? year + 1 : year, end);
    if (civilDay < first || civilDay > last) continue;
    return GetDayNumber(peak.IsBefore(begin) ? year + 1 : year, peak) - civilDay;
  }
  return std::nullopt;
}

}  // namespace scene
