// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The options about bodies through the whole program.
#include <gtest/gtest.h>

#include "skyview/small_sky.h"

using host_test::SmallSky;

namespace {

// The arguments, and behind them where and when to look.
std::vector<std::string> Night(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(),
                   {"--place", "52.5,13.4", "--time", "2026-01-15T21:00Z", "--look", "135,50"});
  return arguments;
}

}  // namespace

TEST(BodiesOfAProgramRun, ReportNamesThePlanetsInThePicture) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Night({})), 0) << sky.errors.str();
  EXPECT_EQ(sky.errors.str(), "");
  EXPECT_TRUE(sky.Printed("Solar-system bodies drawn: ")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("Jupiter: magnitude -2.")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("100 % lit, evening, full\n") || sky.Printed("100 % lit, morning, full\n"));
}

TEST(BodiesOfAProgramRun, WhyOfAPlanet) {
  SmallSky sky;
  ASSERT_EQ(sky.Run(Night({"why", "Jupiter"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Jupiter: drawn\n")) << sky.output.str();
  EXPECT_TRUE(sky.Printed("label: Jupiter\n")) << sky.output.str();
  ASSERT_EQ(sky.Run(Night({"why", "Sun"})), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("Sun: not drawn\n- below the horizon: altitude -49.")) << sky.output.str();
  ASSERT_EQ(sky.Run(Night({"why", "Jupiter", "--set", "plnt.Draw=0"})), 2)
      << "the small sky has no such section";
}

TEST(BodiesOfAProgramRun, OrbitsOfWhatHasNoneAreRefused) {
  SmallSky sky;
  EXPECT_EQ(sky.Run(Night({"--orbits", "Sirius"})), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --orbits 'Sirius': has no orbit that can be drawn");
  EXPECT_EQ(sky.Run(Night({"--orbits", "Sun"})), 1);
  EXPECT_EQ(sky.Run(Night({"--orbits", "planets,Xyzzy"})), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --orbits 'Xyzzy': no such object");
  EXPECT_EQ(sky.Run(Night({"--orbits", ""})), 2);
  EXPECT_EQ(sky.Run(Night({"--orbits", "planets,Ceres"})), 0) << sky.errors.str();
}

TEST(BodiesOfAProgramRun, SatelliteFileThatIsMissingOrEmptyIsOneLine) {
  SmallSky sky;
  EXPECT_EQ(sky.Run(Night({"--tle", "absent.tle"})), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: --tle: absent.tle: not found, neither here nor in the data root");
  const std::string empty = sky.dir.Write("empty.tle", "");
  EXPECT_EQ(sky.Run(Night({"--tle", empty})), 1);
  EXPECT_NE(sky.GetErrorLine().find("holds no two-line elements"), std::string::npos) << sky.errors.str();
}

TEST(BodiesOfAProgramRun, SatelliteIsSaidToBeLitOrNot) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  const auto look = [&](const char* time) {
    return sky.Run(
        {"--place", "52.5,13.4", "--time", time, "--look", "180,60", "--zoom", "0.4", "--tle", path});
  };
  ASSERT_EQ(look("2014-01-21T05:07:12Z"), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("ISS (ZARYA): 4") && sky.Printed(" km away, sunlit\n")) << sky.output.str();
  ASSERT_EQ(look("2014-01-21T03:30:30Z"), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed(" km away, in the Earth's shadow\n")) << sky.output.str();
}

TEST(BodiesOfAProgramRun, SessionKeepsSatellitesAndOrbits) {
  SmallSky sky;
  const std::string path = sky.dir.Write("station.tle", host_test::StationSet());
  const std::string session = sky.dir.Path("it.session");
  ASSERT_EQ(sky.Run({"--place", "52.5,13.4", "--time", "2014-01-21T05:07:12Z", "--look", "180,60", "--zoom",
                     "0.4", "--tle", path, "--orbits", "planets,Ceres", "--save-session", session}),
            0)
      << sky.errors.str();
  const std::string first = sky.output.str();
  ASSERT_EQ(sky.Run({"--session", session}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), first);
  EXPECT_NE(first.find("ISS (ZARYA): "), std::string::npos);
  sky.dir.Write("station.tle", host_test::StationSet() + "# changed\n");
  ASSERT_EQ(sky.Run({"--session", session}), 0);
  EXPECT_NE(sky.errors.str().find("station.tle: changed since the session was saved"), std::string::npos)
      << sky.errors.str();
}
