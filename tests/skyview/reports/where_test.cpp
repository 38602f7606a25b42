// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/where.h"

#include <gtest/gtest.h>

#include "scene/orbit_tables.h"
#include "skyview/small_sky.h"

using namespace skyview;
using host_test::SmallSky;

namespace {

const std::vector<std::string> kBerlin = {"--place",       "52.5,13.4", "--zone",
                                          "Europe/Berlin", "--time",    "2026-01-15T22:00"};

std::vector<std::string> Ask(const std::string& name, std::vector<std::string> arguments = kBerlin) {
  arguments.insert(arguments.begin(), {"where", name});
  return arguments;
}

}  // namespace

// Positions and times of PyEphem 4.1.4: astrometric 7h22m25.7s +22d21'40", of date 7h24m01.1s +22d18'37";
// sets 07:05:45, rises 14:36:16, transits 22:48:47 UT.
TEST(Where, PlanetWithAllThatIsKnown) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Ask("Jupiter")), 0) << sky.errors.str();
  for (const char* line :
       {"Jupiter - Planet\n", "Position (J2000): RA 7h22m2", "Position (of date): RA 7h24m0",
        "Direction: azimuth 134°4", "Distance: 4.238", "Magnitude: -2.", "Size: 4", "Rises: 15:36, azimuth ",
        "Transit: 23:4", "Sets: 08:0"}) {
    EXPECT_TRUE(sky.Printed(line)) << line << "\n" << sky.output.str();
  }
}

TEST(Where, SignOfAnAngleStandsBeforeItsDegrees) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"--moving-type", "2", "--place", "52.5,13.4", "--look", "0,-0.1"}), 0)
      << sky.errors.str();
  EXPECT_EQ(sky.output.str().find("\u00B0-"), std::string::npos) << sky.output.str();
}

TEST(Where, PassOfASatelliteIsOnePass) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  for (const char* time : {"2014-01-20T22:30Z", "2014-01-21T05:10Z", "2014-01-21T12:00Z"}) {
    ASSERT_EQ(sky.Run({"where", "ISS (ZARYA)", "--tle", path, "--place", "50.1,8.7", "--time", time}), 0)
        << sky.errors.str();
    const std::string text = sky.output.str();
    const auto minutes = [&text](const std::string& caption) {
      const auto at = text.find(caption);
      const auto colon = text.find(':', at + caption.size());
      return at == std::string::npos
                 ? -1
                 : 60 * std::stoi(text.substr(colon - 2, 2)) + std::stoi(text.substr(colon + 1, 2));
    };
    const int rise = minutes("Rises: "), top = minutes("Transit: "), set = minutes("Sets: ");
    ASSERT_GE(rise, 0) << text;
    EXPECT_LE((top - rise + 1440) % 1440, 8) << text;
    EXPECT_LE((set - rise + 1440) % 1440, 15) << text;
    EXPECT_LE((top - rise + 1440) % 1440, (set - rise + 1440) % 1440) << text;
  }
}

// All that lies north of a parallel is Orion here; what lies south of it belongs to none that has a name.
TEST(Where, TheConstellationIsNamedWhereThereAreBoundaries) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Ask("Sirius")), 0) << sky.errors.str();
  EXPECT_FALSE(sky.Printed("Constellation"));
  sky.dir.Write("data/catalogs/constellation_bounds.txt",
                "Label:text\tOtherLabel:text\tRA:f64\tDec:f64\tEndRA:f64\tEndDec:f64\n"
                "Ori\tXxx\t0\t-0.5\t6.283185\t-0.5\n");
  ASSERT_EQ(sky.Run(Ask("Sirius")), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Constellation: Orion\n")) << sky.output.str();
  ASSERT_EQ(sky.Run(Ask("Canopus")), 0) << sky.errors.str();
  EXPECT_FALSE(sky.Printed("Constellation")) << sky.output.str();
  ASSERT_EQ(sky.Run(Ask("Orion")), 0) << sky.errors.str();
  EXPECT_FALSE(sky.Printed("Constellation: ")) << sky.output.str();
}

TEST(Where, SpeaksTheLanguageOfTheView) {
  SmallSky sky;
  auto arguments = Ask("Jupiter");
  arguments.insert(arguments.end(), {"--language", "de"});
  ASSERT_EQ(sky.Run(arguments), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Aufgang: 15:36, Azimut ")) << sky.output.str();
  arguments.back() = "ru";
  ASSERT_EQ(sky.Run(arguments), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Восход: 15:36, азимут ")) << sky.output.str();
}

TEST(Where, EventThatTheDayLacksIsThatOfTheNext) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Ask("Moon")), 0) << sky.errors.str();
  // 05:11:33, 08:25:15, 11:36:01 UT.
  for (const char* line : {"Rises: 06:1", "Transit: 09:25", "Sets: 12:3", "Distance: 409."}) {
    EXPECT_TRUE(sky.Printed(line)) << line << "\n" << sky.output.str();
  }
  // Two days later it rises only after midnight... the transit of 2026-01-01 is on the same day, its set is
  // not.
  auto arguments =
      Ask("Moon", {"--place", "52.5,13.4", "--zone", "Europe/Berlin", "--time", "2026-01-26T22:00"});
  ASSERT_EQ(sky.Run(arguments), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Sets: 02:") || sky.Printed("Sets: 01:") || sky.Printed("Sets: 03:"))
      << sky.output.str();
}

TEST(Where, CircumpolarAndNeverRisingInWords) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Ask("Canopus")), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Never rises\n")) << sky.output.str();
  EXPECT_FALSE(sky.Printed("Transit")) << sky.output.str();
  auto north = kBerlin;
  north[1] = "70,20";
  ASSERT_EQ(sky.Run(Ask("Capella", north)), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Circumpolar: does not set\n")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("Transit: ")) << sky.output.str();
}

TEST(Where, EveryKindOfObject) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  for (const char* name : {"Sirius", "M42", "Orion", "Sun", "Moon", "Mars", "Ceres", "Halley"}) {
    EXPECT_EQ(sky.Run(Ask(name)), 0) << name << sky.errors.str();
    EXPECT_TRUE(sky.Printed("Position (J2000): RA ")) << name;
  }
  auto arguments =
      Ask("ISS", {"--place", "52.5,13.4", "--zone", "Europe/Berlin", "--time", "2014-01-21T06:00"});
  arguments.insert(arguments.end(), {"--tle", path});
  ASSERT_EQ(sky.Run(arguments), 0) << sky.errors.str();
  // The pass begins 05:01:46 UT on the geometric horizon, culminates 05:07:12, ends 05:12:37 (PyEphem 4.1.4).
  EXPECT_TRUE(sky.Printed("Rises: 06:01") || sky.Printed("Rises: 06:02")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("Sets: 06:13") || sky.Printed("Sets: 06:12")) << sky.output.str();
  EXPECT_TRUE(sky.Printed(" km\n")) << sky.output.str();
}

TEST(Where, NameThatNothingHasIsOneLine) {
  SmallSky sky;
  EXPECT_EQ(sky.Run(Ask("Jupter")), 1);
  EXPECT_NE(sky.GetErrorLine().find("where 'Jupter': no such object; similar: Jupiter"), std::string::npos)
      << sky.errors.str();
}
