// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where and when the program looks: by an object's name, by the clock, by the angle across the picture.
#include <gtest/gtest.h>

#include "skyview/session/clock.h"
#include "skyview/small_sky.h"

using host_test::SmallSky;
using Arguments = std::vector<std::string>;

namespace {

// The line of the report that begins so, without its end.
std::string FindLine(const SmallSky& sky, const std::string& begin) {
  const std::string text = "\n" + sky.output.str();
  const auto at = text.find("\n" + begin);
  return at == std::string::npos ? "" : text.substr(at + 1, text.find('\n', at + 1) - at - 1);
}

const Arguments kBerlin = {"--place", "52.5,13.4", "--zone", "Europe/Berlin"};

Arguments With(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

}  // namespace

TEST(Looks, ObjectIsInTheMiddleOfThePicture) {
  SmallSky sky;
  for (const char* name : {"Sirius", "Pleiades", "Jupiter"}) {
    ASSERT_EQ(sky.Run(With(kBerlin, {"at", "800,500", "--time", "2026-01-15T23:00", "--look", name})), 2)
        << "the command stands first";
    ASSERT_EQ(sky.Run(With({"at", "800,500", "--time", "2026-01-15T23:00", "--look", name}, kBerlin)), 0)
        << sky.errors.str();
    EXPECT_TRUE(sky.Printed(name)) << sky.output.str();
    EXPECT_EQ(sky.errors.str().find("horizon"), std::string::npos);
  }
}

TEST(Looks, ObjectIsTheOneThatWhereTells) {
  SmallSky sky;
  const Arguments then = With({"--time", "2026-01-15T22:00"}, kBerlin);
  ASSERT_EQ(sky.Run(With({"where", "Jupiter"}, then)), 0);
  const std::string direction = FindLine(sky, "Direction: ");
  ASSERT_EQ(sky.Run(With({"--look", "Jupiter@12.5"}, then)), 0) << sky.errors.str();
  const std::string azimuth = direction.substr(0, direction.find(','));
  EXPECT_EQ(FindLine(sky, "Direction: ").rfind(azimuth + ", altitude 53°18'", 0), 0u) << "with refraction";
  EXPECT_EQ(FindLine(sky, "Zoom: "), "Zoom: 12.50");
}

TEST(Looks, ObjectBelowTheHorizonIsSaidInOneLine) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(With({"--look", "Canopus", "--time", "2026-01-15T22:00"}, kBerlin)), 0);
  EXPECT_NE(sky.errors.str().find("skyview: --look 'Canopus': below the horizon, altitude -15.7°\n"),
            std::string::npos)
      << sky.errors.str();
}

TEST(Looks, NameThatIsNoObjectsAndTravellersAreRefused) {
  SmallSky sky;
  EXPECT_EQ(sky.Run({"--look", "Sirios"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --look 'Sirios': no such object; similar: Sirius");
  EXPECT_EQ(sky.Run({"--look", "Neith"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --look 'Neith': a moon of Venus; the model does not place it yet");
  EXPECT_EQ(sky.Run({"--moving-type", "4", "--time", "tonight"}), 2);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --time tonight: wants an observer near the Earth's surface");
}

// The clock of the small sky stands at 18:00 on 15 January 2026.
TEST(Looks, ClockTellsNowTodayAndTonight) {
  SmallSky sky;
  const struct {
    const char *time, *line;
  } cases[] = {{"now", "Local time: 19:00, 15/01/2026 AD (Europe/Berlin, UT+01:00)"},
               {"today", "Local time: 12:00, 15/01/2026 AD (Europe/Berlin, UT+01:00)"},
               {"tonight", "Local time: 00:16, 16/01/2026 AD (Europe/Berlin, UT+01:00)"}};
  for (const auto& c : cases) {
    ASSERT_EQ(sky.Run(With({"--time", c.time}, kBerlin)), 0) << sky.errors.str();
    EXPECT_EQ(FindLine(sky, "Local time: "), c.line);
    EXPECT_EQ(FindLine(sky, "Shown: "), "") << "the time was given";
  }
  sky.now = {2461056, 0.49};  // 23:45: in Tokyo the next morning
  ASSERT_EQ(sky.Run({"--time", "today", "--zone", "Asia/Tokyo"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Local time: "), "Local time: 12:00, 16/01/2026 AD (Asia/Tokyo, UT+09:00)");
}

TEST(Looks, WithoutViewAndTimeItIsTonightAtTheDefaultPlace) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str().rfind("Shown: tonight, from the default place\n", 0), 0u) << sky.output.str();
  EXPECT_EQ(FindLine(sky, "Date: "), "Date: 15 January 2026");
  EXPECT_EQ(FindLine(sky, "Direction: "), "Direction: azimuth 180°00'00.00\", altitude 30°00'00.00\" (S)");
  ASSERT_EQ(sky.Run({"--place", "-33.87,151.21"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "Shown: tonight, from the place given");
  EXPECT_EQ(FindLine(sky, "Direction: "), "Direction: azimuth 0°00'00.00\", altitude 30°00'00.00\" (N)");
  ASSERT_EQ(sky.Run({"where", "Sirius"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "Shown: tonight, from the default place");
  ASSERT_EQ(sky.Run({"--moving-type", "3"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "Shown: now, for travellers have no night");
  EXPECT_EQ(FindLine(sky, "Universal Time: "), "Universal Time: 18:00, 15/01/2026 AD");
}

TEST(Looks, HomeIsWhereTonightIsSeenFrom) {
  SmallSky sky;
  const std::string work = sky.dir.Path("work");
  ASSERT_EQ(sky.Run(With({"homes", "store", "--time", "2020-06-01T22:00", "--look", "90,45", "--work", work},
                         kBerlin)),
            0)
      << sky.errors.str();
  ASSERT_EQ(sky.Run({"--work", work}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "Shown: tonight, from the home on the Earth");
  EXPECT_EQ(FindLine(sky, "Local time: "), "Local time: 00:16, 16/01/2026 AD (Europe/Berlin, UT+01:00)");
  EXPECT_EQ(FindLine(sky, "Direction: "), "Direction: azimuth 90°00'00.00\", altitude 45°00'00.00\" (E)");
  ASSERT_EQ(sky.Run({"--work", work, "--place", "0,0", "--zone", "Africa/Accra"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "Shown: tonight, from the place given");
  ASSERT_EQ(sky.Run({"--work", work, "--home"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Shown: "), "");
  EXPECT_EQ(FindLine(sky, "Date: "), "Date: 1 June 2020") << "--home goes to the moment of the home";
}

TEST(Looks, SavedViewsAndWrittenTimesDoNotAskTheClock) {
  SmallSky sky;
  const std::string file = sky.dir.Path("my.data");
  ASSERT_EQ(sky.Run(With({"--time", "2020-06-01T22:00", "--save-view", file}, kBerlin)), 0);
  EXPECT_EQ(FindLine(sky, "Shown: "), "");
  ASSERT_EQ(sky.Run({"--view", file}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Universal Time: "), "Universal Time: 20:00, 01/06/2020 AD");
  EXPECT_EQ(FindLine(sky, "Shown: "), "");
}

TEST(Looks, FieldIsTheAngleAcrossThePicture) {
  SmallSky sky;
  ASSERT_EQ(sky.Run({"--fov", "30.5", "--size", "800x500"}), 0) << sky.errors.str();
  EXPECT_EQ(FindLine(sky, "Field of view: "), "Field of view: 30° x 19°");
  EXPECT_EQ(sky.Run({"--fov", "300"}), 2);
  EXPECT_EQ(sky.GetErrorLine(),
            "skyview: --fov 300: wants 0.00628 to 285.3 degrees across 1600 pixels of 1600x1000");
}

TEST(Clock, SystemsClockRuns) {
  const auto now = skyview::ReadSystemClock();
  EXPECT_GT(now.day, 2461000) << "25 November 2025";
  EXPECT_LT(now.day, 2600000);
  EXPECT_GE(now.fraction, -0.5);
  EXPECT_LT(now.fraction, 0.5);
}
