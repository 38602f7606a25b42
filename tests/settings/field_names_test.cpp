// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/field_names.h"

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

int CountOf(FieldGroup group) {
  return static_cast<int>(std::count_if(GetFieldNames(), GetFieldNames() + kFieldNames,
                                        [group](const FieldName& row) { return row.group == group; }));
}

// A table of ids, as other parts of the library keep them: made by a static initialiser.
const int kTableOfIds[] = {FieldIds::StarZoomDependShow, FieldIds::Dec};

TEST(FieldNames, GroupsHave99And20And83Names) {
  EXPECT_EQ(CountOf(FieldGroup::kDisplay), 99);
  EXPECT_EQ(CountOf(FieldGroup::kZoomDependent), 20);
  EXPECT_EQ(CountOf(FieldGroup::kRecord), 83);
  EXPECT_EQ(kDisplayFieldNames, 99);
  EXPECT_EQ(kZoomFieldNames, 20);
  EXPECT_EQ(kRecordFieldNames, 83);
}

// Computed by hand from the rule of the hash, with a table made for the purpose (Python, 2026).
TEST(FieldNames, IdsAreTheHashesOfTheNames) {
  EXPECT_EQ(FieldIds::ShowFavoOnly, 34424901);
  EXPECT_EQ(FieldIds::NGC_IC, 86427342);
  EXPECT_EQ(FieldIds::FlightMarker3D, 763995856);
  EXPECT_EQ(FieldIds::IntegrationFlag, 2083437003);
  EXPECT_EQ(FieldIds::StarZoomDependShow, 1048349042);
  EXPECT_EQ(FieldIds::USCOZoomDependLabel, 1531317606);
  EXPECT_EQ(FieldIds::HorizonCountry, 918263124);
  EXPECT_EQ(FieldIds::RA, 1985367760);
  EXPECT_EQ(FieldIds::Dec, 1151502876);
  EXPECT_EQ(FieldIds::a, 984961486);
  EXPECT_EQ(FieldIds::SpacecraftType, 575362159);
  EXPECT_EQ(FieldIds::NoName, 0);
}

TEST(FieldNames, StaticTablesMayUseTheIds) {
  EXPECT_EQ(kTableOfIds[0], 1048349042);
  EXPECT_EQ(kTableOfIds[1], 1151502876);
}

TEST(FieldNames, NoTwoNamesShareAnId) {
  std::set<int> ids;
  for (int i = 0; i < kFieldNames; ++i) ids.insert(GetFieldNames()[i].id);
  EXPECT_EQ(static_cast<int>(ids.size()), kFieldNames);
}

TEST(FieldNames, TableKeepsTheOrderOfTheVocabulary) {
  const FieldName* const names = GetFieldNames();
  EXPECT_STREQ(names[0].name, "ShowFavoOnly");
  EXPECT_STREQ(names[98].name, "IntegrationFlag");
  EXPECT_STREQ(names[99].name, "StarZoomDependShow");
  EXPECT_STREQ(names[118].name, "USCOZoomDependLabel");
  EXPECT_STREQ(names[119].name, "RA");
  EXPECT_STREQ(names[200].name, "SpacecraftType");
  EXPECT_STREQ(names[201].name, "");
}

// Show before label, classes in the order of the camera's table.
TEST(FieldNames, ZoomDependentNamesComeInPairs) {
  const std::string classes[] = {"Star", "SC", "GL", "NB", "NO", "Plnt", "Moon", "Astr", "Comt", "USCO"};
  const FieldName* row = GetFieldNames() + kDisplayFieldNames;
  for (const std::string& name : classes) {
    EXPECT_EQ(row++->name, name + "ZoomDependShow");
    EXPECT_EQ(row++->name, name + "ZoomDependLabel");
  }
}

TEST(FieldNames, IdsBecomeNamesAgain) {
  EXPECT_STREQ(FindFieldName(1151502876), "Dec");
  EXPECT_STREQ(FindFieldName(763995856), "3D-FlightMarker");
  EXPECT_STREQ(FindFieldName(0), "");
  EXPECT_EQ(FindFieldName(::GetUniqueID("QXid")), nullptr);
  EXPECT_EQ(FindFieldName(-1), nullptr);
}

}  // namespace
}  // namespace CommonInterfaces
