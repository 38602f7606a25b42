// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/options.h"

#include <gtest/gtest.h>

using namespace scene;
using namespace skyview;

namespace {

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace

TEST(Options, NothingGivenLeavesTheViewToDecide) {
  const auto parsed = ParseOptions({});
  ASSERT_EQ(parsed.outcome, ParseOutcome::kRun);
  EXPECT_FALSE(parsed.options.view || parsed.options.time || parsed.options.zone || parsed.options.zoom);
  EXPECT_EQ(parsed.options.size.width, 1600);
  EXPECT_EQ(parsed.options.size.height, 1000);
  EXPECT_TRUE(parsed.options.out.empty());
  EXPECT_EQ(parsed.options.language, "en");
}

TEST(Options, EveryOptionIsRead) {
  const auto parsed =
      ParseOptions({"--data",     "d",           "--work",           "w",      "--view",
                    "v:2",        "--time",      "2026-01-15T22:00", "--zone", "Europe/Berlin",
                    "--place",    "-33.9,151.2", "--look",           "180,30", "--zoom",
                    "2.5",        "--size",      "640x480",          "--out",  "a.svg",
                    "--out",      "b.png",       "--save-view",      "s:3",    "--list-limits",
                    "--language", "de"});
  ASSERT_EQ(parsed.outcome, ParseOutcome::kRun) << parsed.message;
  const Options& o = parsed.options;
  EXPECT_EQ(o.data.value_or(""), "d");
  EXPECT_EQ(o.work.value_or(""), "w");
  EXPECT_EQ(o.language, "de");
  EXPECT_EQ(o.view->id, 2);
  EXPECT_EQ(o.saveView->id, 3);
  EXPECT_EQ(o.timeText, "2026-01-15T22:00");
  EXPECT_EQ(o.zone.value_or(""), "Europe/Berlin");
  EXPECT_DOUBLE_EQ(o.place->latitude, -33.9);
  EXPECT_DOUBLE_EQ(o.look->azimuth, 180.0);
  EXPECT_DOUBLE_EQ(o.zoom.value_or(0.0), 2.5);
  EXPECT_EQ(o.size.height, 480);
  EXPECT_EQ(o.out, (std::vector<std::string>{"a.svg", "b.png"}));
  EXPECT_TRUE(o.listLimits);
}

TEST(Options, EachBadValueNamesItselfItsOptionAndTheForm) {
  const struct {
    const char *option, *value, *form;
  } cases[] = {{"--view", "x:0", "FILE[:ID]"},
               {"--time", "yesterday", "YYYY-MM-DD"},
               {"--zone", "", "NAME"},
               {"--place", "91,0", "LAT,LON"},
               {"--look", "south", "AZ,ALT"},
               {"--zoom", "0", "FACTOR"},
               {"--size", "10x10", "WIDTHxHEIGHT"},
               {"--out", "sky.jpg", "FILE.svg|FILE.png"},
               {"--save-view", ":1", "FILE[:ID]"},
               {"--data", "", "FOLDER"},
               {"--work", "", "FOLDER"},
               {"--language", "", "LANG"}};
  for (const auto& c : cases) {
    const auto parsed = ParseOptions({c.option, c.value});
    EXPECT_EQ(parsed.outcome, ParseOutcome::kBad) << c.option;
    EXPECT_TRUE(Contains(parsed.message, std::string(c.option) + " '" + c.value + "'")) << parsed.message;
    EXPECT_TRUE(Contains(parsed.message, c.form)) << parsed.message;
    EXPECT_FALSE(Contains(parsed.message, "\n"));
  }
}

TEST(Options, ZoneNamesLongerThanACameraKeepsAreRefused) {
  EXPECT_EQ(ParseOptions({"--zone", std::string(63, 'x')}).outcome, ParseOutcome::kRun);
  EXPECT_EQ(ParseOptions({"--zone", std::string(64, 'x')}).outcome, ParseOutcome::kBad);
}

TEST(Options, UnknownOptionIsNamedInOneLine) {
  const auto parsed = ParseOptions({"--zooom", "2"});
  EXPECT_EQ(parsed.outcome, ParseOutcome::kBad);
  EXPECT_TRUE(Contains(parsed.message, "--zooom")) << parsed.message;
  EXPECT_FALSE(Contains(parsed.message, "\n"));
}

TEST(Options, MissingValueNamesTheOption) {
  const auto parsed = ParseOptions({"--zoom"});
  EXPECT_EQ(parsed.outcome, ParseOutcome::kBad);
  EXPECT_TRUE(Contains(parsed.message, "--zoom")) << parsed.message;
}

TEST(Options, ThreePicturesOrTheSameTwiceAreRefused) {
  EXPECT_EQ(ParseOptions({"--out", "a.svg", "--out", "b.svg", "--out", "c.svg"}).outcome, ParseOutcome::kBad);
  const auto twice = ParseOptions({"--out", "a.svg", "--out", "a.svg"});
  EXPECT_EQ(twice.outcome, ParseOutcome::kBad);
  EXPECT_TRUE(Contains(twice.message, "a.svg")) << twice.message;
}

TEST(Options, ChangesOfSettingsKeepTheirOrder) {
  const auto parsed = ParseOptions({"--set", "star.VisMagnitude=-2,3:on", "--favourite", "M 31", "--set",
                                    "star.SpectrType[0]=6", "--set", "star:off", "--settings", "a",
                                    "--save-settings", "b", "--why", "Sirius"});
  ASSERT_EQ(parsed.outcome, ParseOutcome::kRun) << parsed.message;
  EXPECT_EQ(parsed.options.set,
            (std::vector<std::string>{"star.VisMagnitude=-2,3:on", "star.SpectrType[0]=6", "star:off"}));
  EXPECT_EQ(parsed.options.favourites, (std::vector<std::string>{"M 31"}));
  EXPECT_EQ(parsed.options.settings.value_or(""), "a");
  EXPECT_EQ(parsed.options.saveSettings.value_or(""), "b");
  EXPECT_EQ(parsed.options.why.value_or(""), "Sirius");
}

TEST(Options, HelpListsEveryOption) {
  const auto parsed = ParseOptions({"--help"});
  ASSERT_EQ(parsed.outcome, ParseOutcome::kHelp);
  for (const char* option : {"--data", "--work", "--view", "--time", "--zone", "--place", "--look", "--zoom",
                             "--size", "--out", "--language", "--save-view", "--list-limits", "--set",
                             "--favourite", "--settings", "--save-settings", "--why"}) {
    EXPECT_TRUE(Contains(parsed.message, option)) << option;
  }
}
