// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/local_clock.h"

#include <cmath>
#include <cstdlib>

#include "common_interfaces/dates.h"
#include "scene/catalogs/texts.h"
#include "scene/words/moment_text.h"
#include "skyview/session/zone_time.h"
#include "utils/messages.h"
#include "utils/timezone.h"

namespace skyview {

double LocalClock::GetOffset(const scene::SkyMoment& moment) const {
  return getLocalUTCDeltaForTimezone(m_Zone.c_str(), moment.day + moment.fraction);
}

std::string LocalClock::FormatMoment(const scene::SkyMoment& moment) const {
  return scene::FormatMoment(moment.day, moment.fraction + GetOffset(moment));
}

std::string LocalClock::FormatTime(const scene::SkyMoment& moment) const {
  const std::string text = FormatMoment(moment);
  return text.substr(text.find(' ') + 1);
}

std::string LocalClock::FormatDay(const scene::SkyMoment& moment) const {
  return scene::FormatDay(moment.day, moment.fraction + GetOffset(moment));
}

std::string LocalClock::FormatOffset(const scene::SkyMoment& moment) const {
  return skyview::FormatOffset(GetOffset(moment));
}

std::string LocalClock::FormatLongDay(const scene::SkyMoment& moment) const {
  CommonInterfaces::_Date date;
  date.day = moment.day;
  date.fraction = moment.fraction + GetOffset(moment);
  const std::string text = CommonInterfaces::GetDateString(date);
  const auto first = text.find_first_not_of(' ');
  return scene::ToUtf8(first == std::string::npos ? text : text.substr(first));
}

scene::SkyMoment LocalClock::FindMidnight(int day) const {
  constexpr double kMidnight = -0.5, kHour = 1.0 / 24.0;
  if (const auto there = LocalToUniversal(m_Zone, day, kMidnight))
    return scene::MakeMoment(there->day, there->fraction);
  const double before = getLocalUTCDeltaForTimezone(m_Zone.c_str(), day + kMidnight - kHour);
  return scene::MakeMoment(day, kMidnight - before);
}

std::string FormatOffset(double days) {
  const int minutes = static_cast<int>(std::lround(days * 1440.0));
  return FormatText("%c%02d:%02d", minutes < 0 ? '-' : '+', std::abs(minutes) / 60, std::abs(minutes) % 60);
}

}  // namespace skyview
