// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/data_kinds.h"

#include <gtest/gtest.h>

#include <set>

namespace skydata {
namespace {

TEST(DataKinds, FollowFromTheLastNameWhereverAFileStands) {
  EXPECT_EQ(KindOfName("qxstrings.txt"), DataKind::kStrings);
  EXPECT_EQ(KindOfName("languages/de/qxstrings.txt"), DataKind::kStrings);
  EXPECT_EQ(KindOfName("/home/me/mway.dat"), DataKind::kMilkyWayImages);
  EXPECT_EQ(KindOfName("views/orion.data"), DataKind::kSettings);
  EXPECT_EQ(KindOfName("my.tle"), DataKind::kTwoLineElements);
  EXPECT_EQ(KindOfName("catalogs/comets.txt"), DataKind::kCatalogTable);
  EXPECT_EQ(KindOfName("gazetteers/moon_features.txt"), DataKind::kGazetteer);
  EXPECT_EQ(KindOfName("catalogs/stars.source.md"), DataKind::kNote);
  EXPECT_EQ(KindOfName("media/zoneinfo/Europe/Berlin"), DataKind::kOthers);
  EXPECT_EQ(KindOfName("media/surface/sea.svg"), DataKind::kOthers);
  EXPECT_EQ(KindOfName("comets.text"), DataKind::kUnknown);
  EXPECT_EQ(KindOfName(""), DataKind::kUnknown);
}

TEST(DataKinds, FilesWithAPlaceOfTheirOwnMustStandThere) {
  EXPECT_TRUE(IsInPlace("catalogs/comets.txt"));
  EXPECT_FALSE(IsInPlace("comets.txt"));
  EXPECT_FALSE(IsInPlace("media/comets.txt"));
  EXPECT_EQ(FindPlace("media/comets.txt"), "catalogs/comets.txt");
  EXPECT_TRUE(IsInPlace("views/mine.data"));
  EXPECT_EQ(FindPlace("views/mine.data"), "");
}

TEST(DataKinds, NamesForTheCommandLineStandOnce) {
  std::set<std::string> names;
  for (const DataKindName& known : GetDataKindNames())
    EXPECT_TRUE(names.insert(known.name).second) << known.name;
}

}  // namespace
}  // namespace skydata
