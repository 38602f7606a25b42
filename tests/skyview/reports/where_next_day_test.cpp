// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// The Moon comes fifty minutes later each day, so that in a month it lacks one rise, one transit and one
// set: that day is answered with the next day's, and its date.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "skyview/small_sky.h"

namespace {

constexpr const char* kEvents[] = {"Rises: ", "Transit: ", "Sets: "};
constexpr int kDays = 31;

// What stands behind a word up to the comma: "00:48", or with the date of another day "2026-01-04 00:48".
std::string Told(const std::string& text, const std::string& word) {
  const auto at = text.find(word);
  if (at == std::string::npos) return "";
  const auto from = at + word.size();
  return text.substr(from, text.find(',', from) - from);
}

std::string DayText(int day) { return (day < 10 ? "2026-01-0" : "2026-01-") + std::to_string(day); }

}  // namespace

TEST(WhereNextDay, EventThatTheDayLacksIsThatOfTheNextWithItsDate) {
  host_test::SmallSky sky;
  std::vector<std::map<std::string, std::string>> days(kDays + 1);
  for (int day = 1; day <= kDays; ++day) {
    const std::vector<std::string> arguments = {
        "where",  "Moon",          "--place", "52.5,13.4",
        "--zone", "Europe/Berlin", "--time",  DayText(day) + "T22:00"};
    ASSERT_EQ(sky.Run(arguments), 0) << sky.errors.str();
    for (const char* event : kEvents)
      days[static_cast<std::size_t>(day)][event] = Told(sky.output.str(), event);
  }
  for (const char* event : kEvents) {
    int lacking = 0;
    for (int day = 1; day < kDays; ++day) {
      const std::string told = days[static_cast<std::size_t>(day)][event];
      if (told.size() == 5) continue;  // a clock alone: of the day
      ++lacking;
      EXPECT_EQ(told, DayText(day + 1) + " " + days[static_cast<std::size_t>(day + 1)][event])
          << event << day;
      EXPECT_LT(told.substr(11), "02:00") << "the day ended before";
    }
    EXPECT_EQ(lacking, 1) << event;
  }
}
