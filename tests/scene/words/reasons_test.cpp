// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/reasons.h"

#include <gtest/gtest.h>

#include "scene/catalogs/language.h"
#include "scene/filter_fields.h"
#include "scene/visibility/favourites.h"
#include "scene/why_helpers.h"

using namespace scene;

class ReasonsTest : public host_test::WhyFixture {
 protected:
  std::vector<Reason> List(const std::string& name) {
    return ListReasons(Why(name), f.camera.GetZoom(), true);
  }
};

TEST_F(ReasonsTest, EachRuleThatRejectsIsOneWithItsFix) {
  UseCatalogs();
  host_test::AddRange(settings, "star", "VisMagnitude", 1.0f, 3.0f);
  AddFavourite(settings, FourCC("star"), 7);
  Compute();
  const auto reasons = List("Betelgeuse");
  ASSERT_GE(reasons.size(), 2u);
  EXPECT_EQ(reasons[0].text, "the filter star.VisMagnitude rejects it");
  EXPECT_EQ(reasons[0].fix, "star.VisMagnitude:off");
  EXPECT_EQ(reasons[1].text, "only the favourites of the section star are shown, and it is none of them");
  EXPECT_EQ(reasons[1].fix, "");
}

TEST_F(ReasonsTest, AreInTheLanguageOfTheTexts) {
  UseCatalogs();
  host_test::AddBytes(settings, "star", "Draw", 0, {0});
  Compute();
  std::string error;
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "de", [] {}, error))
      << error;
  const auto reasons = List("Betelgeuse");
  ASSERT_FALSE(reasons.empty());
  EXPECT_EQ(reasons[0].text, "seine Art ist ausgeschaltet: star.Draw ist 0");
  EXPECT_EQ(reasons[0].fix, "star.Draw=1");
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "en", [] {}, error))
      << error;
}

TEST_F(ReasonsTest, FeatureInTheNightIsToldSo) {
  UseCatalogs();
  Compute();
  Explanation why = Why("Betelgeuse");
  why.obstacles = kInNight;
  const auto reasons = ListReasons(why, 1.0, true);
  ASSERT_EQ(reasons.size(), 1u);
  EXPECT_EQ(reasons[0].obstacle, kInNight);
  EXPECT_EQ(reasons[0].text, "it is night there");
}
