// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Eclipses against the tables of Espenak (NASA, Five Millennium Canon; eclipsewise.com): times in Universal
// Time.
#include "skyview/reports/body_texts.h"

#include <gtest/gtest.h>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "scene/frame_helpers.h"

using namespace scene;
using namespace skyview;

TEST(EclipsePicture, ShadowLiesOnTheMoonAndInTheReport) {
  host_test::FrameFixture f;
  f.SetPlace(40.0, -100.0);
  f.SetTime(2025, 3, 14, 5, 40);  // half an hour into the umbra
  f.camera.SetZoom(60.0);
  f.Compute();
  const auto& moon = f.frame.GetParts().solarSystem.GetModel().GetMoon().seen;
  double v[3], longitude = 0.0, latitude = 0.0;
  MV3prod(f.observer.reduction, moon.apparent, v);
  psf(v, 1.0, longitude, latitude);
  f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
  f.Compute();
  const auto& marks = f.frame.GetParts().solarSystem.GetMarks();
  const DrawnBody* drawn = marks.Find(kMoonBody);
  ASSERT_NE(drawn, nullptr);
  ASSERT_EQ(marks.GetShadows().size(), 1u);
  const DrawnShadow& shadow = marks.GetShadows()[0];
  EXPECT_EQ(shadow.body, kMoonBody);
  const double away = std::hypot(shadow.centre.x - drawn->place.x, shadow.centre.y - drawn->place.y);
  EXPECT_GT(away, shadow.umbra - drawn->radius) << "the Moon is not wholly in it";
  EXPECT_LT(away, shadow.umbra + drawn->radius) << "but it has begun";
  EXPECT_NEAR(shadow.umbra / drawn->radius, 2.65, 0.15);
  // The Moon moves to the east and meets the umbra with its eastern limb, which is left while it stands in
  // the south.
  EXPECT_LT(shadow.centre.x, drawn->place.x);
  EXPECT_NE(DescribeBodies(f.frame).find("Lunar eclipse: partial, magnitude 0."), std::string::npos);
}
