// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The pages of an almanac over the small sky, as they are printed.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"
#include "utils/utf8.h"

using host_test::SmallSky;

namespace {

constexpr int kPageWidth = 100, kPageLength = 66;

std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string ReadPage(const std::string& name) { return ReadBytes(CI_ALMANAC_PAGES "/" + name); }

void ExpectPage(const std::string& text) {
  std::istringstream in(text);
  int lines = 0;
  for (std::string line; std::getline(in, line); ++lines) {
    EXPECT_LE(CountCharacters(line), kPageWidth) << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
  }
  EXPECT_LE(lines, kPageLength);
}

const std::vector<std::string> kBerlin = {"--place", "52.5,13.4", "--zone", "Europe/Berlin"};

std::vector<std::string> InBerlin(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(), kBerlin.begin(), kBerlin.end());
  return arguments;
}

}  // namespace

TEST(AlmanacPages, TonightIsAPageInThreeLanguages) {
  SmallSky sky;
  for (const std::string language : {"en", "de", "ru"}) {
    ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10", "--language", language})), 0)
        << sky.errors.str();
    EXPECT_EQ(sky.output.str(), ReadPage("tonight_" + language + ".txt"));
    ExpectPage(sky.output.str());
  }
}

TEST(AlmanacPages, TonightWithoutANightAndWithoutADay) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"tonight", "--time", "2027-06-21", "--place", "69.65,18.95"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("The Sun does not set\n")) << sky.output.str();
  ExpectPage(sky.output.str());
  ASSERT_EQ(sky.Run({"tonight", "--time", "2027-12-21", "--place", "69.65,18.95"}), 0);
  EXPECT_TRUE(sky.Printed("Evening, until    -")) << sky.output.str();
  ExpectPage(sky.output.str());
  ASSERT_EQ(sky.Run({"tonight", "--time", "2027-12-21", "--place", "90,0"}), 0);
  ExpectPage(sky.output.str());
}

TEST(AlmanacPages, DateAloneMeansTheNightThatBeginsOnIt) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10"})), 0);
  EXPECT_TRUE(sky.output.str().starts_with("Night from 10 February 2027 to 11 February 2027\n"));
  ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10T01:00"})), 0);
  EXPECT_TRUE(sky.output.str().starts_with("Night from 9 February 2027 to 10 February 2027\n"));
  ASSERT_EQ(sky.Run(InBerlin({"tonight"})), 0);  // by the clock, 18:00 of 15 January 2026
  EXPECT_TRUE(sky.output.str().starts_with("Night from 15 January 2026 to 16 January 2026\n"))
      << sky.output.str();
}

TEST(AlmanacPages, EquipmentIsNamed) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10", "--equipment", "eye"})), 0);
  EXPECT_TRUE(sky.Printed("(naked eye)"));
  ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10", "--aperture", "114"})), 0);
  EXPECT_TRUE(sky.Printed("(telescope, 114 mm)"));
  EXPECT_EQ(sky.Run({"tonight", "--equipment", "radio"}), 2);
  EXPECT_EQ(sky.Run({"tonight", "--aperture", "0"}), 2);
}

TEST(AlmanacPages, TonightAsJsonHasTheSameNight) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(InBerlin({"tonight", "--time", "2027-02-10", "--format", "json"})), 0);
  for (const char* part : {"\"sunset\": \"2027-02-10T17:09:", "\"darkness\": \"astronomical\"",
                           "\"name\": \"Jupiter\"", "\"planets\": [{", "\"next\": [{"})
    EXPECT_TRUE(sky.Printed(part)) << part << sky.output.str();
  const std::string text = sky.output.str();
  EXPECT_EQ(std::count(text.begin(), text.end(), '{'), std::count(text.begin(), text.end(), '}'));
  EXPECT_EQ(text.find('\n'), text.size() - 1);
}

TEST(AlmanacPages, YearIsPrinted) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(InBerlin({"year", "2027"})), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), ReadPage("year_en.txt"));
  ASSERT_EQ(sky.Run(InBerlin({"year", "2027", "--language", "de"})), 0);
  EXPECT_TRUE(sky.Printed("Mondphasen\n  Neumond      Erstes Viertel  Vollmond     Letztes Viertel\n"))
      << sky.output.str();
  EXPECT_EQ(sky.Run({"year", "twenty"}), 2);
  EXPECT_EQ(sky.GetErrorLine().find("skyview: year 'twenty': wants YYYY"), 0u) << sky.errors.str();
}

TEST(AlmanacPages, ChartOfMoonsIsWritten) {
  SmallSky sky;
  const std::string moons = sky.dir.Path("moons.svg");
  const int code = paint::CanDraw() ? 0 : 1;
  EXPECT_EQ(sky.Run(InBerlin({"moons", "2027-03", "--out", moons})), code) << sky.errors.str();
  EXPECT_EQ(std::filesystem::exists(moons), paint::CanDraw());
  EXPECT_EQ(sky.Run({"moons", "2027-03"}), 2);
  EXPECT_NE(sky.GetErrorLine().find("moons: wants --out"), std::string::npos);
  EXPECT_EQ(sky.Run({"moons", "March", "--out", moons}), 2);
}

TEST(AlmanacPages, EventsAreListedKeptAndRefused) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(InBerlin({"events", "2027-03", "--kind", "phases,march-equinox"})), 0)
      << sky.errors.str();
  EXPECT_EQ(sky.output.str(),
            "2027-03-08 10:29 +01:00  New Moon\n"
            "2027-03-15 17:25 +01:00  First quarter\n"
            "2027-03-20 21:25 +01:00  March equinox\n"
            "2027-03-22 11:44 +01:00  Full Moon\n"
            "2027-03-30 02:54 +02:00  Last quarter\n");
  const std::string file = sky.dir.Path("events.ics");
  ASSERT_EQ(sky.Run({"events", "2027-03", "--kind", "phases", "--format", "ics", "--out", file}), 0);
  EXPECT_EQ(sky.output.str(), file + ": 4\n");
  const std::string calendar = ReadBytes(file);
  EXPECT_TRUE(calendar.starts_with("BEGIN:VCALENDAR\r\n"));
  EXPECT_TRUE(calendar.ends_with("END:VCALENDAR\r\n"));
  ASSERT_EQ(sky.Run({"events", "2027-03", "--kind", "phases", "--format", "ics"}), 0);
  EXPECT_TRUE(sky.output.str().starts_with("BEGIN:VCALENDAR\nVERSION:2.0\n"));
  EXPECT_EQ(sky.Run({"events", "2027-03", "--kind", "phase"}), 2);
  EXPECT_NE(sky.GetErrorLine().find("--kind 'phase': no such kind of events, wants for example phases"),
            std::string::npos)
      << sky.errors.str();
  EXPECT_EQ(sky.Run({"events", "yesterday"}), 2);
  EXPECT_EQ(sky.Run({"events", "1582-10-01", "--format", "ics"}), 2);
  ASSERT_EQ(sky.Run({"events", "2027", "--kind", "help"}), 0);
  EXPECT_TRUE(sky.Printed("phases: new-moon, first-quarter, full-moon, last-quarter\n"));
}

// Beyond the theories there is nothing, and somebody says so.
TEST(AlmanacPages, EventsNobodyCanTellAreSaid) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"events", "4000-03", "--kind", "phases"}), 0);
  EXPECT_EQ(sky.output.str(), "");
  EXPECT_EQ(sky.GetErrorLine(), "skyview: events: for a part of 4000-03 nobody can tell");
  EXPECT_EQ(sky.Run({"tonight", "--time", "4000-03-01"}), 1);
  EXPECT_EQ(sky.Run({"moons", "4000-03", "--out", sky.dir.Path("moons.svg")}), 1);
}
