// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/search/object_search.h"

using namespace scene;

namespace {

class SuggestTest : public testing::Test {
 protected:
  std::vector<std::string> Names(const std::string& text, std::size_t most = 10) {
    std::vector<std::string> names;
    for (const Suggestion& suggestion : search.Suggest(text, most)) names.push_back(suggestion.name);
    return names;
  }
  std::string First(const std::string& text) {
    const auto names = Names(text, 1);
    return names.empty() ? "" : names.front();
  }
  host_test::FrameFixture f;
  ObjectSearch search{f.catalogs};
};

}  // namespace

TEST_F(SuggestTest, BeginningOfAnyNameIsEnough) {
  EXPECT_EQ(First("bet"), "Betelgeuse");
  EXPECT_EQ(First("alp ori"), "α Ori");
  EXPECT_EQ(First("andromeda g"), "Andromeda Galaxy");
  EXPECT_EQ(First("JUP"), "Jupiter");
}

TEST_F(SuggestTest, WholeNameComesBeforeThoseThatBeginWithIt) {
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n1.4\t0.0\t1.0\tAlphaville\n"
                  "1.5\t0.0\t5.0\tAlpha\n");
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  const ObjectSearch own(catalogs);
  const auto found = own.Suggest("alpha", 2);
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].name, "Alpha");
  EXPECT_EQ(found[1].name, "Alphaville");
}

TEST_F(SuggestTest, BrightOnesComeFirstAndEachObjectOnce) {
  const auto found = search.Suggest("m", 100);
  ASSERT_GE(found.size(), 4u);
  EXPECT_EQ(found[0].name, "Moon");
  for (std::size_t i = 0; i < found.size(); ++i) {
    for (std::size_t k = i + 1; k < found.size(); ++k) EXPECT_FALSE(found[i].object == found[k].object) << i;
  }
}

TEST_F(SuggestTest, CataloguesAreMeantAsPeopleCallThem) {
  EXPECT_EQ(First("Messier 31"), "M 31");
  EXPECT_EQ(First("hr 206"), "HR 2061");
}

TEST_F(SuggestTest, NoMoreThanAskedForAndNoneForNothing) {
  EXPECT_EQ(Names("m", 2).size(), 2u);
  EXPECT_TRUE(Names("").empty());
  EXPECT_TRUE(Names(" -. ").empty());
  EXPECT_TRUE(Names("xyzzy").empty());
  EXPECT_TRUE(Names("m", 0).empty());
}
