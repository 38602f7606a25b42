// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What commands do that no test of their parts sees.
#include <gtest/gtest.h>

#include <filesystem>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"

using host_test::SmallSky;

namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace

TEST(Commands, DrawIsTheDefault) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"--look", "180,30"}), 0) << sky.errors.str();
  const std::string report = sky.output.str();
  ASSERT_EQ(sky.Run({"draw", "--look", "180,30"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), report);
}

TEST(Commands, NameAndOptionsStandInAnyOrder) {
  SmallSky sky;
  const Arguments place = {"--place", "52.5,13.4", "--time", "2026-01-15T22:00Z"};
  for (const char* command : {"where", "why"}) {
    Arguments before = {command, "α CMa"}, behind = {command}, dashes = {command};
    before.insert(before.end(), place.begin(), place.end());
    behind.insert(behind.end(), place.begin(), place.end());
    behind.emplace_back("alpha CMa");
    ASSERT_EQ(sky.Run(before), 0) << sky.errors.str();
    const std::string answer = sky.output.str();
    EXPECT_EQ(answer.rfind("Sirius (α CMa", 0), 0u) << answer;
    ASSERT_EQ(sky.Run(behind), 0) << sky.errors.str();
    EXPECT_EQ(sky.output.str(), answer);
  }
}

// SmallSky puts --data behind the arguments, where it would be a name.
TEST(Commands, NameBehindTwoDashesMayBeginWithADash) {
  SmallSky sky;
  sky.dir.Write("data/catalogs/stars.txt",
                "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n7\t1.5\t0.1\t1.0\t-Minus\n");
  std::ostringstream output, errors;
  const Arguments arguments = {"why", "--data", sky.dir.Path("data"), "--", "-Minus"};
  ASSERT_EQ(skyview::Run(arguments, "", output, errors), 0) << errors.str();
  EXPECT_EQ(output.str().rfind("-Minus", 0), 0u) << output.str();
  EXPECT_EQ(skyview::Run({"why", "--data", sky.dir.Path("data"), "-Minus"}, "", output, errors), 2);
}

TEST(Commands, WhereNeitherDrawsNorTakesSettings) {
  SmallSky sky;
  for (const char* option : {"--out", "--set", "--save-view", "--orbits"}) {
    EXPECT_EQ(sky.Run({"where", "Sirius", option, sky.dir.Path("a.svg")}), 2);
    EXPECT_TRUE(Contains(sky.GetErrorLine(), option)) << sky.errors.str();
  }
  EXPECT_FALSE(fs::exists(sky.dir.Path("a.svg")));
}

TEST(Commands, WhyKeepsTheSettingsOfItsRun) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"why", "Rigel", "--favourite", "Sirius", "--save-settings", file}), 0)
      << sky.errors.str();
  ASSERT_EQ(sky.Run({"why", "Rigel", "--settings", file}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("only the favourites")) << sky.output.str();
}

TEST(Commands, LimitsKeepSettingsWithFavouritesToo) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"limits", "--favourite", "Sirius", "--save-settings", file}), 0) << sky.errors.str();
  ASSERT_EQ(sky.Run({"why", "Rigel", "--settings", file}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("only the favourites")) << sky.output.str();
  EXPECT_EQ(sky.Run({"limits", "--favourite", "Nibiru"}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "--favourite 'Nibiru'")) << sky.errors.str();
  EXPECT_EQ(sky.Run({"limits", "--session", "a", "--settings", "b"}), 2);
}

TEST(Commands, LimitsWantNoCatalogs) {
  SmallSky sky;
  fs::remove_all(sky.dir.Path("data/catalogs"));
  EXPECT_EQ(sky.Run({"limits", "--zoom", "3"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Zoom of the view, 3\n")) << sky.output.str();
}

TEST(Commands, SessionSpeaksForEachCommandThatTakesIt) {
  SmallSky sky;
  const std::string session = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--language", "de", "--zoom", "3", "--set", "star.Draw=0", "--place", "52.5,13.4",
                     "--time", "2026-01-15T22:00Z", "--save-session", session}),
            0)
      << sky.errors.str();
  ASSERT_EQ(sky.Run({"limits", "--session", session}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed(" 3\n  Sterne: ")) << sky.output.str();
  ASSERT_EQ(sky.Run({"where", "Sirius", "--session", session, "--language", "en"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Rises: ")) << sky.output.str();
  ASSERT_EQ(sky.Run({"why", "Sirius", "--session", session}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("star.Draw ist 0")) << sky.output.str();
}

TEST(Commands, LanguagesAreThoseOfTheDataRoot) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"languages"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "de\nen\nru\n");
  fs::remove_all(sky.dir.Path("data/languages/en"));
  fs::remove_all(sky.dir.Path("data/languages/de"));
  ASSERT_EQ(sky.Run({"languages"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "en\nru\n") << "the default language needs no folder";
  fs::remove_all(sky.dir.Path("data/languages"));
  ASSERT_EQ(sky.Run({"languages"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "en\n");
}

TEST(Commands, FavouritesWantAWorkArea) {
  SmallSky sky;
  for (const Arguments& arguments : {Arguments{"favourites"},
                                     {"favourites", "show"},
                                     {"favourites", "add", "Sirius"},
                                     {"favourites", "remove", "Sirius"}}) {
    EXPECT_EQ(sky.Run(arguments), 2);
    EXPECT_TRUE(Contains(sky.GetErrorLine(), "wants --work FOLDER")) << sky.errors.str();
  }
}

TEST(Commands, SatellitesCanBeFavourites) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  ASSERT_EQ(sky.Run({"favourites", "add", "ISS (ZARYA)", "--tle", path, "--work", sky.dir.Path("work")}), 0)
      << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Favourites: 1\n  ISS (ZARYA) (scft 25544)\n")) << sky.output.str();
}

// The station's elements are those of the day 20.9 of 2014.
TEST(Commands, SatellitesWithOldElementsAreTold) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  const std::string line = "skyview: ISS (ZARYA): its elements are 70 days old, its place is a guess\n";
  ASSERT_EQ(sky.Run({"why", "Sirius", "--tle", path, "--time", "2014-01-25T00:00Z"}), 0) << sky.errors.str();
  EXPECT_FALSE(Contains(sky.errors.str(), "ISS")) << sky.errors.str();
  ASSERT_EQ(sky.Run({"why", "Sirius", "--tle", path, "--time", "2014-04-01T00:00Z"}), 0) << sky.errors.str();
  EXPECT_TRUE(Contains(sky.errors.str(), line)) << sky.errors.str();
}

TEST(Commands, StoredHomeIsReportedAndNothingIsDrawn) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"homes", "store", "--look", "180,30", "--work", sky.dir.Path("work")}), 0)
      << sky.errors.str();
  EXPECT_TRUE(sky.Printed("azimuth 180°00'00.00\", altitude 30°00'00.00\" (S)\n")) << sky.output.str();
  EXPECT_EQ(sky.Run({"homes", "store", "--out", "a.svg", "--work", sky.dir.Path("work")}), 2);
  EXPECT_EQ(sky.Run({"homes", "--look", "180,30"}), 2) << "the list depends on no view";
}

TEST(Commands, AtAPixelTheObjectsDrawnThereAreNamed) {
  SmallSky sky;
  const Arguments view = {"--place", "52.52,13.405", "--time", "2026-01-15T21:00Z", "--look", "180,30"};
  const auto with = [&view](Arguments arguments) {
    arguments.insert(arguments.end(), view.begin(), view.end());
    return arguments;
  };
  ASSERT_EQ(sky.Run(with({"why", "Rigel"})), 0) << sky.errors.str();
  const std::string text = sky.output.str();
  const auto begin = text.find("pixel ") + 6, comma = text.find(", ", begin);
  const std::string pixel =
      text.substr(begin, comma - begin) + "," + text.substr(comma + 2, text.find(' ', comma + 2) - comma - 2);
  ASSERT_EQ(sky.Run(with({"at", pixel})), 0) << pixel << sky.errors.str();
  EXPECT_EQ(sky.output.str().rfind("Rigel (", 0), 0u) << pixel << sky.output.str();
  ASSERT_EQ(sky.Run(with({"at", "1590,5"})), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "no object is drawn there\n");
}

TEST(Commands, AtWantsAPixelOfThePicture) {
  SmallSky sky;
  for (const char* bad : {"", "5", "5,", "-1,5", "a,b", "5,5,5"}) {
    EXPECT_EQ(sky.Run({"at", bad}), 2) << bad;
    EXPECT_EQ(sky.output.str(), "");
  }
  EXPECT_EQ(sky.Run({"at", "5;5"}), 2);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "at '5;5': wants PIXEL (X,Y: ")) << sky.errors.str();
  EXPECT_EQ(sky.Run({"at", "320,100", "--size", "320x200"}), 2);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: at '320,100': wants a pixel of the picture, 320x200");
}
