// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/satellites.h"

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "scene/bodies/satellite_pass.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

class Satellites : public testing::Test {
 protected:
  bool Load(const std::string& text) {
    bodies.clear();
    return LoadSatellites(f.sky.dir.Write("sets.tle", text), bodies, error);
  }
  std::size_t CountLines() const { return f.diagnostics.lines.size(); }

  host_test::FrameFixture f;
  BodyList bodies;
  std::string error;
};

const std::string kSet = std::string(host_test::kStationLine1) + "\n" + host_test::kStationLine2 + "\n";

}  // namespace

TEST_F(Satellites, NamedAndNamelessSetsAreRead) {
  ASSERT_TRUE(Load("# comment\n\n" + host_test::StationSet())) << error;
  ASSERT_EQ(bodies.size(), 1u);
  EXPECT_EQ(bodies[0].id, SSO_ID(FourCC("scft"), 25544));
  EXPECT_EQ(bodies[0].names.front(), "ISS (ZARYA)");
  EXPECT_EQ(bodies[0].elements.tag, kTwoLineTag);
  ASSERT_TRUE(Load("0 ISS\n" + kSet));
  EXPECT_EQ(bodies[0].names.front(), "ISS");
  ASSERT_TRUE(Load(kSet));
  EXPECT_EQ(bodies[0].names.front(), "25544");
  EXPECT_EQ(CountLines(), 0u);
}

TEST_F(Satellites, ByteOrderMarkAndCrLfAreUnderstood) {
  ASSERT_TRUE(
      Load(std::string("\xEF\xBB\xBFISS\r\n") + host_test::kStationLine1 + "\r\n" + host_test::kStationLine2))
      << error;
  EXPECT_EQ(bodies[0].names.front(), "ISS");
}

TEST_F(Satellites, SetWithAWrongChecksumIsOneLineAndTheNextIsKept) {
  std::string damaged = kSet;
  damaged[20] = damaged[20] == '1' ? '2' : '1';
  ASSERT_TRUE(Load("BAD\n" + damaged + host_test::StationSet()));
  EXPECT_EQ(bodies.size(), 1u);
  ASSERT_EQ(CountLines(), 1u);
  EXPECT_NE(f.diagnostics.lines[0].find("sets.tle:3: "), std::string::npos) << f.diagnostics.lines[0];
}

TEST_F(Satellites, SecondLineThatIsMissingIsOneLine) {
  ASSERT_TRUE(Load(std::string("A\n") + host_test::kStationLine1 + "\n" + host_test::StationSet()));
  EXPECT_EQ(bodies.size(), 1u);
  EXPECT_EQ(CountLines(), 1u);
}

TEST_F(Satellites, FileThatEndsWithinASetIsOneLine) {
  ASSERT_TRUE(Load(host_test::StationSet() + "X\n" + host_test::kStationLine1));
  EXPECT_EQ(bodies.size(), 1u);
  EXPECT_EQ(CountLines(), 1u);
}

TEST_F(Satellites, RepeatedNumberIsOneLine) {
  ASSERT_TRUE(Load(host_test::StationSet() + host_test::StationSet()));
  EXPECT_EQ(bodies.size(), 1u);
  EXPECT_EQ(CountLines(), 1u);
}

TEST_F(Satellites, FileWithoutASetFails) {
  EXPECT_FALSE(Load("nothing\n"));
  EXPECT_NE(error.find("sets.tle: holds no two-line elements"), std::string::npos);
  EXPECT_FALSE(LoadSatellites(f.sky.dir.Path("absent.tle"), bodies, error));
  EXPECT_NE(error.find("cannot be read"), std::string::npos);
}

TEST_F(Satellites, OldElementsAndDecayedSatellitesAreReportedInOneLineEach) {
  ASSERT_TRUE(Load(host_test::StationSet()));
  int day = 0;
  double fraction = 0.0;
  DJ({2014, 1, 25, 0, 0, 0.0}, day, fraction);
  ReportLostSatellites("sets.tle", bodies, MakeMoment(day, fraction));
  EXPECT_EQ(CountLines(), 0u);
  DJ({2014, 4, 1, 0, 0, 0.0}, day, fraction);
  ReportLostSatellites("sets.tle", bodies, MakeMoment(day, fraction));
  ASSERT_EQ(CountLines(), 1u);
  EXPECT_NE(f.diagnostics.lines[0].find("ISS (ZARYA): its elements are 70 days old"), std::string::npos)
      << f.diagnostics.lines[0];
}

// As a second satellite the same orbit, ten days before the first one.
TEST_F(Satellites, SeveralSetsThatAreTooOldAreOneLineForTheFile) {
  const std::string earlier =
      "EARLIER\n1 25545U 98067A   14010.93268519  .00009878  00000-0  18200-3 0  5082\n"
      "2 25545  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868474\n";
  ASSERT_TRUE(Load(host_test::StationSet() + earlier)) << error;
  ASSERT_EQ(bodies.size(), 2u) << f.diagnostics.lines[0];
  const struct {
    CalendarDate date;
    const char* line;
  } cases[] = {{{2014, 4, 1}, "70 to 80 days old, their places are guesses\n"},
               {{2013, 12, 1}, "41 to 51 days ahead of the moment, their places are guesses\n"}};
  for (const auto& c : cases) {
    f.diagnostics.lines.clear();
    int day = 0;
    double fraction = 0.0;
    DJ(c.date, day, fraction);
    ReportLostSatellites("sets.tle", bodies, MakeMoment(day, fraction));
    ASSERT_EQ(CountLines(), 1u);
    EXPECT_EQ(f.diagnostics.lines[0], std::string("sets.tle: the elements of 2 satellites are ") + c.line);
  }
}

// The numbers are held in tests/astro/satellite_pass_test.cpp; here the frame's own satellite has the same
// light.
TEST_F(Satellites, StationShinesOutsideTheShadow) {
  ASSERT_TRUE(LoadSatellites(f.sky.dir.Write("s.tle", host_test::StationSet()), f.catalogs.bodies, error));
  BodyModel model(f.catalogs.bodies);
  const SatellitePasses passes(model);
  const int station = FindBody(f.catalogs.bodies, SSO_ID(FourCC("scft"), 25544));
  const CalendarDate shining = {2014, 1, 21, 5, 7, 12.0}, hidden = {2014, 1, 21, 3, 30, 30.0};
  for (const CalendarDate& date : {shining, hidden}) {
    int day = 0;
    double fraction = 0.0;
    DJ(date, day, fraction);
    model.Compute(MakeMoment(day, fraction), GetPlace(f.camera));
    EXPECT_EQ(passes.IsSunlitNow(station), date.hour == shining.hour);
  }
}

TEST_F(Satellites, PassHasAPathWithAMarkEachMinute) {
  ASSERT_TRUE(LoadSatellites(f.sky.dir.Write("s.tle", host_test::StationSet()), f.catalogs.bodies, error));
  SkyFrame frame(f.catalogs);
  f.SetTime(2014, 1, 21, 5, 7);
  f.camera.SetZoom(0.3);
  f.SetLook(190.0, 60.0);
  frame.Compute(f.camera, PrepareObserver(f.camera), f.shown);
  const SatellitePasses& passes = frame.GetParts().solarSystem.GetPasses();
  ASSERT_GE(passes.GetMarks().size(), 5u);
  EXPECT_GT(passes.GetLines().size(), 4u * passes.GetMarks().size());
  bool now = false;
  for (const auto& mark : passes.GetMarks()) now = now || std::string(mark.text) == "05:07";
  EXPECT_TRUE(now);
  // The path leads through the satellite.
  const DrawnBody* station = frame.GetParts().solarSystem.GetMarks().Find(
      FindBody(f.catalogs.bodies, SSO_ID(FourCC("scft"), 25544)));
  ASSERT_NE(station, nullptr);
  double least = 1e9;
  for (const auto& line : passes.GetLines())
    least = std::min(least, std::hypot(line.from.x - station->place.x, line.from.y - station->place.y));
  EXPECT_LT(least, 3.0);
  f.SetTime(2014, 1, 21, 5, 40);
  frame.Compute(f.camera, PrepareObserver(f.camera), f.shown);
  EXPECT_TRUE(passes.GetLines().empty()) << "far below the horizon by now";
}
