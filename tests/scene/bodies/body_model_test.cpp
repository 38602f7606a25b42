// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_model.h"

#include <gtest/gtest.h>

#include <cstring>

#include "scene/frame_helpers.h"

using namespace scene;

namespace {

// What a model that never computed anything else says.
void ExpectAsNew(const BodyModel& model, const BodyList& bodies, const SkyMoment& moment,
                 const EarthPlace& place) {
  BodyModel fresh(bodies);
  fresh.Compute(moment, place);
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    EXPECT_EQ(model.GetStates()[i].code, fresh.GetStates()[i].code) << i;
    EXPECT_EQ(model.GetStates()[i].seen.distance, fresh.GetStates()[i].seen.distance) << i;
    for (int k = 0; k < 3; ++k)
      EXPECT_EQ(model.GetStates()[i].seen.apparent[k], fresh.GetStates()[i].seen.apparent[k]) << i;
  }
  EXPECT_EQ(std::memcmp(model.GetMoonFromCentre(), fresh.GetMoonFromCentre(), 3 * sizeof(double)), 0);
}

}  // namespace

// The states of a moment last, and those of another moment or place are others: in both orders, back and
// forth.
TEST(BodyModel, StatesAreThoseOfTheLastMomentAndPlace) {
  const host_test::FrameFixture f;
  BodyModel model(f.catalogs.bodies);
  const SkyMoment evening = astro::MakeMoment(2461056, 0.25), later = astro::Later(evening, 1e-5);
  const EarthPlace berlin = {0.234, 0.916, 40.0}, higher = {0.234, 0.916, 41.0};
  for (const auto& [moment, place] :
       {std::pair(evening, berlin), std::pair(evening, berlin), std::pair(later, berlin),
        std::pair(later, higher), std::pair(evening, berlin)}) {
    model.Compute(moment, place);
    ExpectAsNew(model, f.catalogs.bodies, moment, place);
  }
}
