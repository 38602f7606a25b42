// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/why.h"

#include <gtest/gtest.h>

#include <set>

#include "scene/crowded_sky.h"
#include "scene/filter_fields.h"
#include "scene/visibility/favourites.h"
#include "scene/why_helpers.h"

using namespace scene;

namespace {

class WhyTest : public host_test::WhyFixture {
 protected:
  // Asks about every star and deep-sky object, and compares with what the frame drew.
  void CompareAll(const std::string& view) {
    std::set<int> stars, deepsky;
    for (const auto& drawn : frame->GetStars()) stars.insert(drawn.star);
    for (const auto& drawn : frame->GetDeepsky()) deepsky.insert(drawn.object);
    for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
      const Explanation why = Why({ObjectGroup::kStar, i});
      ASSERT_EQ(why.IsDrawn(), stars.count(i) == 1) << view << ", star " << i;
      ASSERT_EQ(why.IsDrawn(), why.obstacles == 0);
    }
    for (int i = 0; i < static_cast<int>(catalogs.deepsky.size()); ++i) {
      const Explanation why = Why({ObjectGroup::kDeepsky, i});
      ASSERT_EQ(why.IsDrawn(), deepsky.count(i) == 1) << view << ", object " << i;
    }
    seen += stars.size() + deepsky.size();
  }

  std::size_t seen = 0;
};

}  // namespace

TEST_F(WhyTest, VerdictIsThatOfThePictureForEveryObjectOfManyViews) {
  host_test::WriteCrowdedSky(f.sky.dir);
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
  host_test::WriteCrowdedSky(f.sky.dir);
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

// Arcturus (magnitude -0.04) has not risen and stands in the north, behind a view of the south.
TEST_F(WhyTest, EveryObstacleThatAppliesIsGiven) {
  UseCatalogs();
  host_test::AddBytes(settings, "star", "Draw", 0, {0});
  host_test::AddRange(settings, "star", "VisMagnitude", 1.0f, 3.0f);
  Compute();
  const Explanation why = Why("Arcturus");
  EXPECT_FALSE(why.IsDrawn());
  EXPECT_EQ(why.obstacles, unsigned{kKindOff | kFiltered | kBelowHorizon | kOutside});
  ASSERT_EQ(why.rejecting.size(), 1u);
  EXPECT_EQ(why.rejecting[0].quantity, Quantity::kMagnitude);
  EXPECT_LT(why.standing.altitude, 0.0);
  EXPECT_GT(why.fromCentre, 90.0);
}

TEST_F(WhyTest, ConstellationIsDrawnWhereItsNameIs) {
  UseCatalogs();
  Compute();
  EXPECT_TRUE(Why("Orion").IsDrawn());
  f.SetLook(0.0, 30.0);
  Compute();
  EXPECT_EQ(Why("Orion").obstacles, unsigned{kOutside});
  EXPECT_GT(Why("Orion").fromCentre, 90.0);
  host_test::AddBytes(settings, "cnst", "LabelsVisible", 0, {0});
  Compute();
  const Explanation off = Why("Orion");
  EXPECT_EQ(off.obstacles, unsigned{kKindOff | kOutside});
  EXPECT_STREQ(off.state.switchName, "LabelsVisible");
  EXPECT_FALSE(off.state.switchOn);
}

// Low air takes from a star's light, and the zoom that shows it makes up for that.
TEST_F(WhyTest, ZoomThatShowsAStarCountsWhatTheAirTakes) {
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n1.46\t-0.35\t9.99\tFaint\n");
  UseCatalogs();
  Compute();
  const Explanation faint = Why("Faint");
  EXPECT_GT(faint.dim, 2.0f);  // 17 degrees high: 1.3 air masses more than at 30 degrees
  ASSERT_TRUE(faint.drawnFromZoom);
  EXPECT_GT(*faint.drawnFromZoom, 4.4) << "10 ^ ((9.99 - 7.5) / 4) = 4.19 without air";
  f.SetLook(faint.standing.azimuth, faint.standing.altitude);
  for (const double share : {0.995, 1.0}) {
    f.camera.SetZoom(share * *faint.drawnFromZoom);
    Compute();
    EXPECT_EQ(Why("Faint").IsDrawn(), share == 1.0) << share;
  }
}

TEST_F(WhyTest, CameraKeepsItsZoom) {
  UseCatalogs();
  f.camera.SetZoom(1.7);
  Compute();
  Why("Sirius");
  EXPECT_EQ(f.camera.GetZoom(), 1.7);
}
