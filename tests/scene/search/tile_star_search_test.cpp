// SPDX-FileCopyrightText: the common_interfaces authors SPDX-License-Identifier: MIT
//
// A star of a tile catalog is an object like the others: found by its number, explained, aimed at, clicked
// on, kept among the favourites.
#include <gtest/gtest.h>

#include "scene/catalogs/object_names.h"
#include "scene/filter_fields.h"
#include "scene/search/aim.h"
#include "scene/search/pick.h"
#include "scene/tile_files.h"
#include "scene/why_helpers.h"

using namespace scene;

namespace {

constexpr int kBarnard = kHipparcosNumbers + 87937, kImported = kImportedNumbers + 123;

// Barnard's star (HIP 87937) and one that somebody imported beside it.
class TileStarSearch : public host_test::WhyFixture {
 protected:
  void SetUp() override {
    ASSERT_TRUE(host_test::WriteTiles(f.sky.dir.Path("data/catalogs/stars.tiles"),
                                      {{kBarnard, 269.45207 * kRadiansPerDegree, 4.69339 * kRadiansPerDegree,
                                        9.54, 1.57, -798.6, 10328.1}}));
    ASSERT_TRUE(
        host_test::WriteTiles(f.sky.dir.Path("data/catalogs/deep_stars.tiles"),
                              {{kImported, 269.46 * kRadiansPerDegree, 4.70 * kRadiansPerDegree, 10.5}}));
    UseCatalogs();
    f.SetTime(2026, 7, 1, 22, 0);
  }
  FoundObject Find(const std::string& name) {
    std::string error;
    const auto found = ObjectSearch(catalogs).FindOne(name, error);
    EXPECT_TRUE(found) << error;
    return found.value_or(FoundObject{ObjectGroup::kBody, 0});
  }
  void LookAtBarnard(double zoom) {
    ASSERT_TRUE(AimAt(Find("HIP 87937"), catalogs, f.camera));
    f.camera.SetZoom(zoom);
    Compute();
  }
};

}  // namespace

TEST_F(TileStarSearch, NumberInItsCatalogueFindsIt) {
  for (const char* name : {"HIP 87937", "hip87937", "Star 1087937"}) {
    EXPECT_EQ(Find(name), (FoundObject{ObjectGroup::kTileStar, kBarnard})) << name;
  }
  EXPECT_EQ(Find("Star 100000123"), (FoundObject{ObjectGroup::kTileStar, kImported}));
}

TEST_F(TileStarSearch, NumberThatNoCatalogHasFindsNothing) {
  const ObjectSearch search(catalogs);
  for (const char* name : {"HIP 87938", "HIP", "HIP 879370000000000", "HIP 2147483647", "HIP -1", "Star 5",
                           "HIP 87937a", "Star"}) {
    EXPECT_TRUE(search.Find(name).empty()) << name;
  }
}

TEST_F(TileStarSearch, KindNumberAndNamesAreThoseOfAStar) {
  const FoundObject star = Find("HIP 87937");
  const ObjectSearch search(catalogs);
  EXPECT_EQ(GetKind(star, catalogs), FourCC("star"));
  EXPECT_EQ(GetNumber(star, catalogs), kBarnard);
  EXPECT_EQ(search.GetName(star), "HIP 87937");
  EXPECT_EQ(search.GetTitle(star), "HIP 87937");
  EXPECT_EQ(search.GetTitle(Find("Star 100000123")), "Star 100000123");
  EXPECT_EQ(GetObjectName(SSO_ID(FourCC("star"), kBarnard), catalogs), "HIP 87937");
  EXPECT_EQ(GetObjectName(SSO_ID(FourCC("star"), kBarnard + 1), catalogs), "");
  EXPECT_EQ(FindObject({FourCC("star"), kBarnard}, catalogs), star);
  EXPECT_EQ(FindObject({FourCC("star"), kBarnard + 1}, catalogs), std::nullopt);
  EXPECT_EQ(FindObject({FourCC("gala"), kBarnard}, catalogs), std::nullopt);
}

// The view turned to where the model of the solar system places the star has it in the middle of the picture.
// On both roads count 26 years of proper motion, four and a half minutes of arc.
TEST_F(TileStarSearch, ViewAimedAtItHasItInTheMiddle) {
  LookAtBarnard(60.0);
  const ViewGeometry geometry(f.camera);
  const Explanation why = Why("HIP 87937");
  EXPECT_EQ(why.obstacles, 0u);
  EXPECT_NEAR(why.pixel.x, 800.0, 1.0);
  EXPECT_NEAR(why.pixel.y, 500.0, 1.0);
  EXPECT_LT(2.0 / geometry.scale, 3e-5) << "a pixel is six seconds of arc or less";
}

TEST_F(TileStarSearch, ClickOnItsDotAnswersWithIt) {
  LookAtBarnard(60.0);
  const Explanation why = Why("HIP 87937");
  const auto hits = PickObjects(frame->GetDisplayList(), why.pixel.x, why.pixel.y, 2.0);
  ASSERT_FALSE(hits.empty());
  EXPECT_EQ(hits[0].object, (ObjectRef{FourCC("star"), kBarnard}));
  EXPECT_EQ(FindObject(hits[0].object, catalogs), Find("HIP 87937"));
}

TEST_F(TileStarSearch, ExplanationSaysWhatKeepsItOut) {
  LookAtBarnard(60.0);
  EXPECT_EQ(Why("HIP 87937").label, LabelFate::kNameless);
  ASSERT_TRUE(Why("HIP 87937").code);
  EXPECT_NEAR(*Why("HIP 87937").code, 115.4f, 1e-3f);
  EXPECT_FLOAT_EQ(Why("HIP 87937").traits.colour, 1.57f);
  f.camera.SetZoom(1.0);
  Compute();
  EXPECT_EQ(Why("HIP 87937").obstacles, unsigned{kTooFaint});
  EXPECT_EQ(Why("HIP 87937").label, LabelFate::kNone);
  const auto zoom = Why("HIP 87937").drawnFromZoom;
  ASSERT_TRUE(zoom);
  f.camera.SetZoom(*zoom);
  Compute();
  EXPECT_TRUE(Why("HIP 87937").IsDrawn());
  f.SetLook(0.0, 20.0);
  Compute();
  EXPECT_TRUE(Why("HIP 87937").obstacles & kOutside);
}

TEST_F(TileStarSearch, FavouriteHasItsMark) {
  LookAtBarnard(60.0);
  frame->SetFavourites({SSO_ID(FourCC("star"), kBarnard), SSO_ID(FourCC("star"), kImported),
                        SSO_ID(FourCC("star"), kBarnard), SSO_ID(FourCC("star"), 5)});
  Compute();
  const auto& marks = frame->GetParts().favourites.GetMarks();
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_EQ(marks[0].object, (ObjectRef{FourCC("star"), kBarnard}));
  EXPECT_EQ(marks[1].object, (ObjectRef{FourCC("star"), kImported}));
  EXPECT_NEAR(marks[0].place.x, 800.0, 30.0);
}

TEST_F(TileStarSearch, FiltersOfStarsCountForIt) {
  LookAtBarnard(60.0);
  EXPECT_TRUE(Why("HIP 87937").IsDrawn());
  EXPECT_TRUE(Why("Star 100000123").IsDrawn());
  host_test::AddRange(settings, "star", "ColorIndexBV", 1.5f, 1.6f);
  Compute();
  EXPECT_TRUE(Why("HIP 87937").IsDrawn());
  EXPECT_EQ(Why("Star 100000123").obstacles, unsigned{kFiltered}) << "nobody knows its colour";
  ASSERT_EQ(frame->GetStars().size(), 1u);
  EXPECT_EQ(frame->GetStars()[0].number, kBarnard);
}

TEST_F(TileStarSearch, HipparcosIsTheCatalogueThatListsIt) {
  host_test::AddBytes(settings, "star", "CatalogType", kSwitchesCondition, {0, 1, 0, 0});
  LookAtBarnard(60.0);
  EXPECT_TRUE(Why("HIP 87937").IsDrawn());
  EXPECT_EQ(Why("Star 100000123").obstacles, unsigned{kFiltered}) << "no catalogue that has a switch";
}

// Of a list of names an entry whose number is none, or not whole, or nobody's, names nothing.
TEST_F(TileStarSearch, ListedNameNeedsTheWholeNumberOfItsObject) {
  ASSERT_TRUE(host_test::WriteTiles(f.sky.dir.Path("data/catalogs/deep_stars.tiles"),
                                    {{kHipparcosNumbers + 1, 0.1, 0.2, 9.1}, {kImported, 0.3, 0.4, 10.5}}));
  f.sky.dir.Write(
      "data/catalogs/names.txt",
      "Object:text\tLanguage:text\tProperName:text\n"
      "HIP 87937\ten\tBarnard's Star\nHIP\ten\tNumberless\nHIP 87937x\ten\tMistyped\n"
      "HIP 1\ten\tFirst\nHIP 0\ten\tNaught\nHIP 99000123\ten\tImported\nHIP 2147483647\ten\tEndless\n"
      "plnt 2\ten\tEvening Star\nplnt 2nd\ten\tSecond\n");
  UseCatalogs();
  EXPECT_EQ(Find("Barnard's Star"), (FoundObject{ObjectGroup::kTileStar, kBarnard}));
  EXPECT_EQ(Find("First"), (FoundObject{ObjectGroup::kTileStar, kHipparcosNumbers + 1}));
  EXPECT_EQ(Find("Evening Star"), Find("Venus"));
  const ObjectSearch search(catalogs);
  for (const char* name : {"Numberless", "Mistyped", "Naught", "Imported", "Endless", "Second"})
    EXPECT_TRUE(search.Find(name).empty()) << name;
}
