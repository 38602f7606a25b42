// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/queries.h"
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

using CommonInterfaces::BaseQuery;
using CommonInterfaces::TBaseList;
using CommonInterfaces::TQuery;
using QueryList = TBaseList<BaseQuery*>;

constexpr int kPlanet = static_cast<int>(kPlnt);

class SettingsQueryList : public SettingsTest {
 protected:
  // The list of a request; the identifier query in it, which nobody owns, is deleted with the test.
  const QueryList* Ask(unsigned section, bool all = false) {
    m_Lists.emplace_back(static_cast<QueryList*>(settings.CreateQueryList(static_cast<int>(section), all)));
    const QueryList* const list = m_Lists.back().get();
    if (list && !list->empty() && CommonInterfaces::IsIdentifierQuery(*list->back()))
      m_Identifiers.emplace_back(list->back());
    return list;
  }
  static std::vector<int> Names(const QueryList* list) {
    std::vector<int> names;
    for (const BaseQuery* query : *list) names.push_back(query->m_NameId);
    return names;
  }
  SettingsData settings{kId, kOwner, "filters.data"};

 private:
  std::vector<std::unique_ptr<QueryList>> m_Lists;
  std::vector<std::unique_ptr<BaseQuery>> m_Identifiers;
};

TEST_F(SettingsQueryList, FieldsThatTakePartComeInTheirOrder) {
  Create(settings, Int(kPlnt, 5, 50));
  Create(settings, Int(kPlnt, 2, 20, 0));  // switched off
  Create(settings, Int(kPlnt, 3, 30));
  Create(settings, Int(kStar, 4, 40));  // another section
  settings.SetSectionStatus(kPlnt, 1);
  const QueryList* const list = Ask(kPlnt);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(Names(list), (std::vector{5, 3}));
  EXPECT_EQ(*static_cast<const int*>((*list)[1]->GetValue(0)), 30);
  EXPECT_EQ((*list)[1]->GetValue(1), nullptr);
  // The fields own the queries and keep them.
  EXPECT_EQ((*Ask(kPlnt))[0], (*list)[0]);
  EXPECT_EQ(SettingFieldTestAccess::Query(*settings.GetFieldAt(0)), (*list)[0]);
}

// Under AddressSanitizer: the fields keep their queries, and delete each once.
TEST_F(SettingsQueryList, QueriesOutliveTheirListAndAreTheSameUntilTheirFieldChanges) {
  Create(settings, Int(kPlnt, 1, 10));
  Create(settings, Int(kPlnt, 2, 20));
  settings.SetSectionStatus(kPlnt, 1);
  auto* const list = static_cast<QueryList*>(settings.CreateQueryList(static_cast<int>(kPlnt), false));
  const BaseQuery* const first = (*list)[0];
  const BaseQuery* const second = (*list)[1];
  delete list;
  EXPECT_EQ(*static_cast<const int*>(first->GetValue(0)), 10);

  const int equal = 20, changed = 21;
  settings.SetFieldElement(kPlnt, 2, &equal, 0);
  ASSERT_EQ(Ask(kPlnt)->size(), 2u);
  EXPECT_EQ((*Ask(kPlnt))[1], second);
  settings.SetFieldElement(kPlnt, 2, &changed, 0);
  const QueryList* const next = Ask(kPlnt);
  EXPECT_EQ((*next)[0], first);
  EXPECT_EQ(*static_cast<const int*>((*next)[1]->GetValue(0)), 21);
}

TEST_F(SettingsQueryList, MissingSectionAndSectionThatIsOffGiveNull) {
  Create(settings, Int(kPlnt, 1, 10));
  EXPECT_EQ(Ask(kMoon), nullptr);
  EXPECT_EQ(Ask(kPlnt), nullptr);
  settings.SetAimObject(SSO_ID(static_cast<int>(kMoon), 301));
  EXPECT_EQ(Ask(kPlnt), nullptr);
}

TEST_F(SettingsQueryList, SectionWithoutQueriesGivesAnEmptyList) {
  Create(settings, Int(kPlnt, 1, 10, 0));
  settings.SetSectionStatus(kPlnt, 1);
  ASSERT_NE(Ask(kPlnt), nullptr);
  EXPECT_TRUE(Ask(kPlnt)->empty());
}

TEST_F(SettingsQueryList, SectionIsFoundByAliasAndFieldsByTheSectionAskedFor) {
  RecordParts parts = IntParts({1});
  parts.section = kPlnt;
  parts.nameId = 1;
  parts.querySection = kComt;
  Create(settings, parts.Current());
  Create(settings, Int(kPlnt, 2, 20));
  settings.SetSectionStatus(kPlnt, 1);
  settings.SetSectionAlias(kPlnt, kComt);
  EXPECT_EQ(Names(Ask(kComt)), std::vector{1});
  settings.SetFieldElement(kPlnt, 1, "xxxx", 0);  // a kept query would be given for any section
  EXPECT_EQ(Names(Ask(kPlnt)), std::vector{2});
}

TEST_F(SettingsQueryList, AllAsksForLabelListsThatAreOff) {
  RecordParts labels = ByteParts({0, 7, 8});
  labels.section = kPlnt;
  labels.nameId = 1;
  labels.condition = 0x4000;
  labels.compareStatus = 0;
  Create(settings, labels.Current());
  settings.SetSectionStatus(kPlnt, 1);
  EXPECT_TRUE(Ask(kPlnt, false)->empty());
  const QueryList* const list = Ask(kPlnt, true);
  ASSERT_EQ(Names(list), std::vector{1});
  EXPECT_EQ(*static_cast<const unsigned char*>((*list)[0]->GetValue(1)), 8);
}

TEST_F(SettingsQueryList, SectionThatIsOffAndHoldsTheAimGivesTheAimAlone) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  Create(settings, Int(kPlnt, 2, 20));
  Create(settings, Favo(kPlnt, 3, {0, 0, 0, 0, 0}, 5, 1, kPlnt));
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  const QueryList* const list = Ask(kPlnt);
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(Names(list), std::vector{1});
  EXPECT_EQ(*static_cast<const int*>((*list)[0]->GetValue(7)), 9);
  EXPECT_EQ(*static_cast<const int*>((*list)[0]->GetValue(2)), 0);
  EXPECT_EQ(SettingFieldTestAccess::Query(*settings.GetFieldAt(0)),
            nullptr);  // the container's, not the field's
}

TEST_F(SettingsQueryList, SectionThatIsOffIsAskedForByTheKindOfTheAimNotByItsAlias) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  settings.SetSectionAlias(kPlnt, kComt);
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  EXPECT_EQ(Ask(kComt), nullptr);
}

TEST_F(SettingsQueryList, AimQueryTakesThePlaceOfTheFieldsOwn) {
  Create(settings, Int(kPlnt, 2, 20));
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  settings.SetSectionStatus(kPlnt, 1);
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  EXPECT_EQ(Names(Ask(kPlnt)), (std::vector{2, 1}));
  EXPECT_EQ(SettingFieldTestAccess::Query(*settings.GetFieldAt(1)), nullptr);
  EXPECT_EQ(Names(Ask(kPlnt)), (std::vector{2, 1}));  // the earlier aim query is deleted, not leaked
}

// The first aim query is deleted when the second is made: the list must not keep it.
TEST_F(SettingsQueryList, TwoFieldsOfTheAimGiveOneQuery) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  Create(settings, Int(kPlnt, 2, 20));
  Create(settings, Ints(kPlnt, 3, {kPlanet, 3, 1, 0, 0, 0, 0, 8}));
  settings.SetSectionStatus(kPlnt, 1);
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  const QueryList* const list = Ask(kPlnt);
  ASSERT_EQ(Names(list), (std::vector{2, 3}));
  EXPECT_EQ(*static_cast<const int*>((*list)[1]->GetValue(7)), 8);
}

TEST_F(SettingsQueryList, AimQueryIsNotMadeWhileTheFieldIsOff) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  settings.SetFieldStatus(kPlnt, 1, 0);
  ASSERT_NE(Ask(kPlnt), nullptr);
  EXPECT_TRUE(Ask(kPlnt)->empty());
}

TEST_F(SettingsQueryList, IdentifierQueryGathersFavouritesAndComesLast) {
  Create(settings, Favo(kAstr, 1, {0, 0, 0, 0, 0}, 100, 1, kAstr));
  Create(settings, Favo(kAstr, 2, {0, 0, 0, 0, 0}, 200, 0, kAstr));  // switched off
  Create(settings, Favo(kAstr, 3, {0, 0, 0, 0, 0}, 300, 1, kNone));  // its own section is not put in
  Create(settings, Favo(kAstr, 4, {0, 0, 0, 0, 0}, -4, 1, kAstr));
  Create(settings, Int(kAstr, 5, 50));
  settings.SetSectionStatus(kAstr, 1);
  const QueryList* const list = Ask(kAstr);
  ASSERT_EQ(Names(list), (std::vector{5, 268526176}));  // GetUniqueID("QXid")
  const auto* const identifiers = dynamic_cast<const TQuery<int>*>(list->back());
  ASSERT_NE(identifiers, nullptr);
  EXPECT_EQ(identifiers->m_Condition, 256u);
  EXPECT_EQ(identifiers->m_Values, (std::vector{100, -4}));
  EXPECT_EQ(identifiers->GetValue(2), nullptr);
  EXPECT_NE(Ask(kAstr)->back(), list->back());  // a new one for each list
}

TEST_F(SettingsQueryList, FavouritesNeverMakeAQueryOfTheirOwn) {
  Create(settings, Favo(kAstr, 1, {0, 0, 0, 0, 0}, 100, 1, kStar));
  settings.SetSectionStatus(kAstr, 1);
  EXPECT_TRUE(Ask(kAstr)->empty());
}

TEST_F(SettingsQueryList, FavouriteThatIsTooShortContributesNothing) {
  RecordParts parts = ByteParts({1, 2, 3});
  parts.section = kAstr;
  parts.type = 8;
  parts.size = 9;
  parts.querySection = kAstr;
  Create(settings, parts.Current());
  settings.SetSectionStatus(kAstr, 1);
  EXPECT_TRUE(Ask(kAstr)->empty());
}

TEST_F(SettingsQueryList, ReadAndDestructionTakeTheAimQueryAlong) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 1, 0, 0, 0, 0, 9}));
  settings.SetAimObject(SSO_ID(kPlanet, 3));
  ASSERT_EQ(Ask(kPlnt)->size(), 1u);
  settings.Read(nullptr);  // a leak checker sees whether it went
  EXPECT_EQ(Ask(kPlnt), nullptr);
}

}  // namespace
}  // namespace test_support
