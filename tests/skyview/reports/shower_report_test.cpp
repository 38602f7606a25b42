// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/shower_report.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "scene/frame_helpers.h"
#include "scene/perseids.h"
#include "skyview/small_sky.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;
using host_test::SmallSky;

namespace {

// A shower of August, one that lasts across the new year, and one whose radiant never rises in Berlin.
constexpr const char* kShowers =
    "6101\tPerseids;17;7;12;8;24;8;PER;109P/Swift-Tuttle;3;12;+58\n"
    "6102\tQuadrantids;28;12;3;1;12;1;QUA;2003 EH1;15;20;+49\n"
    "6103\tSoutherners;1;8;20;8;30;8;SOU;;12;0;-80\n";

// The shipped texts with these showers in place of the shipped ones.
std::string WithShowers(const std::string& language) {
  const std::string shipped = host_test::ShippedStrings(language);
  std::string text;
  for (std::size_t begin = 0; begin < shipped.size();) {
    const std::size_t end = std::min(shipped.find('\n', begin), shipped.size() - 1) + 1;
    const std::string line = shipped.substr(begin, end - begin);
    if (!(line.starts_with("61") && line.find('\t') == 4)) text += line;
    begin = end;
  }
  return text + kShowers;
}

void WriteShowers(const SmallSky& sky) {
  sky.dir.Write("data/qxstrings.txt", WithShowers("en"));
  for (const char* language : {"en", "de", "ru"}) {
    sky.dir.Write(std::string("data/languages/") + language + "/qxstrings.txt", WithShowers(language));
  }
}

const std::vector<std::string> kAugust = {"--place", "52.5,13.4", "--time",   "2026-08-12T22:00Z",
                                          "--look",  "40,40",     "--showers"};

std::vector<std::string> August(const std::vector<std::string>& more) {
  auto arguments = kAugust;
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

}  // namespace

TEST(ShowerReport, ListsTheActiveOnesTheNearestMaximumFirst) {
  SmallSky sky;
  WriteShowers(sky);
  ASSERT_EQ(sky.Run(kAugust), 0) << sky.errors.str();
  const std::string text = sky.output.str();
  const auto heading = text.find("Meteor showers active on 12 August 2026: 2\n");
  const auto perseids = text.find("  Perseids (PER): radiant RA 3h12m, Dec +58°, azimuth "),
             southerners = text.find("  Southerners (SOU): radiant RA 12h00m, Dec -80°, azimuth ");
  ASSERT_NE(heading, std::string::npos) << text;
  ASSERT_NE(perseids, std::string::npos) << text;
  ASSERT_NE(southerners, std::string::npos) << text;
  EXPECT_LT(heading, perseids);
  EXPECT_LT(perseids, southerners);
  EXPECT_NE(text.find(", peak today\n", perseids), std::string::npos);
  EXPECT_NE(text.find(", days to the peak: 8\n", southerners), std::string::npos);
  EXPECT_EQ(text.find("Quadrantids"), std::string::npos);
}

// From sidereal time, hour angle and declination (Meeus 1998, Astronomical Algorithms, chapters 12 and 13);
// the place of date is good to 0.1 degree.
TEST(ShowerReport, SaysWhereTheRadiantStands) {
  SmallSky sky;
  WriteShowers(sky);
  ASSERT_EQ(sky.Run(kAugust), 0);
  const std::string text = sky.output.str();
  const auto at = text.find("azimuth ", text.find("Perseids"));
  double azimuth = 0.0, altitude = 0.0;
  ASSERT_EQ(std::sscanf(text.c_str() + at, "azimuth %lf°, altitude %lf°", &azimuth, &altitude), 2) << text;
  constexpr double kDegree = kRadiansPerDegree;
  // Greenwich mean sidereal time of 2026-08-12 22:00 UT: d = 9720.4166667 days since J2000.
  const double sidereal = std::fmod(280.46061837 + 360.98564736629 * 9720.416666666667 + 13.4, 360.0);
  const double hour = (sidereal - 48.4) * kDegree, dec = 58.1 * kDegree,
               lat = 52.5 * kDegree;  // of date, 0.1 degree
  const double height =
      std::asin(std::sin(lat) * std::sin(dec) + std::cos(lat) * std::cos(dec) * std::cos(hour));
  const double turn =
      std::atan2(std::sin(hour), std::cos(hour) * std::sin(lat) - std::tan(dec) * std::cos(lat));
  EXPECT_NEAR(altitude, height / kDegree, 0.3);
  EXPECT_NEAR(azimuth, std::fmod(turn / kDegree + 180.0, 360.0), 0.5);
}

TEST(ShowerReport, IsInTheLanguage) {
  SmallSky sky;
  WriteShowers(sky);
  ASSERT_EQ(sky.Run(August({"--language", "de"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Meteorströme am 12. August 2026: 2\n")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("Radiant RA 3h12m, Dekl. +58°, Azimut "));
  EXPECT_TRUE(sky.Printed(", Tage bis zum Maximum: 8\n"));
  ASSERT_EQ(sky.Run(August({"--language", "ru"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("радиант 3ч12м, склонение +58°")) << sky.output.str();
}

TEST(ShowerReport, DayIsThatOfTheZone) {
  SmallSky sky;
  WriteShowers(sky);
  ASSERT_EQ(sky.Run({"--zone", "Europe/Berlin", "--time", "2026-08-12T00:30", "--showers"}), 0);
  EXPECT_TRUE(sky.Printed("active on 12 August 2026")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("peak today"));
}

TEST(ShowerReport, SaysNoDirectionWhereThereIsNoHorizon) {
  FrameFixture f;
  f.SetTime(2026, 8, 12, 22, 0);
  ObserverFrame observer = PrepareObserver(f.camera);
  observer.horizon = false;
  Shower perseids = host_test::MakePerseids();
  std::snprintf(perseids.record.name, sizeof perseids.record.name, "Perseids");
  std::snprintf(perseids.record.code, sizeof perseids.record.code, "PER");
  perseids.record.raHours = 3;
  perseids.record.raMinutes = 12;
  perseids.record.decDegrees = 58;
  EXPECT_EQ(MakeShowerReport(f.camera, observer, {perseids}),
            "Meteor showers active on 12 August 2026: 1\n"
            "  Perseids (PER): radiant RA 3h12m, Dec +58°, peak today\n");
}

TEST(ShowerReport, TableWithoutShowersIsAnEmptyList) {
  SmallSky sky;
  std::string text = WithShowers("en");
  text.resize(text.find("6101\t"));
  sky.dir.Write("data/languages/en/qxstrings.txt", text);
  ASSERT_EQ(sky.Run(kAugust), 0);
  EXPECT_EQ(sky.errors.str(), "");
  EXPECT_TRUE(sky.Printed("Meteor showers active on 12 August 2026: 0\n")) << sky.output.str();
}

TEST(ShowerReport, NothingOfItWithoutTheOption) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"--time", "2026-08-12T22:00Z"}), 0);
  EXPECT_FALSE(sky.Printed("Meteor"));
}
