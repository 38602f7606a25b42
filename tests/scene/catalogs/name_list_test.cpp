// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/name_list.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/names_files.h"
#include "utils/locale.h"

using namespace scene;

namespace {

class NameListTest : public testing::Test {
 protected:
  NameListTest() { host_test::WriteNames(f.sky.dir); }
  ~NameListTest() override { SwitchTo("en"); }

  static void SwitchTo(const std::string& language) { SetSystemLocale(language.c_str()); }
  void Load(const std::string& language) {
    std::string error;
    ASSERT_TRUE(OpenDataRoot(f.sky.dir.Path("data"), "", language, catalogs, error)) << error;
  }
  // The label of the star of that number.
  std::string LabelOf(int number) {
    for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
      if (catalogs.stars.GetNumber(i) == number) return catalogs.stars.GetLabel(i);
    }
    return "none";
  }
  std::string PleiadesName() {
    for (const DeepskyObject& object : catalogs.deepsky) {
      if (object.number == 45) return object.properName;
    }
    return "none";
  }

  host_test::FrameFixture f;
  SkyCatalogs catalogs;
};

}  // namespace

TEST_F(NameListTest, StarsDeepskyAndConstellationsHaveTheNamesOfTheLanguage) {
  Load("de");
  EXPECT_EQ(LabelOf(7001), "Wega");
  EXPECT_EQ(LabelOf(2061), "Beteigeuze") << "the first one of the list";
  EXPECT_EQ(LabelOf(1713), "Rigel") << "it has no other";
  EXPECT_EQ(PleiadesName(), "Plejaden");
  EXPECT_EQ(catalogs.constellations[0].GetName(NameForm::kLocal), "Himmelsjäger");
  EXPECT_EQ(catalogs.constellations[0].GetName(NameForm::kLatin), "Orion");
  Load("ru");
  EXPECT_EQ(LabelOf(7001), "Вега");
  EXPECT_EQ(PleiadesName(), "Плеяды");
}

TEST_F(NameListTest, EnglishNamesAreThoseOfTheCatalogs) {
  Load("en");
  EXPECT_EQ(LabelOf(7001), "Vega");
  EXPECT_EQ(PleiadesName(), "Pleiades");
  EXPECT_EQ(catalogs.constellations[0].GetName(NameForm::kLocal), "Orion");
}

TEST_F(NameListTest, NamesOutliveTheCatalogsThatTheyWereMovedFrom) {
  Load("de");
  const SkyCatalogs moved = std::move(catalogs);
  catalogs = SkyCatalogs();
  for (const DeepskyObject& object : moved.deepsky) {
    if (object.number == 45) {
      EXPECT_STREQ(object.properName, "Plejaden");
    }
  }
}

TEST_F(NameListTest, DamagedListIsToldAndLeavesTheNames) {
  f.sky.dir.Write("data/catalogs/names.txt", "no table\n");
  f.diagnostics.lines.clear();
  Load("de");
  EXPECT_EQ(LabelOf(7001), "Vega");
  EXPECT_EQ(f.diagnostics.lines.size(), 1u);
}
