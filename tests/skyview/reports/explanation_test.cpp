// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/explanation.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "scene/crowded_sky.h"
#include "scene/filter_fields.h"
#include "scene/why_helpers.h"
#include "skyview/small_sky.h"

using namespace scene;
using namespace skyview;

namespace {

bool AnyContains(const std::vector<std::string>& lines, const std::string& part) {
  for (const auto& line : lines) {
    if (line.find(part) != std::string::npos) return true;
  }
  return false;
}

class ExplanationTest : public host_test::WhyFixture {
 protected:
  ExplanationLines Tell(const std::string& name) { return DescribeExplanation(Why(name), GetView()); }
};

}  // namespace

TEST_F(ExplanationTest, EveryReasonThatAppliesIsGivenInOrder) {
  // Arcturus (magnitude -0.04) has not risen and stands in the north, behind a view of the south.
  UseCatalogs();
  host_test::AddBytes(settings, "star", "Draw", 0, {0});
  host_test::AddRange(settings, "star", "VisMagnitude", 1.0f, 3.0f);
  Compute();
  const ExplanationLines why = Tell("Arcturus");
  EXPECT_FALSE(Why("Arcturus").IsDrawn());
  ASSERT_EQ(why.reasons.size(), 4u);
  EXPECT_EQ(why.reasons[0], "its kind is switched off: star.Draw is 0 (--set star.Draw=1)");
  EXPECT_EQ(why.reasons[1].find("the filter star.VisMagnitude rejects it"), 0u) << why.reasons[1];
  EXPECT_EQ(why.reasons[2].find("below the horizon: altitude -"), 0u) << why.reasons[2];
  EXPECT_EQ(why.reasons[3].find("behind the view, "), 0u) << why.reasons[3];
}

TEST_F(ExplanationTest, SectionThatIsOffIsNamed) {
  UseCatalogs();
  host_test::AddBytes(settings, "nebu", "CloudsDraw", 0, {1});
  settings.SetSectionStatus(FourCC("nebu"), 0);
  Compute();
  EXPECT_TRUE(AnyContains(Tell("M42").reasons, "the section nebu is switched off (--set nebu:on)"));
}

TEST_F(ExplanationTest, FaintStarIsToldTheZoomThatShowsItAndItDoes) {
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n1.46\t0.0\t9.99\tFaint\n");
  UseCatalogs();
  naturalSky = false;
  Compute();
  // Magnitude 9.99 is drawn from 10 ^ ((9.99 - 7.5) / 4) = 4.193 on; in whole codes, as CalcZoomForShowObject
  // computes, it would be 10 ^ ((9.9 - 7.5) / 4) = 3.981.
  const ExplanationLines why = Tell("Faint");
  EXPECT_TRUE(AnyContains(why.reasons,
                          "too faint at zoom 1: the limit is magnitude 7.50, its magnitude 9.99; shown "
                          "from zoom 4.2 on"))
      << why.reasons.front();
  for (const auto& [zoom, shown] : {std::pair(4.19, false), std::pair(4.2, true)}) {
    f.camera.SetZoom(zoom);
    Compute();
    EXPECT_EQ(AnyContains(Tell("Faint").reasons, "too faint"), !shown) << zoom;
  }
}

// A nebula of 1' by 1': 23 - 2.5 log10(2827.43) is 14.37.
TEST_F(ExplanationTest, AnUnknownMagnitudeIsSaidToBeUnknown) {
  f.sky.dir.Write("data/catalogs/ngc_ic.txt",
                  "Type:text\tNumber:i32\tRA:f64\tDec:f64\tLargestDimension:f32\tNGC_ICnumber:text\n"
                  "nebu\t1000700\t1.46\t0.0\t0.00029088821\tNGC 7\n");
  UseCatalogs();
  host_test::AddRange(settings, "nebu", "VisMagnitude", 1.0f, 3.0f);
  Compute();
  const ExplanationLines why = Tell("NGC 7");
  EXPECT_TRUE(AnyContains(why.reasons, "its magnitude unknown, by its size shown as 14.37; shown from zoom"))
      << why.reasons.back();
  EXPECT_TRUE(AnyContains(why.reasons, "lets magnitudes 1.00 to 3.00 pass, its own is unknown"))
      << why.reasons.front();
}

// At noon in June Orion stands beside the Sun.
TEST_F(ExplanationTest, SkyThatHidesAnObjectIsNamed) {
  UseCatalogs();
  f.SetTime(2026, 6, 21, 11, 0);
  f.SetLook(180.0, 40.0);
  Compute();
  EXPECT_TRUE(
      AnyContains(Tell("Betelgeuse").reasons, "too faint for the sky there: the limit is magnitude -"));
  EXPECT_TRUE(AnyContains(Tell("Orion").reasons, "daylight hides it"));
  EXPECT_TRUE(AnyContains(Tell("M42").reasons, "too faint for the sky there"));
  naturalSky = false;
  Compute();
  EXPECT_TRUE(Tell("Betelgeuse").reasons.empty());
}

TEST_F(ExplanationTest, ObjectOutsideIsToldWhereToLookAndIsThenDrawn) {
  UseCatalogs();
  f.SetLook(60.0, 30.0);
  Compute();
  const ExplanationLines away = Tell("Sirius");
  ASSERT_FALSE(Why("Sirius").IsDrawn());
  double azimuth = 0.0, altitude = 0.0;
  const std::string& reason = away.reasons.back();
  ASSERT_EQ(std::sscanf(reason.c_str() + reason.find("--look "), "--look %lf,%lf", &azimuth, &altitude), 2)
      << reason;
  f.SetLook(azimuth, altitude);
  Compute();
  const ExplanationLines there = Tell("Sirius");
  EXPECT_TRUE(Why("Sirius").IsDrawn());
  // A tenth of a degree is 2.5 pixels at this zoom.
  double x = 0.0, y = 0.0;
  ASSERT_GE(there.facts.size(), 2u);
  ASSERT_EQ(std::sscanf(there.facts[1].c_str(), "pixel %lf, %lf", &x, &y), 2) << there.facts[1];
  EXPECT_NEAR(x, 800.0, 3.0);
  EXPECT_NEAR(y, 500.0, 3.0);
}

TEST_F(ExplanationTest, LabelsThatAreHiddenAreExplained) {
  f.sky.dir.Write(
      "data/catalogs/stars.txt",
      "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\tBayer:text\tFlamsteed:text\tNumber:i32\n"
      "1.46\t0.0\t1.0\tFirst\t\t\t1\n1.50\t0.0\t5.0\tFaint\t\t\t2\n1.55\t0.05\t1.0\t\t\t\t3\n");
  UseCatalogs();
  Compute();
  EXPECT_TRUE(AnyContains(Tell("First").facts, "label: First"));
  // Names go to magnitude 4 at zoom 1 and to 5 at 10 ^ (1 / 4) = 1.778.
  EXPECT_TRUE(AnyContains(Tell("Faint").facts,
                          "label hidden: names go to magnitude 4.00 at this zoom; shown from zoom "
                          "1.78 on"));
  EXPECT_TRUE(AnyContains(Tell("HR 3").facts, "label: none"));
}

TEST_F(ExplanationTest, ConstellationIsToldWhyItsNameIsMissing) {
  UseCatalogs();
  f.SetLook(0.0, 30.0);
  Compute();
  EXPECT_TRUE(AnyContains(Tell("Orion").reasons, "behind the view"));
  host_test::AddBytes(settings, "cnst", "LabelsVisible", 0, {0});
  Compute();
  EXPECT_TRUE(AnyContains(Tell("Orion").reasons, "cnst.LabelsVisible is 0"));
}

TEST_F(ExplanationTest, ReasonsAreGivenForEveryObjectThatIsNotDrawnAndNoOther) {
  host_test::WriteCrowdedSky(f.sky.dir);
  UseCatalogs();
  Compute();
  for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
    const Explanation why = Why({ObjectGroup::kStar, i});
    ASSERT_EQ(why.IsDrawn(), DescribeExplanation(why, GetView()).reasons.empty()) << i;
  }
}

TEST(WhyCommand, FoundIsExitZeroAndUnknownOrAmbiguousExitOne) {
  host_test::SmallSky sky;
  EXPECT_EQ(sky.Run({"why", "betelgeuse"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str().find("Betelgeuse (α Ori, HR 2061): "), 0u) << sky.output.str();
  EXPECT_EQ(sky.Run({"why", "Betelgeux"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("similar: Betelgeuse"), std::string::npos) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "");
}
