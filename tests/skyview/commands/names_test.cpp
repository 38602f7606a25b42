// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Cities as places, features of surfaces, double stars and asterisms, as the program answers.
#include <gtest/gtest.h>

#include <filesystem>

#include "scene/names_files.h"
#include "skyview/small_sky.h"

namespace {

class Names : public testing::Test {
 protected:
  Names() { host_test::WriteNames(sky.dir); }

  host_test::SmallSky sky;
};

TEST_F(Names, ACityBringsPlaceHeightZoneAndItsName) {
  ASSERT_EQ(sky.Run({"--place", "münchen", "--time", "2026-07-01T12:00"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Place: München\n")) << sky.output.str();
  // 0.84008 and 0.20204 radians: 48.13304 and 11.57604 degrees.
  EXPECT_TRUE(sky.Printed("Coordinates: 11°34'33.") && sky.Printed(" E, 48°07'58."));
  EXPECT_TRUE(sky.Printed("Height: 524 m\n"));
  EXPECT_TRUE(sky.Printed("Local time: 12:00, 01/07/2026 AD (Europe/Berlin, UT+02:00)"));
}

TEST_F(Names, ACityHasItsRussianNameInRussian) {
  ASSERT_EQ(sky.Run({"--place", "Munich", "--language", "ru", "--time", "2026-07-01T12:00"}), 0)
      << sky.errors.str();
  EXPECT_NE(sky.output.str().find("Мюнхен"), std::string::npos) << sky.output.str();
  EXPECT_EQ(sky.output.str().find("Munich"), std::string::npos);
}

TEST_F(Names, AZoneOfTheCommandLineStays) {
  ASSERT_EQ(sky.Run({"--place", "Munich", "--zone", "Asia/Tokyo", "--time", "2026-07-01T12:00"}), 0);
  EXPECT_TRUE(sky.Printed("(Asia/Tokyo, UT+09:00)")) << sky.output.str();
}

TEST_F(Names, OfSeveralCitiesTheLargestIsTakenAndALineSaysSo) {
  ASSERT_EQ(sky.Run({"--place", "Sydney", "--time", "2026-07-01"}), 0);
  EXPECT_EQ(sky.GetErrorLine(),
            "skyview: --place 'Sydney': Sydney, AU, which has the most inhabitants of 2; not Sydney, CA");
  ASSERT_EQ(sky.Run({"--place", "Sydney,CA", "--time", "2026-07-01"}), 0);
  EXPECT_EQ(sky.errors.str(), "");
  EXPECT_TRUE(sky.Printed("America/Glace_Bay"));
}

TEST_F(Names, AnUnknownCityIsRefusedWithLikeOnes) {
  EXPECT_EQ(sky.Run({"--place", "Sidney", "--time", "2026-07-01"}), 1);
  EXPECT_EQ(sky.GetErrorLine(),
            "skyview: --place 'Sidney': no such city; similar: Sydney (LAT,LON takes any place)");
  std::filesystem::remove(sky.dir.Path("data/catalogs/cities.txt"));
  EXPECT_EQ(sky.Run({"--place", "Sydney", "--time", "2026-07-01"}), 1);
  EXPECT_EQ(sky.GetErrorLine(),
            "skyview: --place 'Sydney': the data root has no cities, catalogs:cities.txt");
  std::filesystem::create_directories(sky.dir.Path("data/catalogs/cities.txt"));
  EXPECT_EQ(sky.Run({"--place", "Sydney", "--time", "2026-07-01"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("cities.txt"), std::string::npos) << sky.errors.str();
  EXPECT_NE(sky.GetErrorLine().find("cannot be read"), std::string::npos) << sky.errors.str();
}

TEST_F(Names, WhatLooksLikeCoordinatesIsNoCity) {
  EXPECT_EQ(sky.Run({"--place", "99,13", "--time", "2026-07-01"}), 2);
  EXPECT_EQ(sky.Run({"--place", "", "--time", "2026-07-01"}), 2);
}

TEST_F(Names, ASessionKeepsTheCity) {
  const std::string session = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--place", "мюнхен", "--time", "2026-07-01T12:00", "--save-session", session}), 0);
  ASSERT_EQ(sky.Run({"--session", session}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Height: 524 m\n"));
  EXPECT_TRUE(sky.Printed("(Europe/Berlin, UT+02:00)"));
  ASSERT_EQ(sky.Run({"--session", session, "--language", "ru"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Место: Мюнхен\n")) << sky.output.str();
}

// Tycho: 43.30 S, 11.22 W of the Moon, 85.3 km (IAU); from 400,000 km that is 44 seconds of arc.
TEST_F(Names, WhereSaysOfAFeatureWhereItIsOnItsBody) {
  ASSERT_EQ(sky.Run({"where", "tycho", "--place", "Munich", "--time", "2026-06-27T23:00"}), 0)
      << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Tycho (Moon) - crater\n")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("On the Moon: latitude -43.30°, longitude -11.22° (selenographic"));
  EXPECT_TRUE(sky.Printed("Extent: 85.3 km, in the sky 43."));
  EXPECT_TRUE(sky.Printed("it is day\n"));
  EXPECT_TRUE(sky.Printed("On the visible side, 5"));
  EXPECT_FALSE(sky.Printed("Magnitude"));
  ASSERT_EQ(sky.Run({"where", "Tsiolkovskiy", "--place", "Munich", "--time", "2026-06-27T23:00"}), 0);
  EXPECT_TRUE(sky.Printed("On the far side, 1")) << sky.output.str();
}

// At new Moon the near side is in the dark: 12 August 2026, the day of a solar eclipse.
TEST_F(Names, AtNewMoonTheSunIsDownOnTheNearSide) {
  ASSERT_EQ(sky.Run({"where", "Copernicus", "--place", "Munich", "--time", "2026-08-12T17:46Z"}), 0);
  EXPECT_TRUE(sky.Printed("it is night\n")) << sky.output.str();
  ASSERT_EQ(sky.Run({"where", "Tsiolkovskiy", "--place", "Munich", "--time", "2026-08-12T17:46Z"}), 0);
  EXPECT_TRUE(sky.Printed("it is day\n")) << sky.output.str();
}

TEST_F(Names, WhereAndLookSayThePairsOfAStar) {
  const std::string pair =
      "Double star AB (STF 1744): magnitudes 2.3 and 4.0, 14.4 arcsec apart, position angle 152°\n";
  ASSERT_EQ(sky.Run({"where", "Mizar", "--place", "Munich", "--time", "2026-06-27T23:00"}), 0);
  EXPECT_TRUE(sky.Printed(pair)) << sky.output.str();
  ASSERT_EQ(sky.Run({"--look", "Mizar@100", "--place", "Munich", "--time", "2026-06-27T23:00"}), 0);
  EXPECT_TRUE(sky.Printed("Mizar (ζ UMa, HR 5054, HIP 65378)\n" + pair)) << sky.output.str();
  ASSERT_EQ(sky.Run({"where", "Vega", "--place", "Munich", "--time", "2026-06-27T23:00"}), 0);
  EXPECT_FALSE(sky.Printed("Double star")) << "the magnitude of the companion is not known";
}

TEST_F(Names, AnAsterismIsAnsweredByEveryCommand) {
  const std::vector<std::string> view = {"--place",          "Munich", "--time",
                                         "2026-01-15T23:00", "--look", "Orion's Belt"};
  const auto run = [&](std::vector<std::string> words) {
    words.insert(words.end(), view.begin(), view.end());
    return sky.Run(words);
  };
  ASSERT_EQ(run({"where", "Gürtel des Orion"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Orion's Belt - asterism\n")) << sky.output.str();
  ASSERT_EQ(run({"why", "three kings"}), 0);
  EXPECT_TRUE(
      sky.Printed("Orion's Belt: not drawn\n- asterisms are switched off (--set cnst.PatternsVisible=3)"))
      << sky.output.str();
}

}  // namespace
