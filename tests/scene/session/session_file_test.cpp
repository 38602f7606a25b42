// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/session_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scene/session/checksum.h"
#include "scene/visibility/setting_values.h"
#include "support/comma_locale.h"
#include "utils/text.h"

using namespace scene;

namespace {

SessionCapsule MakeCapsule() {
  SessionCapsule capsule;
  capsule.language = "de";
  capsule.size = {800, 500};
  capsule.zone = "Europe/Berlin";
  capsule.place = "Frankfurt am Main";
  capsule.view = {"m_Zoom=0.68", "DateFrom=0,0,0,0,0"};
  capsule.settings = {"star:off", "grid.Compass=0"};
  capsule.favourites = {{FourCC("nebu"), -42}};
  capsule.markers = {{0.1, -1.0 / 3.0, 7}};
  capsule.marks = {{FourCC("star"), 2491}, {FourCC("cnst"), 7}};
  capsule.framesOf = kDeepskyImages | kMilkyWayImages;
  capsule.showers = true;
  capsule.plainSky = true;
  capsule.chart.style = ChartStyle::kNight;
  capsule.chart.eyepieces = {1.2};
  capsule.chart.page = ParsePage("A4");
  capsule.data = {{"catalogs:stars.txt", 0x0123456789ABCDEFu}};
  return capsule;
}

std::string Sealed(const std::string& body) { return body + "end " + FormatChecksum(Checksum(body)) + "\n"; }

}  // namespace

// Test vectors of the algorithm's authors (Fowler, Noll & Vo, test suite of FNV-1a).
TEST(Checksum, IsThatOfThePublishedTestVectors) {
  EXPECT_EQ(Checksum(""), 0xCBF29CE484222325u);
  EXPECT_EQ(Checksum("a"), 0xAF63DC4C8601EC8Cu);
  EXPECT_EQ(Checksum("foobar"), 0x85944171F73967E8u);
}

TEST(Checksum, TextIsSixteenSmallDigits) {
  EXPECT_EQ(FormatChecksum(0x0123456789ABCDEFu), "0123456789abcdef");
  EXPECT_EQ(ParseChecksum("0123456789abcdef"), 0x0123456789ABCDEFu);
  for (const char* bad : {"", "123", "0123456789ABCDEF", "0123456789abcdefg", "0x23456789abcdef"}) {
    EXPECT_FALSE(ParseChecksum(bad)) << bad;
  }
}

TEST(SessionFile, EverythingComesBack) {
  SessionCapsule back;
  std::string error;
  ASSERT_TRUE(ParseSession(FormatSession(MakeCapsule()), back, error)) << error;
  EXPECT_EQ(back.language, "de");
  EXPECT_EQ(FormatChart(back.chart), "style night\neyepiece 1.2\npage A4,portrait\n");
  EXPECT_EQ(back.size.width, 800);
  EXPECT_EQ(back.size.height, 500);
  EXPECT_EQ(back.zone, "Europe/Berlin");
  EXPECT_EQ(back.place, "Frankfurt am Main");
  EXPECT_EQ(back.view, MakeCapsule().view);
  EXPECT_EQ(back.settings, MakeCapsule().settings);
  ASSERT_EQ(back.favourites.size(), 1u);
  EXPECT_EQ(back.favourites[0].kind, FourCC("nebu"));
  EXPECT_EQ(back.favourites[0].number, -42);
  ASSERT_EQ(back.markers.size(), 1u);
  EXPECT_EQ(back.markers[0].ra, 0.1);
  EXPECT_EQ(back.markers[0].dec, -1.0 / 3.0);
  EXPECT_EQ(back.markers[0].id, 7);
  ASSERT_EQ(back.marks.size(), 2u);
  EXPECT_EQ(back.marks[0].kind, FourCC("star"));
  EXPECT_EQ(back.marks[0].number, 2491);
  EXPECT_EQ(back.framesOf, unsigned{kDeepskyImages | kMilkyWayImages});
  EXPECT_TRUE(back.showers);
  EXPECT_TRUE(back.plainSky);
  ASSERT_EQ(back.data.size(), 1u);
  EXPECT_EQ(back.data[0].name, "catalogs:stars.txt");
  EXPECT_EQ(back.data[0].checksum, 0x0123456789ABCDEFu);
}

TEST(SessionFile, EveryCutAndEveryChangedByteIsNoticed) {
  const std::string whole = FormatSession(MakeCapsule());
  SessionCapsule capsule;
  capsule.language = "untouched";
  std::string error;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(ParseSession(whole.substr(0, length), capsule, error)) << length;
  }
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    EXPECT_FALSE(ParseSession(changed, capsule, error)) << at;
    EXPECT_EQ(error.find('\n'), std::string::npos);
  }
  EXPECT_EQ(capsule.language, "untouched");
  EXPECT_TRUE(capsule.view.empty());
}

TEST(SessionFile, OutlinesAndShowersAreSaidOnce) {
  const std::string start = "skyview session 1\nlanguage en\nsize 800x500\nview m_Zoom=1\n";
  SessionCapsule capsule;
  std::string error;
  for (const std::string line : {"frames-of deepsky\n", "showers on\n", "sky none\n"}) {
    EXPECT_TRUE(ParseSession(Sealed(start + line), capsule, error)) << error;
    EXPECT_FALSE(ParseSession(Sealed(start + line + line), capsule, error)) << line;
  }
}

TEST(SessionFile, KindThatALineCannotNameIsTold) {
  EXPECT_TRUE(IsNameableKind(FourCC("star")));
  for (const int kind : {-1, 0, 12, FourCC("a b "), FourCC("ab\nc")})
    EXPECT_FALSE(IsNameableKind(kind)) << kind;
}

TEST(SessionFile, LinesThatAreNotUnderstoodAreNamed) {
  const std::string start = "skyview session 1\nlanguage en\nsize 800x500\nview m_Zoom=1\n";
  SessionCapsule capsule;
  std::string error;
  ASSERT_TRUE(ParseSession(Sealed(start), capsule, error)) << error;
  for (const char* bad : {"",
                          "colour red",
                          "size 800x500",
                          "language de",
                          "view",
                          "view m_Zoom",
                          "favourite star",
                          "favourite star x",
                          "marker 1,2",
                          "marker 400,0,1",
                          "data 12 stars.txt",
                          "data 0123456789abcdef",
                          "zone ",
                          "end 0123456789abcdef",
                          "mark star",
                          "mark star x",
                          "frames-of stars",
                          "showers off",
                          "showers",
                          "sky natural",
                          "sky"}) {
    EXPECT_FALSE(ParseSession(Sealed(start + bad + "\n"), capsule, error)) << bad;
    EXPECT_EQ(error, "line 5 '" + std::string(bad) + "' is not understood");
  }
}

TEST(SessionFile, LanguageSizeAndViewMustBeThere) {
  SessionCapsule capsule;
  std::string error;
  for (const char* body :
       {"", "language en\nsize 800x500\n", "language en\nview m_Zoom=1\n", "size 800x500\nview m_Zoom=1\n"}) {
    EXPECT_FALSE(ParseSession(Sealed(std::string("skyview session 1\n") + body), capsule, error)) << body;
    EXPECT_NE(error.find("lacks"), std::string::npos) << error;
  }
}

TEST(SessionFile, OtherFilesAndLaterVersionsAreNoSessions) {
  SessionCapsule capsule;
  std::string error;
  for (const char* text : {"\n", "SREV", "skyview session 2\n", "\x89PNG\r\n"}) {
    EXPECT_FALSE(ParseSession(text, capsule, error));
    EXPECT_NE(error.find("is no session"), std::string::npos) << error;
  }
}

// A name with a line end would be a line of its own.
TEST(SessionFile, ControlCharactersInNamesBecomeBlanks) {
  SessionCapsule capsule = MakeCapsule();
  capsule.place = "two\nlines";
  SessionCapsule back;
  std::string error;
  ASSERT_TRUE(ParseSession(FormatSession(capsule), back, error)) << error;
  EXPECT_EQ(back.place, "two lines");
}

// No session that was written has them, and a kind or an orbit with one would be written as one that cannot
// be read.
TEST(SessionFile, LineWithAControlCharacterIsNotUnderstoodAndToldWithoutIt) {
  const std::string start = "skyview session 1\nlanguage en\nsize 1600x1000\nview m_JT=2461056\n";
  for (const std::string line :
       {"place A\tB", "favourite a\tbc 5", "orbits planets,\x01", "set star.Draw=0\r"}) {
    SessionCapsule capsule;
    std::string error;
    EXPECT_FALSE(ParseSession(Sealed(start + line + "\n"), capsule, error)) << line;
    EXPECT_EQ(std::count_if(error.begin(), error.end(), [](char c) { return c >= 0 && c < ' '; }), 0)
        << error;
    EXPECT_EQ(error.find("line 5 '"), 0u) << error;
  }
}

TEST(FormatExact, IsShortHasAPointAndKeepsEveryBit) {
  const test_support::CommaLocale locale;
  EXPECT_EQ(FormatExact(0.1), "0.1");
  EXPECT_EQ(FormatExact(-0.0), "-0");
  EXPECT_EQ(FormatExact(1.0 / 3.0), "0.3333333333333333");
}

TEST(SessionOptions, ComeBackAndAreTakenBack) {
  SessionCapsule capsule = MakeCapsule();
  std::string value;
  ASSERT_TRUE(GetSessionOption(capsule, "style", value));
  EXPECT_EQ(value, "night");
  ASSERT_TRUE(SetSessionOption("style", "", capsule));
  ASSERT_TRUE(SetSessionOption("eyepiece", "3 0.5", capsule));
  ASSERT_TRUE(GetSessionOption(capsule, "eyepiece", value));
  EXPECT_EQ(value, "3 0.5");
  EXPECT_FALSE(capsule.chart.style);
  EXPECT_TRUE(capsule.chart.page) << "the others stay";
  EXPECT_EQ(capsule.view.size(), 2u);
}

TEST(SessionOptions, DarknessIsSaidInOneWay) {
  SessionCapsule capsule;
  ASSERT_TRUE(SetSessionOption("limit-magnitude", "5.5", capsule));
  ASSERT_TRUE(SetSessionOption("bortle", "3", capsule));
  EXPECT_EQ(capsule.chart.bortle, 3);
  EXPECT_FALSE(capsule.chart.limitMagnitude);
}

TEST(SessionOptions, WhatIsNoneChangesNothing) {
  SessionCapsule capsule = MakeCapsule();
  const std::string before = FormatSession(capsule);
  std::string value = "kept";
  for (const auto& [word, text] :
       {std::pair("style", "paper"), std::pair("bortle", "0"), std::pair("nothing", "on"),
        std::pair("view", "m_Zoom=1"), std::pair("telrad", "off"), std::pair("sky", "none\nview m_Zoom=1")})
    EXPECT_FALSE(SetSessionOption(word, text, capsule)) << word;
  EXPECT_EQ(FormatSession(capsule), before);
  EXPECT_FALSE(GetSessionOption(capsule, "view", value));
  EXPECT_EQ(value, "kept");
}
