// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Against the zone files of the system (Debian: package tzdata) and against its C library.
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "companions/utils/zones/zone_calendar.h"
#include "companions/utils/zones/zone_file.h"
#include "support/debug_capture.h"
#include "utils/file.h"
#include "utils/timezone.h"

namespace {

using namespace utils_internal;

constexpr char kZoneFolder[] = "/usr/share/zoneinfo/";
const char* const kZones[] = {
    "Europe/Berlin",       "Europe/London",      "Europe/Dublin",   "Europe/Moscow",
    "America/New_York",    "America/Sao_Paulo",  "America/Caracas", "America/St_Johns",
    "America/Nuuk",        "America/Santiago",   "Asia/Kolkata",    "Asia/Kathmandu",
    "Asia/Jerusalem",      "Asia/Gaza",          "Asia/Tehran",     "Africa/Casablanca",
    "Australia/Lord_Howe", "Australia/Adelaide", "Pacific/Apia",    "Pacific/Auckland",
    "Pacific/Kiritimati",  "Antarctica/Troll",   "Etc/GMT+5",       "UTC"};

long long UnixTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return DayFromDate(year, month, day) * kSecondsPerDay + hour * 3600 + minute * 60 + second;
}

double JulianDate(long long unixTime) { return 2440587.5 + static_cast<double>(unixTime) / 86400.0; }

// The offset in seconds.
long GetOffset(const char* zone, long long unixTime) {
  return std::lround(getLocalUTCDeltaForTimezone(zone, JulianDate(unixTime)) * 86400.0);
}

constexpr long Hours(int hours, int minutes = 0, int seconds = 0) {
  return hours * 3600L + minutes * 60 + seconds;
}

// The facts below are those of the IANA time zone database (release 2025b), from its files europe,
// northamerica, southamerica, asia and australasia.

TEST(KnownZones, BerlinSummerAndWinter) {
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2000, 1, 1, 12)), Hours(1));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2000, 7, 1, 12)), Hours(2));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2024, 3, 31, 0, 59, 59)), Hours(1));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2024, 3, 31, 1)), Hours(2));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2024, 10, 27, 0, 59, 59)), Hours(2));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2024, 10, 27, 1)), Hours(1));
}

TEST(KnownZones, BerlinHistory) {
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(1850, 1, 1)),
            Hours(0, 53, 28));  // mean time, until 1893-04-01
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(1893, 4, 2)), Hours(1));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(1945, 6, 15)), Hours(3));  // double summer time
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(1965, 7, 1)), Hours(1));   // no summer time from 1950 to 1979
}

TEST(KnownZones, BerlinIn2050FromTheRule) {
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2050, 3, 27, 0, 59, 59)), Hours(1));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2050, 3, 27, 1)), Hours(2));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2050, 10, 30, 0, 59, 59)), Hours(2));
  EXPECT_EQ(GetOffset("Europe/Berlin", UnixTime(2050, 10, 30, 1)), Hours(1));
}

TEST(KnownZones, NewYork) {
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(1883, 11, 18, 16, 59, 59)), -Hours(4, 56, 2));
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(1883, 11, 18, 17)), -Hours(5));
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(1944, 1, 1)), -Hours(4));  // war time
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(1974, 1, 20)),
            -Hours(4));  // daylight time from 6 January 1974
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(2006, 3, 20)),
            -Hours(5));  // from the first Sunday of April
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(2007, 3, 20)),
            -Hours(4));  // from the second Sunday of March
  EXPECT_EQ(GetOffset("America/New_York", UnixTime(2050, 7, 1)), -Hours(4));
}

TEST(KnownZones, Kolkata) {
  EXPECT_EQ(GetOffset("Asia/Kolkata", UnixTime(1850, 1, 1)), Hours(5, 53, 28));
  EXPECT_EQ(GetOffset("Asia/Kolkata", UnixTime(1943, 1, 1)), Hours(6, 30));
  EXPECT_EQ(GetOffset("Asia/Kolkata", UnixTime(2024, 7, 1)), Hours(5, 30));
  EXPECT_EQ(GetOffset("Asia/Kolkata", UnixTime(2050, 7, 1)), Hours(5, 30));
}

TEST(KnownZones, LordHoweHasHalfAnHourOfDaylightTime) {
  EXPECT_EQ(GetOffset("Australia/Lord_Howe", UnixTime(2024, 1, 15)), Hours(11));
  EXPECT_EQ(GetOffset("Australia/Lord_Howe", UnixTime(2024, 7, 15)), Hours(10, 30));
  EXPECT_EQ(GetOffset("Australia/Lord_Howe", UnixTime(1983, 1, 15)),
            Hours(11, 30));  // a whole hour until 1985
  EXPECT_EQ(GetOffset("Australia/Lord_Howe", UnixTime(2050, 1, 15)), Hours(11));
}

TEST(KnownZones, SaoPauloGaveUpDaylightTimeIn2019) {
  EXPECT_EQ(GetOffset("America/Sao_Paulo", UnixTime(1900, 1, 1)), -Hours(3, 6, 28));
  EXPECT_EQ(GetOffset("America/Sao_Paulo", UnixTime(2018, 12, 15)), -Hours(2));
  EXPECT_EQ(GetOffset("America/Sao_Paulo", UnixTime(2019, 12, 15)), -Hours(3));
  EXPECT_EQ(GetOffset("America/Sao_Paulo", UnixTime(2050, 12, 15)), -Hours(3));
}

TEST(KnownZones, ApiaChangedTheSideOfTheDateLine) {
  EXPECT_EQ(GetOffset("Pacific/Apia", UnixTime(2011, 12, 30, 9, 59, 59)), -Hours(10));
  EXPECT_EQ(GetOffset("Pacific/Apia", UnixTime(2011, 12, 30, 10)), Hours(14));
}

TEST(KnownZones, EtcNamesHaveTheirSignTheOtherWayRound) {
  EXPECT_EQ(GetOffset("Etc/GMT+5", UnixTime(2024, 1, 1)), -Hours(5));
}

TEST(KnownZones, AreReadWithoutAnyMessage) {
  test_support::DebugCapture capture;
  for (const char* zone : kZones) GetOffset(zone, 0);
  EXPECT_TRUE(capture.lines.empty());
}

// The C library's local time while it lives.
class LibraryZone {
 public:
  explicit LibraryZone(const char* zone) {
    setenv("TZ", (std::string(":") + zone).c_str(), 1);
    tzset();
  }
  ~LibraryZone() {
    unsetenv("TZ");
    tzset();
  }
  long GetOffset(long long unixTime) const {
    const auto time = static_cast<std::time_t>(unixTime);
    std::tm local;
    return localtime_r(&time, &local) ? local.tm_gmtoff : -999999;
  }
};

void ExpectAsTheLibrary(const char* name, long long from, long long to, long long step) {
  const LibraryZone library(name);
  int moments = 0;
  for (long long time = from; time < to; time += step, ++moments) {
    ASSERT_EQ(GetOffset(name, time), library.GetOffset(time)) << name << " at " << time;
  }
  EXPECT_GT(moments, 300);
}

TEST(CLibrary, AgreesFrom1970To2037) {
  for (const char* name : kZones) ExpectAsTheLibrary(name, 0, UnixTime(2037, 12, 31), 3456789);
}

TEST(CLibrary, AgreesWhereTheRuleHolds) {
  if (sizeof(std::time_t) < 8) GTEST_SKIP() << "times of 32 bits end in 2038";
  for (const char* name : kZones)
    ExpectAsTheLibrary(name, UnixTime(2038, 1, 1), UnixTime(2200, 1, 1), 7654321);
}

std::vector<unsigned char> ReadBytes(const std::string& path) {
  MFile file;
  if (!file.Open(path.c_str(), MFile::kRead)) return {};
  std::vector<unsigned char> bytes(static_cast<std::size_t>(file.GetLength()));
  bytes.resize(file.Read(bytes.data(), static_cast<unsigned>(bytes.size())));
  return bytes;
}

Zone ParseSystemZone(const std::string& name) {
  std::string problem;
  const auto zone = ParseZoneFile(ReadBytes(kZoneFolder + name), problem);
  EXPECT_TRUE(zone) << name << ": " << problem;
  return zone.value_or(Zone());
}

// One second before and at every change of the tables.
TEST(CLibrary, AgreesAtEveryChange) {
  for (const char* name : kZones) {
    const LibraryZone library(name);
    for (long long change : ParseSystemZone(name).changes) {
      if (change < INT32_MIN || change > INT32_MAX) continue;
      ASSERT_EQ(GetOffset(name, change - 1), library.GetOffset(change - 1)) << name << " before " << change;
      ASSERT_EQ(GetOffset(name, change), library.GetOffset(change)) << name << " at " << change;
    }
  }
}

// The folder "right" has the zones for clocks that count leap seconds. They have no rule: the table is all
// they know.
TEST(LeapSecondZones, GiveTheSameOffsets) {
  if (ReadBytes(std::string(kZoneFolder) + "right/Europe/Berlin").empty()) GTEST_SKIP() << "no such folder";
  const Zone plain = ParseSystemZone("Europe/Berlin"), leap = ParseSystemZone("right/Europe/Berlin");
  ASSERT_FALSE(leap.changes.empty());
  EXPECT_GT(leap.changes.back(), UnixTime(2017, 1, 1));  // the time of the last leap second so far
  for (long long change : plain.changes) {
    if (change >= leap.changes.back()) break;
    for (long long time : {change - 1, change})
      EXPECT_EQ(leap.GetOffset(time), plain.GetOffset(time)) << time;
  }
}

TEST(DamagedSystemZone, CutAtEveryLengthIsRefused) {
  const auto whole = ReadBytes(std::string(kZoneFolder) + "Europe/Berlin");
  ASSERT_FALSE(whole.empty());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    std::string problem;
    const std::vector<unsigned char> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_FALSE(ParseZoneFile(cut, problem)) << length;
  }
}

TEST(DamagedSystemZone, EveryByteFlippedStaysInBounds) {
  auto bytes = ReadBytes(std::string(kZoneFolder) + "America/Nuuk");
  ASSERT_FALSE(bytes.empty());
  for (unsigned char& byte : bytes) {
    for (const unsigned char flip : std::initializer_list<unsigned char>{0x01, 0x80, 0xFF}) {
      byte ^= flip;
      std::string problem;
      if (const auto zone = ParseZoneFile(bytes, problem)) {
        for (int year = 1700; year < 2200; year += 100)
          EXPECT_LT(std::abs(zone->GetOffset(UnixTime(year, 7, 1))), 93600);
      }
      byte ^= flip;
    }
  }
}

}  // namespace
