// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/timezone.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/zone_file_builder.h"

namespace {

using test_support::DebugCapture;
using test_support::TempRoots;
using Lines = std::vector<std::string>;

constexpr double kJ2000 = 2451545.0;
constexpr double kHour = 1.0 / 24.0;

// Zones are kept for the process: each test has names of its own.
void WriteZone(const TempRoots& roots, const std::string& name, const ZoneFileBuilder& builder) {
  const auto bytes = builder.Build();
  roots.dir.Write("data/media/zoneinfo/" + name, std::string(bytes.begin(), bytes.end()));
}

TEST(LocalTimeOffset, ComesFromTheDataRootInDays) {
  TempRoots roots;
  ZoneFileBuilder builder;
  builder.types = {{-19800, 0, 0}};
  WriteZone(roots, "Test/Root", builder);
  EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone("Test/Root", kJ2000), -5.5 * kHour);
}

TEST(LocalTimeOffset, ZoneIsKnownThatHasAFile) {
  TempRoots roots;
  ZoneFileBuilder builder;
  WriteZone(roots, "Test/Known", builder);
  const DebugCapture capture;
  EXPECT_TRUE(isTimezoneKnown("Test/Known"));
  EXPECT_FALSE(isTimezoneKnown(nullptr) || isTimezoneKnown(""));
  EXPECT_TRUE(capture.lines.empty());
  EXPECT_FALSE(isTimezoneKnown("Test/Unknown") || isTimezoneKnown("../Known"));
  EXPECT_EQ(capture.lines.size(), 2u);
}

TEST(LocalTimeOffset, DataRootStandsBeforeTheSystem) {
  TempRoots roots;
  ZoneFileBuilder builder;
  builder.types = {{-3600, 0, 0}};
  WriteZone(roots, "Pacific/Chatham", builder);
  EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone("Pacific/Chatham", kJ2000), -kHour);
}

TEST(LocalTimeOffset, ZoneIsKeptForTheProcess) {
  TempRoots roots;
  ZoneFileBuilder builder;
  WriteZone(roots, "Test/Kept", builder);
  EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone("Test/Kept", kJ2000), kHour);
  std::filesystem::remove(roots.dir.Path("data/media/zoneinfo/Test/Kept"));
  EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone("Test/Kept", kJ2000), kHour);
}

// 2440587.5 is 1970-01-01 00:00. A change at a whole second takes place at the Julian date of that second,
// although the nearest double may lie before it: the 86400 seconds of a day are tried.
TEST(LocalTimeOffset, ChangesAtTheVerySecond) {
  TempRoots roots;
  ZoneFileBuilder builder;
  builder.types = {{0, 0, 0}, {3600, 0, 0}};
  for (int second = 0; second < 86400; second += 617) {
    builder.changes = {{946684800LL + second, 1}};  // 2000-01-01 00:00 and the seconds after it
    const std::string name = "Test/Second" + std::to_string(second);
    WriteZone(roots, name, builder);
    EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone(name.c_str(), 2451544.5 + second / 86400.0), kHour)
        << second;
    EXPECT_DOUBLE_EQ(getLocalUTCDeltaForTimezone(name.c_str(), 2451544.5 + (second - 1) / 86400.0), 0.0)
        << second;
  }
}

TEST(LocalTimeOffset, MomentsWithoutMeasure) {
  TempRoots roots;
  ZoneFileBuilder builder;
  builder.footer = "\nCET-1CEST,M3.5.0,M10.5.0/3\n";
  WriteZone(roots, "Test/Far", builder);
  for (double jd :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), 1e300, -1e300}) {
    EXPECT_GE(getLocalUTCDeltaForTimezone("Test/Far", jd), kHour);
    EXPECT_LE(getLocalUTCDeltaForTimezone("Test/Far", jd), 2 * kHour);
  }
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Far", std::nan("")), 0.0);
}

TEST(LocalTimeOffset, NullAndEmptyGiveZeroWithoutALine) {
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone(nullptr, kJ2000), 0.0);
  EXPECT_EQ(getLocalUTCDeltaForTimezone("", kJ2000), 0.0);
  EXPECT_TRUE(capture.lines.empty());
}

TEST(LocalTimeOffset, UnknownZoneGivesZeroAndOneLineForAllCalls) {
  TempRoots roots;
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Nowhere", kJ2000), 0.0);
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Nowhere", kJ2000 + 1), 0.0);
  EXPECT_EQ(capture.lines, Lines{"Time zone Test/Nowhere not found\n"});
}

TEST(LocalTimeOffset, FolderIsNoZone) {
  TempRoots roots;
  WriteZone(roots, "Test/Folder/Inner", ZoneFileBuilder());
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Folder", kJ2000), 0.0);
  EXPECT_EQ(capture.lines, Lines{"Time zone Test/Folder not found\n"});
}

TEST(LocalTimeOffset, DamagedZoneGivesZeroAndOneLine) {
  TempRoots roots;
  const std::string path = roots.dir.Write("data/media/zoneinfo/Test/Damaged", "TZif2 and no more");
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Damaged", kJ2000), 0.0);
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Damaged", kJ2000), 0.0);
  ASSERT_EQ(capture.lines.size(), 1u);
  EXPECT_NE(capture.lines[0].find("Test/Damaged is damaged: header incomplete\n"), std::string::npos);
}

TEST(LocalTimeOffset, FileMuchTooLongIsDamagedOrCutAtItsRule) {
  TempRoots roots;
  roots.dir.Write("data/media/zoneinfo/Test/Long", std::string(3 << 20, 'x'));
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone("Test/Long", kJ2000), 0.0);
  EXPECT_EQ(capture.lines.size(), 1u);
}

TEST(LocalTimeOffset, NamesThatLeaveTheZoneFolderAreRefused) {
  TempRoots roots;
  const ZoneFileBuilder builder;
  const auto bytes = builder.Build();
  const std::string content(bytes.begin(), bytes.end());
  roots.dir.Write("data/media/Outside", content);
  const std::string absolute = roots.dir.Write("Absolute", content);
  WriteZone(roots, "Test/Inside", builder);
  for (const std::string& name :
       {std::string("../Outside"), std::string("Test/../../Outside"), std::string(".."), std::string("."),
        std::string("./Test/Inside"), absolute, std::string("Test\\Inside"), std::string("Test:Inside"),
        std::string("Test//Inside"), std::string("Test/Inside/"), std::string("/"),
        std::string("Test/Inside "), std::string("Test/.hidden"), std::string(256, 'a')}) {
    DebugCapture capture;
    EXPECT_EQ(getLocalUTCDeltaForTimezone(name.c_str(), kJ2000), 0.0) << name;
    ASSERT_EQ(capture.lines.size(), 1u) << name;
    EXPECT_EQ(capture.lines[0].rfind("Time zone name \"", 0), 0u) << capture.lines[0];
  }
}

TEST(LocalTimeOffset, MessageStaysOneLineWhateverTheName) {
  DebugCapture capture;
  EXPECT_EQ(getLocalUTCDeltaForTimezone("a\nb\x1B[2J%s\x7F", kJ2000), 0.0);
  EXPECT_EQ(capture.lines, Lines{"Time zone name \"a?b?[2J%s?\" is not valid\n"});
}

}  // namespace
