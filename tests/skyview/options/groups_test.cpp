// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "scene/session/image_group_names.h"
#include "skyview/options/parse_groups.h"
#include "skyview/options/picture_group.h"
#include "skyview/options/root_group.h"
#include "skyview/options/sky_group.h"

using namespace skyview;
using host_test::Contains;
using host_test::ParseGroup;

namespace {

// Option by option: a bad value, and a part of the form that the message names.
struct BadValue {
  const char *option, *value, *form;
};

template <class Group>
void ExpectRefused(const OptionGroup<Group>& group, const std::vector<BadValue>& cases) {
  for (const auto& c : cases) {
    const auto parsed = ParseGroup(group, {c.option, c.value});
    ASSERT_TRUE(parsed.stop) << c.option;
    EXPECT_EQ(parsed.stop->code, kBadOption) << c.option;
    EXPECT_TRUE(Contains(parsed.message, std::string(c.option) + " '" + c.value + "': wants "))
        << parsed.message;
    EXPECT_TRUE(Contains(parsed.message, c.form)) << parsed.message;
    EXPECT_FALSE(Contains(parsed.message, "\n"));
  }
}

// Every option of the group has a form or is a switch, says what it is for, and stands in the help.
template <class Group>
void ExpectDescribed(const OptionGroup<Group>& group) {
  const auto help = ParseGroup(group, {"--help"});
  ASSERT_TRUE(help.stop);
  EXPECT_TRUE(Contains(help.message, group.title));
  for (const auto& row : group.rows) {
    EXPECT_TRUE(Contains(help.message, std::string("  ") + row.text.name)) << row.text.name;
    EXPECT_TRUE(Contains(help.message, row.text.purpose)) << row.text.name;
  }
}

// What a draw command would say of pictures and sequence together.
std::string CheckDrawing(const std::vector<std::string>& arguments) {
  PictureOptions pictures;
  SequenceOptions sequence;
  CommandLine line("test", "Tests a sequence.");
  line.Take(kPictureGroup, pictures);
  line.Take(kSequenceGroup, sequence);
  line.Check([&] { CheckSequence(sequence, pictures); });
  const auto stop = host_test::Parse(line, arguments);
  return stop ? stop->message : "";
}

}  // namespace

TEST(Groups, EveryOptionIsInTheHelp) {
  ExpectDescribed(kRootGroup);
  ExpectDescribed(kViewGroup);
  ExpectDescribed(kSettingsGroup);
  ExpectDescribed(kSatelliteGroup);
  ExpectDescribed(kExtraGroup);
  ExpectDescribed(kChartGroup);
  ExpectDescribed(kPictureGroup);
  ExpectDescribed(kSequenceGroup);
  ExpectDescribed(kKeepGroup);
}

TEST(RootGroup, IsRead) {
  const auto parsed = ParseGroup(kRootGroup, {"--data", "d", "--work", "w", "--language", "de"});
  ASSERT_FALSE(parsed.stop) << parsed.message;
  EXPECT_EQ(parsed.options.data.value_or(""), "d");
  EXPECT_EQ(parsed.options.work.value_or(""), "w");
  EXPECT_EQ(parsed.options.GetLanguage(), "de");
  EXPECT_EQ(RootOptions{}.GetLanguage(), "en");
  EXPECT_FALSE(RootOptions{}.language);
}

TEST(RootGroup, EachBadValueNamesItselfItsOptionAndTheForm) {
  ExpectRefused(kRootGroup, {{"--data", "", "FOLDER"}, {"--work", "", "FOLDER"}, {"--language", "", "LANG"}});
}

TEST(ViewGroup, NothingGivenLeavesTheViewToDecide) {
  const auto parsed = ParseGroup(kViewGroup, {});
  ASSERT_FALSE(parsed.stop);
  const ViewOptions& view = parsed.options;
  EXPECT_FALSE(view.view || view.session || view.time || view.zone || view.zoom || view.size || view.home);
  EXPECT_FALSE(view.place || view.look || view.movingType || !view.markers.empty());
  EXPECT_EQ(view.GetSize().width, 1600);
  EXPECT_EQ(view.GetSize().height, 1000);
}

TEST(ViewGroup, EveryOptionIsRead) {
  const auto parsed = ParseGroup(
      kViewGroup,
      {"--view",        "v:2",    "--time", "2026-01-15T22:00", "--zone", "Europe/Berlin", "--place",
       "-33.9,151.2",   "--look", "180,30", "--zoom",           "2.5",    "--size",        "640x480",
       "--moving-type", "3,keep", "--home", "--marker",         "1,2",    "--marker",      "3h,4,5"});
  ASSERT_FALSE(parsed.stop) << parsed.message;
  const ViewOptions& view = parsed.options;
  EXPECT_EQ(view.view->id, 2);
  EXPECT_EQ(view.timeText, "2026-01-15T22:00");
  EXPECT_TRUE(view.time);
  EXPECT_EQ(view.zone.value_or(""), "Europe/Berlin");
  EXPECT_DOUBLE_EQ(view.place->latitude, -33.9);
  EXPECT_DOUBLE_EQ(view.look->azimuth, 180.0);
  EXPECT_DOUBLE_EQ(view.zoom.value_or(0.0), 2.5);
  EXPECT_EQ(view.GetSize().height, 480);
  EXPECT_EQ(view.movingType->type, 3);
  EXPECT_TRUE(view.home);
  ASSERT_EQ(view.markers.size(), 2u);
  EXPECT_EQ(view.markers[1].id, 5);
}

TEST(ViewGroup, EachBadValueNamesItselfItsOptionAndTheForm) {
  ExpectRefused(kViewGroup, {{"--view", "x:0", "FILE[:ID]"},
                             {"--session", "", "FILE"},
                             {"--time", "yesterday", "YYYY-MM-DD"},
                             {"--zone", "", "NAME"},
                             {"--place", "91,0", "LAT,LON"},
                             {"--look", "10,95", "AZ,ALT|NAME[@ZOOM]"},
                             {"--look", "-10", "AZ,ALT|NAME[@ZOOM]"},
                             {"--look", "Moon@0.1", "AZ,ALT|NAME[@ZOOM]"},
                             {"--look", "@5", "AZ,ALT|NAME[@ZOOM]"},
                             {"--fov", "360", "DEGREES"},
                             {"--fov", "0", "DEGREES"},
                             {"--zoom", "0", "FACTOR"},
                             {"--size", "10x10", "WIDTHxHEIGHT"},
                             {"--moving-type", "12", "N[,keep]"},
                             {"--marker", "400,0", "RA,DEC[,ID]"}});
}

TEST(ViewGroup, LookTakesADirectionOrAnObjectWithItsZoom) {
  const auto direction = ParseGroup(kViewGroup, {"--look", "180,30"});
  EXPECT_TRUE(direction.options.look && !direction.options.aim);
  const struct {
    const char *text, *name;
    std::optional<double> zoom;
  } names[] = {{"Jupiter", "Jupiter", {}},
               {"alpha CMa@8", "alpha CMa", 8.0},
               {"C/1995 O1 (Hale-Bopp)", "C/1995 O1 (Hale-Bopp)", {}},
               {"25544", "25544", {}}};
  for (const auto& c : names) {
    const auto parsed = ParseGroup(kViewGroup, {"--look", c.text});
    ASSERT_TRUE(parsed.options.aim && !parsed.options.look) << c.text;
    EXPECT_EQ(parsed.options.aim->name, c.name);
    EXPECT_EQ(parsed.options.aim->zoom, c.zoom);
  }
}

TEST(ViewGroup, TimeTakesWhatTheClockTells) {
  EXPECT_EQ(ParseGroup(kViewGroup, {"--time", "now"}).options.clockTime, ClockTime::kNow);
  EXPECT_EQ(ParseGroup(kViewGroup, {"--time", "today"}).options.clockTime, ClockTime::kToday);
  EXPECT_EQ(ParseGroup(kViewGroup, {"--time", "tonight"}).options.clockTime, ClockTime::kTonight);
  EXPECT_FALSE(ParseGroup(kViewGroup, {"--time", "2026-01-15"}).options.clockTime);
}

TEST(ViewGroup, ZoomIsSaidOnceOnly) {
  EXPECT_EQ(ParseGroup(kViewGroup, {"--fov", "30"}).options.field, 30.0);
  for (const std::vector<std::string>& twice : {std::vector<std::string>{"--fov", "30", "--zoom", "2"},
                                                {"--look", "Moon@9", "--zoom", "2"},
                                                {"--look", "Moon@9", "--fov", "3"}}) {
    const auto parsed = ParseGroup(kViewGroup, twice);
    ASSERT_TRUE(parsed.stop) << twice[1];
    EXPECT_EQ(parsed.stop->code, kBadOption);
    EXPECT_TRUE(Contains(parsed.message, "beside it")) << parsed.message;
  }
  EXPECT_FALSE(ParseGroup(kViewGroup, {"--look", "Moon", "--fov", "3"}).stop);
}

TEST(ViewGroup, ZoneNamesLongerThanACameraKeepsAreRefused) {
  EXPECT_FALSE(ParseGroup(kViewGroup, {"--zone", std::string(63, 'x')}).stop);
  EXPECT_TRUE(ParseGroup(kViewGroup, {"--zone", std::string(64, 'x')}).stop);
}

TEST(ViewGroup, MoreMarkersThanThereIsRoomForAreRefused) {
  std::vector<std::string> arguments;
  for (int i = 0; i < kMaxMarks; ++i) arguments.insert(arguments.end(), {"--marker", "1,2"});
  EXPECT_FALSE(ParseGroup(kViewGroup, arguments).stop);
  arguments.insert(arguments.end(), {"--marker", "1,2"});
  EXPECT_EQ(ParseGroup(kViewGroup, arguments).message, "--marker: given more than 100 times");
}

TEST(ViewGroup, SessionHoldsAView) {
  EXPECT_EQ(ParseGroup(kViewGroup, {"--session", "a", "--view", "b"}).message,
            "--session: holds a view, wants no --view beside it");
}

TEST(SettingsGroup, ChangesKeepTheirOrder) {
  const auto parsed = ParseGroup(kSettingsGroup, {"--set", "star.VisMagnitude=-2,3:on", "--favourite", "M 31",
                                                  "--set", "star.SpectrType[0]=6", "--set", "star:off",
                                                  "--settings", "a", "--save-settings", "b"});
  ASSERT_FALSE(parsed.stop) << parsed.message;
  EXPECT_EQ(parsed.options.set,
            (std::vector<std::string>{"star.VisMagnitude=-2,3:on", "star.SpectrType[0]=6", "star:off"}));
  EXPECT_EQ(parsed.options.favourites, (std::vector<std::string>{"M 31"}));
  EXPECT_EQ(parsed.options.settings.value_or(""), "a");
  EXPECT_EQ(parsed.options.saveSettings.value_or(""), "b");
}

TEST(SettingsGroup, FilesWantNames) {
  ExpectRefused(kSettingsGroup, {{"--settings", "", "FILE"}, {"--save-settings", "", "FILE"}});
}

TEST(SettingsGroup, SessionHoldsSettings) {
  SkyOptions sky;
  CommandLine line("test", "Tests a sky.");
  TakeSky(line, sky);
  const auto stop = host_test::Parse(line, {"--session", "a", "--settings", "b"});
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->message, "--session: holds settings, wants no --settings beside it");
}

TEST(SkyGroups, AreRead) {
  const auto extras = ParseGroup(kExtraGroup, {"--frames-of", "deepsky", "--frames-of", "constellations",
                                               "--showers", "--orbits", "planets,Ceres", "--sky", "none"});
  ASSERT_FALSE(extras.stop) << extras.message;
  EXPECT_EQ(extras.options.framesOf, unsigned{scene::kDeepskyImages | scene::kConstellationImages});
  EXPECT_TRUE(extras.options.showers);
  EXPECT_EQ(extras.options.sky, SkyKind::kNone);
  EXPECT_EQ(ParseGroup(kExtraGroup, {"--sky", "natural"}).options.sky, SkyKind::kNatural);
  EXPECT_TRUE(ParseGroup(kExtraGroup, {"--sky", "black"}).stop);
  EXPECT_EQ(extras.options.orbits->names, (std::vector<std::string>{"Ceres"}));
  EXPECT_EQ(ParseGroup(kSatelliteGroup, {"--tle", "f"}).options.tle.value_or(""), "f");
}

TEST(SkyGroups, NothingIsShownUnlessAskedFor) {
  const auto extras = ParseGroup(kExtraGroup, {});
  EXPECT_EQ(extras.options.framesOf, 0u);
  EXPECT_FALSE(extras.options.showers || extras.options.orbits || extras.options.sky);
}

TEST(SkyGroups, BadValueNamesOptionValueAndForm) {
  ExpectRefused(kExtraGroup, {{"--frames-of", "stars", "constellations|deepsky|milkyway"},
                              {"--orbits", "", "planets|moons|all|NAME"}});
  ExpectRefused(kSatelliteGroup, {{"--tle", "", "FILE"}});
}

TEST(ChartGroup, IsRead) {
  const auto chart = ParseGroup(kChartGroup, {"--style", "print", "--legend", "off", "--eyepiece", "1.2",
                                              "--eyepiece", "2", "--telrad", "--sensor", "23.5x15.6@800@45",
                                              "--page", "A3,landscape", "--bortle", "4", "--landscape", "2"});
  ASSERT_FALSE(chart.stop) << chart.message;
  EXPECT_EQ(chart.options.style, scene::ChartStyle::kPrint);
  EXPECT_EQ(chart.options.legend, false);
  EXPECT_EQ(chart.options.eyepieces, (std::vector<double>{1.2, 2.0}));
  EXPECT_TRUE(chart.options.telrad);
  ASSERT_EQ(chart.options.sensors.size(), 1u);
  EXPECT_EQ(chart.options.sensors[0].angle, 45.0);
  EXPECT_TRUE(chart.options.page && chart.options.page->landscape);
  EXPECT_EQ(chart.options.bortle, 4);
  EXPECT_EQ(chart.options.landscape, 2);
}

TEST(ChartGroup, BadValueNamesOptionValueAndForm) {
  ExpectRefused(kChartGroup, {{"--style", "paper", "screen|print|night|photo"},
                              {"--legend", "yes", "on|off"},
                              {"--eyepiece", "0", "DEGREES"},
                              {"--sensor", "23.5@800", "WIDTHxHEIGHT@FOCUS"},
                              {"--page", "A9", "A5|A4|A3"},
                              {"--bortle", "10", "CLASS"},
                              {"--limit-magnitude", "7", "MAGNITUDE"},
                              {"--landscape", "hills", "ID|none"}});
}

TEST(ChartGroup, DarknessIsSaidOnce) {
  EXPECT_TRUE(Contains(ParseGroup(kChartGroup, {"--bortle", "4", "--limit-magnitude", "5"}).message,
                       "--bortle: says how dark the sky is, wants no --limit-magnitude beside it"));
}

TEST(ChartGroup, PageSaysTheSize) {
  SkyOptions sky;
  CommandLine line("test", "Tests what a sky takes.");
  TakeSky(line, sky);
  ASSERT_FALSE(host_test::Parse(line, {"--page", "A4"}));
  EXPECT_EQ(sky.view.GetSize().width, 1122);
  SkyOptions both;
  CommandLine other("test", "Tests what a sky takes.");
  TakeSky(other, both);
  const auto stop = host_test::Parse(other, {"--page", "A4", "--size", "800x600"});
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->message.substr(0, 36), "--page: says the size, wants no --si");
}

TEST(PictureGroups, AreRead) {
  EXPECT_EQ(ParseGroup(kPictureGroup, {"--out", "a.svg", "--out", "b.png"}).options.out,
            (std::vector<std::string>{"a.svg", "b.png"}));
  const auto keep = ParseGroup(kKeepGroup, {"--save-view", "s:3", "--save-session", "it"});
  ASSERT_FALSE(keep.stop) << keep.message;
  EXPECT_EQ(keep.options.saveView->id, 3);
  EXPECT_EQ(keep.options.saveSession.value_or(""), "it");
  const auto sequence =
      ParseGroup(kSequenceGroup, {"--play", "time=1h", "--frames", "3", "--contact-sheet", "a.png"});
  ASSERT_FALSE(sequence.stop) << sequence.message;
  EXPECT_EQ(sequence.options.frames, 3);
  EXPECT_TRUE(sequence.options.play && sequence.options.contactSheet);
}

TEST(PictureGroups, BadValueNamesOptionValueAndForm) {
  ExpectRefused(kPictureGroup, {{"--out", "sky.jpg", "FILE.svg|FILE.png|FILE.pdf"}});
  ExpectRefused(kKeepGroup, {{"--save-view", ":1", "FILE[:ID]"}, {"--save-session", "", "FILE"}});
  ExpectRefused(kSequenceGroup, {{"--play", "time=1", "time=STEP"},
                                 {"--frames", "10001", "N"},
                                 {"--contact-sheet", "a.svg", "FILE.png"},
                                 {"--animation", "a.gif", "FILE.png"},
                                 {"--trails", "a.svg", "FILE.png"}});
}

TEST(PictureGroups, ThreePicturesOrTheSameTwiceAreRefused) {
  EXPECT_TRUE(ParseGroup(kPictureGroup, {"--out", "a.svg", "--out", "b.svg", "--out", "c.svg"}).stop);
  EXPECT_TRUE(Contains(ParseGroup(kPictureGroup, {"--out", "a.svg", "--out", "a.svg"}).message, "a.svg"));
}

TEST(PictureGroups, SequenceWantsFramesAndPatterns) {
  EXPECT_EQ(CheckDrawing({"--play", "time=1h", "--frames", "2", "--out", "a%d.png"}), "");
  EXPECT_EQ(CheckDrawing({"--play", "time=1h", "--frames", "2", "--contact-sheet", "a.png"}), "");
  EXPECT_EQ(CheckDrawing({"--play", "time=1h", "--frames", "2", "--animation", "a.png"}), "");
  EXPECT_EQ(CheckDrawing({"--play", "time=1h", "--frames", "2", "--trails", "a.png"}), "");
  EXPECT_EQ(CheckDrawing({"--trails", "a.png"}), "--trails: wants --play beside it");
  EXPECT_EQ(CheckDrawing({"--animation", "a.png"}), "--animation: wants --play beside it");
  EXPECT_EQ(CheckDrawing({"--play", "time=1h", "--frames", "2", "--trails", "a.png", "--animation", "a.png"}),
            "--animation 'a.png': given twice; wants two different files");
  EXPECT_EQ(CheckDrawing({"--out", "a.png"}), "");
  EXPECT_EQ(CheckDrawing({"--play", "time=1h"}), "--play: wants --frames N beside it");
  EXPECT_EQ(CheckDrawing({"--frames", "2"}), "--frames: wants --play beside it");
  EXPECT_EQ(CheckDrawing({"--contact-sheet", "a.png"}), "--contact-sheet: wants --play beside it");
  EXPECT_TRUE(Contains(CheckDrawing({"--play", "time=1h", "--frames", "2"}), "--play: wants --out"));
  EXPECT_TRUE(Contains(CheckDrawing({"--play", "time=1h", "--frames", "2", "--out", "a.png"}),
                       "--out 'a.png': wants NAME%03d.svg"));
}
