// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"

using host_test::SmallSky;

// Semi-major axes of 421.8, 671.1, 1070.4 and 1882.7 thousand km (JPL's mean orbital parameters of planetary
// satellites) in radii of Jupiter, 71492 km, with the eccentricities of the same table. Within a month each
// stands at its greatest distance on either side.
TEST(Moons, EachComesAsFarAsItsOrbitOnEitherSide) {
  if (!paint::CanDraw()) GTEST_SKIP() << "built without drawing";
  SmallSky sky;
  sky.dir.Write("data/catalogs/planets&moons/planets&moons.txt",
                "moon\t501\tIo\t0\nmoon\t502\tEuropa\t0\nmoon\t503\tGanymede\t0\nmoon\t504\tCallisto\t0\n");
  ASSERT_EQ(sky.Run({"moons", "2027-03", "--out", sky.dir.Path("moons.svg")}), 0) << sky.errors.str();
  std::istringstream lines(sky.output.str());
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "Moons of Jupiter, March 2027");
  constexpr double kRounding = 0.05, kBetweenPoints = 0.001;
  const struct {
    const char* name;
    double distance, eccentricity;
  } moons[] = {{"Io:", 5.900, 0.004},
               {"Europa:", 9.387, 0.009},
               {"Ganymede:", 14.972, 0.001},
               {"Callisto:", 26.334, 0.007}};
  for (const auto& moon : moons) {
    std::string name, east, west;
    char comma = 0;
    double eastern = 0.0, western = 0.0;
    lines >> name >> east >> eastern >> comma >> west >> western;
    EXPECT_EQ(name, moon.name);
    EXPECT_EQ(east + comma + west, "East,West");
    const double tolerance = kRounding + moon.distance * (moon.eccentricity + kBetweenPoints);
    EXPECT_NEAR(eastern, moon.distance, tolerance) << moon.name;
    EXPECT_NEAR(western, moon.distance, tolerance) << moon.name;
  }
}
