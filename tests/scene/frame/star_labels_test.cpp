// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// What stands beside a star: its name, its letter, its magnitude; those of the Bright Star Catalogue.
#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "support/comma_locale.h"

using namespace scene;

namespace {

class StarLabels : public testing::Test {
 protected:
  StarLabels() {
    f.shown.naturalSky = false;
    f.shown.horizon = false;
    f.camera.SetZoom(0.4);
  }
  host_test::FrameFixture f;
};

}  // namespace

TEST_F(StarLabels, NameAlone) {
  f.Compute();
  EXPECT_TRUE(f.HasLabel("Sirius"));
  EXPECT_TRUE(f.HasLabel("Betelgeuse"));
}

TEST_F(StarLabels, MagnitudeBehindTheNameToATenth) {
  f.shown.starLabels.magnitude = true;
  f.Compute();
  EXPECT_TRUE(f.HasLabel("Sirius -1.5"));
  EXPECT_TRUE(f.HasLabel("Rigel 0.1"));
  EXPECT_TRUE(f.HasLabel("Betelgeuse 0.5"));
  EXPECT_FALSE(f.HasLabel("Sirius"));
}

TEST_F(StarLabels, PointIsThePointInALocaleWithAComma) {
  const test_support::CommaLocale locale;
  if (!locale.IsSet()) GTEST_SKIP() << "no locale with a comma";
  f.shown.starLabels.magnitude = true;
  f.Compute();
  EXPECT_TRUE(f.HasLabel("Sirius -1.5"));
}

TEST_F(StarLabels, NoneWhereTheyAreSwitchedOff) {
  f.shown.starLabels.shown = false;
  f.Compute();
  EXPECT_FALSE(f.HasLabel("Sirius"));
  ASSERT_NE(f.Find(2491), nullptr) << "the star is there";
}
