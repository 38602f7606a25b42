// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/panoramas.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::PanoramaDesc;
using CommonInterfaces::PanoramaInfo;
using Lines = std::vector<std::string>;

constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon");
const SSO_ID kMars(kPlanet, 4);

std::string Text(const PanoramaInfo& info) {
  return info.GetPath() + "|" + (info.IsDefault() ? "default" : "") + "|" + std::to_string(info.GetId()) +
         "|" + info.GetTitle() + "|" + std::to_string(info.GetLeftAzimuth());
}

class Panoramas : public testing::Test {
 protected:
  PanoramaDesc Load(const std::string& content) {
    roots.dir.Write("data/media/surface/panoramas.ini", content);
    return PanoramaDesc();
  }
  // The landscapes of Mars, without the folder.
  Lines OfMars(const std::string& content) {
    const PanoramaDesc panoramas = Load(content);
    Lines texts;
    if (const auto* all = panoramas.GetPanoramas(kMars)) {
      for (const PanoramaInfo& info : *all) {
        EXPECT_EQ(info.GetPath().rfind(Folder(), 0), 0u) << info.GetPath();
        texts.push_back(Text(info).substr(Folder().size()));
      }
    }
    return texts;
  }
  std::string Folder() const { return roots.dir.Path("data") + "/media/surface/"; }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(Panoramas, ALineHasSevenFields) {
  EXPECT_EQ(OfMars("plnt\t4\tgale.png\t1\t17\tGale crater\t90\n"),
            Lines{"gale.png|default|17|Gale crater|90"});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Panoramas, LinesWithFewerFieldsAreIgnored) {
  EXPECT_EQ(
      OfMars("plnt\t4\ta.png\t1\t17\tA\nplnt\t4\tb.png\t1\t17\tB\t\nplnt\t4\tc.png\t1\t17\tC\t5\tmore\n"),
      (Lines{"b.png|default|17|B|65535", "c.png|default|17|C|5"}));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Panoramas, LinesWithoutKindOrNumberAreIgnored) {
  const PanoramaDesc panoramas =
      Load("planet\t4\ta\t1\t1\tA\t1\nplnt\tfour\tb\t1\t1\tB\t1\n\t-1\tc\t1\t1\tC\t1\n");
  EXPECT_EQ(panoramas.GetPanoramas(kMars), nullptr);
  EXPECT_EQ(panoramas.GetPanoramas(SSO_ID()), nullptr);
}

TEST_F(Panoramas, TheFlagIsSetAboveZero) {
  EXPECT_EQ(
      OfMars(
          "plnt\t4\ta\t2\t1\t\t1\nplnt\t4\tb\t0\t1\t\t1\nplnt\t4\tc\t-1\t1\t\t1\nplnt\t4\td\tyes\t1\t\t1\n"),
      (Lines{"a|default|1||1", "b||1||1", "c||1||1", "d||1||1"}));
}

TEST_F(Panoramas, NumbersKeepTheirLow16Bits) {
  EXPECT_EQ(OfMars("plnt\t4\ta\t0\t65537\t\t-1\nplnt\t4\tb\t0\t-2\t\t65535\n"),
            (Lines{"a||1||65535", "b||65534||65535"}));
}

TEST_F(Panoramas, NumbersThatDoNotParseAreNotGiven) {
  EXPECT_EQ(OfMars("plnt\t4\ta\t0\tx\t\ty\nplnt\t4\tb\t0\t\t\t99999999999\n"),
            (Lines{"a||65535||65535", "b||65535||65535"}));
}

TEST_F(Panoramas, TheTitleStandsAsItIs) {
  EXPECT_EQ(OfMars("plnt\t4\ta\t0\t1\t  G\xE2le %s ; \t1\n"), Lines{"a||1|  G\xE2le %s ; |1"});
}

TEST_F(Panoramas, ANewPanoramaHasNothing) {
  EXPECT_EQ(Text(PanoramaInfo()), "||65535||65535");
  EXPECT_EQ(Text(PanoramaInfo(5)), "||5||65535");
}

TEST_F(Panoramas, PanoramasAreValues) {
  PanoramaInfo original(5);
  original.SetPath("p");
  original.SetDefault(true);
  original.SetTitle("t");
  original.SetLeftAzimuth(9);
  const PanoramaInfo copy(original);
  PanoramaInfo assigned;
  assigned = copy;
  EXPECT_EQ(Text(copy), "p|default|5|t|9");
  EXPECT_EQ(Text(assigned), "p|default|5|t|9");
  PanoramaInfo moved(std::move(original));
  EXPECT_EQ(Text(moved), "p|default|5|t|9");
  assigned = std::move(moved);
  EXPECT_EQ(Text(assigned), "p|default|5|t|9");
}

TEST_F(Panoramas, TheIndexCountsInTheOrderOfTheFile) {
  const PanoramaDesc panoramas = Load(
      "plnt\t4\ta\t0\t1\tA\t1\nmoon\t301\tb\t0\t1\tB\t1\nplnt\t4\tc\t0\t1\tC\t1\nplnt\t301\td\t0\t1\tD\t1\n");
  ASSERT_NE(panoramas.GetPanorama(kMars, 0), nullptr);
  EXPECT_EQ(panoramas.GetPanorama(kMars, 0)->GetTitle(), "A");
  EXPECT_EQ(panoramas.GetPanorama(kMars, 1)->GetTitle(), "C");
  EXPECT_EQ(panoramas.GetPanorama({kMoon, 301}, 0)->GetTitle(), "B");
  EXPECT_EQ(panoramas.GetPanoramas(kMars)->size(), 2u);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Panoramas, AnIndexOutsideTheListIsReported) {
  const PanoramaDesc panoramas = Load("plnt\t4\ta\t0\t1\tA\t1\n");
  for (const int index : {1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    debug.lines.clear();
    EXPECT_EQ(panoramas.GetPanorama(kMars, index), nullptr);
    EXPECT_EQ(debug.lines, Lines{"Panorama for object (1886154356, 4) not found\n"});
  }
}

TEST_F(Panoramas, ABodyWithoutLandscapesIsReportedByOneQuestionOnly) {
  const PanoramaDesc panoramas = Load("plnt\t4\ta\t0\t1\tA\t1\n");
  EXPECT_EQ(panoramas.GetPanoramas({kMoon, 301}), nullptr);
  EXPECT_TRUE(debug.lines.empty());
  EXPECT_EQ(panoramas.GetPanorama({kMoon, 301}, 0), nullptr);
  EXPECT_EQ(debug.lines, Lines{"Panorama for object (1836019566, 301) not found\n"});
}

TEST_F(Panoramas, PicturesLieInTheFolderOfTheDescription) {
  roots.dir.Write("work/my/own.ini", "plnt\t4\tsub/a.png\t0\t1\tA\t1\n");
  const PanoramaDesc panoramas("my:own.ini");
  ASSERT_NE(panoramas.GetPanorama(kMars, 0), nullptr);
  EXPECT_EQ(panoramas.GetPanorama(kMars, 0)->GetPath(), roots.dir.Path("work") + "/my/sub/a.png");
}

TEST_F(Panoramas, TheFolderEndsAtTheLastSeparatorOfEitherKind) {
  for (const char* name : {"mixed/own.ini", "mixed/other\\own.ini"}) {
    const std::string path = roots.dir.Write(name, "plnt\t4\ta.png\t0\t1\tA\t1\n");
    const PanoramaDesc panoramas(path.c_str());
    ASSERT_NE(panoramas.GetPanorama(kMars, 0), nullptr);
    EXPECT_EQ(panoramas.GetPanorama(kMars, 0)->GetPath(), path.substr(0, path.size() - 7) + "a.png");
  }
}

TEST_F(Panoramas, MarkLineEndsAndEmptyLines) {
  EXPECT_EQ(OfMars("\xEF\xBB\xBFplnt\t4\ta\t0\t1\tA\t1\r\n\r\n\nplnt\t4\tb\t0\t1\tB\t2"),
            (Lines{"a||1|A|1", "b||1|B|2"}));
}

TEST_F(Panoramas, LinesCutBeforeTheirLastFieldAreIgnored) {
  EXPECT_EQ(OfMars("plnt\t4\ta\t0\t1\t" + std::string(300, 't') + "\t1\nplnt\t4\tb\t0\t1\tB\t2\n"),
            Lines{"b||1|B|2"});
}

TEST_F(Panoramas, MissingAndEmptyFilesAreEmptyDescriptions) {
  const PanoramaDesc missing("media:surface:other.ini"), none(nullptr);
  EXPECT_EQ(missing.GetPanoramas(kMars), nullptr);
  EXPECT_EQ(none.GetPanoramas(kMars), nullptr);
  EXPECT_EQ(OfMars(""), Lines{});
  std::filesystem::create_directories(roots.dir.Path("data/folder.ini"));
  EXPECT_EQ(PanoramaDesc("folder.ini").GetPanoramas(kMars), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

}  // namespace
