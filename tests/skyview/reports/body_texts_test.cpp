// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/body_texts.h"

#include <gtest/gtest.h>

#include "scene/catalogs/language.h"
#include "scene/catalogs/texts.h"
#include "scene/frame_helpers.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;

TEST(BodyTexts, ObserversElsewhereAreToldOfNoBodies) {
  FrameFixture f;
  f.camera.SetMovingType(11, false);
  f.shown.horizon = false;
  f.Compute();
  EXPECT_EQ(DescribeBodies(f.frame), "");
}

// Phases in words: 2020 May 3, Venus 22.4 percent lit and 41 seconds of arc across in the evening (as PyEphem
// has it).
TEST(BodyTexts, ReportSaysPhasesAndSizesInWords) {
  FrameFixture f;
  f.camera.SetZoom(0.25);
  f.SetTime(2020, 5, 3, 19, 30);
  f.SetLook(290.0, 20.0);
  f.Compute();
  const std::string report = DescribeBodies(f.frame);
  EXPECT_NE(report.find("Venus: magnitude -4."), std::string::npos) << report;
  EXPECT_NE(report.find(" arcsec, 22 % lit, evening crescent\n"), std::string::npos) << report;
  std::string error;
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "de", [] {}, error));
  EXPECT_NE(DescribeBodies(f.frame).find("zu 22 % beleuchtet, am Abend, Sichel\n"), std::string::npos);
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "ru", [] {}, error));
  EXPECT_NE(DescribeBodies(f.frame).find("освещено 22 %, вечером, серп\n"), std::string::npos);
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "en", [] {}, error));
}

TEST(BodyTexts, ReportSaysWhereTheModelOfThePlanetsEnds) {
  FrameFixture f;
  const std::string line = "Outside the years -3000 to 3000 the model of the planets does not hold\n";
  f.Compute();
  EXPECT_EQ(DescribeBodies(f.frame).find(line), std::string::npos);
  f.SetTime(9000, 1, 1, 0, 0);
  f.Compute();
  EXPECT_NE(DescribeBodies(f.frame).find(line), std::string::npos);
}
