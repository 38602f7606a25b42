// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/moment_text.h"

#include <cmath>
#include <cstdlib>

#include "astro/julian_date.h"
#include "utils/messages.h"

namespace scene {

std::string FormatMoment(int day, double fraction) {
  constexpr double kMinutesPerDay = 1440.0;
  Adjust_JD(day, fraction);
  CalendarDate date;
  JD(day, std::round(fraction * kMinutesPerDay) / kMinutesPerDay, date);
  return FormatText("%s%04d-%02d-%02d %02d:%02d", date.year < 0 ? "-" : "", std::abs(date.year), date.month,
                    date.day, date.hour, date.minute);
}

std::string FormatDay(int day, double fraction) {
  const std::string moment = FormatMoment(day, fraction);
  return moment.substr(0, moment.find(' '));
}

bool IsBeforeFirstYear(const std::string& text) { return text.starts_with('-') || text.starts_with("0000"); }

}  // namespace scene
