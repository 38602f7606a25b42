// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The whole program through its run function: exit codes, the lines it prints, the files it writes.
#include "skyview/commands/skyview.h"
#include "paint/picture_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "skyview/small_sky.h"
#include "support/full_stream.h"
#include "support/xml_check.h"

using host_test::SmallSky;

namespace {

bool StartsWith(const std::string& text, const std::string& start) { return text.rfind(start, 0) == 0; }

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

const std::vector<std::string> kOrion = {"--place", "52.52,13.405",     "--zone", "Europe/Berlin",
                                         "--time",  "2026-01-15T22:00", "--look", "180,30"};

std::vector<std::string> With(std::vector<std::string> arguments, const std::vector<std::string>& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

}  // namespace

TEST(Skyview, PrintsWhatItRestoredEachOnItsOwnLine) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(kOrion), 0) << sky.errors.str();
  EXPECT_EQ(sky.errors.str(), "");
  for (const char* line : {"Coordinates: 13°24'18.00\" E, 52°31'12.00\" N\n",
                           "Local time: 22:00, 15/01/2026 AD (Europe/Berlin, UT+01:00)\n",
                           "Universal Time: 21:00, 15/01/2026 AD\n",
                           "Direction: azimuth 180°00'00.00\", altitude 30°00'00.00\" (S)\n", "Zoom: 1.00\n",
                           "Deep-sky objects drawn: 1\n"}) {
    EXPECT_TRUE(sky.Printed(line)) << line << sky.output.str();
  }
  // At zoom 1: draw 6 + 3.5 - 2, full and label 6 - 2, the corrections being zero;
  // galaxies three magnitudes beyond the stars.
  EXPECT_TRUE(
      sky.Printed("Magnitude limits, stars: drawn to 7.5, at full brightness to 4.0, labelled to 4.0\n"))
      << sky.output.str();
  EXPECT_TRUE(sky.Printed(
      "Magnitude limits, galaxies: drawn to 10.5, at full brightness to -2.0, labelled to -2.0\n"));
  EXPECT_TRUE(sky.Printed("Stars drawn: "));
}

// The picture is 1600 x 1000 pixels; its half-diagonal spans 37 degrees (0.6457718232379 radians) from the
// axis, so the width is 4 atan(tan(0.32288...) * 800 / 943.398...) = 63.36 degrees, the height likewise
// 40.22.
TEST(Skyview, FieldOfViewIsThatOfTheProjection) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(kOrion), 0);
  EXPECT_TRUE(sky.Printed("Field of view: 63° x 40°\n")) << sky.output.str();
}

TEST(Skyview, OffsetAndZInTheTimeOverrideTheZone) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"--time", "2026-01-15T21:00Z", "--zone", "Asia/Kolkata"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Local time: 02:30, 16/01/2026 AD (Asia/Kolkata, UT+05:30)\n")) << sky.output.str();
  ASSERT_EQ(sky.Run({"--time", "2026-01-15T13:00-08:00"}), 0);
  EXPECT_TRUE(sky.Printed("Universal Time: 21:00, 15/01/2026 AD\n")) << sky.output.str();
}

TEST(Skyview, BadOptionIsExitTwoWithOneLineThatNamesItAndTheForm) {
  SmallSky sky;
  const std::vector<std::string> bad[] = {
      {"--zoom", "0"}, {"--zone", "Not/AZone"}, {"--nonsense"}, {"--size", "9"}};
  for (const auto& arguments : bad) {
    EXPECT_EQ(sky.Run(arguments), 2) << arguments[0];
    EXPECT_TRUE(StartsWith(sky.GetErrorLine(), "skyview: ")) << sky.errors.str();
    EXPECT_TRUE(Contains(sky.GetErrorLine(), arguments.back())) << sky.errors.str();
    EXPECT_EQ(sky.output.str(), "");
  }
}

TEST(Skyview, BadOptionOfTwoLinesIsToldInOne) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"--zoom", "1\n2"}), 2);
  const std::string errors = sky.errors.str();
  EXPECT_EQ(errors.find('\n'), errors.size() - 1) << errors;
  EXPECT_TRUE(Contains(errors, "'1 2'")) << errors;
}

TEST(Skyview, TimeThatTheClocksSkipIsABadOption) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"--zone", "Europe/Berlin", "--time", "2026-03-29T02:30"}), 2);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "2026-03-29T02:30")) << sky.errors.str();
}

TEST(Skyview, HelpIsExitZero) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"draw", "--help"}), 0);
  EXPECT_TRUE(sky.Printed("--save-view"));
}

TEST(Skyview, MissingDataRootIsExitOne) {
  SmallSky sky;
  std::ostringstream output, errors;
  EXPECT_EQ(skyview::Run({"--data", sky.dir.Path("nowhere")}, "", output, errors), 1);
  EXPECT_TRUE(Contains(errors.str(), "nowhere")) << errors.str();
  EXPECT_TRUE(Contains(errors.str(), "qxstrings.txt")) << errors.str();
  EXPECT_EQ(std::count(errors.view().begin(), errors.view().end(), '\n'), 1);
}

TEST(Skyview, DataRootBesideTheProgramIsFound) {
  SmallSky sky;
  std::filesystem::create_directories(sky.dir.Path("bin"));
  std::ostringstream output, errors;
  EXPECT_EQ(skyview::Run({}, sky.dir.Path("bin"), output, errors), 0) << errors.str();
  std::filesystem::create_directories(sky.dir.Path("share/common_interfaces"));
  std::filesystem::rename(sky.dir.Path("data"), sky.dir.Path("share/common_interfaces/data"));
  EXPECT_EQ(skyview::Run({}, sky.dir.Path("bin"), output, errors), 0) << errors.str();
}

TEST(Skyview, EachMissingFileIsNamedAndNoPictureIsLeft) {
  for (const char* file : {"filters.data", "qxstrings.txt", "catalogs/stars.txt", "catalogs/milkyway.map"}) {
    SmallSky sky;
    std::filesystem::remove(sky.dir.Path(std::string("data/") + file));
    EXPECT_EQ(sky.Run(With(kOrion, {"--out", sky.dir.Path("sky.svg")})), 1) << file;
    EXPECT_TRUE(Contains(sky.GetErrorLine(), std::filesystem::path(file).filename().string()))
        << sky.errors.str();
    EXPECT_FALSE(std::filesystem::exists(sky.dir.Path("sky.svg")));
  }
}

TEST(Skyview, DamagedCatalogIsNamedWithItsLine) {
  SmallSky sky;
  sky.dir.Write("data/catalogs/stars.txt", "# comment\nRA:real\n");
  EXPECT_EQ(sky.Run(kOrion), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "stars.txt:2:")) << sky.errors.str();
}

TEST(Skyview, BadCatalogLineIsReportedAndTheRestDrawn) {
  SmallSky sky;
  sky.dir.Write("data/catalogs/stars.txt", host_test::StarTable() + "x\ty\n");
  EXPECT_EQ(sky.Run(kOrion), 0);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "stars.txt:13:")) << sky.errors.str();
}

TEST(Skyview, EmptySettingsFileIsExitOne) {
  SmallSky sky;
  sky.dir.Write("data/filters.data", "");
  EXPECT_EQ(sky.Run(kOrion), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "filters.data")) << sky.errors.str();
}

TEST(Skyview, DrawsBothKindsOfPicture) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--out", sky.dir.Path("sky.svg"), "--out", sky.dir.Path("sky.png")})), 0);
  EXPECT_EQ(host_test::FindXmlFault(sky.dir.Read("sky.svg")), "");
  EXPECT_TRUE(Contains(sky.dir.Read("sky.svg"), ">Betelgeuse</text>"));
  EXPECT_EQ(sky.dir.Read("sky.png").substr(1, 3), "PNG");
}

TEST(Skyview, PictureThatCannotBeWrittenIsExitOne) {
  SmallSky sky;
  EXPECT_EQ(sky.Run(With(kOrion, {"--out", sky.dir.Path("nowhere/sky.svg")})), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "nowhere/sky.svg")) << sky.errors.str();
}

TEST(Skyview, SavedViewIsRestoredAsItWas) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"--place", "-33.87,151.21", "--time", "2026-07-01T10:00Z", "--look", "215,41.5",
                     "--zoom", "2.5", "--save-view", file + ":7"}),
            0)
      << sky.errors.str();
  const std::string saved = sky.output.str();
  ASSERT_EQ(sky.Run({"--view", file + ":7"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), saved);
}

TEST(Skyview, SavingAgainReplacesTheViewAndKeepsTheOthers) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"--look", "90,10", "--save-view", file + ":1"}), 0) << sky.errors.str();
  ASSERT_EQ(sky.Run({"--look", "180,20", "--save-view", file + ":2"}), 0) << sky.errors.str();
  ASSERT_EQ(sky.Run({"--look", "270,30", "--save-view", file + ":1"}), 0) << sky.errors.str();
  ASSERT_EQ(sky.Run({"--view", file + ":1"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("azimuth 270°00'00.00\", altitude 30°00'00.00\" (W)")) << sky.output.str();
  ASSERT_EQ(sky.Run({"--view", file + ":2"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("azimuth 180°00'00.00\", altitude 20°00'00.00\" (S)")) << sky.output.str();
  EXPECT_FALSE(std::filesystem::exists(file + ".part"));
}

TEST(Skyview, ViewThatIsNotThereIsExitOne) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"--view", "absent.data"}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "absent.data")) << sky.errors.str();
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"--save-view", file + ":1"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.Run({"--view", file + ":2"}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "no view 2")) << sky.errors.str();
}

TEST(Skyview, DamagedViewIsExitOne) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run({"--save-view", file}), 0) << sky.errors.str();
  const std::string whole = sky.dir.Read("my.data");
  sky.dir.Write("my.data", whole.substr(0, whole.size() / 2));
  EXPECT_EQ(sky.Run({"--view", file}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "my.data")) << sky.errors.str();
}

// The readers take what stands before the damage and say nothing of it.
TEST(Skyview, DamagedDefaultsAreToldAndBlamedForViewsThatCannotBeRestored) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--save-view", sky.dir.Path("view.data")})), 0);
  const std::string whole = sky.dir.Read("data/filters.data");
  sky.dir.Write("data/filters.data", whole.substr(0, whole.find("RMAC") - 20));
  const std::string settings = "filters.data: the defaults of the settings are missing or damaged";
  const std::string view = "filters.data: the defaults of the view are missing or damaged";
  EXPECT_EQ(sky.Run({"limits"}), 0);
  EXPECT_EQ(sky.errors.str(), "skyview: " + settings + "\nskyview: " + view + "\n");
  sky.dir.Write("data/filters.data", whole.substr(0, whole.find("RMAC")));
  EXPECT_EQ(sky.Run({"limits"}), 0);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: " + view);
  EXPECT_EQ(sky.Run({"limits", "--view", sky.dir.Path("view.data")}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: " + view);
  EXPECT_EQ(sky.Run(With(kOrion, {"--save-view", sky.dir.Path("view.data")})), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: " + view);
}

TEST(Skyview, DamagedDefaultsOfAMovingTypeAreTold) {
  SmallSky sky;
  constexpr unsigned kRecord = 0x434C4654;  // "TFLC" in the file's order
  const std::size_t begin = sky.dir.Read("data/filters.data").size();
  test_support::AppendBlock(sky.dir.Path("data/filters.data"), kRecord,
                            CommonInterfaces::SettingsData::kDefaultsTag, test_support::kCameraSection,
                            test_support::CameraFields());
  const std::string whole = sky.dir.Read("data/filters.data");
  for (const std::size_t size : {begin, whole.size()}) {  // none is fine, and so is a whole one
    sky.dir.Write("data/filters.data", whole.substr(0, size));
    EXPECT_EQ(sky.Run({"limits"}), 0);
    EXPECT_EQ(sky.errors.str(), "") << size;
  }
  for (const std::size_t size : {begin + 8, begin + 100, whole.size() - 1}) {
    sky.dir.Write("data/filters.data", whole.substr(0, size));
    EXPECT_EQ(sky.Run({"limits"}), 0);
    EXPECT_EQ(sky.errors.str(),
              "skyview: filters.data: the defaults of the moving types are missing or damaged\n")
        << size;
  }
}

TEST(Skyview, ViewOfAnotherWorldIsRefused) {
  SmallSky sky;
  auto mars = test_support::CameraFields();
  test_support::ReplaceField(mars, test_support::Int32("m_ObsObjID", 4));
  const std::string file = sky.dir.Path("mars.data");
  test_support::AppendBlock(file, test_support::kCAMR, 1, test_support::kCameraSection, mars);
  EXPECT_EQ(sky.Run({"--view", file}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "not seen from the Earth")) << sky.errors.str();
}

// The direction of the galactic centre (265.6, -28.92 degrees, J2000) seen from 40 degrees south.
TEST(Skyview, DirectionOnTheSkyBecomesAzimuthAndAltitude) {
  SmallSky sky;
  auto fields = test_support::CameraFields();
  const std::string file = sky.dir.Path("sky.data");
  test_support::AppendBlock(file, test_support::kCAMR, 1, test_support::kCameraSection, fields);
  // Greenwich sidereal time is 18.61 h at 0 h UT of that day, so right ascension 17.71 h culminates at 23.04
  // h, north of the zenith by 40 - 28.92 degrees.
  ASSERT_EQ(sky.Run({"--view", file, "--place", "-40,0", "--time", "2026-07-01T23:02Z"}), 0)
      << sky.errors.str();
  EXPECT_TRUE(sky.Printed("altitude 78°5")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("\" (N)\n")) << sky.output.str();
}

TEST(Skyview, ListedLimitsGrowWithTheZoomAndNothingIsDrawn) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"limits", "--out", sky.dir.Path("sky.svg")}), 2);
  ASSERT_EQ(sky.Run({"limits"}), 0) << sky.errors.str();
  // log10(zoom) * 4 magnitudes for stars.
  EXPECT_TRUE(sky.Printed("Zoom 10\n  stars: drawn to 11.5, at full brightness to 8.0, labelled to 8.0\n"))
      << sky.output.str();
  EXPECT_TRUE(sky.Printed("Zoom 100\n  stars: drawn to 15.5, at full brightness to 12.0, labelled to 12.0\n"))
      << sky.output.str();
  EXPECT_FALSE(std::filesystem::exists(sky.dir.Path("sky.svg")));
}

TEST(Skyview, SpeaksTheLanguageAskedFor) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--language", "de"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Ortszeit: 22:00, 15/01/2026 n. Chr. (Europe/Berlin, UT+01:00)\n"))
      << sky.output.str();
  EXPECT_TRUE(sky.Printed("Gezeichnete Deep-Sky-Objekte: 1\n"));
  ASSERT_EQ(sky.Run(With(kOrion, {"--language", "ru"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Местное время: 22:00, 15/01/2026 н. э. (Europe/Berlin, UT+01:00)\n"))
      << sky.output.str();
  EXPECT_TRUE(sky.Printed("Показано объектов глубокого космоса: 1\n"));
  ASSERT_EQ(sky.Run(kOrion), 0);
  EXPECT_TRUE(sky.Printed("Local time: 22:00"));
  EXPECT_EQ(sky.errors.str(), "");
}

TEST(Skyview, DiagnosticsThatQuoteATextAreUtf8) {
  SmallSky sky;
  sky.dir.Write("data/languages/ru/qxstrings.txt",
                host_test::ShippedStrings("ru") + "7227\t\xCF\xEE\xEB\xE5\n");
  ASSERT_EQ(sky.Run(With(kOrion, {"--language", "ru"})), 0);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: Strings conflict, ID = 7227 Old: Поле зрения: %s на %s New: Поле");
}

TEST(Skyview, DiagnosticIsToldOnceHoweverOftenATextIsMissed) {
  SmallSky sky;
  sky.dir.Write("data/languages/en/qxstrings.txt", "7227\tField\n");
  ASSERT_EQ(sky.Run(kOrion), 0);
  const std::string all = sky.errors.str();
  std::istringstream lines(all);
  std::set<std::string> told;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_TRUE(StartsWith(line, "skyview: ")) << line;
    EXPECT_TRUE(told.insert(line).second) << line;
  }
  EXPECT_TRUE(told.count("skyview: String with ID = 7200 not found in file qxstrings.txt")) << all;
}

TEST(Skyview, UnknownLanguageIsExitTwoWithOneLineThatNamesThoseThatExist) {
  SmallSky sky;
  EXPECT_EQ(sky.Run(With(kOrion, {"--language", "fr"})), 2);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --language 'fr': wants one of de, en, ru");
  EXPECT_EQ(sky.output.str(), "");
}

TEST(Skyview, PictureIsLabelledInTheLanguage) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  const std::string file = sky.dir.Path("sky.svg");
  // Low, so that the horizon with its letters is in the picture.
  ASSERT_EQ(sky.Run({"--look", "180,10", "--language", "ru", "--out", file}), 0) << sky.errors.str();
  const std::string svg = sky.dir.Read("sky.svg");
  EXPECT_EQ(host_test::FindXmlFault(svg), "");
  EXPECT_TRUE(Contains(svg, ">Ю</text>"));
  EXPECT_TRUE(Contains(svg, "Место: На поверхности — Земля"));
  EXPECT_TRUE(Contains(svg, "Поле зрения: 63° на 40°"));
}

// A view is for every language: what is shown for the place that has no name is not kept.
TEST(Skyview, SavedViewHoldsNoTextOfTheLanguage) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--language", "ru", "--save-view", sky.dir.Path("ru.data")})), 0);
  ASSERT_EQ(sky.Run(With(kOrion, {"--save-view", sky.dir.Path("en.data")})), 0);
  EXPECT_TRUE(sky.dir.Read("ru.data") == sky.dir.Read("en.data"));
}

// In PNG, since an SVG names its parts by a counter of the process.
TEST(Skyview, TheSameOptionsGiveTheSameOutput) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--out", sky.dir.Path("a.png")})), 0);
  const std::string first = sky.output.str(), picture = sky.dir.Read("a.png");
  ASSERT_EQ(sky.Run(With(kOrion, {"--out", sky.dir.Path("a.png")})), 0);
  EXPECT_EQ(sky.output.str(), first);
  EXPECT_TRUE(sky.dir.Read("a.png") == picture);
}

TEST(Skyview, VersionIsThatOfTheProject) {
  std::ostringstream output, errors;
  EXPECT_EQ(skyview::Run({"--version"}, "", output, errors), 0);
  EXPECT_EQ(output.str(), "skyview " CI_VERSION "\n");
  EXPECT_EQ(errors.str(), "");
}

TEST(Skyview, NothingCountsAsSaidThatCouldNotBeWritten) {
  const SmallSky sky;
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{}, {"where", "Sirius"}, {"limits"}, {"--help"}}) {
    std::vector<std::string> arguments = words;
    if (words != std::vector<std::string>{"--help"})
      arguments.insert(arguments.end(), {"--data", sky.dir.Path("data")});
    for (const int room : {0, 40}) {
      test_support::FullStream output(room);
      std::ostringstream errors;
      EXPECT_EQ(skyview::Run(arguments, "", output, errors), 1);
      EXPECT_EQ(errors.str(), "skyview: standard output: cannot be written\n");
    }
  }
}
