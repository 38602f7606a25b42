// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// RefDay against every daylight-saving change of ten time zones from 1970 to 2037. The table is made by
// make_daylight_saving_changes.py from the IANA time zone database.
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/dates.h"
#include "utils/timezone.h"

namespace CommonInterfaces {
namespace {

struct Change {
  std::string line;  // for messages
  std::string zone;
  short year = 0, month = 0;
  std::string weeks;  // one or two digits with a comma between them
  short weekday = 0, hour = 0, minute = 0;
  int day = 0;
  double fraction = 0.0;
  double minutesBefore = 0.0, minutesAfter = 0.0;  // local time minus Universal Time
};

const std::vector<Change>& GetChanges() {
  static const std::vector<Change> s_Changes = [] {
    std::vector<Change> changes;
    std::ifstream table(DAYLIGHT_SAVING_CHANGES);
    for (std::string line; std::getline(table, line);) {
      if (line.empty() || line[0] == '#') continue;
      Change c;
      c.line = line;
      std::istringstream cells(line);
      cells >> c.zone >> c.year >> c.month >> c.weeks >> c.weekday >> c.hour >> c.minute >> c.day >>
          c.fraction >> c.minutesBefore >> c.minutesAfter;
      EXPECT_TRUE(cells) << line;
      changes.push_back(c);
    }
    return changes;
  }();
  return s_Changes;
}

TEST(RefDayAgainstZones, TableHoldsTheChangesOfTenZones) {
  const std::vector<Change>& changes = GetChanges();
  EXPECT_EQ(changes.size(), 1215u);
  int zones = 0;
  std::string last;
  for (const Change& change : changes) {
    if (change.zone != last) ++zones;
    last = change.zone;
  }
  EXPECT_EQ(zones, 10);
}

TEST(RefDayAgainstZones, EveryChangeIsFoundAsTheNthOrTheLastWeekday) {
  int forms = 0;
  for (const Change& change : GetChanges()) {
    for (const char week : change.weeks) {
      if (week == ',') continue;
      int day = 0;
      double fraction = 0.0;
      RefDay(day, fraction, change.year, change.month, static_cast<short>(week - '0'), change.weekday,
             change.hour, change.minute);
      EXPECT_EQ(day, change.day) << change.line;
      EXPECT_NEAR(fraction, change.fraction, 1e-14) << change.line;
      ++forms;
    }
  }
  EXPECT_EQ(forms, 1573);  // 358 changes are on a fourth weekday that is the last one too
}

// The same moments, in Universal Time, are where the zone files move the clock.
TEST(RefDayAgainstZones, TheClockMovesAtEveryOneOfThem) {
  constexpr double kSecond = 1.0 / 86400.0;
  for (const Change& change : GetChanges()) {
    const short week = static_cast<short>(change.weeks.back() - '0');
    int day = 0;
    double fraction = 0.0;
    RefDay(day, fraction, change.year, change.month, week, change.weekday, change.hour, change.minute);
    const double moment = day + fraction - change.minutesBefore / 1440.0;
    const auto minutesAt = [&change](double jd) {
      return getLocalUTCDeltaForTimezone(change.zone.c_str(), jd) * 1440.0;
    };
    EXPECT_NEAR(minutesAt(moment - kSecond), change.minutesBefore, 1e-9) << change.line;
    EXPECT_NEAR(minutesAt(moment), change.minutesAfter, 1e-9) << change.line;
  }
}

}  // namespace
}  // namespace CommonInterfaces
