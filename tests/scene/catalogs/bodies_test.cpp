// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/bodies.h"

#include <gtest/gtest.h>

#include "scene/catalogs/language.h"
#include "scene/frame_helpers.h"
#include "scene/search/object_search.h"

using namespace scene;

TEST(Bodies, SunMoonAndPlanetsComeBeforeTheTables) {
  host_test::FrameFixture f;
  const BodyList& bodies = f.catalogs.bodies;
  ASSERT_EQ(bodies.size(), 2u + 8u + 1u + 2u + 1u);
  EXPECT_EQ(bodies[kSunBody].id, SSO_ID(FourCC("plnt"), 10));
  EXPECT_EQ(bodies[kMoonBody].id, SSO_ID(FourCC("moon"), 301));
  EXPECT_EQ(FindBody(bodies, SSO_ID(FourCC("plnt"), 3)), -1) << "nobody sees the Earth in its sky";
  EXPECT_EQ(FindBody(bodies, SSO_ID(FourCC("plnt"), 9)), 9);
  EXPECT_EQ(bodies[10].id, SSO_ID(FourCC("moon"), 501)) << "Io, the one moon that the small list names";
  EXPECT_EQ(bodies[10].names, (std::vector<std::string>{"Io"}));
  EXPECT_EQ(bodies[11].id, SSO_ID(FourCC("astr"), 1));
  EXPECT_EQ(bodies[13].id, SSO_ID(FourCC("comt"), 1));
}

TEST(Bodies, RecordsAreConverted) {
  host_test::FrameFixture f;
  const OrbitalElements& ceres = f.catalogs.bodies[11].elements;
  EXPECT_DOUBLE_EQ(ceres.a, 2.766619044655007);
  EXPECT_NEAR(ceres.i, 10.58679512153367 * kRadiansPerDegree, 1e-15);
  EXPECT_FLOAT_EQ(ceres.absMagnitude, 3.33f);
  EXPECT_EQ(GetBodyLabel(f.catalogs.bodies[11]), "Ceres");
  EXPECT_EQ(GetBodyLabel(f.catalogs.bodies[13]), "1P/Halley");
}

TEST(Bodies, AreCalledAsTheLanguageCallsThem) {
  host_test::FrameFixture f;
  EXPECT_EQ(GetBodyLabel(f.catalogs.bodies[kSunBody]), "Sun");
  std::string error;
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "ru", [] {}, error));
  EXPECT_EQ(GetBodyLabel(f.catalogs.bodies[kSunBody]), "Солнце");
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "en", [] {}, error));
}

TEST(Bodies, MissingTableIsOneLineAndLeavesTheOthers) {
  host_test::FrameFixture f;
  f.sky.dir.Write("data/catalogs/comets.txt", "no header\n");
  const std::size_t before = f.diagnostics.lines.size();
  EXPECT_EQ(LoadBodies().size(), 13u);
  ASSERT_EQ(f.diagnostics.lines.size(), before + 1);
  EXPECT_NE(f.diagnostics.lines.back().find("comets.txt"), std::string::npos);
}

TEST(Bodies, SearchKnowsThemByAllTheirNames) {
  host_test::FrameFixture f;
  f.catalogs.bodies.push_back(
      {SSO_ID(FourCC("comt"), 1001), true, {}, {"C/1995 O1 (Hale-Bopp)", "Hale-Bopp"}});
  const ObjectSearch search(f.catalogs);
  const auto find = [&](const std::string& name) {
    std::string error;
    const auto found = search.FindOne(name, error);
    return found && found->group == ObjectGroup::kBody ? found->index : -1;
  };
  EXPECT_EQ(find("Jupiter"), FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), 5)));
  EXPECT_EQ(find("moon"), kMoonBody);
  EXPECT_EQ(find("SUN"), kSunBody);
  for (const char* name : {"Ceres", "1 Ceres", "ceres"}) EXPECT_EQ(find(name), 11) << name;
  for (const char* name : {"Halley", "1P", "1P/Halley"}) EXPECT_EQ(find(name), 13) << name;
  EXPECT_EQ(find("hale bopp"), 14);
  EXPECT_EQ(find("Io"), 10);
}

TEST(Bodies, MoonsComeBeforeTheAsteroidsOfTheirNames) {
  host_test::FrameFixture f;
  f.catalogs.bodies.push_back({SSO_ID(FourCC("astr"), 85), true, {}, {"Io", "85 Io"}});
  const ObjectSearch search(f.catalogs);
  ASSERT_EQ(search.Find("io").size(), 1u);
  EXPECT_EQ(search.Find("io")[0].index, 10);
  ASSERT_EQ(search.Find("85 Io").size(), 1u);
  EXPECT_EQ(search.Find("85 Io")[0].index, 14);
}
