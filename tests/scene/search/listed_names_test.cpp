// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/names_files.h"
#include "scene/search/object_search.h"
#include "scene/search/object_sight.h"
#include "utils/locale.h"

using namespace scene;

namespace {

class ListedNamesTest : public testing::Test {
 protected:
  ListedNamesTest() {
    host_test::WriteNames(f.sky.dir);
    Load("en");
  }
  ~ListedNamesTest() override { SetSystemLocale("en"); }
  void Load(const std::string& language) {
    std::string error;
    if (!OpenDataRoot(f.sky.dir.Path("data"), "", language, catalogs, error)) ADD_FAILURE() << error;
    search.emplace(catalogs);
  }
  std::string TitleOf(const std::string& name) {
    std::string error;
    const auto found = search->FindOne(name, error);
    return found ? search->GetTitle(*found) : "? " + error;
  }

  host_test::FrameFixture f;
  SkyCatalogs catalogs;
  std::optional<ObjectSearch> search;
};

}  // namespace

TEST_F(ListedNamesTest, NamesOfEveryLanguageFindTheObject) {
  for (const char* name : {"Vega", "Wega", "вега", "harp star"})
    EXPECT_EQ(TitleOf(name), "Vega (α Lyr, HR 7001, HIP 91262)") << name;
  for (const char* name : {"Seven Sisters", "Plejaden", "ПЛЕЯДЫ"})
    EXPECT_EQ(TitleOf(name), "M 45 (Pleiades)") << name;
  EXPECT_EQ(TitleOf("Himmelsjaeger").substr(0, 1), "?") << "ä is a in keys";
  EXPECT_EQ(TitleOf("Himmelsjager"), "Orion (Ori, Hunter)");
  EXPECT_EQ(TitleOf("evening star"), TitleOf("Venus"));
}

TEST_F(ListedNamesTest, TitlesBeginWithTheNameInTheLanguage) {
  Load("de");
  EXPECT_EQ(TitleOf("Vega"), "Wega (Vega, α Lyr, HR 7001, HIP 91262)");
  EXPECT_EQ(TitleOf("Orion"), "Himmelsjäger (Orion, Ori, Hunter)");
  EXPECT_EQ(TitleOf("three kings"), "Gürtel des Orion (Orion's Belt)");
}

TEST_F(ListedNamesTest, AsterismsGiveWayToOthersOfTheirName) {
  EXPECT_EQ(TitleOf("Hunter"), "Orion (Ori, Hunter)");
  EXPECT_EQ(TitleOf("Orions Belt"), "Orion's Belt");
  const auto belt = search->Find("Orion's Belt").at(0);
  EXPECT_EQ(belt.group, ObjectGroup::kAsterism);
  EXPECT_EQ(FindObject({GetKind(belt, catalogs), GetNumber(belt, catalogs)}, catalogs), belt);
}

TEST_F(ListedNamesTest, FeaturesAreFoundWhereNothingElseHasTheName) {
  EXPECT_EQ(TitleOf("tycho"), "Tycho (Moon)");
  EXPECT_EQ(TitleOf("Tycho A"), "Tycho A (Moon)");
  EXPECT_EQ(TitleOf("Vega"), "Vega (α Lyr, HR 7001, HIP 91262)");
  EXPECT_EQ(TitleOf("Vega (Moon)"), "Vega (Moon)");
  EXPECT_EQ(TitleOf("Olympus Mons"), "Olympus Mons (Mars)");
}

TEST_F(ListedNamesTest, TheMoonsFeatureComesBeforeThoseOfOtherBodies) {
  EXPECT_EQ(TitleOf("Copernicus"), "Copernicus (Moon)");
  EXPECT_EQ(TitleOf("Copernicus, Mars"), "Copernicus (Mars)");
  const auto crater = search->Find("Copernicus (Mars)").at(0);
  EXPECT_EQ(FindObject({GetKind(crater, catalogs), GetNumber(crater, catalogs)}, catalogs), crater);
}

TEST_F(ListedNamesTest, MistypedNamesHaveLikeOnesOfEveryKind) {
  EXPECT_EQ(TitleOf("Tyho"), "? 'Tyho': no such object; similar: Tycho");
  EXPECT_EQ(TitleOf("Betelgeise"), "? 'Betelgeise': no such object; similar: Betelgeuse, Beteigeuze");
}

// Lists of names may name stars that no catalog has.
TEST_F(ListedNamesTest, AStarThatNoCatalogHasIsNotFoundByItsName) {
  EXPECT_TRUE(TitleOf("Nobody").starts_with("? 'Nobody': no such object"));
}

// The angle between feature and middle of the disc as seen from the Earth: about that of the body's radius.
TEST_F(ListedNamesTest, AFeatureStandsWithinTheDiscOfItsBody) {
  const auto tycho = search->Find("Tycho").at(0), moon = search->Find("Moon").at(0);
  const SkyMoment moment = GetMoment(f.camera);
  const EarthPlace place = GetPlace(f.camera);
  ObservedBody feature, body;
  ASSERT_TRUE(ObjectSight(tycho, catalogs).Observe(moment, place, feature));
  ASSERT_TRUE(ObjectSight(moon, catalogs).Observe(moment, place, body));
  double along = 0.0;
  for (int i = 0; i < 3; ++i) along += feature.apparent[i] * body.apparent[i];
  // Tycho lies 45 degrees off the middle at mean libration, which changes it by 10 at most.
  const double off = std::acos(along) / body.angularRadius;
  EXPECT_GT(off, std::sin(33.0 * kRadiansPerDegree));
  EXPECT_LT(off, std::sin(56.0 * kRadiansPerDegree));
}
