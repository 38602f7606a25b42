// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/why.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "scene/filter_fields.h"
#include "scene/frame_helpers.h"
#include "scene/favourites.h"

using namespace scene;
using namespace skyview;
using host_test::FrameFixture;

namespace {

bool AnyContains(const std::vector<std::string>& lines, const std::string& part) {
  for (const auto& line : lines) {
    if (line.find(part) != std::string::npos) return true;
  }
  return false;
}

// Stars and deep-sky objects all over the sphere, some of them bright, some fainter than any limit.
void WriteCrowdedSky(const test_support::TempDir& dir) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::string stars =
      "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tColorIndexBV:f32\tPropMotionRA:f32\tBayer:text\n";
  std::string deepsky =
      "Type:text\tNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tLargestDimension:f32\tMessierNumber:i32\n";
  char line[160];
  for (int i = 1; i <= 1500; ++i) {
    const double ra = unit(random) * 2.0 * kPi, dec = std::asin(2.0 * unit(random) - 1.0);
    std::snprintf(line, sizeof line, "%d\t%.9f\t%.9f\t%.2f\t%.2f\t%.1f\t%s\n", i, ra, dec,
                  16.0 * unit(random) - 1.5, 2.0 * unit(random), 1000.0 * unit(random),
                  i % 3 == 0 ? "α Ori" : "");
    stars += line;
  }
  const char* kinds[] = {"clst", "gala", "nebu", "dsnv", "????"};
  for (int i = 1; i <= 400; ++i) {
    const double ra = unit(random) * 2.0 * kPi, dec = std::asin(2.0 * unit(random) - 1.0);
    std::snprintf(line, sizeof line, "%s\t%d\t%.9f\t%.9f\t%.2f\t%.5f\t%s\n", kinds[i % 5], i, ra, dec,
                  20.0 * unit(random), 0.01 * unit(random), i % 2 ? std::to_string(i).c_str() : "");
    deepsky += line;
  }
  dir.Write("data/catalogs/stars.txt", stars);
  dir.Write("data/catalogs/deepsky.txt", deepsky);
}

// A frame over catalogs of its own, and what was asked of it.
class WhyTest : public testing::Test {
 protected:
  void Compute() {
    f.observer = PrepareObserver(f.camera);
    f.shown = ReadShownKinds(settings);
    filters.Refresh(settings);
    frame->Compute(f.camera, f.observer, f.shown, filters);
  }
  void UseCatalogs() {
    std::string error;
    ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(catalogs);
  }
  Explanation Why(const FoundObject& object) {
    return Explain(object, {*frame, f.camera, f.observer, f.shown, filters, settings});
  }
  Explanation Why(const std::string& name) {
    std::string error;
    const auto found = ObjectSearch(catalogs).FindOne(name, error);
    EXPECT_TRUE(found) << error;
    return found ? Why(*found) : Explanation();
  }
  // Asks about every star and deep-sky object, and compares with what the frame drew.
  void CompareAll(const std::string& view) {
    std::set<int> stars, deepsky;
    for (const auto& drawn : frame->GetStars()) stars.insert(drawn.star);
    for (const auto& drawn : frame->GetDeepsky()) deepsky.insert(drawn.object);
    for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
      const Explanation why = Why({ObjectGroup::kStar, i});
      ASSERT_EQ(why.drawn, stars.count(i) == 1) << view << ", star " << i;
      ASSERT_EQ(why.drawn, why.reasons.empty());
    }
    for (int i = 0; i < static_cast<int>(catalogs.deepsky.size()); ++i) {
      const Explanation why = Why({ObjectGroup::kDeepsky, i});
      ASSERT_EQ(why.drawn, deepsky.count(i) == 1) << view << ", object " << i;
    }
    seen += stars.size() + deepsky.size();
  }

  FrameFixture f;
  CommonInterfaces::SettingsData settings{1, FourCC("FLTR"), "nothing.data"};
  ObjectFilters filters;
  SkyCatalogs catalogs;
  std::unique_ptr<SkyFrame> frame;
  std::size_t seen = 0;
};

}  // namespace

TEST_F(WhyTest, VerdictIsThatOfThePictureForEveryObjectOfManyViews) {
  WriteCrowdedSky(f.sky.dir);
  UseCatalogs();
  const struct {
    double zoom, azimuth, altitude;
    int width, height;
  } views[] = {{0.25, 180, 30, 1600, 1000}, {1, 90, 10, 1600, 1000}, {3, 270, 60, 640, 900},
               {10, 0, 50, 1600, 1000},     {1, 200, -70, 800, 800}, {200, 123, 45, 1600, 1000}};
  for (const auto& view : views) {
    f.camera.SetZoom(view.zoom);
    f.SetLook(view.azimuth, view.altitude);
    f.SetWindow(view.width, view.height);
    Compute();
    CompareAll("zoom " + std::to_string(view.zoom));
  }
  EXPECT_GT(seen, 300u);
}

TEST_F(WhyTest, VerdictIsThatOfThePictureWithFiltersAndSwitches) {
  WriteCrowdedSky(f.sky.dir);
  UseCatalogs();
  f.camera.SetZoom(0.4);
  host_test::AddRange(settings, "star", "ColorIndexBV", 0.3f, 1.2f);
  host_test::AddBytes(settings, "gala", "CatalogType", 2, {1, 0, 0, 0});
  host_test::AddBytes(settings, "clst", "ClusterDraw", 0, {0});
  AddFavourite(settings, FourCC("nebu"), 2);
  AddFavourite(settings, FourCC("nebu"), 12);
  host_test::AddBytes(settings, "grid", "HorizonDraw", 0, {0});
  Compute();
  CompareAll("filters");
  EXPECT_GT(seen, 50u);
  settings.SetSectionStatus(FourCC("star"), 0);
  Compute();
  CompareAll("stars off");
}

TEST_F(WhyTest, EveryReasonThatAppliesIsGivenInOrder) {
  // Arcturus (magnitude -0.04) has not risen and stands in the north, behind a view of the south.
  UseCatalogs();
  host_test::AddBytes(settings, "star", "Draw", 0, {0});
  host_test::AddRange(settings, "star", "VisMagnitude", 1.0f, 3.0f);
  Compute();
  const Explanation why = Why("Arcturus");
  EXPECT_FALSE(why.drawn);
  ASSERT_EQ(why.reasons.size(), 4u);
  EXPECT_EQ(why.reasons[0], "its kind is switched off: star.Draw is 0 (--set star.Draw=1)");
  EXPECT_EQ(why.reasons[1].find("the filter star.VisMagnitude rejects it"), 0u) << why.reasons[1];
  EXPECT_EQ(why.reasons[2].find("below the horizon: altitude -"), 0u) << why.reasons[2];
  EXPECT_EQ(why.reasons[3].find("behind the view, "), 0u) << why.reasons[3];
}

TEST_F(WhyTest, SectionThatIsOffIsNamed) {
  UseCatalogs();
  host_test::AddBytes(settings, "nebu", "CloudsDraw", 0, {1});
  settings.SetSectionStatus(FourCC("nebu"), 0);
  Compute();
  EXPECT_TRUE(AnyContains(Why("M42").reasons, "the section nebu is switched off (--set nebu:on)"));
}

TEST_F(WhyTest, FaintStarIsToldTheZoomThatShowsItAndItDoes) {
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n1.46\t0.0\t9.99\tFaint\n");
  UseCatalogs();
  Compute();
  // Magnitude 9.99 is drawn from 10 ^ ((9.99 - 7.5) / 4) = 4.193 on; in whole codes, as CalcZoomForShowObject
  // computes, it would be 10 ^ ((9.9 - 7.5) / 4) = 3.981.
  const Explanation why = Why("Faint");
  EXPECT_TRUE(AnyContains(why.reasons,
                          "too faint at zoom 1: the limit is magnitude 7.50, its magnitude 9.99; shown "
                          "from zoom 4.2 on"))
      << why.reasons.front();
  for (const auto& [zoom, shown] : {std::pair(4.19, false), std::pair(4.2, true)}) {
    f.camera.SetZoom(zoom);
    Compute();
    EXPECT_EQ(AnyContains(Why("Faint").reasons, "too faint"), !shown) << zoom;
  }
}

TEST_F(WhyTest, ObjectOutsideIsToldWhereToLookAndIsThenDrawn) {
  UseCatalogs();
  f.SetLook(60.0, 30.0);
  Compute();
  const Explanation away = Why("Sirius");
  ASSERT_FALSE(away.drawn);
  double azimuth = 0.0, altitude = 0.0;
  const std::string& reason = away.reasons.back();
  ASSERT_EQ(std::sscanf(reason.c_str() + reason.find("--look "), "--look %lf,%lf", &azimuth, &altitude), 2)
      << reason;
  f.SetLook(azimuth, altitude);
  Compute();
  const Explanation there = Why("Sirius");
  EXPECT_TRUE(there.drawn);
  // A tenth of a degree is 2.5 pixels at this zoom.
  double x = 0.0, y = 0.0;
  ASSERT_GE(there.facts.size(), 2u);
  ASSERT_EQ(std::sscanf(there.facts[1].c_str(), "pixel %lf, %lf", &x, &y), 2) << there.facts[1];
  EXPECT_NEAR(x, 800.0, 3.0);
  EXPECT_NEAR(y, 500.0, 3.0);
}

TEST_F(WhyTest, LabelsThatAreHiddenAreExplained) {
  f.sky.dir.Write(
      "data/catalogs/stars.txt",
      "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\tBayer:text\tFlamsteed:text\tNumber:i32\n"
      "1.46\t0.0\t1.0\tFirst\t\t\t1\n1.50\t0.0\t5.0\tFaint\t\t\t2\n1.55\t0.05\t1.0\t\t\t\t3\n");
  UseCatalogs();
  Compute();
  EXPECT_TRUE(AnyContains(Why("First").facts, "label: First"));
  // Names go to magnitude 4 at zoom 1 and to 5 at 10 ^ (1 / 4) = 1.778.
  EXPECT_TRUE(AnyContains(Why("Faint").facts,
                          "label hidden: names go to magnitude 4.00 at this zoom; shown from zoom "
                          "1.78 on"));
  EXPECT_TRUE(AnyContains(Why("HR 3").facts, "label: none"));
}

TEST_F(WhyTest, ConstellationIsDrawnWhereItsNameIs) {
  UseCatalogs();
  Compute();
  EXPECT_TRUE(Why("Orion").drawn);
  f.SetLook(0.0, 30.0);
  Compute();
  EXPECT_TRUE(AnyContains(Why("Orion").reasons, "behind the view"));
  host_test::AddBytes(settings, "cnst", "LabelsVisible", 0, {0});
  Compute();
  EXPECT_TRUE(AnyContains(Why("Orion").reasons, "cnst.LabelsVisible is 0"));
}

TEST_F(WhyTest, CameraKeepsItsZoom) {
  UseCatalogs();
  f.camera.SetZoom(1.7);
  Compute();
  Why("Sirius");
  EXPECT_EQ(f.camera.GetZoom(), 1.7);
}

TEST(WhyCommand, FoundIsExitZeroAndUnknownOrAmbiguousExitOne) {
  host_test::SmallSky sky;
  EXPECT_EQ(sky.Run({"why", "betelgeuse"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str().find("Betelgeuse (α Ori, HR 2061): "), 0u) << sky.output.str();
  EXPECT_EQ(sky.Run({"why", "Betelgeux"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("similar: Betelgeuse"), std::string::npos) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "");
}
