// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/state_track.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/planets.h"
#include "astro/vectors.h"
#include "tests/astro/helpers/measure.h"
#include "tests/astro/helpers/sky_place.h"

using astro_internal::StateTrack;
using astro_test::Largest;
using astro_test::Planet;

// Between the whole days, there and back, over more days than are kept.
TEST(StateTrack, MeetsThePlanets) {
  Largest position("tracks against the series", "km"), velocity("their velocities", "of the speed");
  for (const int planet : {3, 4, 5, 6, 7, 8, 9}) {
    StateTrack track(Planet(planet));
    for (int k = 0; k < 120; ++k) {
      const double date = 2455000.5 + 0.37 * ((k * 37) % 120);
      double place[3], speed[3], expected[3], expectedSpeed[3];
      ASSERT_TRUE(track.GetState(date, place, speed));
      ASSERT_TRUE(ComputePlanetState(Planet(planet), date, expected, expectedSpeed));
      for (int i = 0; i < 3; ++i) {
        position.Note((place[i] - expected[i]) * astro::kKilometresPerAu, planet);
        velocity.Note((speed[i] - expectedSpeed[i]) / Vmod(expectedSpeed, 3), planet);
      }
    }
  }
  position.Expect(0.1);
  velocity.Expect(1e-6);
}

TEST(StateTrack, EndsWithTheSeries) {
  StateTrack jupiter(Planet(5)), pluto(Planet(9));
  double position[3], velocity[3];
  EXPECT_FALSE(jupiter.GetState(kFirstPlanetDate - 0.1, position, velocity));
  EXPECT_FALSE(jupiter.GetState(kLastPlanetDate + 0.1, position, velocity));
  EXPECT_FALSE(jupiter.GetState(std::numeric_limits<double>::quiet_NaN(), position, velocity));
  EXPECT_FALSE(pluto.GetState(2300000.5, position, velocity));
  EXPECT_TRUE(pluto.GetState(2400000.5, position, velocity));
}
