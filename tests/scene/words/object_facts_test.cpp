// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/object_facts.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"

using namespace scene;

TEST(ObjectFacts, UnitsThatReadBest) {
  EXPECT_EQ(ChooseUnit(400.0 / 149597870.7), 1);     // km
  EXPECT_EQ(ChooseUnit(384400.0 / 149597870.7), 2);  // thousands of them
  EXPECT_EQ(ChooseUnit(5.2), 4);                     // au
  EXPECT_EQ(ChooseUnit(8.6 * 63241.0), 5);           // light years
  EXPECT_EQ(ChooseUnit(2.5e6 * 63241.0), 7);         // kiloparsecs
}

class ObjectFactsTest : public testing::Test {
 protected:
  // The line of the first fact of that kind, "" when there is none.
  std::string Find(const std::vector<ObjectFact>& facts, FactKind kind) {
    for (const ObjectFact& fact : facts)
      if (fact.kind == kind) return fact.line;
    return "";
  }
  FoundObject FindOne(const std::string& name) {
    std::string error;
    return search.FindOne(name, error).value();
  }
  host_test::FrameFixture f;
  ObjectSearch search{f.catalogs};
};

TEST_F(ObjectFactsTest, CatalogSaysNamesAndKind) {
  const auto facts = ListCatalogFacts(FindOne("M31"), search, f.catalogs);
  EXPECT_EQ(Find(facts, FactKind::kName), "Name: M 31");
  EXPECT_EQ(Find(facts, FactKind::kOtherNames), "Other names: NGC 224, Andromeda Galaxy");
  EXPECT_EQ(Find(facts, FactKind::kSpectralType), "");
}

TEST_F(ObjectFactsTest, SightIsInTheOrderInWhichPeopleReadIt) {
  const auto facts = ListSightFacts(FindOne("Betelgeuse"), f.catalogs, f.camera);
  ASSERT_GE(facts.size(), 5u);
  EXPECT_EQ(facts[0].kind, FactKind::kJ2000);
  EXPECT_EQ(facts[1].kind, FactKind::kOfDate);
  for (std::size_t i = 1; i < facts.size(); ++i)
    EXPECT_TRUE(facts[i].kind >= facts[i - 1].kind || facts[i].kind == FactKind::kOfDate ||
                facts[i - 1].kind == FactKind::kConstellation)
        << facts[i].line;
  EXPECT_EQ(Find(facts, FactKind::kDistance), "") << "the small table has no parallax";
  EXPECT_EQ(
      Find(ListSightFacts(FindOne("Jupiter"), f.catalogs, f.camera), FactKind::kDistance).find("Distance: "),
      0u);
}

TEST_F(ObjectFactsTest, TravellersAreToldNothing) {
  f.camera.SetMovingType(11, false);
  EXPECT_TRUE(ListSightFacts(FindOne("Betelgeuse"), f.catalogs, f.camera).empty());
}
