// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/text_table.h"

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "scene/frame_helpers.h"
#include "skyview/almanac/local_clock.h"
#include "skyview/almanac/night_cells.h"
#include "skyview/options/almanac_group.h"
#include "skyview/options/day_span.h"
#include "skyview/options/parse_groups.h"

using namespace skyview;

TEST(TextTable, ColumnsAreAsWideAsTheirLongestCell) {
  TextTable table({{Align::kLeft}, {Align::kRight}, {Align::kLeft, 4}});
  table.AddRow({"Тело", "mag", "kind"});
  EXPECT_FALSE(table.HasRows());
  table.AddRow({"Io", "5.0", "spacecraft"});
  table.AddRow({"Europa", "-12.25"});
  EXPECT_TRUE(table.HasRows());
  EXPECT_EQ(table.Format(1),
            " Тело       mag  kind\n"
            " Io         5.0  spa.\n"
            " Europa  -12.25\n");
}

TEST(TextTable, CharactersAreNotCut) {
  EXPECT_EQ(CutTo("Größe", 5), "Größe");
  EXPECT_EQ(CutTo("Größenklasse", 4), "Grö.");
}

TEST(TextTable, ListsAreBrokenBetweenItems) {
  EXPECT_EQ(WrapList("kinds:", {"one", "two three", "four"}, 16, 2), "kinds: one,\n  two three,\n  four\n");
  EXPECT_EQ(WrapList("", {"one", "two"}, 80, 2), "one, two\n");
}

TEST(NightCells, AnglesAndPlacesAreShort) {
  constexpr double kArcsecond = astro::kRadiansPerArcsecond;
  EXPECT_EQ(FormatShortSize(45.53 * kArcsecond), "45.5\"");
  EXPECT_EQ(FormatShortSize(99.96 * kArcsecond), "1.7'");
  EXPECT_EQ(FormatShortSize(1986.0 * kArcsecond), "33'");
  EXPECT_EQ(FormatShortSize(10800.0 * kArcsecond), "3.0°");
  EXPECT_EQ(FormatShortSize(0.0), "");
  EXPECT_EQ(FormatDegrees(-0.2 * scene::kRadiansPerDegree), "0°");
  EXPECT_EQ(FormatDegrees(53.6 * scene::kRadiansPerDegree), "54°");
  EXPECT_EQ(FormatMagnitude(-2.67), "-2.7");
  EXPECT_EQ(FormatMagnitude(static_cast<double>(kUnknownStarMagnitude)), "");
}

TEST(NightCells, DirectionsAndPlacesAreInTheLanguage) {
  host_test::FrameFixture f;
  EXPECT_EQ(FormatTowards(359.0 * scene::kRadiansPerDegree), "N");
  EXPECT_EQ(FormatTowards(230.0 * scene::kRadiansPerDegree), "SW");
  EXPECT_EQ(FormatPlace({13.4 * scene::kRadiansPerDegree, 52.5 * scene::kRadiansPerDegree, 0.0}),
            "52.50° N, 13.40° E");
  EXPECT_EQ(FormatPlace({-70.0 * scene::kRadiansPerDegree, -33.1 * scene::kRadiansPerDegree, 0.0}),
            "33.10° S, 70.00° W");
}

namespace {

LocalClock ClockOf(const char* zone) {
  CommonInterfaces::Camera camera(1);
  camera.SetDisplayTimeZoneName(zone);
  return LocalClock(camera);
}

scene::SkyMoment At(const CalendarDate& date) {
  int day = 0;
  double fraction = 0.0;
  DJ(date, day, fraction);
  return scene::MakeMoment(day, fraction);
}

}  // namespace

TEST(LocalClock, ShowsTheTimeOfItsZone) {
  const LocalClock clock = ClockOf("Europe/Berlin");
  const auto winter = At({2027, 1, 15, 23, 30, 0.0}), summer = At({2027, 7, 15, 22, 30, 0.0});
  EXPECT_EQ(clock.FormatMoment(winter), "2027-01-16 00:30");
  EXPECT_EQ(clock.FormatTime(summer), "00:30");
  EXPECT_EQ(clock.FormatDay(summer), "2027-07-16");
  EXPECT_EQ(clock.FormatOffset(winter), "+01:00");
  EXPECT_EQ(clock.FormatOffset(summer), "+02:00");
  EXPECT_EQ(clock.GetZone(), "Europe/Berlin");
  EXPECT_EQ(ClockOf("").GetZone(), "UTC");
  EXPECT_EQ(ClockOf("").FormatOffset(winter), "+00:00");
  EXPECT_EQ(FormatOffset(-3.5 / 24.0), "-03:30");
}

// Clocks were put forward at midnight in Havana on 8 March 2026: the day began at 1 o'clock, 5 h UT.
TEST(LocalClock, MidnightThatIsSkippedIsTheChange) {
  const auto day = ParseDaySpan("2026-03-08");
  ASSERT_TRUE(day);
  const auto begin = ClockOf("America/Havana").FindMidnight(day->first);
  EXPECT_EQ(begin.day + begin.fraction,
            At({2026, 3, 8, 5, 0, 0.0}).day + At({2026, 3, 8, 5, 0, 0.0}).fraction);
  const auto usual = ClockOf("Europe/Berlin").FindMidnight(day->first);
  EXPECT_NEAR(usual.fraction, -0.5 - 1.0 / 24.0 + 1.0, 1e-9);  // 23 h UT of the day before
}

TEST(DaySpan, DaysMonthsAndYears) {
  EXPECT_EQ(ParseDaySpan("2027-03-05")->GetCount(), 1);
  EXPECT_EQ(ParseDaySpan("2027-03-05..2027-03-06")->GetCount(), 2);
  EXPECT_EQ(ParseMonth("2028-02")->GetCount(), 29);
  EXPECT_EQ(ParseDaySpan("2027-11..2028-02")->GetCount(), 30 + 31 + 31 + 29);
  EXPECT_EQ(ParseYear("2027")->GetCount(), 365);
  EXPECT_EQ(ParseYear("1582")->GetCount(), 355);  // ten days were left out
  EXPECT_EQ(ParseDaySpan("-0586")->GetCount(), 365);
  for (const char* bad : {"", "2027-03-05..", "..2027", "2027-03-06..2027-03-05", "2027-02-30", "2027-13",
                          "27", "2027-03-05T10:00", "2027-03-05..2027-03-06..2027-03-07", "1000..2000"})
    EXPECT_FALSE(ParseDaySpan(bad)) << bad;
  EXPECT_FALSE(ParseMonth("2027"));
  EXPECT_FALSE(ParseYear("2027-01"));
}

TEST(AlmanacOptions, ApertureAndEquipmentTellEachOther) {
  EquipmentOptions options;
  EXPECT_EQ(options.GetEquipment(), Equipment::kBinoculars);
  EXPECT_EQ(options.GetAperture(), 50.0);
  options.aperture = 100.0;
  EXPECT_EQ(options.GetEquipment(), Equipment::kTelescope);
  options.aperture = 7.0;
  EXPECT_EQ(options.GetEquipment(), Equipment::kEye);
  options.equipment = Equipment::kTelescope;
  EXPECT_EQ(options.GetEquipment(), Equipment::kTelescope);
  EXPECT_EQ(options.GetAperture(), 7.0);
  options.aperture.reset();
  EXPECT_EQ(options.GetAperture(), 200.0);
}
