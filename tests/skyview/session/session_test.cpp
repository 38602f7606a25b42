// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "paint/picture_file.h"
#include "scene/session/checksum.h"
#include "scene/sky_images_files.h"
#include "skyview/small_sky.h"
#include "support/comma_locale.h"

using host_test::SmallSky;

namespace {

using Arguments = std::vector<std::string>;

Arguments With(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

// An SVG names its parts by counters of the process; here they count from the picture's first one.
std::string WithOwnCounters(const std::string& svg) {
  static const std::regex kPart(
      "(glyph|surface|clip|linear|mask|source|filter|image|pattern|radial)-?([0-9]+)");
  std::map<std::string, int> numbers;
  std::string result;
  auto last = svg.begin();
  for (std::sregex_iterator part(svg.begin(), svg.end(), kPart), end; part != end; ++part) {
    result.append(last, svg.begin() + part->position());
    const int number = numbers.emplace(part->str(), static_cast<int>(numbers.size())).first->second;
    result += part->str(1) + "#" + std::to_string(number);
    last = svg.begin() + part->position() + part->length();
  }
  return result.append(last, svg.end());
}

// Saves a session beside the pictures of these options and draws it again.
void ExpectSamePictures(SmallSky& sky, const Arguments& arguments) {
  const auto pictures = [&sky](const std::string& name) {
    return Arguments{"--out", sky.dir.Path(name + ".png"), "--out", sky.dir.Path(name + ".svg")};
  };
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run(With(arguments, With(pictures("saved"), {"--save-session", file}))), 0)
      << sky.errors.str();
  const std::string report = sky.output.str();
  ASSERT_EQ(sky.Run(With(pictures("again"), {"--session", file})), 0) << sky.errors.str();
  EXPECT_EQ(sky.errors.str(), "");
  EXPECT_EQ(sky.output.str(), report);
  EXPECT_TRUE(sky.dir.Read("saved.png") == sky.dir.Read("again.png"));
  EXPECT_TRUE(WithOwnCounters(sky.dir.Read("saved.svg")) == WithOwnCounters(sky.dir.Read("again.svg")));
}

}  // namespace

TEST(Session, PicturesOfSeveralViewsComeBackByteForByte) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  const Arguments views[] = {
      {"--time", "2000-01-01T12:00"},
      {"--place", "52.52,13.405", "--zone", "Europe/Berlin", "--time", "2026-01-15T22:00", "--look",
       "180,30"},
      {"--place", "-33.87,151.21", "--time", "2026-07-01T10:00:07.123Z", "--look", "215.123,41.5", "--zoom",
       "2.7"},
      {"--time", "2000-01-01T12:00", "--language", "ru", "--size", "641x333", "--marker", "88.79,7.4",
       "--marker", "5.25h,-8.2,42"},
      {"--time", "2000-01-01T12:00", "--moving-type", "11", "--set", "star:off"},
      {"--time", "2000-01-01T12:00", "--look", "10,80", "--zoom", "0.3", "--favourite", "M42"}};
  for (const auto& view : views) {
    SmallSky sky;
    SCOPED_TRACE(view.size() > 3 ? view[3] : "default");
    ExpectSamePictures(sky, view);
  }
}

TEST(Session, MarksOutlinesAndRadiantsComeBackWithoutTheUsersList) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  host_test::WriteSkyImages(sky.dir);
  ASSERT_EQ(sky.Run({"favourites", "add", "Sirius", "M42", "Orion", "--work", sky.dir.Path("work")}), 0)
      << sky.errors.str();
  const Arguments view = {"--place",
                          "52.5,13.4",
                          "--time",
                          "2026-01-15T21:00Z",
                          "--look",
                          "185,32",
                          "--frames-of",
                          "constellations,deepsky",
                          "--frames-of",
                          "milkyway",
                          "--showers",
                          "--sky",
                          "none",
                          "--work",
                          sky.dir.Path("work")};
  ExpectSamePictures(sky, view);
  const std::string text = sky.dir.Read("it.session");
  EXPECT_NE(text.find("mark star 2491\nmark nebu 42\nmark cnst "), std::string::npos) << text;
  EXPECT_NE(text.find("frames-of constellations,deepsky,milkyway\nshowers on\nsky none\n"), std::string::npos)
      << text;
  const std::string marked = sky.dir.Read("saved.png");
  ASSERT_EQ(sky.Run({"favourites", "remove", "Sirius", "--work", sky.dir.Path("work")}), 0);
  ASSERT_EQ(sky.Run(With(view, {"--out", sky.dir.Path("saved.png")})), 0);
  EXPECT_FALSE(sky.dir.Read("saved.png") == marked) << "marks can be seen";
}

TEST(Session, MarksAreThoseOfTheSessionWhateverTheListHolds) {
  SmallSky sky;
  const std::string work = sky.dir.Path("work"), other = sky.dir.Path("other");
  const std::string first = sky.dir.Path("a"), second = sky.dir.Path("b"), third = sky.dir.Path("c");
  ASSERT_EQ(sky.Run({"favourites", "add", "Sirius", "--work", work}), 0);
  ASSERT_EQ(sky.Run({"--work", work, "--save-session", first}), 0) << sky.errors.str();
  ASSERT_EQ(sky.Run({"favourites", "add", "Rigel", "--work", other}), 0);
  EXPECT_EQ(sky.dir.Read("other/catalogs/favourites.txt"), "Rigel\t1937006962\t1713\n");
  ASSERT_EQ(sky.Run({"--session", first, "--work", other, "--save-session", second}), 0) << sky.errors.str();
  EXPECT_NE(sky.dir.Read("b").find("mark star 2491\n"), std::string::npos);
  EXPECT_EQ(sky.dir.Read("b").find("mark star 1713\n"), std::string::npos);
  ASSERT_EQ(sky.Run({"--work", other, "--save-session", third}), 0) << sky.errors.str();
  EXPECT_NE(sky.dir.Read("c").find("mark star 1713\n"), std::string::npos);
}

TEST(Session, CommaLocaleChangesNothing) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  const Arguments view = {"--look", "10.5,30.25", "--zoom", "1.1", "--marker", "1.5,2.5", "--save-session"};
  ASSERT_EQ(sky.Run(With(view, {sky.dir.Path("plain")})), 0);
  ASSERT_NE(sky.dir.Read("plain").find("marker 1.5,2.5,1\n"), std::string::npos);
  {
    const test_support::CommaLocale locale;
    ASSERT_EQ(sky.Run(With(view, {sky.dir.Path("comma")})), 0);
    ASSERT_EQ(sky.Run({"--session", sky.dir.Path("plain")}), 0) << sky.errors.str();
  }
  EXPECT_EQ(sky.dir.Read("plain"), sky.dir.Read("comma"));
}

TEST(Session, ChangedFilesAreNamedAndThePictureIsDrawn) {
  SmallSky sky;
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--save-session", file}), 0) << sky.errors.str();
  sky.dir.Write("data/catalogs/stars.txt", host_test::StarTable() + "# one more line\n");
  EXPECT_EQ(sky.Run({"--session", file}), 0);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: catalogs:stars.txt: changed since the session was saved");
  EXPECT_TRUE(sky.Printed("Stars drawn"));
}

TEST(Session, MissingOptionalFileIsNamed) {
  SmallSky sky;
  sky.dir.Write("data/media/time_interval.ini", "");
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--save-session", file}), 0) << sky.errors.str();
  std::filesystem::remove(sky.dir.Path("data/media/time_interval.ini"));
  EXPECT_EQ(sky.Run({"--session", file}), 0);
  EXPECT_NE(sky.errors.str().find("media:time_interval.ini: missing"), std::string::npos) << sky.errors.str();
}

TEST(Session, TextsOfAnotherLanguageAreNotCompared) {
  SmallSky sky;
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--save-session", file}), 0) << sky.errors.str();
  EXPECT_EQ(sky.Run({"--session", file, "--language", "de"}), 0);
  EXPECT_EQ(sky.errors.str(), "");
  EXPECT_TRUE(sky.Printed("Gezeichnete Sterne"));
}

TEST(Session, SettingsThatNoLongerFitAreNamed) {
  SmallSky sky;
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--set", "star.Draw=0", "--save-session", file}), 0) << sky.errors.str();
  std::string text = sky.dir.Read("it.session");
  text.replace(text.find("star.Draw"), 9, "star.Gone");
  const std::string body = text.substr(0, text.rfind("end "));
  sky.dir.Write("it.session", body + "end " + scene::FormatChecksum(scene::Checksum(body)) + "\n");
  EXPECT_EQ(sky.Run({"--session", file}), 0);
  EXPECT_NE(sky.GetErrorLine().find("star.Gone"), std::string::npos) << sky.errors.str();
}

TEST(Session, OptionsComeBeforeTheSession) {
  SmallSky sky;
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--look", "90,10", "--zoom", "2", "--save-session", file}), 0);
  ASSERT_EQ(sky.Run({"--session", file, "--look", "180,20"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("azimuth 180°00'00.00\", altitude 20°00'00.00\""));
  EXPECT_TRUE(sky.Printed("Zoom: 2.00\n"));
}

TEST(Session, DamagedOrMissingSessionIsExitOneWithOneLine) {
  SmallSky sky;
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--save-session", file}), 0);
  std::string text = sky.dir.Read("it.session");
  text[text.size() / 2] ^= 1;
  sky.dir.Write("it.session", text);
  EXPECT_EQ(sky.Run({"--session", file, "--out", sky.dir.Path("x.svg")}), 1);
  EXPECT_NE(sky.GetErrorLine().find("it.session: is damaged"), std::string::npos) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "");
  EXPECT_FALSE(std::filesystem::exists(sky.dir.Path("x.svg")));
  EXPECT_EQ(sky.Run({"--session", sky.dir.Path("absent")}), 1);
  EXPECT_NE(sky.GetErrorLine().find("absent"), std::string::npos);
}

TEST(Session, ThatCannotBeSavedIsExitOne) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"--save-session", sky.dir.Path("no/it.session")}), 1);
  EXPECT_NE(sky.GetErrorLine().find("no/it.session"), std::string::npos) << sky.errors.str();
}

TEST(Session, HoldsViewAndSettingsOfItsOwn) {
  SmallSky sky;
  for (const char* other : {"--view", "--settings"}) {
    EXPECT_EQ(sky.Run({"--session", "a", other, "b"}), 2);
    EXPECT_NE(sky.GetErrorLine().find(other), std::string::npos) << sky.errors.str();
  }
}

// No reader takes a file of more than 256 MiB.
TEST(Session, DataFileThatCannotBeReadIsNamedAndNoSessionIsSaved) {
  SmallSky sky;
  const std::string comets = sky.dir.Write("data/catalogs/comets.txt", "Number:i32\n");
  const std::string file = sky.dir.Path("it.session");
  std::filesystem::resize_file(comets, (1u << 28) + 1);
  EXPECT_EQ(sky.Run({"--save-session", file}), 1);
  EXPECT_EQ(
      sky.GetErrorLine(),
      "skyview: catalogs:comets.txt: holds more than 256 MiB, the most that is read, and a session wants "
      "its checksum");
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(Session, DataFileThatCannotBeReadAnyMoreIsTold) {
  SmallSky sky;
  const std::string comets = sky.dir.Write("data/catalogs/comets.txt", "Number:i32\n");
  const std::string file = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--save-session", file}), 0) << sky.errors.str();
  std::filesystem::resize_file(comets, (1u << 28) + 1);
  EXPECT_EQ(sky.Run({"--session", file}), 0);
  const std::string line =
      "skyview: catalogs:comets.txt: holds more than 256 MiB, the most that is read, so it may have changed "
      "since the session was saved\n";
  EXPECT_NE(sky.errors.str().find(line), std::string::npos) << sky.errors.str();
}
