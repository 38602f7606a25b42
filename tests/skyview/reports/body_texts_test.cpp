// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Places, sizes and phases of bodies in the picture. Expected values are those of an independent library of planetary
// positions (PyEphem 4.1.4, VSOP87) unless another source is named.
#include "scene/bodies/solar_system_part.h"

#include <gtest/gtest.h>

#include "support/allocation_counter.h"
#include "astro/vectors.h"
#include "scene/frame_helpers.h"
#include "skyview/reports/body_texts.h"
#include "skyview/reports/host_texts.h"
#include "skyview/reports/report.h"
#include "scene/bodies/rise_set.h"
#include "scene/satellites.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;

namespace {

constexpr double kArcMinute = kRadiansPerDegree / 60.0;

int Planet(const FrameFixture& f, int number) {
  return FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), number));
}

const BodyState& StateOf(const FrameFixture& f, int body) {
  return f.frame.GetParts().solarSystem.GetModel().GetStates()[static_cast<std::size_t>(body)];
}

const DrawnBody* Drawn(const FrameFixture& f, int body) {
  return f.frame.GetParts().solarSystem.GetMarks().Find(body);
}

}  // namespace

TEST(SolarSystemPart, ObserversElsewhereSeeNoBodies) {
  FrameFixture f;
  f.camera.SetMovingType(11, false);
  f.shown.horizon = false;
  f.Compute();
  EXPECT_FALSE(f.frame.GetParts().solarSystem.IsSeenFromEarth());
  EXPECT_TRUE(f.frame.GetParts().solarSystem.GetMarks().GetDrawn().empty());
  EXPECT_EQ(DescribeBodies(f.frame.GetParts().solarSystem), "");
}

// Phases in words: 2020 May 3, Venus 22.4 percent lit and 41 seconds of arc across in the evening (as PyEphem has it).
TEST(SolarSystemPart, ReportSaysPhasesAndSizesInWords) {
  FrameFixture f;
  f.camera.SetZoom(0.25);
  f.SetTime(2020, 5, 3, 19, 30);
  f.SetLook(290.0, 20.0);
  f.Compute();
  const std::string report = DescribeBodies(f.frame.GetParts().solarSystem);
  EXPECT_NE(report.find("Venus: magnitude -4."), std::string::npos) << report;
  EXPECT_NE(report.find(" arcsec, 22 % lit, evening crescent\n"), std::string::npos) << report;
  std::string error;
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "de", [] {}, error));
  EXPECT_NE(DescribeBodies(f.frame.GetParts().solarSystem).find("zu 22 % beleuchtet, am Abend, Sichel\n"),
            std::string::npos);
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "ru", [] {}, error));
  EXPECT_NE(DescribeBodies(f.frame.GetParts().solarSystem).find("освещено 22 %, вечером, серп\n"),
            std::string::npos);
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "en", [] {}, error));
}

TEST(BodyTexts, SizesAreInTheUnitThatReadsBest) {
  host_test::FrameFixture f;
  EXPECT_EQ(FormatSize(23.14 / 3600.0 * kRadiansPerDegree), "23.1 arcsec");
  EXPECT_EQ(FormatSize(31.0 * kArcMinute), "31.0 arcmin");
  EXPECT_EQ(ToUtf8(FormatSize(2.5 * kRadiansPerDegree)), "2.5°");
  EXPECT_EQ(GetLitPercent(0.0), 100);
  EXPECT_EQ(GetLitPercent(0.5 * kPi), 50);
  EXPECT_EQ(GetLitPercent(kPi), 0);
}
