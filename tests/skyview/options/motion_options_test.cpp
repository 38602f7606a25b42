// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The options that move the camera, mark the sky, keep homes and draw sequences, through the whole program.
#include <gtest/gtest.h>

#include <filesystem>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"
#include "utils/messages.h"

using host_test::SmallSky;

namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

const Arguments kOrion = {"--place", "52.52,13.405", "--zone",           "Europe/Berlin", "--size",
                          "320x200", "--time",       "2026-01-15T22:00", "--look",        "180,30"};

Arguments With(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

// A record of a moving type in the defaults: the ecliptic seen from 1 au beside the Sun, 57 degrees north and
// at longitude 37.
void AddSpaceRecord(SmallSky& sky, int observer, int record = FourCC("CFCN"), bool locked = false) {
  auto fields = test_support::CameraFields();
  using namespace test_support;
  ReplaceField(fields, Int8("m_ObsMovingType", 3));
  ReplaceField(fields, Int32("m_ObsObjID", observer));
  ReplaceField(fields, Double("m_dist", 1.0));
  ReplaceField(fields, UInt8("m_distUnits", 4));
  ReplaceField(fields, Double("m_alp", 1.0));
  ReplaceField(fields, Double("m_bet", 0.0));
  ReplaceField(fields, UInt8("m_BasePlane", 2));
  ReplaceField(fields, UInt8("m_dirLock", locked ? 1 : 0));
  AppendBlock(sky.dir.Path("data/filters.data"), record, CommonInterfaces::SettingsData::kDefaultsTag,
              kCameraSection, fields);
}

int CountFiles(const SmallSky& sky, const std::string& ending) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(sky.dir.Path())) {
    count += entry.path().extension() == ending ? 1 : 0;
  }
  return count;
}

}  // namespace

TEST(MovingTypeOption, StatusAndPlaneFollow) {
  SmallSky sky;
  AddSpaceRecord(sky, 10);
  ASSERT_EQ(sky.Run({"--moving-type", "3", "--time", "2026-01-15T22:00Z"}), 0) << sky.errors.str();
  for (
      const char* line :
      {"Place: In free flight near Sun\n", "Distance: 1 au\n", "Reference plane:\u00A0ecliptic\n",
       "Universal Time: 22:00, 15/01/2026 AD\n",
       // One radian along the ecliptic: tan RA = tan 1 cos e, sin Dec = sin 1 sin e with e = 23.4393 degrees.
       "Centre (J2000): RA 3h40m03", "Dec 19°33'19",
       "Direction: longitude 57°17'44.81\", latitude 0°00'00.00\" (ecliptic)\n"}) {
    EXPECT_TRUE(sky.Printed(line)) << line << sky.output.str();
  }
}

// In orbit the direction is locked on what is circled: from 57 degrees north at longitude 37 the Sun stands
// at the opposite place. In free flight it is locked on the Earth, of whose place nothing is known.
TEST(MovingTypeOption, DirectionLockedOnTheBodyTravelledAroundTurnsToIt) {
  SmallSky sky;
  AddSpaceRecord(sky, 10, FourCC("CSOL"));
  ASSERT_EQ(sky.Run({"--moving-type", "4", "--time", "2026-01-15T22:00Z"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Direction: longitude 217°00'00.00\", latitude -57°00'00.00\" (ecliptic)\n"))
      << sky.output.str();
  EXPECT_TRUE(sky.Printed("Locked on: Sun\n")) << sky.output.str();
}

TEST(MovingTypeOption, DirectionLockedOnAnotherBodyStaysAndIsCentredOnNothing) {
  SmallSky sky;
  AddSpaceRecord(sky, 10, FourCC("CFCN"), true);
  ASSERT_EQ(sky.Run({"--moving-type", "3", "--time", "2026-01-15T22:00Z"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Direction: longitude 57°17'44.81\", latitude 0°00'00.00\" (ecliptic)\n"))
      << sky.output.str();
  for (const char* text : {"Locked on", "Earth\n"}) EXPECT_FALSE(sky.Printed(text)) << sky.output.str();
}

TEST(MovingTypeOption, OtherObserversAreRefusedWithOneLine) {
  SmallSky sky;
  AddSpaceRecord(sky, 4);
  EXPECT_EQ(sky.Run({"--moving-type", "3"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("--moving-type 3: the view is not seen from"), std::string::npos)
      << sky.errors.str();
}

TEST(MovingTypeOption, PlacesAndDirectionsOfTheEarthAreRefusedElsewhere) {
  SmallSky sky;
  AddSpaceRecord(sky, 10);
  for (const auto& [option, value] : {std::pair("--place", "50,8"), std::pair("--look", "180,30")}) {
    EXPECT_EQ(sky.Run({"--moving-type", "3", option, value}), 2) << option;
    EXPECT_EQ(sky.GetErrorLine().rfind(std::string("skyview: ") + option, 0), 0u) << sky.errors.str();
  }
}

TEST(HomeOption, StoredHomeIsShownAndGoneToInTheNextRun) {
  SmallSky sky;
  const Arguments work = {"--work", sky.dir.Path("work")};
  ASSERT_EQ(sky.Run(With({"homes", "store"}, With(kOrion, work))), 0) << sky.errors.str();
  ASSERT_TRUE(fs::exists(sky.dir.Path("work/home_params.ini")));
  ASSERT_EQ(sky.Run(With({"homes"}, work)), 0);
  EXPECT_EQ(sky.output.str(),
            "Home of plnt 3\n"
            "  place: latitude 52.52°, longitude 13.405°, distance 0 au, moving type 0, location type 2\n"
            "  view: azimuth 180.0000°, altitude 30.0000°, slope 0.0000°, zoom 0.65\n"
            "  time: 2026-01-15 21:00 UT, zone Europe/Berlin\n");
  ASSERT_EQ(sky.Run(With(work, {"--home"})), 0) << sky.errors.str();
  for (const char* line : {"Local time: 22:00, 15/01/2026 AD (Europe/Berlin, UT+01:00)\n",
                           "azimuth 180°00'00.00\", altitude 30°00'00.00\" (S)\n", "Zoom: 0.65\n"}) {
    EXPECT_TRUE(sky.Printed(line)) << line << sky.output.str();
  }
}

TEST(HomeOption, WithoutHomesThereIsNothingToShowOrGoTo) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"homes", "show"}), 0);
  EXPECT_EQ(sky.output.str(), "No homes\n");
  EXPECT_EQ(sky.Run({"--home"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("--home: home_params.ini has no home"), std::string::npos);
}

TEST(HomeOption, StoringWantsAWorkArea) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"homes", "store"}), 2);
  EXPECT_NE(sky.GetErrorLine().find("--work"), std::string::npos) << sky.errors.str();
}

TEST(HomeOption, TravellersHaveNoHome) {
  SmallSky sky;
  AddSpaceRecord(sky, 10);
  EXPECT_EQ(sky.Run({"homes", "store", "--moving-type", "3", "--work", sky.dir.Path("work")}), 1);
  EXPECT_NE(sky.GetErrorLine().find("stands on a surface"), std::string::npos) << sky.errors.str();
  EXPECT_FALSE(fs::exists(sky.dir.Path("work/home_params.ini")));
}

TEST(HomeOption, UnwritableFileIsOneLine) {
  SmallSky sky;
  fs::create_directories(sky.dir.Path("work/home_params.ini"));
  EXPECT_EQ(sky.Run({"homes", "store", "--work", sky.dir.Path("work")}), 1);
  EXPECT_NE(sky.GetErrorLine().find("home_params.ini"), std::string::npos) << sky.errors.str();
}

TEST(PlayOption, FramesAndContactSheetAreWritten) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--play", "time=1h,view=2", "--frames", "3", "--out",
                                  sky.dir.Path("f-%02d.png"), "--contact-sheet", sky.dir.Path("all.png")})),
            0)
      << sky.errors.str();
  EXPECT_EQ(CountFiles(sky, ".png"), 4);
  EXPECT_TRUE(fs::exists(sky.dir.Path("f-03.png")));
  EXPECT_TRUE(sky.Printed("Local time: 22:00")) << "the report is that of the first frame";
}

// The last frame is the picture that the moved view gives by itself.
TEST(PlayOption, FrameIsThePictureOfItsMoment) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--play", "time=1h", "--frames", "3", "--out", sky.dir.Path("f-%d.png")})),
            0);
  Arguments later = kOrion;
  later[7] = "2026-01-16T00:00";
  ASSERT_EQ(sky.Run(With(later, {"--out", sky.dir.Path("later.png")})), 0);
  EXPECT_TRUE(sky.dir.Read("f-3.png") == sky.dir.Read("later.png"));
  EXPECT_FALSE(sky.dir.Read("f-1.png") == sky.dir.Read("f-3.png"));
}

// Ten frames a second, from the second frame of the animation clock on: a still picture is like the tenth.
TEST(PlayOption, OrbitsFadeInWithinASecond) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  const Arguments orbits = With(kOrion, {"--orbits", "planets"});
  ASSERT_EQ(
      sky.Run(With(orbits, {"--play", "time=1h", "--frames", "11", "--out", sky.dir.Path("f-%02d.png")})), 0)
      << sky.errors.str();
  for (const int frame : {1, 9, 10, 11}) {
    Arguments still = orbits;
    still[7] = FormatText("2026-01-%02dT%02d:00", frame < 3 ? 15 : 16, (21 + frame) % 24);
    ASSERT_EQ(sky.Run(With(still, {"--out", sky.dir.Path("still.png")})), 0) << sky.errors.str();
    const bool same = sky.dir.Read("still.png") == sky.dir.Read(FormatText("f-%02d.png", frame));
    EXPECT_EQ(same, frame >= 10) << frame;
  }
}

TEST(PlayOption, TrailsHoldTheLightOfAllFrames) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  for (const char* frames : {"1", "2", "3"}) {
    ASSERT_EQ(sky.Run(With(kOrion, {"--play", "time=1h", "--frames", frames, "--trails",
                                    sky.dir.Path(std::string(frames) + ".png")})),
              0)
        << sky.errors.str();
  }
  EXPECT_FALSE(sky.dir.Read("1.png") == sky.dir.Read("2.png"));
  EXPECT_FALSE(sky.dir.Read("2.png") == sky.dir.Read("3.png"));
}

TEST(PlayOption, WhatIsMissingOrWrongIsNamed) {
  SmallSky sky;
  const std::pair<Arguments, const char*> bad[] = {
      {{"--play", "time=1h"}, "--frames"},
      {{"--frames", "3"}, "--play"},
      {{"--contact-sheet", "a.png"}, "--play"},
      {{"--play", "time=1h", "--frames", "3"}, "--out"},
      {{"--play", "time=1h", "--frames", "3", "--out", "a.png"}, "a.png"},
      {{"--play", "time=1h", "--frames", "3", "--out", "%s%d.png"}, "%s%d.png"},
      {{"--play", "time=1h", "--frames", "10001", "--out", "%d.png"}, "10001"},
      {{"--play", "time=1h", "--frames", "3", "--contact-sheet", "a.svg"}, "a.svg"},
      {{"--play", "time=1", "--frames", "3", "--out", "%d.png"}, "time=1"},
      {{"--marker", "400,0"}, "400,0"},
      {{"--moving-type", "12"}, "12"},
      {{"--home", "sweet"}, "sweet"},
      {{"homes", "sweet"}, "homes sweet"}};
  for (const auto& [arguments, part] : bad) {
    EXPECT_EQ(sky.Run(arguments), 2) << part;
    EXPECT_NE(sky.GetErrorLine().find(part), std::string::npos) << sky.errors.str();
  }
}

TEST(PlayOption, FrameThatCannotBeWrittenIsExitOne) {
  SmallSky sky;
  EXPECT_EQ(
      sky.Run(With(kOrion, {"--play", "time=1h", "--frames", "2", "--out", sky.dir.Path("no/f%d.png")})), 1);
  EXPECT_NE(sky.GetErrorLine().find("f1.png"), std::string::npos) << sky.errors.str();
}

TEST(PlayOption, FileOfAllFramesThatCannotBeWrittenIsExitOne) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  for (const char* option : {"--contact-sheet", "--animation", "--trails"}) {
    EXPECT_EQ(
        sky.Run(With(kOrion, {"--play", "time=1h", "--frames", "2", option, sky.dir.Path("no/all.png")})), 1);
    EXPECT_NE(sky.GetErrorLine().find("no/all.png"), std::string::npos) << option << sky.errors.str();
  }
}

TEST(MarkerOption, MarkersAreDrawn) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  ASSERT_EQ(sky.Run(With(kOrion, {"--marker", "5.9195h,7.407,4711", "--out", sky.dir.Path("m.svg")})), 0)
      << sky.errors.str();
  EXPECT_NE(sky.dir.Read("m.svg").find(">4711</text>"), std::string::npos);
}
