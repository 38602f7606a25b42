// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sound zone files against the clocks of the C library: from the first change on, which a zone's mean time
// stands before, and by the footer's rule.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "tests/utils/zone_file_builder.h"
#include "utils/timezone.h"

namespace {

using fuzz::Input;
using fuzz::Require;

constexpr long long kFirst = -3000000000LL, kLast = 4000000000LL;  // seconds since 1970: 1874 to 2096

int TakeOffset(Input& input) { return (input.TakeBelow(105) - 48) * 900; }  // -12 to 14 hours

std::string FormatHours(int seconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%s%d:%02d", seconds < 0 ? "-" : "", std::abs(seconds) / 3600,
                std::abs(seconds) / 60 % 60);
  return text;
}

// A day of each year as a rule has it, and which one it is, to some days.
struct RuleDay {
  std::string text;
  int number;
};

RuleDay TakeDay(Input& input) {
  RuleDay day;
  switch (input.TakeBelow(3)) {
    case 0:
      day.number = 1 + input.TakeBelow(365);
      day.text = "J" + std::to_string(day.number);
      break;
    case 1:
      day.number = input.TakeBelow(366);
      day.text = std::to_string(day.number);
      break;
    default: {
      const int month = 1 + input.TakeBelow(12), week = 1 + input.TakeBelow(5);
      day.number = (month - 1) * 61 / 2 + week * 7 - 3;
      day.text =
          "M" + std::to_string(month) + "." + std::to_string(week) + "." + std::to_string(input.TakeBelow(7));
    }
  }
  if (input.TakeBool()) day.text += "/" + FormatHours(input.TakeBelow(25) * 3600);
  return day;
}

// The C library looks at one year alone, that of Universal Time: where days change places between one year
// and the next, or fall into another year there, it does not say which of them was the last one.
bool StayInTheirYear(const RuleDay& one, const RuleDay& other) {
  constexpr int kYear = 366, kMargin = 14;
  const auto isInside = [](int day) { return day > kMargin && day < kYear - kMargin; };
  return isInside(one.number) && isInside(other.number) && std::abs(one.number - other.number) > kMargin;
}

ZoneFileBuilder TakeZone(Input& input) {
  ZoneFileBuilder zone;
  zone.types.clear();
  zone.names = std::string("STD\0DST\0", 8);
  for (int count = 1 + input.TakeBelow(5); count > 0; --count) {
    const bool isDaylight = input.TakeBool();
    zone.types.push_back({TakeOffset(input), isDaylight, static_cast<unsigned char>(isDaylight ? 4 : 0)});
  }
  long long time = kFirst;
  for (int count = 1 + input.TakeBelow(20); count > 0; --count) {
    time += 86400LL * (2 + input.TakeBelow(4000)) + input.TakeBelow(65536);
    if (time >= kLast) break;
    zone.changes.push_back(
        {time, static_cast<unsigned char>(input.TakeBelow(static_cast<int>(zone.types.size())))});
  }
  // The footer's rule goes on from the last change: its standard time is that of the last type.
  const int last = zone.types[zone.changes.empty() ? 0 : zone.changes.back().type].offset;
  std::string footer = "STD" + FormatHours(-last);
  if (input.TakeBool()) {
    const RuleDay begin = TakeDay(input), end = TakeDay(input);
    if (StayInTheirYear(begin, end))
      footer += "DST" + FormatHours(-last - 3600) + "," + begin.text + "," + end.text;
  }
  zone.footer = "\n" + footer + "\n";
  return zone;
}

// What the C library's time does not hold; and the footer's rule in years up to 1970: the GNU C library
// counts every one of them from the beginning of 1970.
bool IsBeyondTheOracle(const ZoneFileBuilder& zone, long long seconds) {
  if (static_cast<std::time_t>(seconds) != seconds) return true;
  constexpr long long kEndOf1970 = 365 * 86400;
  return seconds >= zone.changes.back().time && seconds < kEndOf1970 + 86400;
}

double OffsetOfLibrary(long long seconds) {
  const auto moment = static_cast<std::time_t>(seconds);
  std::tm local{};
  Require(localtime_r(&moment, &local) != nullptr, "the C library knows the moment");
  return static_cast<double>(local.tm_gmtoff) / 86400.0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static unsigned counter = 0;
  Input input(data, size);
  const ZoneFileBuilder zone = TakeZone(input);
  if (zone.changes.empty()) return 0;
  const auto bytes = zone.Build();
  const std::string name = "Fuzz/Clock" + std::to_string(counter++);
  const std::string file = "data/media/zoneinfo/" + name;
  const std::string path = fuzz::Scratch::Get().Write(file, bytes.data(), bytes.size());
  Require(isTimezoneKnown(name.c_str()), "a sound zone file can be read");
  setenv("TZ", (":" + path).c_str(), 1);
  tzset();
  const long long first = zone.changes.front().time;
  for (int i = 0; i < 40; ++i) {
    long long moment = first + input.TakeBits<std::uint32_t>() % static_cast<unsigned>(kLast - first);
    if (i < static_cast<int>(zone.changes.size()))
      moment = zone.changes[static_cast<std::size_t>(i)].time + i % 3 - 1;
    if (moment < first || IsBeyondTheOracle(zone, moment)) continue;
    // Whole seconds are further apart than the doubles of Julian dates.
    const double julian = 2440587.5 + static_cast<double>(moment) / 86400.0;
    const double delta = getLocalUTCDeltaForTimezone(name.c_str(), julian);
    const double expected = OffsetOfLibrary(moment);
    Require(std::abs(delta - expected) < 1e-9, "clocks show what those of the C library show");
  }
  fuzz::Scratch::Get().Remove(file);
  return 0;
}
