// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/body_report.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "skyview/small_sky.h"

using host_test::SmallSky;

namespace {

constexpr const char* kBodies =
    "plnt\t1\tMercury\nplnt\t2\tVenus\nplnt\t3\tEarth\nplnt\t4\tMars\nplnt\t5\tJupiter\nplnt\t6\tSaturn\n"
    "plnt\t7\tUranus\nplnt\t8\tNeptune\nplnt\t9\tPluto\nplnt\t10\tSun\n"
    "moon\t301\tMoon\nmoon\t401\tPhobos\nmoon\t402\tDeimos\nmoon\t501\tIo\nmoon\t901\tCh\xC3\xA1ron\n";

class BodyReport : public testing::Test {
 protected:
  BodyReport() {
    sky.dir.Write("data/catalogs/planets&moons/planets&moons.txt", kBodies);
    sky.dir.Write("data/media/surface/panoramas.ini",
                  "plnt\t4\tgale.jpg\t1\t7\tGale crater\t90\nplnt\t4\tjezero.jpg\t0\t8\tJezero crater\t0\n");
    sky.dir.Write("data/media/surface/gale.jpg", "picture");
  }
  std::string Describe(const std::string& name, const std::string& language = "en") {
    EXPECT_EQ(sky.Run({"body", name, "--language", language}), 0) << sky.errors.str();
    EXPECT_EQ(sky.errors.str(), "");
    return sky.output.str();
  }

  SmallSky sky;
};

}  // namespace

TEST_F(BodyReport, SaysAllThatIsKnownOfAPlanet) {
  const std::string text = Describe("Mars");
  EXPECT_TRUE(
      text.starts_with("Mars (plnt 4)\nMoves around: Sun (plnt 10)\n"
                       "Moons: 2: Phobos (moon 401), Deimos (moon 402)\n"
                       "Gazetteer: gazetteers/mars_features.txt\n"))
      << text;
  EXPECT_NE(text.find("Panorama: Gale crater, "), std::string::npos);
  EXPECT_NE(text.find("gale.jpg, the default\n"), std::string::npos) << text;
  EXPECT_NE(text.find("Panorama: Jezero crater, "), std::string::npos);
  EXPECT_NE(text.find("jezero.jpg, file missing\n"), std::string::npos) << text;
}

TEST_F(BodyReport, MoonMovesAroundItsPlanet) {
  EXPECT_EQ(
      Describe("Moon"),
      "Moon (moon 301)\nMoves around: Earth (plnt 3)\nMoons: -\nGazetteer: gazetteers/moon_features.txt\n"
      "Panorama: -\n");
}

TEST_F(BodyReport, BodyWithoutGazetteerGivesNoDiagnostic) {
  EXPECT_EQ(Describe("Io"),
            "Io (moon 501)\nMoves around: Jupiter (plnt 5)\nMoons: -\nGazetteer: -\nPanorama: -\n");
}

TEST_F(BodyReport, SunMovesAroundNothing) {
  EXPECT_TRUE(Describe("sun").starts_with("Sun (plnt 10)\nMoves around: -\nMoons: -\n"));
}

TEST_F(BodyReport, CapitalsAccentsAndBlanksDoNotMatter) {
  for (const char* name : {"PHOBOS", "pho bos", "Phóbos"}) {
    EXPECT_TRUE(Describe(name).starts_with("Phobos (moon 401)\n")) << name;
  }
  EXPECT_TRUE(Describe("Charon").starts_with("Cháron (moon 901)\n"));
}

TEST_F(BodyReport, NamesOfTheLanguageAreUnderstoodToo) {
  for (const char* name : {"Erde", "Earth"}) {
    EXPECT_TRUE(Describe(name, "de").starts_with("Erde (plnt 3)\nBewegt sich um: Sonne (plnt 10)\n")) << name;
  }
  EXPECT_TRUE(Describe("Марс", "ru").starts_with("Марс (plnt 4)\nОбращается вокруг: Солнце (plnt 10)\n"));
}

TEST_F(BodyReport, UnknownNameIsExitOneWithSimilarOnes) {
  EXPECT_EQ(sky.Run({"body", "Marz"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: body 'Marz': no such body; similar: Mars");
  EXPECT_EQ(sky.Run({"body", "Xyzzyplugh"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: body 'Xyzzyplugh': no such body");
}

TEST_F(BodyReport, MissingDescriptionIsOneLine) {
  std::filesystem::remove(sky.dir.Path("data/catalogs/planets&moons/planets&moons.txt"));
  EXPECT_EQ(sky.Run({"body", "Mars"}), 1);
  EXPECT_EQ(sky.GetErrorLine(),
            "skyview: catalogs\\planets&moons\\planets&moons.txt: not found, which body wants");
}

TEST_F(BodyReport, MissingPanoramasAreNone) {
  std::filesystem::remove(sky.dir.Path("data/media/surface/panoramas.ini"));
  EXPECT_NE(Describe("Mars").find("Panorama: -\n"), std::string::npos);
}

// Deliberately, the enumeration of planets ends at the first gap; what lies behind it is not found.
TEST_F(BodyReport, PlanetsBehindAGapAreNotReached) {
  sky.dir.Write("data/catalogs/planets&moons/planets&moons.txt", "plnt\t1\tMercury\nplnt\t3\tEarth\n");
  EXPECT_TRUE(Describe("Mercury").starts_with("Mercury (plnt 1)\nMoves around: plnt 10\n"));
  EXPECT_EQ(sky.Run({"body", "Earth"}), 1);
}

TEST_F(BodyReport, DrawsNothing) {
  EXPECT_EQ(sky.Run({"body", "Mars", "--out", sky.dir.Path("no.svg")}), 2);
  EXPECT_NE(sky.GetErrorLine().find("--out"), std::string::npos) << sky.errors.str();
  EXPECT_EQ(sky.Run({"body", "Mars"}), 0);
  EXPECT_FALSE(std::filesystem::exists(sky.dir.Path("no.svg")));
  EXPECT_FALSE(sky.Printed("Stars drawn"));
}
